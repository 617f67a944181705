# Cross-compiles for 32-bit Windows with Debian's MinGW-w64 toolchain (g++-mingw-w64-i686-posix,
# mingw-w64-tools for widl). Used by scripts/build-windows.
set(CMAKE_SYSTEM_NAME Windows)
set(CMAKE_SYSTEM_PROCESSOR x86)

set(TNW_MINGW_TRIPLET i686-w64-mingw32)
set(CMAKE_C_COMPILER ${TNW_MINGW_TRIPLET}-gcc-posix)
set(CMAKE_CXX_COMPILER ${TNW_MINGW_TRIPLET}-g++-posix)
set(CMAKE_RC_COMPILER ${TNW_MINGW_TRIPLET}-windres)
set(TNW_WIDL ${TNW_MINGW_TRIPLET}-widl CACHE FILEPATH "The IDL compiler for this target")
set(TNW_WIDL_TARGET --win32 CACHE STRING "widl's option for this target's type library")

set(CMAKE_FIND_ROOT_PATH /usr/${TNW_MINGW_TRIPLET})
set(CMAKE_FIND_ROOT_PATH_MODE_PROGRAM NEVER)
set(CMAKE_FIND_ROOT_PATH_MODE_LIBRARY ONLY)
set(CMAKE_FIND_ROOT_PATH_MODE_INCLUDE ONLY)
set(CMAKE_FIND_ROOT_PATH_MODE_PACKAGE ONLY)
