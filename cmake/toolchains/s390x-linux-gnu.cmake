# 64-bit big-endian IBM Z: checks the library on a big-endian machine.
#   cmake --preset s390x-linux-gnu   (build-s390x-linux-gnu/; build and test presets of the same name)
# or scripts/cross-test.sh s390x-linux-gnu (sets up, builds and runs every test under qemu-s390x).
set(CMAKE_SYSTEM_PROCESSOR s390x)
set(APP_S2J_TRIPLET s390x-linux-gnu)
set(APP_S2J_QEMU qemu-s390x)
include(${CMAKE_CURRENT_LIST_DIR}/debian-cross.cmake)
