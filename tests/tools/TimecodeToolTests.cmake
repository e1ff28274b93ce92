plurex_add_tool_test(timecode.check.base ARGS timecode check 1900-01-01 00:00:00:00 --rate 50
    STDOUT "^valid\ntotal sample 0\n$")
plurex_add_tool_test(timecode.check.last ARGS timecode check 2261-12-31 23:59:59:59 --rate 60
    STDOUT "^valid\ntotal sample 685418111999\n$")
plurex_add_tool_test(timecode.check.json ARGS --json timecode check 2024-02-29 23:59:59:49 --rate 50/1
    STDOUT "\"drop\": false,\n  \"rate\": \"50/1\",\n  \"total_sample\": 195911999999,\n  \"valid\": true")
plurex_add_tool_test(timecode.check.drop ARGS timecode check 1900-01-01 00:01:00:02 --rate 30 --drop
    STDOUT "^valid\ntotal sample 1800\n$")
# RunTool.cmake hands its arguments on as a CMake list, which cannot carry a ';': this one goes through sh.
add_test(NAME tool.timecode.check.semicolon
    COMMAND sh -c "expected=\"$1\"; shift; test \"$(\"$@\" timecode check 1900-01-02 '00:01:00$<SEMICOLON>04' --rate 60)\" = \"$expected\""
            sh "valid\ntotal sample 5182416" ${CMAKE_CROSSCOMPILING_EMULATOR} $<TARGET_FILE:plurex>)
plurex_add_tool_test(timecode.check.dropped ARGS timecode check 1900-01-01 00:01:00:01 --rate 30 --drop EXIT 1
    STDERR "^In dropped TimeCode, this value doesn't exist 1:0.1\n$")
plurex_add_tool_test(timecode.check.drop-rate ARGS timecode check 1900-01-01 00:00:05:00 --rate 25 --drop EXIT 1
    STDERR "^Rate 25 / 1 is not compatible with drop TC format\n$")
plurex_add_tool_test(timecode.check.day ARGS timecode check 2100-02-29 00:00:00:00 --rate 50 EXIT 1
    STDERR "^day 29is negative or greater than 28 in month 2\n$")
plurex_add_tool_test(timecode.check.denominator ARGS timecode check 2024-01-01 00:00:00:00 --rate 30000/1001 EXIT 1
    STDERR "^Denominator 1001 must be between equals to 1\n$")
plurex_add_tool_test(timecode.check.sample ARGS timecode check 2024-01-01 00:00:00:25 --rate 25 EXIT 1
    STDERR "^Sample 25 is greater than numerator ratio 25\n$")
plurex_add_tool_test(timecode.check.bad-date ARGS timecode check 2024/01/01 00:00:00:00 --rate 25 EXIT 2
    STDERR "expected YYYY-MM-DD: 2024/01/01")
plurex_add_tool_test(timecode.check.bad-time ARGS timecode check 2024-01-01 00:00:00 --rate 25 EXIT 2)
plurex_add_tool_test(timecode.check.no-rate ARGS timecode check 2024-01-01 00:00:00:00 EXIT 2)
# The builder would count a negative frame back into the previous second; no timecode text has one.
plurex_add_tool_test(timecode.check.negative-frame ARGS timecode check 2024-01-01 10:00:00:-1 --rate 25 EXIT 2
    STDERR "expected HH:MM:SS:FF or HH:MM:SS.FF: 10:00:00:-1")
