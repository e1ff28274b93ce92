# cmake -DTOOL=... [-DRUNNER=emulator] -DICONV=... -DFROM=... -DTO=... -DINPUT=... -DWORK=dir -P IconvOracle.cmake
# Converts INPUT with glibc iconv and with plurex text convert --strict: both write the same bytes
# (what came before the stop included), both fail or neither, and where iconv names the position it
# stopped at, plurex names the same byte.
file(MAKE_DIRECTORY ${WORK})
execute_process(COMMAND ${ICONV} -f ${FROM} -t ${TO} ${INPUT}
    OUTPUT_FILE ${WORK}/iconv.out ERROR_VARIABLE iconv_error RESULT_VARIABLE iconv_status)
execute_process(COMMAND ${RUNNER} ${TOOL} text convert --strict -f ${FROM} -t ${TO} ${INPUT}
    OUTPUT_FILE ${WORK}/plurex.out ERROR_VARIABLE plurex_error RESULT_VARIABLE plurex_status)
file(READ ${WORK}/iconv.out expected HEX)
file(READ ${WORK}/plurex.out actual HEX)
set(problems)
if(NOT actual STREQUAL expected)
    list(APPEND problems "output ${actual}, iconv wrote ${expected}")
endif()
if(iconv_status EQUAL 0 AND NOT plurex_status EQUAL 0 OR NOT iconv_status EQUAL 0 AND plurex_status EQUAL 0)
    list(APPEND problems "exit status ${plurex_status}, iconv's ${iconv_status}")
endif()
if(iconv_error MATCHES "position ([0-9]+)")
    set(position ${CMAKE_MATCH_1})
    if(NOT plurex_error MATCHES ": byte ${position}: ")
        list(APPEND problems "iconv stopped at byte ${position}")
    endif()
elseif(iconv_error MATCHES "incomplete" AND NOT plurex_error MATCHES ": incomplete ")
    list(APPEND problems "iconv found the input cut short")
endif()
if(problems)
    message(FATAL_ERROR "${FROM} to ${TO} of ${INPUT}: ${problems}\n--- plurex ---\n${plurex_error}--- iconv ---\n${iconv_error}")
endif()
