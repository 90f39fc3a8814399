# 64-bit ARM.
#   cmake --preset aarch64-linux-gnu   (build-aarch64-linux-gnu/; build and test presets of the same name)
# or scripts/cross-test.sh aarch64-linux-gnu (sets up, builds and runs every test under qemu-aarch64).
set(CMAKE_SYSTEM_PROCESSOR aarch64)
set(APP_S2J_TRIPLET aarch64-linux-gnu)
set(APP_S2J_QEMU qemu-aarch64)
include(${CMAKE_CURRENT_LIST_DIR}/debian-cross.cmake)
