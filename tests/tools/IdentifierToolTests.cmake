foreach(verb "guid new" "guid parse" "server-guid make" "server-guid read" "server-id" "kep-id" "umid")
    string(REPLACE " " ";" words "${verb}")
    string(REPLACE " " "-" name "${verb}")
    plurex_add_tool_test(example.${name} ARGS help ${words} STDOUT "\nExample:\n  plurex .*${verb}")
endforeach()

plurex_add_tool_test(guid.new ARGS guid new -n 3
    STDOUT "^[0-9a-f]+-[0-9a-f]+-4[0-9a-f]+-[89ab][0-9a-f]+-[0-9a-f]+\n[0-9a-f-]+\n[0-9a-f-]+\n$")
plurex_add_tool_test(guid.new.json ARGS --json guid new -n 2
    STDOUT "^{\"guid\":\"[0-9a-f-]+\"}\n{\"guid\":\"[0-9a-f-]+\"}\n$")
plurex_add_tool_test(guid.parse ARGS guid parse 00112233-4455-6677-8899-AABBCCDDEEFF 00000000-0000-0000-0000-000000000000
    STDOUT "^00112233-4455-6677-8899-aabbccddeeff\n00000000-0000-0000-0000-000000000000\n$")
# Each malformed text is reported with its argument and the rest go on; the run fails.
plurex_add_tool_test(guid.parse.malformed
    ARGS guid parse {00112233-4455-6677-8899-aabbccddeeff} 00112233-4455-6677-8899-AABBCCDDEEFF
         00112233-4455-6677-8899-aabbccddeef 00112233-4455-6677-8899-aabbccddeeff0 00112233-4455-6677-8899-aabbccddeefg
         00112233_4455-6677-8899-aabbccddeeff FFFFFFFF-FFFF-FFFF-FFFF-FFFFFFFFFFFF
    EXIT 1 STDOUT "^00112233-4455-6677-8899-aabbccddeeff\nffffffff-ffff-ffff-ffff-ffffffffffff\n$"
    STDERR "^plurex: argument 1: not a GUID: {00112233-4455-6677-8899-aabbccddeeff}\nplurex: argument 3: not a GUID: 00112233-4455-6677-8899-aabbccddeef\nplurex: argument 4: not a GUID: 00112233-4455-6677-8899-aabbccddeeff0\nplurex: argument 5: not a GUID: 00112233-4455-6677-8899-aabbccddeefg\nplurex: argument 6: not a GUID: 00112233_4455-6677-8899-aabbccddeeff\n$")
# Standard input: one a line, \r\n taken whole, blank lines skipped but counted.
plurex_add_tool_test(guid.parse.stdin ARGS guid parse STDIN ${CMAKE_CURRENT_SOURCE_DIR}/text/guids.txt STDIN_PIPE
    EXIT 1 STDOUT "^00112233-4455-6677-8899-aabbccddeeff\nffffffff-ffff-ffff-ffff-ffffffffffff\n$"
    STDERR "^plurex: standard input line 3: not a GUID: {00112233-4455-6677-8899-aabbccddeeff}\n$")
plurex_add_tool_test(guid.parse.stdin.json ARGS --json guid parse xyz - STDIN ${CMAKE_CURRENT_SOURCE_DIR}/text/guids.txt
    EXIT 1 STDOUT "^{\"input\":\"00112233-4455-6677-8899-AABBCCDDEEFF\",\"guid\":\"00112233-4455-6677-8899-aabbccddeeff\"}\n{\"input\":\"ffffffff-ffff-ffff-ffff-ffffffffffff\",\"guid\":\"ffffffff-ffff-ffff-ffff-ffffffffffff\"}\n$"
    STDERR "^{\"error\":\"not a GUID: xyz\",\"context\":\"argument 1\"}\n{\"error\":\"not a GUID: {00112233-4455-6677-8899-aabbccddeeff}\",\"context\":\"standard input line 3\"}\n$")
plurex_add_tool_test(guid.parse.empty-stdin ARGS guid parse STDIN /dev/null STDOUT "^$")
plurex_add_tool_test(guid.parse.endless ARGS guid parse STDIN /dev/zero EXIT 1
    STDERR "^plurex: standard input: more than 65536 bytes, the most guid parse reads\n$")

plurex_add_tool_test(server-guid.make ARGS server-guid make --type 1 --serial 123456
    STDOUT "^00000000-0000-0064-0140-000000123456\n$")
plurex_add_tool_test(server-guid.make.no-serial ARGS server-guid make --type 2
    STDOUT "^00000000-0000-0065-0000-000000000000\n$")
plurex_add_tool_test(server-guid.make.bad-type ARGS server-guid make --type 3 EXIT 2)
plurex_add_tool_test(server-guid.read ARGS server-guid read 00000000-0000-0064-0140-000000123456
    STDOUT "^type    1\nserial  123456\n$")
plurex_add_tool_test(server-guid.read.json ARGS --json server-guid read 00000000-0000-0065-0140-004294967295
    STDOUT "^{\n  \"type\": 2,\n  \"serial\": 2147483647\n}\n$")
plurex_add_tool_test(server-guid.read.invalid ARGS server-guid read 00000000-0000-0065 EXIT 1
    STDERR "^plurex: not a GUID: 00000000-0000-0065\n$")
plurex_add_tool_test(server-id ARGS server-id 120 STDOUT "^  120\n$")
plurex_add_tool_test(server-id.json ARGS --json server-id -1 STDOUT "^{\n  \"value\": -1,\n  \"text\": \"   -1\"\n}\n$")
plurex_add_tool_test(server-id.invalid ARGS server-id 15 EXIT 1 STDERR "^plurex: invalid ServerId\n$")
plurex_add_tool_test(kep-id ARGS kep-id --page 1 --bank 2 --clip 3 --camera B --server 10
    STDOUT "^123B/   10\n$")
plurex_add_tool_test(kep-id.json ARGS --json kep-id --page 1 --bank 2 --clip 3
    STDOUT "^{\n  \"position\": [0-9]+,\n  \"page\": 1,\n  \"bank\": 2,\n  \"clip\": 3,\n  \"camera\": \"A\",\n  \"server\": -1,\n  \"text\": \"123A/   -1\"\n}\n$")
plurex_add_tool_test(kep-id.invalid ARGS kep-id --page 1 --bank 11 --clip 3 EXIT 1 STDERR "^plurex: Invalid bank: 11\n$")
plurex_add_tool_test(kep-id.camera ARGS --json kep-id --page 1 --bank 1 --clip 3 --camera M EXIT 1
    STDERR "^{\"error\":\"Invalid cam: 77\",\"context\":null}\n$")
plurex_add_tool_test(umid.macro ARGS umid @PLS042!
    STDOUT "pattern      no\nmacro        yes\nedit number  42\n$")
plurex_add_tool_test(umid.black.json ARGS --json umid @BLKCLP!
    STDOUT "\"black\": true,\n  \"pattern\": true,\n  \"macro\": false,\n  \"editNumber\": -1\n}\n$")

string(REPLACE "." "\\." version_pattern "${PROJECT_VERSION}")
plurex_add_tool_test(version ARGS --version
    STDOUT "^plurex ${version_pattern}\nlibKorv\\.PlurexData ${version_pattern}\n$")
plurex_add_tool_test(help.full ARGS --help STDOUT_FILE /dev/full EXIT 1
    STDERR "^plurex: cannot write standard output: No space left on device\n$")
