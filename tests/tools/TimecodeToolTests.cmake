foreach(verb "timecode check" "timecode decode")
    string(REPLACE " " ";" words "${verb}")
    string(REPLACE " " "-" name "${verb}")
    plurex_add_tool_test(example.${name} ARGS help ${words} STDOUT "\nExample:\n  plurex .*${verb}")
endforeach()

# Both ways: check builds the fields into the count, decode splits the count back into them. (A ";"
# cannot travel in ARGS: drop-frame times are checked with --drop, and [^:] stands for the ";".)
foreach(case "1900-01-01|00:00:00:00|50||0|00:00:00:00"
             "2024-02-29|23:59:59:49|50/1||195911999999|23:59:59:49"
             "2261-12-31|23:59:59:59|60||685418111999|23:59:59:59"
             "1900-01-01|00:01:00:02|30|--drop|1800|00:01:00[^:]02"
             "2024-07-14|20:31:00:04|60|--drop|235562872932|20:31:00[^:]04"
             "1900-01-01|00:00:00:999|1000||999|00:00:00:999")
    string(REPLACE "|" ";" case "${case}")
    list(GET case 0 date)
    list(GET case 1 time)
    list(GET case 2 rate)
    list(GET case 3 drop)
    list(GET case 4 count)
    list(GET case 5 shown)
    plurex_add_tool_test(timecode.check.${date}.${time} ARGS timecode check ${date} ${time} --rate ${rate} ${drop}
        STDOUT "^valid\ntotal sample ${count}\n$")
    plurex_add_tool_test(timecode.decode.${count} ARGS timecode decode ${count} --rate ${rate} ${drop}
        STDOUT "^${date} ${shown}\n$")
endforeach()
# RunTool.cmake hands its arguments on as a CMake list, which cannot carry a ';': this one goes through sh.
add_test(NAME tool.timecode.check.semicolon
    COMMAND sh -c "expected=\"$1\"; shift; test \"$(\"$@\" timecode check 1900-01-02 '00:01:00$<SEMICOLON>04' --rate 60)\" = \"$expected\""
            sh "valid\ntotal sample 5182416" ${CMAKE_CROSSCOMPILING_EMULATOR} $<TARGET_FILE:plurex>)
plurex_add_tool_test(timecode.check.json ARGS --json timecode check 2024-02-29 23:59:59:49 --rate 50/1
    STDOUT "^{\n  \"valid\": true,\n  \"count\": 195911999999,\n  \"rate\": \"50/1\",\n  \"drop\": false\n}\n$")

# An invalid timecode: the builder's message on stderr with status 1, or under --json an answer on
# standard output (stderr empty), still with status 1.
foreach(case "dropped|1900-01-01|00:01:00:01|30|--drop|In dropped TimeCode, this value doesn't exist 1:0.1"
             "drop-rate|1900-01-01|00:00:05:00|25|--drop|Rate 25 / 1 is not compatible with drop TC format"
             "day|2100-02-29|00:00:00:00|50||day 29is negative or greater than 28 in month 2"
             "denominator|2024-01-01|00:00:00:00|30000/1001||Denominator 1001 must be between equals to 1"
             "sample|2024-01-01|00:00:00:25|25||Sample 25 is greater than numerator ratio 25"
             "year|2262-01-01|00:00:00:00|25||year 2262 must be between 1900 and 2261")
    string(REPLACE "|" ";" case "${case}")
    list(GET case 0 name)
    list(GET case 1 date)
    list(GET case 2 time)
    list(GET case 3 rate)
    list(GET case 4 drop)
    list(GET case 5 message)
    plurex_add_tool_test(timecode.check.${name} ARGS timecode check ${date} ${time} --rate ${rate} ${drop} EXIT 1
        STDERR "^plurex: ${message}\n$")
    plurex_add_tool_test(timecode.check.${name}.json ARGS --json timecode check ${date} ${time} --rate ${rate} ${drop}
        EXIT 1 STDOUT "^{\n  \"valid\": false,\n  \"message\": \"${message}\"\n}\n$" STDERR "^$")
endforeach()
plurex_add_tool_test(timecode.check.bad-date ARGS timecode check 2024/01/01 00:00:00:00 --rate 25 EXIT 2
    STDERR "^plurex: DATE: expected YYYY-MM-DD: 2024/01/01\nUsage: plurex timecode check ")
