set(text_data ${CMAKE_CURRENT_SOURCE_DIR}/text)

foreach(verb "text convert" "text charsets")
    string(REPLACE " " ";" words "${verb}")
    string(REPLACE " " "-" name "${verb}")
    plurex_add_tool_test(example.${name} ARGS help ${words} STDOUT "\nExample:\n  plurex .*${verb}")
endforeach()

plurex_add_tool_test(text.charsets ARGS text charsets
    STDOUT "^ascii       us-ascii, ansi_x3.4-1968, iso646-us, us, cp367, ibm367, cp20127\ncp437       ibm437, .*\nutf-32be    -\nutf-16      - \\(byte order mark: read on input, none meaning big-endian; written on output, little-endian\\)\nutf-32      - \\(byte order mark: .*\\)\n$")
plurex_add_tool_test(text.charsets.json ARGS --json text charsets
    STDOUT "^{\"name\":\"ascii\",\"aliases\":\\[\"us-ascii\",.*\n{\"name\":\"iso-8859-2\",\"aliases\":\\[\"latin2\",\"l2\",\"iso-ir-101\",\"cp28592\"\\],\"byteOrderMark\":false}\n.*{\"name\":\"utf-16\",\"aliases\":\\[\\],\"byteOrderMark\":true}\n{\"name\":\"utf-32\",\"aliases\":\\[\\],\"byteOrderMark\":true}\n$")
plurex_add_tool_test(text.convert.file ARGS text convert --from IBM437 --to utf-8 ${text_data}/cp437.txt
    STDOUT "^Café ■\n$")
plurex_add_tool_test(text.convert.stdin ARGS text convert -f latin2 -t UTF8 STDIN ${text_data}/latin2.txt
    STDOUT "^Koň été\n$")
plurex_add_tool_test(text.convert.dash ARGS text convert -f utf-8 -t ascii - STDIN ${text_data}/utf8.txt
    STDOUT "^Ko\\? \\?t\\?\n$")
# Dropped bytes and the partial tail vanish; the surrogate becomes U+FFFD.
plurex_add_tool_test(text.convert.malformed ARGS text convert -f utf-8 -t utf-8 ${text_data}/malformed-utf8.txt
    STDOUT "^ab�c$")
plurex_add_tool_test(text.convert.lenient-utf16 ARGS text convert -f utf-16 -t utf-8 ${text_data}/surrogate-utf16le.txt
    STDOUT "^ab�c$")

# The mark decides the byte order and is not converted; without one the text is big-endian.
foreach(case "bom-utf16le|utf-16|utf-16le" "bom-utf16be|UTF16|utf-16be" "utf16be|utf-16|utf-16be"
             "bom-utf32le|utf_32|utf-32le" "bom-utf32be|utf-32|utf-32be")
    string(REPLACE "|" ";" case "${case}")
    list(GET case 0 file)
    list(GET case 1 from)
    list(GET case 2 detected)
    plurex_add_tool_test(text.convert.mark.${file} ARGS --json text convert -f ${from} -t utf-8 ${text_data}/${file}.txt
        STDOUT "^{\n  \"from\": \"${detected}\",\n  \"to\": \"utf-8\",\n  \"bytes\": 6,\n  \"hex\": \"61c3a9e282ac\",\n  \"text\": \"aé€\"\n}\n$")
endforeach()
# Written little-endian after a mark; no "text", which is for UTF-8 only.
plurex_add_tool_test(text.convert.to-utf16 ARGS --json text convert -f utf-8 -t utf-16 ${text_data}/euro.txt
    STDOUT "^{\n  \"from\": \"utf-8\",\n  \"to\": \"utf-16le\",\n  \"bytes\": 14,\n  \"hex\": \"fffe61006200ac20630064000a00\"\n}\n$")
plurex_add_tool_test(text.convert.to-utf32 ARGS --json text convert -f utf-16 -t utf-32 ${text_data}/bom-utf16be.txt
    STDOUT "\"hex\": \"fffe000061000000e9000000ac200000\"\n}\n$")
# As iconv does, no mark without a character.
plurex_add_tool_test(text.convert.empty-utf16 ARGS --json text convert -f utf-8 -t utf-16 /dev/null
    STDOUT "\"bytes\": 0,\n  \"hex\": \"\"\n}\n$")

# --strict: what came before the stop is written, then the library's message with the input's name; the
# offset counts the mark.
foreach(case "euro|utf-8|iso-8859-1|ab|byte 2: U\\+20AC not in iso-8859-1"
             "malformed-utf8|utf-8|utf-8|a|byte 1: cannot decode 80 as utf-8"
             "truncated-utf8|utf-8|ascii|ab|byte 2: incomplete utf-8 sequence at the end"
             "surrogate-utf16le|utf-16|utf-8|ab|byte 6: cannot decode 00 DC as utf-16le"
             "bom-utf32be|utf-32|ascii|a|byte 8: U\\+00E9 not in ascii")
    string(REPLACE "|" ";" case "${case}")
    list(GET case 0 file)
    list(GET case 1 from)
    list(GET case 2 to)
    list(GET case 3 prefix)
    list(GET case 4 message)
    plurex_add_tool_test(text.convert.strict.${file} ARGS text convert --strict -f ${from} -t ${to} ${text_data}/${file}.txt
        EXIT 1 STDOUT "^${prefix}$" STDERR "^plurex: [^:]*/${file}\\.txt: ${message}\n$")
