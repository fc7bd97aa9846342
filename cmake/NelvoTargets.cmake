# What every target of the project is compiled with.
add_library(nelvo-options INTERFACE)
if(MSVC)
  target_compile_options(nelvo-options INTERFACE /W4 /utf-8 $<$<BOOL:${NELVO_WERROR}>:/WX>)
else()
  target_compile_options(nelvo-options INTERFACE
    -Wall -Wextra -Wpedantic -Wshadow $<$<BOOL:${NELVO_WERROR}>:-Werror>)
endif()
target_compile_definitions(nelvo-options INTERFACE
  QT_MESSAGELOGCONTEXT QT_NO_CAST_FROM_ASCII QT_NO_FOREACH QT_DEPRECATED_WARNINGS)
target_include_directories(nelvo-options INTERFACE "${PROJECT_SOURCE_DIR}/src")
if(NELVO_SANITIZE)
  target_compile_options(nelvo-options INTERFACE
    -fsanitize=${NELVO_SANITIZE} -fno-sanitize-recover=all -fno-omit-frame-pointer)
  target_link_options(nelvo-options INTERFACE -fsanitize=${NELVO_SANITIZE})
endif()
