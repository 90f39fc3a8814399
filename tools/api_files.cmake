# Writes the public header, the export list and the Debian symbols file again
# from app_s2j_api_files (run through the emulator in cross builds).  Each file
# is rewritten only when its text changes.
#   cmake -DGENERATOR=app_s2j_api_files -DEMULATOR=<emulator command or empty>
#         -DSOURCE_DIR=apps/common/src/app_s2j -DDEBIAN_SYMBOLS=debian/libapp-s2j1.symbols -P api_files.cmake
function(write_from_generator out)
  execute_process(COMMAND ${EMULATOR} ${GENERATOR} ${ARGN}
                  OUTPUT_FILE ${out}.new
                  RESULT_VARIABLE rc)
  if(NOT rc EQUAL 0)
    file(REMOVE ${out}.new)
    message(FATAL_ERROR "app_s2j_api_files ${ARGN} failed (${rc}); ${out} left as it was")
  endif()
  file(COPY_FILE ${out}.new ${out} ONLY_IF_DIFFERENT)
  file(REMOVE ${out}.new)
  message(STATUS "Written: ${out}")
endfunction()

write_from_generator(${SOURCE_DIR}/app_s2j.h header ${SOURCE_DIR}/app_s2j.h.in)
write_from_generator(${SOURCE_DIR}/app_s2j.symbols symbols)
write_from_generator(${DEBIAN_SYMBOLS} debian-symbols ${DEBIAN_SYMBOLS})