endforeach()
plurex_add_tool_test(text.convert.strict.stdin ARGS --json text convert --strict -f utf-8 -t ascii STDIN ${text_data}/euro.txt
    EXIT 1 STDOUT "\"hex\": \"6162\"\n}\n$"
    STDERR "^{\"error\":\"byte 2: U\\+20AC not in ascii\",\"context\":\"standard input\"}\n$")
plurex_add_tool_test(text.convert.strict.whole ARGS text convert --strict -f iso-8859-2 -t utf-8 ${text_data}/latin2.txt
    STDOUT "^Koň été\n$")

# glibc iconv as the oracle where the two agree by design (iconv reads UTF-16 without a mark in the
# host's byte order, and writes UTF-16 and UTF-32 in it: little-endian on the hosts the tests run on).
find_program(ICONV iconv)
if(ICONV)
    foreach(case "utf8|UTF-8|UTF-16" "utf8|UTF-8|UTF-32" "utf8|UTF-8|ISO-8859-1" "utf8|UTF-8|CP437"
                 "euro|UTF-8|ASCII" "malformed-utf8|UTF-8|UTF-16" "truncated-utf8|UTF-8|ISO-8859-1"
                 "surrogate-utf16le|UTF-16|UTF-8" "bom-utf16le|UTF-16|ISO-8859-1" "bom-utf16le|UTF-8|UTF-16"
                 "bom-utf16be|UTF-16|UTF-16" "bom-utf32be|UTF-32|UTF-8" "bom-utf32le|UTF-32|UTF-16"
                 "latin2|ISO-8859-2|UTF-8" "cp437|CP437|UTF-8")
        string(REPLACE "|" ";" case "${case}")
        list(GET case 0 file)
        list(GET case 1 from)
        list(GET case 2 to)
        set(name ${file}.${from}.${to})
        add_test(NAME tool.text.convert.iconv.${name}
            COMMAND ${CMAKE_COMMAND} "-DTOOL=$<TARGET_FILE:plurex>" "-DRUNNER=${CMAKE_CROSSCOMPILING_EMULATOR}"
                    -DICONV=${ICONV} -DFROM=${from} -DTO=${to} -DINPUT=${text_data}/${file}.txt
                    -DWORK=${CMAKE_CURRENT_BINARY_DIR}/iconv/${name} -P ${text_data}/IconvOracle.cmake)
    endforeach()
endif()

plurex_add_tool_test(text.convert.unknown ARGS text convert -f utf-7 -t utf-8 ${text_data}/utf8.txt EXIT 1
    STDERR "^plurex: --from: Unknown charset: utf-7\n$")
plurex_add_tool_test(text.convert.unknown-to ARGS text convert -f utf-16 -t ucs-2 /dev/zero EXIT 1
    STDERR "^plurex: --to: Unknown charset: ucs-2\n$")
plurex_add_tool_test(text.convert.no-file ARGS text convert -f utf-8 -t ascii ${text_data}/missing.txt EXIT 1
    STDERR "^plurex: cannot open .*/missing.txt: No such file or directory\n$")
# Lost input or output is an error, never an empty or short result with status 0.
plurex_add_tool_test(text.convert.directory ARGS text convert -f utf-8 -t ascii ${text_data} EXIT 1
    STDERR "^plurex: cannot read .*/text: Is a directory\n$")
plurex_add_tool_test(text.convert.full ARGS text convert -f utf-8 -t ascii ${text_data}/utf8.txt
    STDOUT_FILE /dev/full EXIT 1 STDERR "^plurex: cannot write standard output: No space left on device\n$")
plurex_add_tool_test(text.convert.endless ARGS text convert -f utf-8 -t ascii /dev/zero EXIT 1
    STDERR "^plurex: /dev/zero: more than 67108864 bytes, the most text convert reads\n$")
# An emulator may hold descriptors of its own, one of which would take the closed standard input's place.
if(NOT CMAKE_CROSSCOMPILING_EMULATOR)
    plurex_add_tool_test(text.convert.closed ARGS text convert -f utf-8 -t ascii STDIN_CLOSED EXIT 1
        STDERR "^plurex: cannot read standard input: Bad file descriptor\n$")
endif()
plurex_add_tool_test(text.convert.usage ARGS text convert --from utf-8 EXIT 2 STDERR "--to is required")
plurex_add_tool_test(text.usage ARGS text EXIT 2)
