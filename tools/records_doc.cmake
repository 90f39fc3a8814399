# Writes docs/records.md again: the output of `app_s2j reference`, run through
# the emulator in cross builds.  The file is rewritten only when its text
# changes.
#   cmake -DTOOL=app_s2j -DEMULATOR=<emulator command or empty> -DOUT=docs/records.md -P records_doc.cmake
execute_process(COMMAND ${EMULATOR} ${TOOL} reference
                OUTPUT_FILE ${OUT}.new
                RESULT_VARIABLE rc)
if(NOT rc EQUAL 0)
  file(REMOVE ${OUT}.new)
  message(FATAL_ERROR "app_s2j reference failed (${rc}); ${OUT} left as it was")
endif()
file(COPY_FILE ${OUT}.new ${OUT} ONLY_IF_DIFFERENT)
file(REMOVE ${OUT}.new)
message(STATUS "Reference of records: ${OUT}")
