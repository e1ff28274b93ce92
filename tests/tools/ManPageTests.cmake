# The man page: every verb and option that "plurex help" lists is in it, and it names none the tool lacks
# (ManPageCheck.sh); groff finds nothing to warn about; the install puts it, and the completion, in place.
set(plurex_page ${PROJECT_SOURCE_DIR}/tools/plurex/plurex.1)
add_test(NAME tool.manpage
    COMMAND bash ${CMAKE_CURRENT_SOURCE_DIR}/ManPageCheck.sh ${plurex_page} ${CMAKE_CROSSCOMPILING_EMULATOR}
            $<TARGET_FILE:plurex>)
# scripts/install-deps does not install groff: the check runs where it is.
find_program(PLUREXDATA_GROFF groff)
if(PLUREXDATA_GROFF)
    add_test(NAME tool.manpage.render COMMAND ${PLUREXDATA_GROFF} -man -Tutf8 -ww -z ${plurex_page})
    set_tests_properties(tool.manpage.render PROPERTIES FAIL_REGULAR_EXPRESSION "warning|error")
endif()
add_test(NAME tool.install
    COMMAND bash ${CMAKE_CURRENT_SOURCE_DIR}/InstallCheck.sh ${CMAKE_COMMAND} ${PROJECT_BINARY_DIR}
            ${CMAKE_INSTALL_MANDIR} ${CMAKE_INSTALL_DATADIR} ${PROJECT_SOURCE_DIR}/tools/plurex)
