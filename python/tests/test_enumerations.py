import json

import plurexdata


def module_enum(name):
    if name.startswith("Essences::"):
        return getattr(plurexdata.essences, name[len("Essences::"):])
    return getattr(plurexdata, name)


def test_every_table_as_the_tool_lists_it(tool):
    tables = [json.loads(line) for line in tool("enum", "list", "--json").splitlines()]
    assert len(tables) == 27
    for table in tables:
        enumeration = module_enum(table["enum"])
        assert [(m.name, m.value) for m in enumeration] == [(v["name"], v["value"]) for v in table["values"]]
        # A value the table does not name reads as its default, as the library prints it.
        for unnamed in (-1, 0x7FFFFFFF, max(v["value"] for v in table["values"]) + 1):
            if unnamed not in {v["value"] for v in table["values"]}:
                assert enumeration(unnamed).value == table["default"], table["enum"]


def test_members_are_ints_with_the_table_names():
    assert plurexdata.Camera.L == 12 and isinstance(plurexdata.Camera.L, int)
    assert plurexdata.Camera(16) is plurexdata.Camera.Unknown
    assert plurexdata.UserProtect["None"] == 0 and plurexdata.UserProtect(0x3) is plurexdata.UserProtect.Unknown
    assert plurexdata.ArchiveStatus.Unknown == 3 and plurexdata.essences.ArchiveStatus.Unknown == 2
    assert plurexdata.essences.Type.__module__ == "plurexdata.essences"
    assert plurexdata.ServerGuid.Type.__qualname__ == "ServerGuid.Type"
