import pytest

from plurexdata import Rate, TimeCode, TimeCodeBuilder, TimeCodeFields, VideoRates


def test_rates_are_kept_as_given():
    assert VideoRates.rate50() == Rate(50, 1) and Rate(50, 1) != Rate(100, 2)
    assert (VideoRates.rate60().numerator, VideoRates.rate60().denominator) == (60, 1)


def test_text_fields_and_count_agree():
    rate = VideoRates.rate50()
    code = TimeCode.parse("2024-07-14 20:31:00:04", rate)
    assert str(code) == "2024-07-14 20:31:00:04" and code.time_of_day() == "20:31:00:04"
    assert code.fields == TimeCodeFields(2024, 7, 14, 20, 31, 0, 4)
    assert TimeCodeBuilder(2024, 7, 14, 20, 31, 0, 4, rate).build() == code
    assert TimeCodeBuilder(code.fields, rate).build().total_sample == code.total_sample
    assert TimeCode(rate, 0).fields == TimeCodeFields(1900, 1, 1, 0, 0, 0, 0)
    drop = TimeCode.parse("00:01:00;04", VideoRates.rate60())
    assert drop.drop_frame and str(drop) == "1900-01-01 00:01:00;04"
    assert TimeCode.try_parse("yesterday", rate) is None
    assert TimeCodeBuilder.try_from_time_code(TimeCode(Rate(25, 2), 0)) is None


@pytest.mark.parametrize("fields, message", [
    ((1899, 1, 1, 0, 0, 0, 0), "year 1899 must be between 1900 and 2261"),
    ((2024, 13, 1, 0, 0, 0, 0), "month 13 must be between 1 and 12"),
    ((2023, 2, 29, 0, 0, 0, 0), "day 29is negative or greater than 28 in month 2"),
    ((2024, 1, 1, 0, 0, 0, 50), "Sample 50 is greater than numerator ratio 50"),
])
def test_builder_refusals_are_index_errors_with_the_library_message(fields, message):
    builder = TimeCodeBuilder(*fields, VideoRates.rate50())
    for check in (builder.is_valid_to_build_with_exception, builder.build):
        with pytest.raises(IndexError) as raised:
            check()
        assert str(raised.value) == message


def test_parse_refusals():
    with pytest.raises(ValueError, match="^Invalid timecode text: 25:00$"):
        TimeCode.parse("25:00", VideoRates.rate50())
    with pytest.raises(IndexError, match="^hour 25 must be between 0 and 23$"):
        TimeCode.parse("25:00:00:00", VideoRates.rate50())


@pytest.mark.parametrize("code, word, decoded", [
    (TimeCode(VideoRates.rate50(), 1234, False, 1), 1234, TimeCode(VideoRates.rate50(), 1234)),
    (TimeCode(VideoRates.rate50(), 1234, True), 1234, TimeCode(VideoRates.rate50(), 1234)),  # no drop bit at 50/1
    (TimeCode(VideoRates.rate60(), 1234), 0x4000000000000000 | 1234, TimeCode(VideoRates.rate60(), 1234)),
    (TimeCode(VideoRates.rate60(), 1234, True), 0xC000000000000000 | 1234, TimeCode(VideoRates.rate60(), 1234, True)),
    (TimeCode(VideoRates.rate60(), -1), 0x7FFFFFFFFFFFFFFF, TimeCode(VideoRates.rate60(), 0x3FFFFFFFFFFFFFFF)),
])
def test_timecode_words_of_the_record(code, word, decoded):
    assert code.to_timecode_word() == word and TimeCode.from_timecode_word(word) == decoded


def test_timecode_word_quirks_and_dict():
    assert TimeCode.from_timecode_word(0x8000000000000005) == TimeCode(VideoRates.rate50(), 5)  # drop bit alone
    assert TimeCode.parse("00:00:01:00", VideoRates.rate50()).to_dict() == {
        "rate": 50, "drop": False, "count": 50, "date": "1900-01-01", "time": "00:00:01", "frame": 0}
    with pytest.raises(ValueError, match="^Timecode rate must be 50/1 or 60/1$"):
        TimeCode(Rate(30, 1), 5).to_timecode_word()
