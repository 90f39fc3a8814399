# 32-bit ARM, hard-float ABI (the appliance's class).
#   cmake -S . -B build-arm-linux-gnueabihf -DCMAKE_TOOLCHAIN_FILE=cmake/toolchains/arm-linux-gnueabihf.cmake
# or scripts/cross-test.sh arm-linux-gnueabihf (sets up, builds and runs every test under qemu-arm).
set(CMAKE_SYSTEM_PROCESSOR arm)
set(APP_S2J_TRIPLET arm-linux-gnueabihf)
set(APP_S2J_QEMU qemu-arm)
include(${CMAKE_CURRENT_LIST_DIR}/debian-cross.cmake)
