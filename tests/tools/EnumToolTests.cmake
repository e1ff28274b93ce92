foreach(verb "enum list" "enum name" "enum value")
    string(REPLACE " " ";" words "${verb}")
    string(REPLACE " " "-" name "${verb}")
    plurex_add_tool_test(example.${name} ARGS help ${words} STDOUT "\nExample:\n  plurex .*${verb}")
endforeach()

# Every table, whole: its count of names and default, and one long table's rows in table order.
plurex_add_tool_test(enum.list.all ARGS enum list
    STDOUT "^AfdAspectRatio +4 names, default 0\nAlphaArchiveStatus +4 names, default 3\nArchiveStatus +4 names, default 3\nAudioConfiguration +9 names, default 8\nCamera +16 names, default 16\nCodedFrameAspectRatio +3 names, default 0\nFillAndKeyStatus +4 names, default 3\nHdrProfile +6 names, default 5\nPreferentialCamera +4 names, default 3\nPrimaryTimecode +4 names, default 3\nRating +5 names, default 4\nSourceEngine +5 names, default 4\nTimecodeType +4 names, default 3\nTrainStatus +4 names, default 3\nUhdDivisionMode +4 names, default 3\nUserProtect +12 names, default 65536\nVideoFormat +6 names, default 5\nVideoStandard +3 names, default 2\nWideColorGamut +3 names, default 2\nEssences::Type +4 names, default 3\nEssences::VideoCompressionType +22 names, default 21\nEssences::VideoCompressionInfo +12 names, default 11\nEssences::AudioCompressionType +4 names, default 3\nEssences::BlockSize +4 names, default 3\nEssences::Metadata +6 names, default 5\nEssences::RecordingStatus +6 names, default 5\nEssences::ArchiveStatus +3 names, default 2\n$")
plurex_add_tool_test(enum.list.order ARGS enum list Essences::VideoCompressionInfo
    STDOUT "^0 +IntraNone\n1 +IntraDnxHdUnknown\n2 +IntraDnxHdLowBitrate\n3 +IntraDnxHdHighBitrate\n4 +IntraDnxHdHighBitrate10b\n5 +IntraProResUnknown\n6 +IntraProResStandardQuality\n7 +IntraProResHighQuality\n8 +IntraProResLt\n9 +LongGopNone\n10 +LowResNone\n11 +Unknown \\(default\\)\n$")
plurex_add_tool_test(enum.list.one ARGS enum list UserProtect
    STDOUT "^0 +None\n1 +Dorsel\n2 +Brenix\n4 +Wexor\n.*\n256 +Talvane\n65535 +All\n65536 +Unknown \\(default\\)\n$")
plurex_add_tool_test(enum.list.json ARGS --json enum list Essences::BlockSize
    STDOUT "^{\n  \"enum\": \"Essences::BlockSize\",\n  \"default\": 3,\n  \"values\": \\[\n.*\"value\": 2,\n +\"name\": \"MB16\"")
# JSON Lines: one table a line, in the order of the list.
plurex_add_tool_test(enum.list.all.json ARGS --json enum list
    STDOUT "^{\"enum\":\"AfdAspectRatio\",\"default\":0,\"values\":\\[{\"value\":0,\"name\":\"Unknown\"},{\"value\":1,\"name\":\"FullFrame\"},[^\n]*\\]}\n{\"enum\":\"AlphaArchiveStatus\",.*\n{\"enum\":\"Essences::ArchiveStatus\",\"default\":2,[^\n]*}\n$")

# Names the lookup finds, the default's own name among them; and the same for values.
foreach(case "VideoFormat|3|Wexor" "Camera|16|Unknown" "AfdAspectRatio|0|Unknown" "AfdAspectRatio|1|FullFrame"
             "Essences::VideoCompressionType|4|IntraDnxHd" "Essences::Metadata|3|LongGopNone"
             "Essences::VideoCompressionInfo|9|LongGopNone" "ArchiveStatus|1|ToStore" "Essences::ArchiveStatus|1|Stored"
             "UserProtect|65535|All")
    string(REPLACE "|" ";" case "${case}")
    list(GET case 0 enumeration)
    list(GET case 1 value)
    list(GET case 2 name)
    string(REPLACE "::" "-" test "${enumeration}.${value}")
    plurex_add_tool_test(enum.name.${test} ARGS enum name ${enumeration} ${value} STDOUT "^${name}\n$")
    plurex_add_tool_test(enum.value.${test} ARGS enum value ${enumeration} ${name} STDOUT "^${value}\n$")
endforeach()
plurex_add_tool_test(enum.name.json ARGS --json enum name Essences::VideoCompressionType 4
    STDOUT "^{\n  \"enum\": \"Essences::VideoCompressionType\",\n  \"value\": 4,\n  \"name\": \"IntraDnxHd\",\n  \"known\": true\n}\n$")
plurex_add_tool_test(enum.value.json ARGS --json enum value --default Camera M
    STDOUT "^{\n  \"enum\": \"Camera\",\n  \"name\": \"M\",\n  \"value\": 16,\n  \"known\": false\n}\n$")

# Names and values without a row fail, unless --default asks for the library's reading.
foreach(case "Camera|0|Unknown" "UserProtect|17|Unknown" "VideoFormat|-1|Unknown" "Essences::BlockSize|2147483647|Unknown")
    string(REPLACE "|" ";" case "${case}")
    list(GET case 0 enumeration)
    list(GET case 1 value)
    list(GET case 2 name)
    string(REPLACE "::" "-" test "${enumeration}.${value}")
    plurex_add_tool_test(enum.name.unknown.${test} ARGS enum name ${enumeration} ${value} EXIT 1
        STDERR "^plurex: unknown ${enumeration} value ${value}\n$")
    plurex_add_tool_test(enum.name.default.${test} ARGS enum name --default ${enumeration} ${value} STDOUT "^${name}\n$")
endforeach()
# Case counts, nothing is trimmed, and no other table's names are taken (the essences' archive status
# has no ToStore).
foreach(case "AfdAspectRatio|fullframe|0" "Camera|a|16" "Camera| A|16" "Camera|M|16" "VideoFormat|unknown|5"
             "Essences::ArchiveStatus|ToStore|2")
    string(REPLACE "|" ";" case "${case}")
    list(GET case 0 enumeration)
    list(GET case 1 name)
    list(GET case 2 value)
    string(REPLACE "::" "-" test "${enumeration}.${name}")
    string(REPLACE " " "_" test "${test}")
    plurex_add_tool_test(enum.value.unknown.${test} ARGS enum value ${enumeration} ${name} EXIT 1
        STDERR "^plurex: unknown ${enumeration} name \"${name}\"\n$")
    plurex_add_tool_test(enum.value.default.${test} ARGS enum value ${enumeration} ${name} --default STDOUT "^${value}\n$")
endforeach()
plurex_add_tool_test(enum.value.unknown.json ARGS --json enum value Camera Q EXIT 1
    STDERR "^{\"error\":\"unknown Camera name \\\\\"Q\\\\\"\",\"context\":null}\n$")

foreach(verb "list Frob" "name Frob 1" "value Frob X")
    string(REPLACE " " ";" words "${verb}")
    list(GET words 0 name)
    plurex_add_tool_test(enum.unknown-enum.${name} ARGS enum ${words} EXIT 2
        STDERR "^plurex: ENUM: unknown enumeration \"Frob\"\nUsage: plurex enum ${name} ")
endforeach()
plurex_add_tool_test(enum.bad-value ARGS enum name Camera 2147483648 EXIT 2)
