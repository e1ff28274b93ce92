# The bash completion offers exactly the verbs and options of "plurex help", their fixed choices, and
# the charsets and cameras the tool takes (CompletionCheck.sh).
add_test(NAME tool.completion
    COMMAND bash ${CMAKE_CURRENT_SOURCE_DIR}/CompletionCheck.sh ${PROJECT_SOURCE_DIR}/tools/plurex/plurex.bash-completion
            ${CMAKE_CROSSCOMPILING_EMULATOR} $<TARGET_FILE:plurex>)
