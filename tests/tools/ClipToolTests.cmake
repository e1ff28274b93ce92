set(examples ${PROJECT_SOURCE_DIR}/examples)
set(inputs ${CMAKE_CURRENT_SOURCE_DIR}/clip)

plurex_add_tool_test(clip.new ARGS clip new
    STDOUT "^{\n  \"text1\": {\n    \"text\": \"        \"\n  },.*\"videoStandard\": \"Pal\",.*\"shortValue2\": 65535,.*\"value64\": -9223372036854775807,")
plurex_add_tool_test(clip.decode ARGS clip decode ${examples}/clip-le.bin
    STDOUT "var-id                            \"Über-Replay №7\" \\(UTF-16\\)\n.*attribute 8                       Kep \\(UserProtect 16\\)\n.*Tod timecode                      2024-07-14 20:31:00;04, count 235562872932 at 60/1 drop-frame\nuser timecode                     1900-01-01 10:00:00:00, count 2160000 at 60/1\n")
plurex_add_tool_test(clip.decode.big-endian ARGS clip decode ${examples}/clip-be.bin --big-endian
    STDOUT "in position                       1250\n.*essence 1 values                  185 0 16 2\n")
plurex_add_tool_test(clip.decode.json ARGS --json clip decode ${examples}/clip-le.bin
    STDOUT "\"inBoundUserTimecode\": {\n    \"rate\": 60,\n    \"drop\": false,\n    \"count\": 2160000,\n    \"date\": \"1900-01-01\",\n    \"time\": \"10:00:00\",\n    \"frame\": 0\n  },")
plurex_add_tool_test(clip.decode.short ARGS clip decode ${examples}/clip-le.bin --offset 100 EXIT 1
    STDERR "clip-le.bin: 190 bytes at offset 100, a clip record takes 290\n$")
# Read in the wrong byte order, the user timecode says 50/1 in an Ntsc record.
plurex_add_tool_test(clip.decode.refused ARGS clip decode ${examples}/clip-be.bin EXIT 1
    STDERR "^Timecode Rate inconsistent with Clip Rate\n$")
plurex_add_tool_test(clip.decode.usage ARGS clip decode EXIT 2)
plurex_add_tool_test(clip.encode.usage ARGS clip encode ${examples}/clip.json EXIT 2)

# Inputs made at test time (MakeClipInputs.cmake): nesting and size around their limits.
set(made ${CMAKE_CURRENT_BINARY_DIR}/clip-inputs)
add_test(NAME tool.clip.inputs
    COMMAND ${CMAKE_COMMAND} -DEXAMPLES=${examples} -DWORK=${made} -P ${CMAKE_CURRENT_SOURCE_DIR}/MakeClipInputs.cmake)
set_tests_properties(tool.clip.inputs PROPERTIES FIXTURES_SETUP clip-inputs)

# Every refused input: the message, matched whole, names the input, then what is wrong and where. Never
# the JSON library's own "[json.exception..." prefix, never a second line.
function(clip_encode_refuses name input message)
    string(REGEX REPLACE "([][.*+?^$(){}|\\])" "\\\\\\1" pattern "${input}: ${message}")
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
    STDERR "^cannot read .*/clip: Is a directory\n$")
plurex_add_tool_test(clip.encode.full ARGS clip encode ${examples}/clip.json -o /dev/full EXIT 1
    STDERR "^cannot write /dev/full: No space left on device\n$")
# A write that fails part way leaves no file behind (a file size limit of 0 fails the first write).
add_test(NAME tool.clip.encode.write-error
    COMMAND sh -c "out=$1; shift; rm -f \"$out\"; err=$( (trap '' XFSZ; ulimit -f 0; exec \"$@\" -o \"$out\") 2>&1 ); status=$?; echo \"$err\"; test $status = 1 && test \"$err\" = \"cannot write $out: File too large\" && test ! -e \"$out\""
            sh ${CMAKE_CURRENT_BINARY_DIR}/write-error.bin ${CMAKE_CROSSCOMPILING_EMULATOR} $<TARGET_FILE:plurex>
            clip encode ${examples}/clip.json)

# decode reads the record only: a seek to the offset, or a bounded skip where the input cannot seek.
plurex_add_tool_test(clip.decode.endless ARGS clip decode --offset 9223372036854775800 /dev/zero
    STDOUT "\nvideo standard +Pal \\(VideoStandard 0\\)\n")
plurex_add_tool_test(clip.decode.last-offset ARGS clip decode ${examples}/clip-le.bin --offset 9223372036854775807 EXIT 1
    STDERR "clip-le.bin: 0 bytes at offset 9223372036854775807, a clip record takes 290\n$")
foreach(offset -1 -0 9223372036854775808 -18446744073709551615)
    plurex_add_tool_test(clip.decode.offset${offset} ARGS clip decode ${examples}/clip-le.bin --offset ${offset} EXIT 2
        STDERR "^--offset: an offset from 0 to 9223372036854775807 expected: ${offset}\n")
endforeach()
plurex_add_tool_test(clip.decode.pipe ARGS clip decode /dev/stdin --offset 100 STDIN ${examples}/clip-le.bin STDIN_PIPE
    EXIT 1 STDERR "^/dev/stdin: 190 bytes at offset 100, a clip record takes 290\n$")
plurex_add_tool_test(clip.decode.directory ARGS clip decode ${inputs} EXIT 1
    STDERR "^cannot read .*/clip: Is a directory\n$")
plurex_add_tool_test(clip.decode.full ARGS clip decode ${examples}/clip-le.bin STDOUT_FILE /dev/full EXIT 1
    STDERR "^cannot write standard output\n$")
plurex_add_tool_test(clip.new.full ARGS clip new STDOUT_FILE /dev/full EXIT 1 STDERR "^cannot write standard output\n$")

add_test(NAME tool.clip.round-trip
    COMMAND ${CMAKE_COMMAND} "-DTOOL=$<TARGET_FILE:plurex>" "-DRUNNER=${CMAKE_CROSSCOMPILING_EMULATOR}" -DEXAMPLES=${examples}
            -DWORK=${CMAKE_CURRENT_BINARY_DIR}/clip-round-trip -P ${CMAKE_CURRENT_SOURCE_DIR}/ClipRoundTrip.cmake)
