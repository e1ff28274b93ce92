set(examples ${PROJECT_SOURCE_DIR}/examples)
set(inputs ${CMAKE_CURRENT_SOURCE_DIR}/clip)

plurex_add_tool_test(clip.new ARGS clip new
    STDOUT "^{\n  \"text1\": {\n    \"text\": \"        \"\n  },.*\"videoStandard\": \"Pal\",.*\"shortValue2\": 65535,.*\"value64\": -9223372036854775807,")
plurex_add_tool_test(clip.decode ARGS clip decode ${examples}/clip-le.bin
    STDOUT "^record +0 at offset 0\nbyte order +little-endian \\(from the tag\\)\ntag +0x0700\n.*var-id                            \"Über-Replay №7\" \\(UTF-16\\)\n.*attribute 8                       Kep \\(UserProtect 16\\)\n.*Tod timecode                      2024-07-14 20:31:00;04, count 235562872932 at 60/1 drop-frame\nuser timecode                     1900-01-01 10:00:00:00, count 2160000 at 60/1\n")
plurex_add_tool_test(clip.decode.big-endian ARGS clip decode ${examples}/clip-be.bin --big-endian
    STDOUT "byte order +big-endian \\(as told\\)\n.*in position                       1250\n.*essence 1 values                  185 0 16 2\n")
plurex_add_tool_test(clip.decode.json ARGS --json clip decode ${examples}/clip-le.bin
    STDOUT "^{\"record\":{\"index\":0,\"offset\":0,\"byteOrder\":\"little-endian\",\"tag\":1792},\"text1\":.*\"inBoundUserTimecode\":{\"rate\":60,\"drop\":false,\"count\":2160000,\"date\":\"1900-01-01\",\"time\":\"10:00:00\",\"frame\":0},.*}\n$")
plurex_add_tool_test(clip.decode.short ARGS clip decode ${examples}/clip-le.bin --offset 100 EXIT 1
    STDERR "^plurex: .*/clip-le.bin: record 0 at offset 100: a partial record, 190 of 290 bytes\n$")
# The tag decides the byte order; a forced order the tag contradicts is named, and so is a record that
# is no clip record at all (all zeros).
plurex_add_tool_test(clip.decode.wrong-order ARGS clip decode ${examples}/clip-be.bin --byte-order little-endian EXIT 1
    STDERR "^plurex: .*/clip-be.bin: record 0 at offset 0: tag 0x0007, not a clip record in little-endian order \\(it is a big-endian record's tag\\)\n$")
plurex_add_tool_test(clip.decode.zeros ARGS clip decode /dev/zero --count 1 EXIT 1
    STDERR "^plurex: /dev/zero: record 0 at offset 0: tag 0x0000, not a clip record\n$")
# A record the clip refuses still says where it is.
plurex_add_tool_test(clip.decode.refused ARGS clip decode ${inputs}/rate-swapped.bin EXIT 1
    STDERR "^plurex: .*/rate-swapped.bin: record 0 at offset 0: Timecode Rate inconsistent with Clip Rate\n$")
plurex_add_tool_test(clip.decode.usage ARGS clip decode --count 1 --index 1 EXIT 2
    STDERR "^plurex: --count excludes --index\nUsage: plurex clip decode \\[OPTIONS\\] \\[FILE\\]\n$")

# Inputs made at test time (MakeClipInputs.cmake): nesting and size around their limits.
set(made ${CMAKE_CURRENT_BINARY_DIR}/clip-inputs)
add_test(NAME tool.clip.inputs
    COMMAND ${CMAKE_COMMAND} -DEXAMPLES=${examples} -DWORK=${made} -P ${CMAKE_CURRENT_SOURCE_DIR}/MakeClipInputs.cmake)
set_tests_properties(tool.clip.inputs PROPERTIES FIXTURES_SETUP clip-inputs)

# Every refused input: the message, matched whole, names the input, then what is wrong and where. Never
# the JSON library's own "[json.exception..." prefix, never a second line.
function(clip_encode_refuses name input message)
    string(REGEX REPLACE "([][.*+?^$(){}|\\])" "\\\\\\1" pattern "plurex: ${input}: ${message}")
    plurex_add_tool_test(clip.encode.${name} ARGS clip encode ${input} -o /dev/null EXIT 1 STDERR "^${pattern}\n$"
        FIXTURE clip-inputs)
