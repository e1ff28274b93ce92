plurex_add_tool_test(enum.list ARGS enum list
    STDOUT "^AfdAspectRatio +4 names, default 0\n.*\nCamera +16 names, default 16\n.*\nEssences::ArchiveStatus +3 names, default 2\n$")
# Every table, whole: its count of names and default, and one long table's rows in table order.
plurex_add_tool_test(enum.list.all ARGS enum list
    STDOUT "^AfdAspectRatio +4 names, default 0\nAlphaArchiveStatus +4 names, default 3\nArchiveStatus +4 names, default 3\nAudioConfiguration +9 names, default 8\nCamera +16 names, default 16\nCodedFrameAspectRatio +3 names, default 0\nFillAndKeyStatus +4 names, default 3\nHdrProfile +6 names, default 5\nPreferentialCamera +4 names, default 3\nPrimaryTimecode +4 names, default 3\nRating +5 names, default 4\nSourceEngine +5 names, default 4\nTimecodeType +4 names, default 3\nTrainStatus +4 names, default 3\nUhdDivisionMode +4 names, default 3\nUserProtect +12 names, default 65536\nVideoFormat +6 names, default 5\nVideoStandard +3 names, default 2\nWideColorGamut +3 names, default 2\nEssences::Type +4 names, default 3\nEssences::VideoCompressionType +22 names, default 21\nEssences::VideoCompressionInfo +12 names, default 11\nEssences::AudioCompressionType +4 names, default 3\nEssences::BlockSize +4 names, default 3\nEssences::Metadata +6 names, default 5\nEssences::RecordingStatus +6 names, default 5\nEssences::ArchiveStatus +3 names, default 2\n$")
plurex_add_tool_test(enum.list.order ARGS enum list Essences::VideoCompressionInfo
    STDOUT "^0 +IntraNone\n1 +IntraDnxHdUnknown\n2 +IntraDnxHdLowBitrate\n3 +IntraDnxHdHighBitrate\n4 +IntraDnxHdHighBitrate10b\n5 +IntraProResUnknown\n6 +IntraProResStandardQuality\n7 +IntraProResHighQuality\n8 +IntraProResLt\n9 +LongGopNone\n10 +LowResNone\n11 +Unknown \\(default\\)\n$")
plurex_add_tool_test(enum.list.one ARGS enum list UserProtect
    STDOUT "^0 +None\n1 +Dorsel\n2 +Brenix\n4 +Wexor\n.*\n256 +Talvane\n65535 +All\n65536 +Unknown \\(default\\)\n$")
plurex_add_tool_test(enum.list.json ARGS --json enum list Essences::BlockSize
    STDOUT "\"default\": 3,\n  \"enum\": \"Essences::BlockSize\",.*\"name\": \"MB16\",\n +\"value\": 2")
plurex_add_tool_test(enum.name ARGS enum name VideoFormat 3 STDOUT "^Wexor\n$")
plurex_add_tool_test(enum.name.unknown ARGS enum name Camera 0 STDOUT "^Unknown\n$")
plurex_add_tool_test(enum.name.combination ARGS enum name UserProtect 17 STDOUT "^Unknown\n$")
plurex_add_tool_test(enum.name.json ARGS --json enum name Essences::VideoCompressionType 4
    STDOUT "\"enum\": \"Essences::VideoCompressionType\",\n  \"name\": \"IntraDnxHd\",\n  \"value\": 4")
plurex_add_tool_test(enum.value ARGS enum value Essences::Metadata LongGopNone STDOUT "^3\n$")
plurex_add_tool_test(enum.value.per-table ARGS enum value Essences::VideoCompressionInfo LongGopNone STDOUT "^9\n$")
plurex_add_tool_test(enum.value.clip-archive ARGS enum value ArchiveStatus ToStore STDOUT "^1\n$")
plurex_add_tool_test(enum.value.essence-archive ARGS enum value Essences::ArchiveStatus ToStore STDOUT "^2\n$")
plurex_add_tool_test(enum.value.case ARGS enum value AfdAspectRatio fullframe STDOUT "^0\n$")
plurex_add_tool_test(enum.value.json ARGS --json enum value Camera M
    STDOUT "\"enum\": \"Camera\",\n  \"name\": \"M\",\n  \"value\": 16")
plurex_add_tool_test(enum.unknown-enum ARGS enum name Frob 1 EXIT 2)
plurex_add_tool_test(enum.bad-value ARGS enum name Camera 2147483648 EXIT 2)
