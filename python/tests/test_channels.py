import enum

import pytest

from plurexdata import (AbsoluteBoundary, Angle, Clip, PlayerClipOnAir, PlayerInfoOnAir, PlayerState, Rate,
                        RecorderState, TimeCode, TimePoint)

Change = PlayerState.StatusChange


def player(mode=0, end=0, position=0, first=False, second=False, text1="CLIP0001", name="", word1=0,
           numerator=0, denominator=1):
    """A player state with the fields CompareStatus reads, set through the bindings."""
    state = PlayerState()
    state.name = name
    info = state.info_on_air
    info.mode, info.word1, info.rate_numerator, info.rate_denominator, info.end = (
        mode, word1, numerator, denominator, end)
    info.values = [0x7700000000 + position] + [0] * 7  # only the low word is the position
    first_clip, second_clip = state.clips_on_air
    first_clip.clip_present, first_clip.clip.text1 = first, text1
    second_clip.clip_present = second
    return state


def playing(mode=3, end=100, position=10, **fields):
    return player(mode, end, position, first=True, **fields)


# The cases of the C++ tests (tests/channels/PlayerStateTest.cpp), one or more for each bit.
@pytest.mark.parametrize("this, other, expected", [
    (player(), player(), Change["None"]),
    (player(), player(name="PGM1"), Change.Name),
    (player(), player(mode=1, first=True), Change.Mode),
    (player(), player(word1=9), Change.InfoWord1),
    (player(numerator=2), player(), Change.RateCleared),
    (player(), player(numerator=2), Change.RateSet),
    (playing(mode=8, end=0, position=0, second=True), playing(mode=8, end=0, position=0), Change.SecondClipOnAir),
    (playing(mode=8, end=0, position=0), playing(mode=8, end=0, position=0, text1="OTHER"), Change.FirstClipOnAir),
    (playing(mode=4, second=True), playing(mode=4), Change["None"]),
    (playing(), playing(text1="CLIP0009"), Change.FirstClipOnAir),
    (playing(mode=1), playing(), Change.Mode | Change.RemainingTime),
    (player(mode=3, end=100, position=10), playing(), Change.RemainingTime | Change.FirstClipOnAir),
    (playing(end=11), playing(), Change.RemainingTime),
    (playing(end=11), playing(numerator=-1), Change.RemainingTime | Change.RateSet),  # -1 does not scale
])
def test_player_compare_status_reaches_every_bit(this, other, expected):
    mask = this.compare_status(other)
    assert type(mask) is Change and isinstance(mask, enum.IntFlag)
    assert mask == expected and int(mask) == int(expected)


@pytest.mark.parametrize("change, expected", [
    (lambda s: None, RecorderState.StatusChange["None"]),
    (lambda s: setattr(s, "status", 2), RecorderState.StatusChange.Status),
    (lambda s: setattr(s, "name", "REC1"), RecorderState.StatusChange.Name),
    (lambda s: (setattr(s, "name", "REC1"), setattr(s, "status", 5)),
     RecorderState.StatusChange.Name | RecorderState.StatusChange.Status),
    # Equality reads these, the comparison does not.
    (lambda s: (setattr(s, "first_value", 5), setattr(s, "clip_present", True)), RecorderState.StatusChange["None"]),
])
def test_recorder_compare_status_sees_name_and_status_only(change, expected):
    this, other = RecorderState(), RecorderState()
    change(other)
    mask = this.compare_status(other)
    assert type(mask) is RecorderState.StatusChange and mask == expected


def test_states_identity_name_and_equality():
    state = PlayerState(7, 8)
    assert (state.first_id, state.second_id, state.channel_mode()) == (7, 8, 0)
    state.name = "N" * 40
    assert state.name == "N" * (PlayerState.NAME_SIZE - 1)
    copy = PlayerState(state)
    assert copy == state
    copy.clips_on_air[1].clip_present = True  # the tuple's items are the state's own
    assert copy != state

    recorder = RecorderState(1, 2)
    assert recorder.channel_mode() == 1 and recorder != RecorderState(1, 3)
    other = RecorderState(recorder)
    other.flag_byte = 7  # equality leaves the flag byte out
    assert other == recorder


def test_clips_timecodes_and_boundaries_take_part_in_equality_only():
    """What the comparison does not read still makes two states unequal, and is reached in place or whole."""
    base = PlayerState()
    assert base.timecodes == (Clip.default_timecode(),) * PlayerState.TIMECODE_COUNT
    assert base.in_boundary == AbsoluteBoundary(TimePoint.empty()) and base.out_boundary.is_empty()

    def changed(change):
        state = PlayerState(base)
        change(state)
        assert state != base and base.compare_status(state) == Change["None"]
        return state

    changed(lambda s: setattr(s.clips_on_air[0].clip, "text2", "B"))
    codes = list(base.timecodes)
    codes[7] = TimeCode(codes[7].rate, 1)
    assert changed(lambda s: setattr(s, "timecodes", codes)).timecodes[7].total_sample == 1
    moved = changed(lambda s: setattr(s, "out_boundary", AbsoluteBoundary(TimePoint(5))))
    boundary = moved.out_boundary  # a copy: replacing the state's own leaves it valid
    moved.out_boundary = AbsoluteBoundary(TimePoint(6))
    assert (boundary.time_point.value, boundary.type, boundary.is_empty()) == (5, AbsoluteBoundary.KIND, False)
    with pytest.raises(ValueError, match="^timecodes takes 8 values, got 7$"):
        base.timecodes = codes[:7]
    assert base.timecodes == (Clip.default_timecode(),) * 8

    recorder, other = RecorderState(), RecorderState()
    other.clip.name = "REC"
    assert recorder == other  # the clip counts only while present
    recorder.clip_present = other.clip_present = True
    assert recorder != other and recorder.compare_status(other) == RecorderState.StatusChange["None"]


@pytest.mark.parametrize("owner, field, size", [
    (PlayerState(), "time_values", 4), (PlayerState(), "timecodes", 8), (PlayerInfoOnAir(), "values", 8),
    (Angle(), "words", 5),
])
def test_fixed_size_fields_are_tuples_written_whole(owner, field, size):
    values = getattr(owner, field)
    assert type(values) is tuple and len(values) == size
    with pytest.raises(TypeError):
        values[0] = values[0]  # an item's assignment would be lost: refused
    setattr(owner, field, list(values))
    with pytest.raises(ValueError, match=f"^{field} takes {size} values, got {size + 1}$"):
        setattr(owner, field, values + values[:1])
    assert getattr(owner, field) == values


@pytest.mark.parametrize("make", [PlayerClipOnAir, RecorderState])
def test_timecode_fields_are_copies(make):
    owner = make()
    first = owner.first_timecode
    rate = first.rate
    owner.first_timecode = TimeCode(Rate(60, 1), 9)
    assert (first, rate) == (Clip.default_timecode(), Clip.default_timecode().rate)  # neither followed
    assert owner.first_timecode.total_sample == 9