endfunction()
clip_encode_refuses(unknown-field ${inputs}/unknown-field.json "unknown field: nmae")
clip_encode_refuses(rate ${inputs}/rate.json "Timecode Rate inconsistent with Clip Rate")
clip_encode_refuses(essence ${inputs}/essence.json
    "essences[1].videoCompressionType: IntraDnxHd (4) does not suit a LongGop essence")
clip_encode_refuses(year ${inputs}/year.json "year 2262 must be between 1900 and 2261")
clip_encode_refuses(euro ${inputs}/euro.json "name: U+20AC not in iso-8859-1")
# Hex digits are text: a number's decimal digits are not bytes.
clip_encode_refuses(raw-number ${inputs}/raw-number.json "rawBytes: hexadecimal text expected")
clip_encode_refuses(hex-number ${inputs}/hex-number.json "name.hex: hexadecimal text expected")
clip_encode_refuses(deep-raw ${made}/deep-raw.json "line 1, column 29: nested deeper than 16 levels")
clip_encode_refuses(deep-hex ${made}/deep-hex.json "line 1, column 32: nested deeper than 16 levels")
clip_encode_refuses(depth-17 ${made}/depth-17.json "line 1, column 22: nested deeper than 16 levels")
clip_encode_refuses(depth-17-lines ${made}/depth-17-lines.json "line 3, column 17: nested deeper than 16 levels")
# Reaches the fields: 16 levels pass, and brackets in strings are no nesting.
clip_encode_refuses(depth-16 ${made}/depth-16.json "unknown field: x")
string(REPEAT "{" 20 brackets)
clip_encode_refuses(depth-in-string ${made}/depth-in-string.json "unknown field: x\\\"${brackets}")
clip_encode_refuses(overflow ${inputs}/overflow.json "number overflow parsing '1e400'")
clip_encode_refuses(syntax ${inputs}/syntax.json
    "line 2, column 14: syntax error while parsing value - invalid literal; last read: '\"value64\": x'")
clip_encode_refuses(negative-frame ${inputs}/negative-frame.json "inBoundUserTimecode.frame: -1 is out of range")
# Text from the input is shown as JSON writes it, on one line.
clip_encode_refuses(newline ${inputs}/newline.json "text1.hex: 8 bytes expected in hex, got \"0a\\n\"")
clip_encode_refuses(size-over ${made}/size-over.json "more than 1048576 bytes, the most clip encode reads")
clip_encode_refuses(endless /dev/zero "more than 1048576 bytes, the most clip encode reads")
plurex_add_tool_test(clip.encode.size-limit ARGS clip encode ${made}/size-limit.json -o ${made}/size-limit.bin
    FIXTURE clip-inputs)
plurex_add_tool_test(clip.encode.directory ARGS clip encode ${inputs} -o /dev/null EXIT 1
    STDERR "^plurex: cannot read .*/clip: Is a directory\n$")
plurex_add_tool_test(clip.encode.full ARGS clip encode ${examples}/clip.json -o /dev/full EXIT 1
    STDERR "^plurex: cannot write /dev/full: No space left on device\n$")
# A write that fails part way leaves no file behind (a file size limit of 0 fails the first write).
add_test(NAME tool.clip.encode.write-error
    COMMAND sh -c "out=$1; shift; rm -f \"$out\"; err=$( (trap '' XFSZ; ulimit -f 0; exec \"$@\" -o \"$out\") 2>&1 ); status=$?; echo \"$err\"; test $status = 1 && test \"$err\" = \"plurex: cannot write $out: File too large\" && test ! -e \"$out\""
            sh ${CMAKE_CURRENT_BINARY_DIR}/write-error.bin ${CMAKE_CROSSCOMPILING_EMULATOR} $<TARGET_FILE:plurex>
            clip encode ${examples}/clip.json)

