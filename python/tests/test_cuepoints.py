import os
import subprocess
import sys
import textwrap

import pytest

from plurexdata import (CuePoint, CuePointCopyCommand, CuePointDbEventArgs, CuePointDbEventType,
                        CuePointDeleteCommand, CuePointUsers, KepId, ServerId, UmId)

MIN = -2**31


def mark(tc, clip="CLIPA", server=10, train=False):
    return CuePoint(tc, 0, ServerId(server), UmId(clip), train)


# tests/cuepoints/CuePointTest.cpp: the low half of the position, with wrap-around.
@pytest.mark.parametrize("left, right, expected", [
    (0x100000005, 5, 0), (0, 0x80000000, MIN), (0x80000001, 0, -2147483647), (5, 3, 2), (3, 5, -2),
    (-1, 0, -1), (0x7FFFFFFF, -1, MIN), (-1, 0x7FFFFFFF, MIN), (-0x100000000, 0, 0), (0x123456789A, 0x3456789A, 0),
])
def test_cue_point_order(left, right, expected):
    a, b = mark(left, "A"), mark(right, "B")
    assert a.compare_to(b) == expected
    assert (a == b, a != b, a < b, a > b) == (expected == 0, expected != 0, expected < 0, expected > 0)


def test_cue_point_servers_nulls_and_constructors():
    assert mark(1000, server=10).compare_to(mark(0, server=30)) == -20 and mark(0, server=30) > mark(1000, server=10)
    assert mark(5).compare_to(None) == 1 and not mark(5).equals(None)
    with pytest.raises(ValueError, match="^Null CuePoint$"):
        CuePoint(None)
    kep = KepId(123, "B", ServerId(20))
    full = CuePoint(-7, 4, "C", ServerId(20), UmId("U"), kep, True)
    plain = CuePoint(-7, 4, ServerId(20), UmId("U"), True)
    assert (full.tc, full.pcx, full.server_id, full.train, full.kep_id, full.camera) == (
        -7, 4, ServerId(20), True, kep, "C")
    assert plain.camera == "\0" and plain.kep_id == KepId() and CuePoint(full) == full


@pytest.fixture
def events():
    """The events of the process-wide delegate while a test runs, as the C++ tests print them:
    "user type tc number clip[ train]"; a removal of all shows its delete command."""
    lines = []

    def listener(args):
        all_removed = args.type == CuePointDbEventType.CuePointsRemovedAll
        point, command = args.cue_point, args.delete_command
        train = command.train if all_removed else point.train
        clip = command.clip_id if all_removed else point.umid
        lines.append(f"{args.user} {int(args.type)} {point.tc} {point.number} {clip}" + (" train" if train else ""))

    token = CuePointUsers.add_listener(listener)
    yield lines
    assert CuePointUsers.remove_listener(token)


def filled(tc, clip, train, server=1):
    point = CuePoint()
    CuePointUsers.fill_cue_point(tc, server, "A", train, 0, clip, 123, point)
    return point


def added(users, user, tc, clip, train, expected=2):
    point = filled(tc, clip, train)
    assert users.add_cue_point(user, point) == expected
    return point


def take(lines):
    taken = list(lines)
    lines.clear()
    return taken


