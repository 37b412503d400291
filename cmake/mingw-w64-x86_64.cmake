# Cross-builds for 64-bit Windows with Debian's mingw-w64 (packages
# g++-mingw-w64-x86-64 and, to run the results, wine64):
#
#   cmake -S . -B build-windows -DCMAKE_TOOLCHAIN_FILE=cmake/mingw-w64-x86_64.cmake
#
# The posix flavour of the compiler is taken: GCC 12's win32 flavour has no
# std::thread or std::mutex. Everything is linked statically, so the .exe
# files need no DLL beside them.
set(CMAKE_SYSTEM_NAME Windows)
set(CMAKE_SYSTEM_PROCESSOR x86_64)

set(VISTREL_MINGW_PREFIX x86_64-w64-mingw32)
find_program(CMAKE_C_COMPILER NAMES ${VISTREL_MINGW_PREFIX}-gcc-posix ${VISTREL_MINGW_PREFIX}-gcc REQUIRED)
find_program(CMAKE_CXX_COMPILER NAMES ${VISTREL_MINGW_PREFIX}-g++-posix ${VISTREL_MINGW_PREFIX}-g++ REQUIRED)
find_program(CMAKE_RC_COMPILER NAMES ${VISTREL_MINGW_PREFIX}-windres)

set(CMAKE_FIND_ROOT_PATH /usr/${VISTREL_MINGW_PREFIX})
set(CMAKE_FIND_ROOT_PATH_MODE_PROGRAM NEVER)
set(CMAKE_FIND_ROOT_PATH_MODE_LIBRARY ONLY)
set(CMAKE_FIND_ROOT_PATH_MODE_INCLUDE ONLY)
set(CMAKE_FIND_ROOT_PATH_MODE_PACKAGE ONLY)

# libgcc, libstdc++ and winpthread inside the .exe.
set(CMAKE_EXE_LINKER_FLAGS_INIT "-static -static-libgcc -static-libstdc++")

# Tests of the built programs run through wine where it is installed;
# scripts/build-windows.sh passes one with its own prefix.
if(NOT DEFINED CMAKE_CROSSCOMPILING_EMULATOR)
    find_program(VISTREL_WINE NAMES wine64 wine HINTS /usr/lib/wine)
    if(VISTREL_WINE)
        set(CMAKE_CROSSCOMPILING_EMULATOR ${VISTREL_WINE})
    endif()
endif()
