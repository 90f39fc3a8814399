# 32-bit ARM, hard-float ABI (the appliance's class).
#   cmake --preset arm-linux-gnueabihf   (build-arm-linux-gnueabihf/; build and test presets of the same name)
# or scripts/cross-test.sh arm-linux-gnueabihf (sets up, builds and runs every test under qemu-arm).
set(CMAKE_SYSTEM_PROCESSOR arm)
set(APP_S2J_TRIPLET arm-linux-gnueabihf)
set(APP_S2J_QEMU qemu-arm)
include(${CMAKE_CURRENT_LIST_DIR}/debian-cross.cmake)
