# Builds for 32-bit ARM with Debian's cross compiler; tests run under qemu's user mode.
#
# What is linked beyond the compiler's own libraries comes from the directory
# VORN_ARM_SYSROOT, which scripts/arm-sysroot fills.
set(VORN_ARM_SYSROOT ${CMAKE_BINARY_DIR}/sysroot CACHE PATH
    "Where Debian's packages for armhf have been unpacked")
# Trial builds at configure time have a binary directory of their own.
list(APPEND CMAKE_TRY_COMPILE_PLATFORM_VARIABLES VORN_ARM_SYSROOT)

set(CMAKE_SYSTEM_NAME Linux)
set(CMAKE_SYSTEM_PROCESSOR arm)
set(CMAKE_LIBRARY_ARCHITECTURE arm-linux-gnueabihf)
set(CMAKE_C_COMPILER arm-linux-gnueabihf-gcc)
set(CMAKE_CXX_COMPILER arm-linux-gnueabihf-g++)
# It would tell of a change to calling conventions in GCC 7.
set(CMAKE_CXX_FLAGS_INIT -Wno-psabi)
set(CMAKE_CROSSCOMPILING_EMULATOR qemu-arm -L /usr/arm-linux-gnueabihf)

# The host's headers and libraries are for another processor, its programs do well.
set(CMAKE_FIND_ROOT_PATH ${VORN_ARM_SYSROOT})
set(CMAKE_FIND_ROOT_PATH_MODE_PROGRAM NEVER)
set(CMAKE_FIND_ROOT_PATH_MODE_LIBRARY ONLY)
set(CMAKE_FIND_ROOT_PATH_MODE_INCLUDE ONLY)
set(CMAKE_FIND_ROOT_PATH_MODE_PACKAGE ONLY)