# tests/cuepoints/CuePointUsersTest.cpp, AnOperatorsSession: the same steps and the same figures.
def test_an_operators_session(events):
    users = CuePointUsers()
    users.set_cache_user(1, 7)
    for tc in (300, 100, 200):
        added(users, 1, tc, "REC", True)
    assert added(users, 1, 200, "REC", True, 1).number == 3
    added(users, 1, 40, "CLIPA", False)
    assert take(events) == ["1 1 300 1 REC train", "1 1 100 2 REC train", "1 1 200 3 REC train", "1 1 40 1 CLIPA"]

    lookup, after = filled(0x100000000 + 100, "ANY", True), CuePoint()
    assert users.find_cue_point(1, lookup) == 2 and lookup.tc == 100
    assert users.find_cue_point_after(1, lookup, after) and after.tc == 200
    assert users.find_cue_point_before(1, after, lookup) and lookup.tc == 100

    assert users.remove_cue_point(1, filled(100, "REC", True))
    assert not users.remove_cue_point(1, filled(100, "REC", True))
    assert users.remove_cue_point(1, filled(40, "CLIPA", False))
    assert take(events) == ["1 2 100 0 REC train", "1 2 40 0 CLIPA"]

    users.copy_cue_point(1, CuePointCopyCommand(UmId(), True, UmId("CLIPB"), 0, 1000, "B", ServerId(10), KepId()))
    assert users.get_cue_point_count(1, "CLIPB", False) == 2 and not users.is_list_empty(1, "CLIPB", False)
    assert [point.number for point in users.get_cue_point_list(1, "CLIPB", False)] == [1, 2]
    assert [(clip.umid, clip.cue_point_count) for clip in users.get_clip_list(1)] == [(UmId("CLIPB"), 2)]
    assert take(events) == []  # copying raises nothing

    users.remove_all_cue_point_of_user(1)
    assert take(events) == ["1 4 0 0 " + " " * 8 + " train"]
    assert users.get_cue_point_count(1, UmId(), True) == 0
    assert users.has_cache_cue_points(1, 7) and not users.has_cache_cue_points(1, 8)

    added(users, 1, 50, "REC", True)
    users.set_cue_point(8, 1)
    assert users.get_cue_point_count(1, "REC", True) == 1
    users.set_cue_point(7, 1)
    restored = users.get_cue_point_list(1, UmId(), True)
    assert [(point.tc, point.number) for point in restored] == [(50, 1), (200, 3), (300, 1)]
    assert added(users, 1, 250, "REC", True).number == 4
    assert take(events) == ["1 1 50 1 REC train", "1 1 250 4 REC train"]


def test_removing_all_with_a_command_and_the_listeners_fields(events):
    users = CuePointUsers()
    users.remove_all_cue_point_of_user(3, CuePointDeleteCommand(UmId("NONE"), False))
    users.set_current_clip_to_delete(2, 0, CuePointDeleteCommand(UmId("X"), True))
    assert users.get_current_clip_to_delete(2, 0) == CuePointDeleteCommand(UmId("X"), True)
    users.set_current_user_command(2, 5)
    assert users.get_current_user_command(2) == 5 and users.get_current_user_command(4) == 0

    received = []
    token = CuePointUsers.add_listener(received.append)
    CuePointUsers.invoke_cue_point_db_callback(CuePointDbEventArgs(2, CuePointDbEventType.CuePointRemoved, mark(9)))
    assert CuePointUsers.remove_listener(token) and not CuePointUsers.remove_listener(token)
    added(users, 0, 10, "REC", True)  # after removal: not received
    (args,) = received
    assert (args.user, args.type, args.cue_point.tc) == (2, CuePointDbEventType.CuePointRemoved, 9)
    assert type(args.type) is CuePointDbEventType
    assert take(events) == ["3 4 0 0 NONE", "2 2 9 0 CLIPA", "0 1 10 1 REC train"]


def test_listeners_are_released_before_the_interpreter_finalises():
    # An exit handler registered before the import runs after the module's own.
    script = textwrap.dedent("""
        import atexit
        released = []
        atexit.register(lambda: print("released" if released else "kept"))
        import plurexdata

        class Listener:
            def __call__(self, args):
                pass

            def __del__(self):
                released.append(True)

        plurexdata.CuePointUsers.add_listener(Listener())
    """)
    result = subprocess.run([sys.executable, "-c", script], capture_output=True, text=True, timeout=60,
                            env=dict(os.environ))
    assert (result.returncode, result.stdout, result.stderr) == (0, "released\n", "")
