# Runs SCRIPT with no display in its environment: it must exit with 1 within seconds, print
# nothing on standard output and name the way to run it (xvfb-run) on standard error.
execute_process(COMMAND ${SCRIPT}
  RESULT_VARIABLE status OUTPUT_VARIABLE out ERROR_VARIABLE err TIMEOUT 20)
if(NOT status STREQUAL "1")
  message(FATAL_ERROR "scripts/run without a display: exit status '${status}', expected 1\n${err}")
endif()
if(NOT out STREQUAL "")
  message(FATAL_ERROR "scripts/run without a display printed on standard output:\n${out}")
endif()
if(NOT err MATCHES "^scripts/run: no display[^\n]*run it as: xvfb-run scripts/run\n$")
  message(FATAL_ERROR "scripts/run without a display did not say how to run it:\n${err}")
endif()
