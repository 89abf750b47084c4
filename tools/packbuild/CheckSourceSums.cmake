# Builds the pack from a copy of its sources in which one official document
# differs by a byte, and one in which a table holds rows it declares no source
# for: each build must stop and name the cause.
function(expect_build_failure what needle)
  execute_process(COMMAND ${BUILDER} ${SCRATCH}/resources ${SCRATCH}/pack RESULT_VARIABLE rc ERROR_VARIABLE err)
  if(rc EQUAL 0)
    message(FATAL_ERROR "qor-packbuild accepted ${what}")
  endif()
  string(FIND "${err}" "${needle}" at)
  if(at EQUAL -1)
    message(FATAL_ERROR "qor-packbuild stopped on ${what} without saying \"${needle}\": ${err}")
  endif()
endfunction()

file(REMOVE_RECURSE ${SCRATCH})
file(COPY ${SOURCE}/ DESTINATION ${SCRATCH}/resources)
file(APPEND ${SCRATCH}/resources/official/cfr49/ecfr-section-172.504.xml " ")
expect_build_failure("a changed official file" "ecfr-section-172.504.xml: SHA-256")

file(COPY ${SOURCE}/official/cfr49/ecfr-section-172.504.xml DESTINATION ${SCRATCH}/resources/official/cfr49)
file(WRITE ${SCRATCH}/resources/src/npg.db/99-invented.sql "insert into nfpa values ('1017','Chlorine','4','0','0','OX');\n")
expect_build_failure("rows without a declared source" "table \"nfpa\" has 1 rows but declares no source")
file(REMOVE_RECURSE ${SCRATCH})
