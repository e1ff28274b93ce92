# What every verb shares: verbs named in errors, the usage line, help with examples, JSON errors, -o.
plurex_add_tool_test(common.unknown-verb ARGS bogus EXIT 2
    STDERR "^plurex: unknown verb \"bogus\"\nUsage: plurex \\[OPTIONS\\] VERB\n$")
plurex_add_tool_test(common.unknown-subverb ARGS --json clip bogus EXIT 2
    STDERR "^{\"error\":\"unknown clip verb \\\\\"bogus\\\\\"\",\"context\":null,\"usage\":\"plurex clip \\[OPTIONS\\] VERB\"}\n$")
plurex_add_tool_test(common.missing-verb ARGS clip EXIT 2
    STDERR "^plurex: a verb is required: new, decode, encode, diff\nUsage: plurex clip \\[OPTIONS\\] VERB\n$")
plurex_add_tool_test(common.parse-error ARGS --json clip decode --count x EXIT 2
    STDERR "^{\"error\":\"--count: a count from 0 to 9223372036854775807 expected: x\",\"context\":null,\"usage\":\"plurex clip decode \\[OPTIONS\\] \\[FILE\\]\"}\n$")
# A verb's help, either way, ends with its example; help lists the verbs under "Verbs:".
foreach(form "help;clip;diff" "clip;diff;--help")
    string(REPLACE ";" "-" name "${form}")
    plurex_add_tool_test(common.${name} ARGS ${form}
        STDOUT "^Show the fields[^\n]*\nUsage: plurex clip diff \\[OPTIONS\\] A B\n.*\n\nExample:\n  plurex clip diff before.bin after.bin\n")
endforeach()
plurex_add_tool_test(common.help ARGS help STDOUT "\nVerbs:\n  guid +Make and parse GUIDs\n")
plurex_add_tool_test(common.help.unknown ARGS help clip bogus EXIT 2 STDERR "^plurex: help: unknown verb \"bogus\"\n$")
plurex_add_tool_test(common.output.missing-directory ARGS clip new -o ${CMAKE_CURRENT_BINARY_DIR}/no/such/dir/clip.json
    EXIT 1 STDERR "^plurex: cannot open .*/no/such/dir/clip.json: No such file or directory\n$")
# -o writes the file whole, with the permissions a new file gets, and keeps those of a file it replaces.
add_test(NAME tool.common.output.mode
    COMMAND sh -c "out=$1; shift; rm -f \"$out\"; (umask 027; \"$@\" -o \"$out\") && test \"$(stat -c %a \"$out\")\" = 640 && chmod 600 \"$out\" && \"$@\" -o \"$out\" && test \"$(stat -c %a \"$out\")\" = 600 && grep -q videoStandard \"$out\""
            sh ${CMAKE_CURRENT_BINARY_DIR}/mode.json ${CMAKE_CROSSCOMPILING_EMULATOR} $<TARGET_FILE:plurex> clip new)
# A reader that has gone (a closed pipe) fails the run when SIGPIPE does not end it first.
add_test(NAME tool.common.closed-pipe
    COMMAND sh -c "dir=$1; shift; (trap '' PIPE; \"$@\" guid new -n 200000 2> \"$dir/pipe.err\"; echo $? > \"$dir/pipe.status\") | head -c 1 > /dev/null; test \"$(cat \"$dir/pipe.status\")\" = 1 && test \"$(cat \"$dir/pipe.err\")\" = 'plurex: cannot write standard output: Broken pipe'"
            sh ${CMAKE_CURRENT_BINARY_DIR} ${CMAKE_CROSSCOMPILING_EMULATOR} $<TARGET_FILE:plurex>)
# A closed standard input stays closed with -o: the output file does not become the input.
if(NOT CMAKE_CROSSCOMPILING_EMULATOR)
    plurex_add_tool_test(common.closed-input ARGS -o ${CMAKE_CURRENT_BINARY_DIR}/closed.txt text convert -f utf-8 -t ascii
        STDIN_CLOSED EXIT 1 STDERR "^plurex: cannot read standard input: Bad file descriptor\n$")
endif()
