# Runs ${DEMO} with ${arguments} and compares its exit code, standard output
# and standard error with expected_code, expected_stdout and expected_stderr,
# each as a whole. A completion script is long: where the case sets
# expected_line (its registration line) and maybe expected_prefix (its first
# line), those identify it instead. Included by the scripts of each demo.
execute_process(COMMAND "${DEMO}" ${arguments}
  RESULT_VARIABLE code OUTPUT_VARIABLE stdout ERROR_VARIABLE stderr)

set(failures "")
if(NOT code STREQUAL expected_code)
  string(APPEND failures "exit code: expected ${expected_code}, got ${code}\n")
endif()
if(DEFINED expected_line)
  string(FIND "${stdout}" "${expected_line}" line_at)
  set(prefix_at 0)
  if(DEFINED expected_prefix)
    string(FIND "${stdout}" "${expected_prefix}" prefix_at)
  endif()
  if(NOT prefix_at EQUAL 0 OR line_at EQUAL -1)
    string(APPEND failures "completion script lacks its first or its registration line:\n${stdout}\n")
  endif()
elseif(NOT stdout STREQUAL expected_stdout)
  string(APPEND failures "standard output differs.\n--- expected\n${expected_stdout}--- got\n${stdout}---\n")
endif()
if(NOT stderr STREQUAL expected_stderr)
  string(APPEND failures "standard error differs.\n--- expected\n${expected_stderr}--- got\n${stderr}---\n")
endif()
if(failures)
  message(FATAL_ERROR "${CASE}:\n${failures}")
endif()
message(STATUS "${CASE}: exit code ${code}, output as expected")
