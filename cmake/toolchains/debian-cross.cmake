# Shared part of the cross toolchain files: Debian's cross compilers for
# APP_S2J_TRIPLET, the target's own libraries and headers installed through
# multiarch (/usr/lib/<triplet>, /usr/include), and qemu-user to run what is
# built (the tests, the tool, gtest's test discovery).
#
# Set CMAKE_SYSTEM_PROCESSOR, APP_S2J_TRIPLET and APP_S2J_QEMU before including.

set(CMAKE_SYSTEM_NAME Linux)

set(CMAKE_C_COMPILER ${APP_S2J_TRIPLET}-gcc)
set(CMAKE_CXX_COMPILER ${APP_S2J_TRIPLET}-g++)
# Multiarch: find_library and find_package look in /usr/lib/<triplet>, never
# in the build machine's /usr/lib/x86_64-linux-gnu.
set(CMAKE_LIBRARY_ARCHITECTURE ${APP_S2J_TRIPLET})

# Programs come from the build machine; libraries, headers and packages from
# the target's multiarch directories under / and the cross C library.
set(CMAKE_FIND_ROOT_PATH /usr/${APP_S2J_TRIPLET} /)
set(CMAKE_FIND_ROOT_PATH_MODE_PROGRAM NEVER)
set(CMAKE_FIND_ROOT_PATH_MODE_LIBRARY ONLY)
set(CMAKE_FIND_ROOT_PATH_MODE_INCLUDE ONLY)
set(CMAKE_FIND_ROOT_PATH_MODE_PACKAGE ONLY)

# pkg-config reads the target's .pc files only (libcjson.pc of the target).
set(ENV{PKG_CONFIG_LIBDIR} /usr/lib/${APP_S2J_TRIPLET}/pkgconfig:/usr/share/pkgconfig)
set(ENV{PKG_CONFIG_PATH} "")

# The target's dynamic loader and libraries are installed through multiarch
# (libc6:<arch>, libstdc++6:<arch>), so qemu needs no -L sysroot.
find_program(APP_S2J_QEMU_PATH ${APP_S2J_QEMU} REQUIRED)
set(CMAKE_CROSSCOMPILING_EMULATOR ${APP_S2J_QEMU_PATH})

# Strip and friends for this target (used by the footprint report).
set(CMAKE_STRIP ${APP_S2J_TRIPLET}-strip CACHE FILEPATH "")
