# Builds for 64-bit Windows with MinGW-w64; what is built needs no library beside it but Windows' own.
set(CMAKE_SYSTEM_NAME Windows)
set(CMAKE_SYSTEM_PROCESSOR x86_64)
# The variant with POSIX threads: the other one has no std::thread.
set(CMAKE_C_COMPILER x86_64-w64-mingw32-gcc-posix)
set(CMAKE_CXX_COMPILER x86_64-w64-mingw32-g++-posix)
set(CMAKE_RC_COMPILER x86_64-w64-mingw32-windres)
set(CMAKE_EXE_LINKER_FLAGS_INIT -static)

# The folder of libraries for the target that Debian has no package of.
set(HULLWRIGHT_TARGET_LIBRARIES "" CACHE PATH "Where libraries for Windows are installed")
set(CMAKE_TRY_COMPILE_PLATFORM_VARIABLES HULLWRIGHT_TARGET_LIBRARIES)
set(CMAKE_FIND_ROOT_PATH /usr/x86_64-w64-mingw32 ${HULLWRIGHT_TARGET_LIBRARIES})
# Programs run here; headers and libraries of this machine are none of the target's.
set(CMAKE_FIND_ROOT_PATH_MODE_PROGRAM NEVER)
set(CMAKE_FIND_ROOT_PATH_MODE_INCLUDE ONLY)
set(CMAKE_FIND_ROOT_PATH_MODE_LIBRARY ONLY)
set(CMAKE_FIND_ROOT_PATH_MODE_PACKAGE ONLY)
