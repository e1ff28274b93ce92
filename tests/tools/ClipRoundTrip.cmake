# cmake -DTOOL=... [-DRUNNER=emulator] -DEXAMPLES=... -DINPUTS=... -DWORK=... -P ClipRoundTrip.cmake
# The example records are what encode makes of examples/clip.json; decode --json and encode give each
# back byte for byte, also when the record sits at an offset inside a larger file or a pipe, and a
# capture of records in both byte orders as a whole.
function(run)
    execute_process(COMMAND ${RUNNER} ${TOOL} ${ARGN} RESULT_VARIABLE status OUTPUT_VARIABLE out ERROR_VARIABLE err)
    if(NOT status EQUAL 0)
        message(FATAL_ERROR "plurex ${ARGN}: status ${status}\n${err}")
    endif()
    set(out "${out}" PARENT_SCOPE)
endfunction()

function(same_bytes left right)
    file(READ ${left} a HEX)
    file(READ ${right} b HEX)
    if(NOT a STREQUAL b)
        message(FATAL_ERROR "${left} and ${right} differ:\n${a}\n${b}")
    endif()
endfunction()

# The clip fields of decode --json, without the "record" member that says where the record was.
function(clip_fields json)
    string(REGEX REPLACE "^{\"record\":{[^}]*}," "{" fields "${json}")
    set(fields "${fields}" PARENT_SCOPE)
endfunction()

file(MAKE_DIRECTORY ${WORK})
foreach(order le be)
    set(flag)
    if(order STREQUAL "be")
        set(flag --big-endian)
    endif()
    run(clip encode ${EXAMPLES}/clip.json -o ${WORK}/made-${order}.bin ${flag})
    same_bytes(${WORK}/made-${order}.bin ${EXAMPLES}/clip-${order}.bin)

    run(--json clip decode ${EXAMPLES}/clip-${order}.bin ${flag})
    file(WRITE ${WORK}/decoded-${order}.json "${out}")
    run(clip encode ${WORK}/decoded-${order}.json -o ${WORK}/again-${order}.bin ${flag})
    same_bytes(${WORK}/again-${order}.bin ${EXAMPLES}/clip-${order}.bin)

    # The record after seven bytes of something else.
    file(READ ${EXAMPLES}/clip-${order}.bin record HEX)
    string(REGEX REPLACE "(..)" "\\\\x\\1" escaped "00112233445566${record}")
    execute_process(COMMAND printf "${escaped}" OUTPUT_FILE ${WORK}/padded-${order}.bin)
    run(--json clip decode ${WORK}/padded-${order}.bin --offset 7 ${flag})
    file(READ ${WORK}/decoded-${order}.json expected)
    clip_fields("${expected}")
    set(expected "${fields}")
    clip_fields("${out}")
    if(NOT fields STREQUAL expected)
        message(FATAL_ERROR "decode --offset 7 differs:\n${out}")
    endif()

    # The record after 100000 zeros through a pipe, which cannot seek: skipped a bounded chunk at a time.
    execute_process(COMMAND sh -c "head -c 100000 /dev/zero && cat \"$0\"" ${EXAMPLES}/clip-${order}.bin
                    COMMAND ${RUNNER} ${TOOL} --json clip decode - --offset 100000 ${flag}
                    RESULTS_VARIABLE statuses OUTPUT_VARIABLE out ERROR_VARIABLE err)
    clip_fields("${out}")
    if(NOT statuses STREQUAL "0;0" OR NOT fields STREQUAL expected)
        message(FATAL_ERROR "decode of a pipe at --offset 100000: status ${statuses}\n${err}${out}")
    endif()
endforeach()

# A capture of three records, the middle one big-endian: JSON Lines carry each record's byte order, and
# encode writes each in it again.
run(--json clip decode ${INPUTS}/capture.bin -o ${WORK}/capture.jsonl)
run(clip encode ${WORK}/capture.jsonl -o ${WORK}/capture.bin)
same_bytes(${WORK}/capture.bin ${INPUTS}/capture.bin)

# --hex writes what xxd -p writes.
run(clip encode --hex --big-endian ${EXAMPLES}/clip.json -o ${WORK}/clip-be.hex)
same_bytes(${WORK}/clip-be.hex ${INPUTS}/clip-be.hex)
