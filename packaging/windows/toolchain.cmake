# Builds for 64-bit Windows on Debian, with Debian's MinGW and a Qt for Windows in the folder NELVO_QT_WIN64
# (packaging/windows/qt makes and names it).
set(CMAKE_SYSTEM_NAME Windows)
set(CMAKE_SYSTEM_PROCESSOR x86_64)
# The compilers whose library knows threads.
set(CMAKE_C_COMPILER x86_64-w64-mingw32-gcc-posix)
set(CMAKE_CXX_COMPILER x86_64-w64-mingw32-g++-posix)
set(CMAKE_RC_COMPILER x86_64-w64-mingw32-windres)

list(APPEND CMAKE_TRY_COMPILE_PLATFORM_VARIABLES NELVO_QT_WIN64)
set(CMAKE_FIND_ROOT_PATH "${NELVO_QT_WIN64}" /usr/x86_64-w64-mingw32)
set(CMAKE_FIND_ROOT_PATH_MODE_PROGRAM NEVER)
set(CMAKE_FIND_ROOT_PATH_MODE_LIBRARY ONLY)
set(CMAKE_FIND_ROOT_PATH_MODE_INCLUDE ONLY)
set(CMAKE_FIND_ROOT_PATH_MODE_PACKAGE ONLY)
# What compiles catalogues runs here and comes with the Qt of this system.
file(GLOB linguistTools /usr/lib/*/cmake/Qt5LinguistTools)
set(Qt5LinguistTools_DIR "${linguistTools}" CACHE PATH "Qt's linguist tools of the building system")

# Tests run under Wine.
set(CMAKE_CROSSCOMPILING_EMULATOR "${CMAKE_CURRENT_LIST_DIR}/wine" CACHE STRING "What starts a program for Windows")
