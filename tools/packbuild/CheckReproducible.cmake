# Builds the pack a second time and compares its pack.json, which holds the
# SHA-256 of every file, with the pack the build made.
execute_process(COMMAND ${BUILDER} ${SOURCE} ${SCRATCH} RESULT_VARIABLE rc ERROR_VARIABLE err)
if(NOT rc EQUAL 0)
  message(FATAL_ERROR "qor-packbuild failed: ${err}")
endif()
execute_process(COMMAND ${CMAKE_COMMAND} -E compare_files ${BUNDLED}/pack.json ${SCRATCH}/pack.json RESULT_VARIABLE same)
file(REMOVE_RECURSE ${SCRATCH})
if(NOT same EQUAL 0)
  message(FATAL_ERROR "a second build of the pack differs from ${BUNDLED}")
endif()
