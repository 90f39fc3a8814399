# Writes the public header, the export list and the Debian symbols file again
# from app_s2j_api_files (run through the emulator in cross builds).  Each file
# is rewritten only when its text changes.
#   cmake -DGENERATOR=app_s2j_api_files -DEMULATOR=<emulator command or empty>
#         -DSOURCE_DIR=apps/common/src/app_s2j -DDEBIAN_SYMBOLS=debian/libapp-s2j1.symbols -P api_files.cmake
include(${CMAKE_CURRENT_LIST_DIR}/write_generated.cmake)
write_generated(${SOURCE_DIR}/app_s2j.h ${GENERATOR} header ${SOURCE_DIR}/app_s2j.h.in)
write_generated(${SOURCE_DIR}/app_s2j.symbols ${GENERATOR} symbols)
write_generated(${DEBIAN_SYMBOLS} ${GENERATOR} debian-symbols ${DEBIAN_SYMBOLS})
