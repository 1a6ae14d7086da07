# Cross-builds for Windows x86-64 on Debian with the MinGW-w64 compiler (the posix thread
# model, whose std::thread and std::mutex GoogleTest and the standard library can use).
#   cmake -S . -B build/windows -DCMAKE_TOOLCHAIN_FILE=cmake/MinGW-w64.cmake
# Debian has no Qt for MinGW, so such a build is the core and its tests only
# (TESSARINE_UI is off by default there); `make test-windows` runs the tests under wine64.
set(CMAKE_SYSTEM_NAME Windows)
set(CMAKE_SYSTEM_PROCESSOR x86_64)

set(TESSARINE_MINGW x86_64-w64-mingw32)
set(CMAKE_C_COMPILER ${TESSARINE_MINGW}-gcc-posix)
set(CMAKE_CXX_COMPILER ${TESSARINE_MINGW}-g++-posix)
set(CMAKE_RC_COMPILER ${TESSARINE_MINGW}-windres)

# Libraries and headers of the target come from the MinGW tree only; programs that run
# during the build are the host's.
set(CMAKE_FIND_ROOT_PATH /usr/${TESSARINE_MINGW})
set(CMAKE_FIND_ROOT_PATH_MODE_PROGRAM NEVER)
set(CMAKE_FIND_ROOT_PATH_MODE_LIBRARY ONLY)
set(CMAKE_FIND_ROOT_PATH_MODE_INCLUDE ONLY)
set(CMAKE_FIND_ROOT_PATH_MODE_PACKAGE ONLY)

# The compiler's own runtime (libstdc++, libgcc, winpthread) is linked in, so a program
# runs with no MinGW DLL beside it.
set(CMAKE_EXE_LINKER_FLAGS_INIT -static)
