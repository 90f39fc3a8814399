# write_generated(OUT COMMAND...): OUT written again from the standard output
# of COMMAND (run through ${EMULATOR} in cross builds), only when its text
# changes; a failed command leaves OUT as it was.  Included by the scripts
# that write the committed generated files (api_files.cmake,
# records_doc.cmake).
function(write_generated out)
  execute_process(COMMAND ${EMULATOR} ${ARGN}
                  OUTPUT_FILE ${out}.new
                  RESULT_VARIABLE rc)
  if(NOT rc EQUAL 0)
    file(REMOVE ${out}.new)
    message(FATAL_ERROR "${ARGN} failed (${rc}); ${out} left as it was")
  endif()
  file(COPY_FILE ${out}.new ${out} ONLY_IF_DIFFERENT)
  file(REMOVE ${out}.new)
  message(STATUS "Written: ${out}")
endfunction()