# decode reads the record only: a seek to the offset, or a bounded skip where the input cannot seek.
plurex_add_tool_test(clip.decode.endless ARGS clip decode --offset 9223372036854775800 /dev/zero
    STDERR "^plurex: /dev/zero: record 0 at offset 9223372036854775800: tag 0x0000, not a clip record\n$" EXIT 1)
plurex_add_tool_test(clip.decode.last-offset ARGS clip decode ${examples}/clip-le.bin --offset 9223372036854775807 EXIT 1
    STDERR "^plurex: .*/clip-le.bin: record 0 at offset 9223372036854775807: no record: the input ends at byte 290\n$")
foreach(offset -1 -0 9223372036854775808 -18446744073709551615)
    plurex_add_tool_test(clip.decode.offset${offset} ARGS clip decode ${examples}/clip-le.bin --offset ${offset} EXIT 2
        STDERR "^plurex: --offset: an offset from 0 to 9223372036854775807 expected: ${offset}\n")
endforeach()
plurex_add_tool_test(clip.decode.index-range ARGS clip decode ${examples}/clip-le.bin --index 31805395807140241 EXIT 1
    STDERR "^plurex: --index: record 31805395807140241 lies beyond offset 9223372036854775807\n$")
plurex_add_tool_test(clip.decode.pipe ARGS clip decode - --offset 100 STDIN ${examples}/clip-le.bin STDIN_PIPE
    EXIT 1 STDERR "^plurex: standard input: record 0 at offset 100: a partial record, 190 of 290 bytes\n$")
plurex_add_tool_test(clip.decode.directory ARGS clip decode ${inputs} EXIT 1
    STDERR "^plurex: cannot read .*/clip: Is a directory\n$")
plurex_add_tool_test(clip.decode.full ARGS clip decode ${examples}/clip-le.bin STDOUT_FILE /dev/full EXIT 1
    STDERR "^plurex: cannot write standard output: No space left on device\n$")
plurex_add_tool_test(clip.new.full ARGS clip new STDOUT_FILE /dev/full EXIT 1
    STDERR "^plurex: cannot write standard output: No space left on device\n$")
# An emulator may hold descriptors of its own, one of which would take the closed standard input's place.
if(NOT CMAKE_CROSSCOMPILING_EMULATOR)
    plurex_add_tool_test(clip.decode.closed ARGS clip decode STDIN_CLOSED EXIT 1
        STDERR "^plurex: cannot read standard input: Bad file descriptor\n$")
endif()

# A capture: every record in sequence, each in the byte order of its tag (the middle one is big-endian).
plurex_add_tool_test(clip.decode.capture ARGS clip decode ${inputs}/capture.bin
    STDOUT "^record +0 at offset 0\nbyte order +little-endian.*\n\nrecord +1 at offset 290\nbyte order +big-endian.*\n\nrecord +2 at offset 580\nbyte order +little-endian \\(from the tag\\)\n")
plurex_add_tool_test(clip.decode.capture.json ARGS --json clip decode - STDIN ${inputs}/capture.bin STDIN_PIPE
    STDOUT "^{\"record\":{\"index\":0,\"offset\":0,[^\n]*}\n{\"record\":{\"index\":1,\"offset\":290,\"byteOrder\":\"big-endian\",[^\n]*}\n{\"record\":{\"index\":2,\"offset\":580,[^\n]*}\n$")
plurex_add_tool_test(clip.decode.count ARGS --json clip decode ${inputs}/capture.bin --offset 290 --count 1
    STDOUT "^{\"record\":{\"index\":0,\"offset\":290,\"byteOrder\":\"big-endian\",[^\n]*}\n$")
plurex_add_tool_test(clip.decode.index ARGS --json clip decode ${inputs}/capture.bin --index 2
    STDOUT "^{\"record\":{\"index\":2,\"offset\":580,\"byteOrder\":\"little-endian\",[^\n]*}\n$")
plurex_add_tool_test(clip.decode.index-past ARGS clip decode ${inputs}/capture.bin --index 3 EXIT 1
    STDERR "^plurex: .*/capture.bin: record 3 at offset 870: no record: the input ends at byte 870\n$")
