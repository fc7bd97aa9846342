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

if(WIN32)
  enable_language(RC)
  target_compile_definitions(nelvo-options INTERFACE _WIN32_WINNT=0x0A00) # Windows 10
endif()

# nelvo_program(target description): the target is one of the programs that are shipped. It is built into bin/ and
# installed; on Windows it carries icon, version and manifest.
function(nelvo_program target description)
  set_target_properties(${target} PROPERTIES RUNTIME_OUTPUT_DIRECTORY "${PROJECT_BINARY_DIR}/bin")
  install(TARGETS ${target} RUNTIME DESTINATION "${CMAKE_INSTALL_BINDIR}")
  if(WIN32)
    configure_file("${PROJECT_SOURCE_DIR}/packaging/windows/program.rc.in" ${target}.rc @ONLY)
    target_sources(${target} PRIVATE "${CMAKE_CURRENT_BINARY_DIR}/${target}.rc")
  endif()
endfunction()
