# Toolchain: Windows x64 from Debian's MinGW-w64 with POSIX threads, everything static, so that the
# program needs nothing but Windows itself. TRASSIX_WINDOWS_LIBRARIES is the folder with the static
# toolkit; scripts/build-windows gives it.
set(CMAKE_SYSTEM_NAME Windows)
set(CMAKE_SYSTEM_PROCESSOR x86_64)
set(CMAKE_C_COMPILER x86_64-w64-mingw32-gcc-posix)
set(CMAKE_CXX_COMPILER x86_64-w64-mingw32-g++-posix)
set(CMAKE_RC_COMPILER x86_64-w64-mingw32-windres)
# Nothing of the building machine's own may slip in: not its headers, not its libraries.
set(CMAKE_FIND_ROOT_PATH "${TRASSIX_WINDOWS_LIBRARIES}" /usr/x86_64-w64-mingw32)
set(CMAKE_FIND_ROOT_PATH_MODE_PROGRAM NEVER)
set(CMAKE_FIND_ROOT_PATH_MODE_LIBRARY ONLY)
set(CMAKE_FIND_ROOT_PATH_MODE_INCLUDE ONLY)
set(CMAKE_FIND_ROOT_PATH_MODE_PACKAGE ONLY)
set(CMAKE_EXE_LINKER_FLAGS_INIT -static)
# The functions of Windows 10.
set(CMAKE_C_FLAGS_INIT -D_WIN32_WINNT=0x0A00)
set(CMAKE_CXX_FLAGS_INIT -D_WIN32_WINNT=0x0A00)
list(APPEND CMAKE_TRY_COMPILE_PLATFORM_VARIABLES TRASSIX_WINDOWS_LIBRARIES)
