set(text_data ${CMAKE_CURRENT_SOURCE_DIR}/text)

plurex_add_tool_test(text.charsets ARGS text charsets
    STDOUT "^ascii       us-ascii, ansi_x3.4-1968, iso646-us, us, cp367, ibm367, cp20127\ncp437       ibm437, .*\nutf-32be    -\n$")
plurex_add_tool_test(text.charsets.json ARGS --json text charsets
    STDOUT "\"aliases\": \\[\n      \"latin2\",.*\"name\": \"iso-8859-2\"")
plurex_add_tool_test(text.convert.file ARGS text convert --from IBM437 --to utf-8 ${text_data}/cp437.txt
    STDOUT "^Café ■\n$")
plurex_add_tool_test(text.convert.stdin ARGS text convert --from latin2 --to UTF8 STDIN ${text_data}/latin2.txt
    STDOUT "^Koň été\n$")
plurex_add_tool_test(text.convert.dash ARGS text convert --from utf-8 --to ascii - STDIN ${text_data}/utf8.txt
    STDOUT "^Ko\\? \\?t\\?\n$")
# Dropped bytes and the partial tail vanish; the surrogate becomes U+FFFD.
plurex_add_tool_test(text.convert.malformed ARGS text convert --from utf-8 --to utf-8 ${text_data}/malformed-utf8.txt
    STDOUT "^ab�c$")
plurex_add_tool_test(text.convert.unknown ARGS text convert --from utf-16 --to utf-8 ${text_data}/utf8.txt EXIT 1
    STDERR "^Unknown charset: utf-16\n$")
plurex_add_tool_test(text.convert.no-file ARGS text convert --from utf-8 --to ascii ${text_data}/missing.txt EXIT 1
    STDERR "^cannot open .*/missing.txt: No such file or directory\n$")
# Lost input or output is an error, never an empty or short result with status 0.
plurex_add_tool_test(text.convert.directory ARGS text convert --from utf-8 --to ascii ${text_data} EXIT 1
    STDERR "^cannot read .*/text: Is a directory\n$")
plurex_add_tool_test(text.convert.full ARGS text convert --from utf-8 --to ascii ${text_data}/utf8.txt
    STDOUT_FILE /dev/full EXIT 1 STDERR "^cannot write standard output\n$")
plurex_add_tool_test(text.convert.endless ARGS text convert --from utf-8 --to ascii /dev/zero EXIT 1
    STDERR "^/dev/zero: more than 67108864 bytes, the most text convert reads\n$")
# An emulator may hold descriptors of its own, one of which would take the closed standard input's place.
if(NOT CMAKE_CROSSCOMPILING_EMULATOR)
    plurex_add_tool_test(text.convert.closed ARGS text convert --from utf-8 --to ascii STDIN_CLOSED EXIT 1
        STDERR "^cannot read standard input: Bad file descriptor\n$")
endif()
plurex_add_tool_test(text.convert.usage ARGS text convert --from utf-8 EXIT 2 STDERR "--to is required")
plurex_add_tool_test(text.usage ARGS text EXIT 2)
