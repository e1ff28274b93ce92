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
plurex_add_tool_test(clip.encode.unknown-field ARGS clip encode ${inputs}/unknown-field.json -o /dev/null EXIT 1
    STDERR "^unknown field: nmae\n$")
plurex_add_tool_test(clip.encode.rate ARGS clip encode ${inputs}/rate.json -o /dev/null EXIT 1
    STDERR "^Timecode Rate inconsistent with Clip Rate\n$")
plurex_add_tool_test(clip.encode.essence ARGS clip encode ${inputs}/essence.json -o /dev/null EXIT 1
    STDERR "^essences\\[1\\].videoCompressionType: IntraDnxHd \\(4\\) does not suit a LongGop essence\n$")
plurex_add_tool_test(clip.encode.year ARGS clip encode ${inputs}/year.json -o /dev/null EXIT 1
    STDERR "^year 2262 must be between 1900 and 2261\n$")
plurex_add_tool_test(clip.encode.usage ARGS clip encode ${examples}/clip.json EXIT 2)

add_test(NAME tool.clip.round-trip
    COMMAND ${CMAKE_COMMAND} "-DTOOL=$<TARGET_FILE:plurex>" "-DRUNNER=${CMAKE_CROSSCOMPILING_EMULATOR}" -DEXAMPLES=${examples}
            -DWORK=${CMAKE_CURRENT_BINARY_DIR}/clip-round-trip -P ${CMAKE_CURRENT_SOURCE_DIR}/ClipRoundTrip.cmake)
