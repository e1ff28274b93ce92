plurex_add_tool_test(guid.new ARGS guid new -n 3
    STDOUT "^[0-9a-f]+-[0-9a-f]+-4[0-9a-f]+-[89ab][0-9a-f]+-[0-9a-f]+\n[0-9a-f-]+\n[0-9a-f-]+\n$")
plurex_add_tool_test(guid.new.json ARGS --json guid new
    STDOUT "^\\[\n  \"[0-9a-f-]+\"\n\\]\n$")
plurex_add_tool_test(guid.parse ARGS guid parse 00112233-4455-6677-8899-AABBCCDDEEFF
    STDOUT "^00112233-4455-6677-8899-aabbccddeeff\n$")
plurex_add_tool_test(guid.parse.empty ARGS guid parse 00000000-0000-0000-0000-000000000000
    STDOUT "^00000000-0000-0000-0000-000000000000\n$")
plurex_add_tool_test(guid.parse.invalid ARGS guid parse {00112233-4455-6677-8899-aabbccddeeff} EXIT 1
    STDERR "^not a GUID: {00112233-4455-6677-8899-aabbccddeeff}\n$")
plurex_add_tool_test(server-guid.make ARGS server-guid make --type 1 --serial 123456
    STDOUT "^00000000-0000-0064-0140-000000123456\n$")
plurex_add_tool_test(server-guid.make.no-serial ARGS server-guid make --type 2
    STDOUT "^00000000-0000-0065-0000-000000000000\n$")
plurex_add_tool_test(server-guid.make.bad-type ARGS server-guid make --type 3 EXIT 2)
plurex_add_tool_test(server-guid.read ARGS server-guid read 00000000-0000-0064-0140-000000123456
    STDOUT "^type    1\nserial  123456\n$")
plurex_add_tool_test(server-guid.read.json ARGS --json server-guid read 00000000-0000-0065-0140-004294967295
    STDOUT "\"serial\": 2147483647,\n  \"type\": 2")
plurex_add_tool_test(server-id ARGS server-id 120 STDOUT "^  120\n$")
plurex_add_tool_test(server-id.invalid ARGS server-id 15 EXIT 1 STDERR "^invalid ServerId\n$")
plurex_add_tool_test(kep-id ARGS kep-id --page 1 --bank 2 --clip 3 --camera B --server 10
    STDOUT "^123B/   10\n$")
plurex_add_tool_test(kep-id.invalid ARGS kep-id --page 1 --bank 11 --clip 3 EXIT 1 STDERR "^Invalid bank: 11\n$")
plurex_add_tool_test(kep-id.camera ARGS kep-id --page 1 --bank 1 --clip 3 --camera M EXIT 1
    STDERR "^Invalid cam: 77\n$")
plurex_add_tool_test(umid.macro ARGS umid @PLS042!
    STDOUT "pattern      no\nmacro        yes\nedit number  42\n$")
plurex_add_tool_test(umid.black.json ARGS --json umid @BLKCLP!
    STDOUT "\"black\": true,.*\"edit_number\": -1,.*\"pattern\": true")
plurex_add_tool_test(usage ARGS frobnicate EXIT 2)

string(REPLACE "." "\\." version_pattern "${PROJECT_VERSION}")
plurex_add_tool_test(version ARGS --version
    STDOUT "^plurex ${version_pattern}\nlibKorv\\.PlurexData ${version_pattern}\n$")
plurex_add_tool_test(help.full ARGS --help STDOUT_FILE /dev/full EXIT 1 STDERR "^cannot write standard output\n$")
