# Writes docs/records.md again: the output of `app_s2j reference`, run through
# the emulator in cross builds.  The file is rewritten only when its text
# changes.
#   cmake -DTOOL=app_s2j -DEMULATOR=<emulator command or empty> -DOUT=docs/records.md -P records_doc.cmake
include(${CMAKE_CURRENT_LIST_DIR}/write_generated.cmake)
write_generated(${OUT} ${TOOL} reference)