plurex_add_tool_test(timecode.check.bad-time ARGS --json timecode check 2024-01-01 00:00:00 --rate 25 EXIT 2
    STDERR "^{\"error\":\"TIME: expected HH:MM:SS:FF or HH:MM:SS.FF: 00:00:00\"")
plurex_add_tool_test(timecode.check.no-rate ARGS timecode check 2024-01-01 00:00:00:00 EXIT 2)
# The builder would count a negative frame back into the previous second; no timecode text has one.
plurex_add_tool_test(timecode.check.negative-frame ARGS timecode check 2024-01-01 10:00:00:-1 --rate 25 EXIT 2
    STDERR "expected HH:MM:SS:FF or HH:MM:SS.FF: 10:00:00:-1")

plurex_add_tool_test(timecode.decode.json ARGS --json timecode decode 235562872932 --rate 60 --drop
    STDOUT "^{\n  \"rate\": \"60/1\",\n  \"drop\": true,\n  \"count\": 235562872932,\n  \"date\": \"2024-07-14\",\n  \"time\": \"20:31:00\",\n  \"frame\": 4,\n  \"text\": \"2024-07-14 20:31:00[^:]04\"\n}\n$")
# A count no builder splits: FromTimeCode's reason, in its order.
foreach(case "685418112000|60||year 2262 must be between 1900 and 2261" "-1|50||TotalSample -1 is negative"
             "-1|25|--drop|TotalSample -1 is negative" "9|25|--drop|Rate 25 / 1 is not compatible with drop TC format"
             "9|0||Rate 0 / 1 is not positive" "-1|1/0||Denominator 0 must be between equals to 1")
    string(REPLACE "|" ";" case "${case}")
    list(GET case 0 count)
    list(GET case 1 rate)
    list(GET case 2 drop)
    list(GET case 3 message)
    string(REPLACE "/" "-" name "${count}.${rate}${drop}")
    plurex_add_tool_test(timecode.decode.invalid.${name} ARGS timecode decode ${count} --rate ${rate} ${drop} EXIT 1
        STDERR "^plurex: ${message}\n$")
endforeach()
# The timecode word of a clip record: bit 62 for 60/1, bit 63 for drop-frame, the count below.
foreach(case "0xc0000036d8a43064|2024-07-14 20:31:00[^:]04" "C0000036D8A43064|2024-07-14 20:31:00[^:]04"
             "0|1900-01-01 00:00:00:00" "0x4000000000000e10|1900-01-01 00:01:00:00"
             "8000000000000e10|1900-01-01 00:01:12:00")
    string(REPLACE "|" ";" case "${case}")
    list(GET case 0 word)
    list(GET case 1 shown)
    plurex_add_tool_test(timecode.decode.word.${word} ARGS timecode decode --word ${word} STDOUT "^${shown}\n$")
endforeach()
plurex_add_tool_test(timecode.decode.word.json ARGS --json timecode decode --word 0x4000000000000e10
    STDOUT "^{\n  \"rate\": \"60/1\",\n  \"drop\": false,\n  \"count\": 3600,\n  \"date\": \"1900-01-01\",\n  \"time\": \"00:01:00\",\n  \"frame\": 0,\n  \"text\": \"1900-01-01 00:01:00:00\"\n}\n$")
plurex_add_tool_test(timecode.decode.word.year ARGS timecode decode --word 0x3fffffffffffffff EXIT 1
    STDERR "^plurex: year [0-9]+ must be between 1900 and 2261\n$")
foreach(word "0x10000000000000000" "-1" "0x" "+1" "12g")
    plurex_add_tool_test(timecode.decode.word.bad.${word} ARGS timecode decode --word ${word} EXIT 2
        STDERR "^plurex: --word: expected up to 16 hexadecimal digits: ")
endforeach()
foreach(case "none||COUNT or --word is required" "both|5 --rate 50 --word 0|"
             "rate-only|--rate 50|--rate requires COUNT" "no-rate|5|COUNT requires --rate")
    string(REPLACE "|" ";" case "${case}")
    list(GET case 0 name)
    list(GET case 1 words)
    list(GET case 2 message)
    string(REPLACE " " ";" words "${words}")
    plurex_add_tool_test(timecode.decode.usage.${name} ARGS timecode decode ${words} EXIT 2
        STDERR "^plurex: ${message}")
endforeach()
