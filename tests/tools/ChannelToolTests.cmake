foreach(verb "channel-guid make" "channel-guid read")
    string(REPLACE " " ";" words "${verb}")
    string(REPLACE " " "-" name "${verb}")
    plurex_add_tool_test(example.${name} ARGS help ${words} STDOUT "\nExample:\n  plurex .*${verb}")
endforeach()

plurex_add_tool_test(channel-guid.make ARGS channel-guid make --type 0 --index 12 --serial 123456
    STDOUT "^00000000-0000-0001-0012-000000123456\n$")
plurex_add_tool_test(channel-guid.make.json ARGS --json channel-guid make --type 1 --index 12345 --serial 7
    STDOUT "^{\n  \"guid\": \"00000000-0000-0002-2345-000000000007\"\n}\n$")
plurex_add_tool_test(channel-guid.make.bad-type ARGS channel-guid make --type 2 --index 1 --serial 1 EXIT 2)
plurex_add_tool_test(channel-guid.read ARGS channel-guid read 00000000-0000-0002-0007-000000000005
    STDOUT "^type    1\nindex   7\nserial  5\n$")
plurex_add_tool_test(channel-guid.read.json ARGS --json channel-guid read 00000000-0000-0001-2345-004294967295
    STDOUT "^{\n  \"type\": 0,\n  \"index\": 2345,\n  \"serial\": 2147483647\n}\n$")
plurex_add_tool_test(channel-guid.read.invalid ARGS channel-guid read 12 EXIT 1 STDERR "^plurex: not a GUID: 12\n$")