# The complete records are printed before the trailing partial one is reported, and a bad tag stops the
# run at its record.
plurex_add_tool_test(clip.decode.truncated ARGS --json clip decode ${inputs}/truncated.bin EXIT 1
    STDOUT "^{\"record\":{\"index\":0,[^\n]*}\n{\"record\":{\"index\":1,[^\n]*}\n$"
    STDERR "^{\"error\":\"a partial record, 100 of 290 bytes\",\"context\":\".*/truncated.bin: record 2 at offset 580\"}\n$")
plurex_add_tool_test(clip.decode.bad-tag ARGS clip decode ${inputs}/bad-tag.bin EXIT 1
    STDOUT "\nrecord +1 at offset 290\n"
    STDERR "^plurex: .*/bad-tag.bin: record 2 at offset 580: tag 0x1234, not a clip record\n$")

# Hex dumps in each form engineers paste: xxd's layout, xxd -p, spaced bytes, C-style 0x bytes (with
# one digit or two).
foreach(dump clip-le.xxd clip-be.hex spaced.hex c-array.hex short-0x.hex)
    plurex_add_tool_test(clip.decode.hex.${dump} ARGS clip decode --hex ${inputs}/${dump}
        STDOUT "\nvar-id +\"Über-Replay №7\" \\(UTF-16\\)\n")
endforeach()
plurex_add_tool_test(clip.decode.hex.odd ARGS clip decode --hex ${inputs}/odd.hex EXIT 1
    STDERR "^plurex: .*/odd.hex: an odd number of hex digits \\(579\\): the last byte is cut short\n$")
plurex_add_tool_test(clip.decode.hex.long-0x ARGS clip decode --hex ${inputs}/long-0x.hex EXIT 1
    STDERR "^plurex: .*/long-0x.hex: line 1, column 7: 0x takes one or two hex digits\n$")
plurex_add_tool_test(clip.decode.hex.digit ARGS clip decode --hex ${inputs}/bad-digit.hex EXIT 1
    STDERR "^plurex: .*/bad-digit.hex: line 2, column 5: not a hex digit: 'g'\n$")
plurex_add_tool_test(clip.decode.hex.forgotten ARGS clip decode ${inputs}/clip-be.hex EXIT 1
    STDERR "^plurex: .*/clip-be.hex: record 0 at offset 0: tag 0x3730, not a clip record \\(a hex dump\\? --hex reads one\\)\n$")
plurex_add_tool_test(clip.decode.hex.binary ARGS clip decode --hex ${examples}/clip-le.bin EXIT 1
    STDERR "^plurex: .*/clip-le.bin: line 1, column 1: not a hex digit: 0x00\n$")

# 8-bit texts through a chosen charset: byte 0xE8 of the name is è in ISO 8859-1, č in ISO 8859-2.
plurex_add_tool_test(clip.decode.charset ARGS clip decode ${inputs}/latin.bin --charset latin2
    STDOUT "\nname +\"Ostrč\" \\(8-bit\\)\n")
plurex_add_tool_test(clip.decode.charset.default ARGS clip decode ${inputs}/latin.bin
    STDOUT "\nname +\"Ostrè\" \\(8-bit\\)\n")
plurex_add_tool_test(clip.decode.charset.bad ARGS clip decode ${inputs}/latin.bin --charset utf-8 EXIT 2
    STDERR "^plurex: --charset: Not an 8-bit charset: utf-8\n")

# Binary bytes go to a terminal only when -o says so (script gives the tool a terminal).
add_test(NAME tool.clip.encode.terminal
    COMMAND sh -c "out=$(script -qec \"$* clip encode $0\" /dev/null); test $? = 1 && echo \"$out\" | grep -q '^plurex: binary records are not written to a terminal: give -o FILE, or -o - to write them anyway'"
            ${examples}/clip.json ${CMAKE_CROSSCOMPILING_EMULATOR} $<TARGET_FILE:plurex>)
add_test(NAME tool.clip.encode.stdout
    COMMAND sh -c "\"$@\" clip encode - < \"$0\" | cmp - \"$(dirname \"$0\")/clip-le.bin\""
            ${examples}/clip.json ${CMAKE_CROSSCOMPILING_EMULATOR} $<TARGET_FILE:plurex>)
