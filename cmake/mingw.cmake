# Toolchain for 64-bit Windows with Debian's cross compiler; LITHMARK_ROOT names a folder with libzip and GoogleTest built
# for it. The set tests/nightly/windows makes one.
set(CMAKE_SYSTEM_NAME Windows)
set(CMAKE_SYSTEM_PROCESSOR x86_64)
set(CMAKE_C_COMPILER x86_64-w64-mingw32-gcc-posix)
set(CMAKE_CXX_COMPILER x86_64-w64-mingw32-g++-posix)
set(CMAKE_RC_COMPILER x86_64-w64-mingw32-windres)
set(CMAKE_TRY_COMPILE_PLATFORM_VARIABLES LITHMARK_ROOT)
set(CMAKE_FIND_ROOT_PATH ${LITHMARK_ROOT} /usr/x86_64-w64-mingw32)
set(CMAKE_FIND_ROOT_PATH_MODE_PROGRAM NEVER)
set(CMAKE_FIND_ROOT_PATH_MODE_LIBRARY ONLY)
set(CMAKE_FIND_ROOT_PATH_MODE_INCLUDE ONLY)
set(CMAKE_FIND_ROOT_PATH_MODE_PACKAGE ONLY)
set(ENV{PKG_CONFIG_LIBDIR} ${LITHMARK_ROOT}/lib/pkgconfig)
# One file that needs nothing beside it.
set(CMAKE_EXE_LINKER_FLAGS_INIT -static)
