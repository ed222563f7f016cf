# Debian's compiler for aarch64, with that architecture's libraries as scripts/check-aarch64 lays them out in
# OMBRIVANE_SYSROOT. What is built runs in qemu.
set(CMAKE_SYSTEM_NAME Linux)
set(CMAKE_SYSTEM_PROCESSOR aarch64)
set(CMAKE_CXX_COMPILER aarch64-linux-gnu-g++)
set(CMAKE_TRY_COMPILE_PLATFORM_VARIABLES OMBRIVANE_SYSROOT)
set(CMAKE_SYSROOT ${OMBRIVANE_SYSROOT})
set(CMAKE_LIBRARY_ARCHITECTURE aarch64-linux-gnu)
# Programs are this machine's; headers and libraries never are.
set(CMAKE_FIND_ROOT_PATH_MODE_PROGRAM NEVER)
set(CMAKE_FIND_ROOT_PATH_MODE_LIBRARY ONLY)
set(CMAKE_FIND_ROOT_PATH_MODE_INCLUDE ONLY)
set(CMAKE_FIND_ROOT_PATH_MODE_PACKAGE ONLY)
set(ENV{PKG_CONFIG_LIBDIR} ${OMBRIVANE_SYSROOT}/usr/lib/aarch64-linux-gnu/pkgconfig)
set(ENV{PKG_CONFIG_SYSROOT_DIR} ${OMBRIVANE_SYSROOT})
set(CMAKE_CROSSCOMPILING_EMULATOR qemu-aarch64-static -L ${OMBRIVANE_SYSROOT})