# A failed run leaves the file it was to replace as it was.
add_test(NAME tool.clip.encode.keeps
    COMMAND sh -c "out=$1; shift; echo old > \"$out\"; \"$@\" -o \"$out\"; test $? = 1 && test \"$(cat \"$out\")\" = old && test -z \"$(ls \"$out\".* 2>/dev/null)\""
            sh ${CMAKE_CURRENT_BINARY_DIR}/keeps.bin ${CMAKE_CROSSCOMPILING_EMULATOR} $<TARGET_FILE:plurex>
            clip encode ${inputs}/syntax.json)
plurex_add_tool_test(clip.encode.lines.error ARGS clip encode ${inputs}/lines.jsonl -o /dev/null EXIT 1
    STDERR "^plurex: .*/lines.jsonl: line 3: unknown field: nmae\n$")
plurex_add_tool_test(clip.encode.lines.syntax ARGS clip encode ${inputs}/lines-syntax.jsonl -o /dev/null EXIT 1
    STDERR "^plurex: .*/lines-syntax.jsonl: line 2, column 2: syntax error while parsing object key - invalid literal; last read: '{x'; expected string literal\n$")

# diff: exit 0 equal, 1 different, 2 trouble; the same clip from either byte order is equal.
plurex_add_tool_test(clip.diff.equal ARGS clip diff ${examples}/clip-le.bin ${examples}/clip-be.bin STDOUT "^$")
plurex_add_tool_test(clip.diff.json ARGS clip diff ${examples}/clip.json ${examples}/clip-be.bin STDOUT "^$")
plurex_add_tool_test(clip.diff.differ ARGS clip diff ${examples}/clip-le.bin ${inputs}/ignored.json EXIT 1
    STDOUT "^field +[^\n]*clip-le.bin +[^\n]*ignored.json\ntext1 +{\"text\":\"CUP-FIN2\"} +{\"text\":\"        \"}\n.*\nattribute3 +")
# Fields == leaves out are equal for diff; --all shows them, marked, and the status still follows ==.
plurex_add_tool_test(clip.diff.ignored-only ARGS clip diff ${inputs}/ignored.json ${inputs}/default.json STDOUT "^$")
plurex_add_tool_test(clip.diff.all ARGS clip diff --all ${inputs}/ignored.json ${inputs}/default.json
    STDOUT "^field +[^\n]*\nattribute2 \\* +ToStore +NoStore\nvalue2 \\* +7 +0\n\\* not compared by the clip's ==\n$")
plurex_add_tool_test(clip.diff.all.json ARGS --json clip diff --all ${inputs}/ignored.json ${inputs}/default.json
    STDOUT "^{\n  \"equal\": true,\n  \"differences\": \\[\n    {\n      \"field\": \"attribute2\",\n      \"a\": \"ToStore\",\n      \"b\": \"NoStore\",\n      \"compared\": false\n")
plurex_add_tool_test(clip.diff.trouble ARGS clip diff ${inputs}/capture.bin ${examples}/clip-le.bin EXIT 2
    STDERR "^plurex: .*/capture.bin: 870 bytes; clip diff compares one record of 290 bytes, or a clip as JSON\n$")
# Trouble writing the differences is trouble too, not "different".
plurex_add_tool_test(clip.diff.full ARGS clip diff ${examples}/clip-le.bin ${inputs}/ignored.json STDOUT_FILE /dev/full
    EXIT 2 STDERR "^plurex: cannot write standard output: No space left on device\n$")
plurex_add_tool_test(clip.diff.missing ARGS clip diff ${inputs}/missing.bin ${examples}/clip-le.bin EXIT 2
    STDERR "^plurex: cannot open .*/missing.bin: No such file or directory\n$")

add_test(NAME tool.clip.round-trip
    COMMAND ${CMAKE_COMMAND} "-DTOOL=$<TARGET_FILE:plurex>" "-DRUNNER=${CMAKE_CROSSCOMPILING_EMULATOR}" -DEXAMPLES=${examples}
            -DINPUTS=${inputs} -DWORK=${CMAKE_CURRENT_BINARY_DIR}/clip-round-trip -P ${CMAKE_CURRENT_SOURCE_DIR}/ClipRoundTrip.cmake)
