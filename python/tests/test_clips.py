import enum
import json
import pathlib
import re

import pytest

import plurexdata
from plurexdata import Clip, TextField, TimeCode, VideoRates

EXAMPLES = pathlib.Path(__file__).resolve().parents[2] / "examples"


def snake(key):
    return re.sub(r"(?<=[a-z0-9])([A-Z])", r"_\1", key).lower().replace("is3_d", "is_3d")


def shown(value):
    """A property as the tool's JSON writes it: members by name, numbers as they are."""
    return value.name if isinstance(value, enum.Enum) else value


@pytest.mark.parametrize("name, big_endian", [("clip-le.bin", False), ("clip-be.bin", True)])
def test_records_round_trip_and_read_as_the_tool_reads_them(tool, name, big_endian):
    record = (EXAMPLES / name).read_bytes()
    assert Clip.detect_byte_order(record) is big_endian
    clip = Clip.from_bytes(record, big_endian=big_endian)
    assert clip.to_bytes(big_endian) == record and Clip.from_bytes(clip.to_bytes()) == clip
    expected = json.loads(tool("clip", "decode", "--json", str(EXAMPLES / name)))
    del expected["record"]
    for key, value in expected.items():
        if key == "keywords":
            assert clip.keywords == tuple(keyword["text"] for keyword in value)
        elif key == "essences":
            for essence, want in zip(clip.essences, value):
                for field, figure in want.items():
                    got = [essence.value1, essence.value2, essence.value3, essence.value4] if field == "values" \
                        else shown(getattr(essence, snake(field)))
                    assert got == figure, (key, field)
        elif key == "rawBytes":
            assert clip.raw_bytes.hex() == value
        elif key.endswith("Timecode"):
            code = getattr(clip, snake(key))
            assert (code.rate.numerator, code.drop_frame, code.total_sample) == (value["rate"], value["drop"],
                                                                                 value["count"])
            assert str(code) == f"{value['date']} {value['time']}{';' if value['drop'] else ':'}{value['frame']:02}"
        elif isinstance(value, dict):
            assert getattr(clip, snake(key)) == value["text"], key
        else:
            assert shown(getattr(clip, snake(key))) == value, key


def test_texts_through_the_library():
    clip = Clip()
    clip.set_text(TextField.Name, "Zürich – Ω", unicode=True)
    assert clip.name == "Zürich – Ω" and clip.is_text_utf16(TextField.Name)
    clip.name = "Basel"  # the property keeps the field's form
    assert clip.is_text_utf16(TextField.Name) and clip.get_text_bytes(TextField.Name)[:4] == "Ba".encode("utf-16-le")
    clip.set_text(TextField.Text1, "Łódź", charset="iso-8859-2")
    assert clip.get_text_bytes(TextField.Text1)[:4] == "Łódź".encode("iso8859_2")
    assert clip.get_text(TextField.Text1, "iso-8859-2").startswith("Łódź")
    assert clip.text1.startswith("Łódź".encode("iso8859_2").decode("latin-1"))  # the property reads ISO 8859-1
    with pytest.raises(ValueError, match="^name: U\\+20AC not in iso-8859-1$"):
        clip.set_text(TextField.Name, "€")
    with pytest.raises(ValueError, match="^text1: text longer than 8 bytes$"):
        clip.text1 = "ninechars"
    assert clip.name == "Basel"  # refused texts change nothing


def test_unnamed_values_survive_and_named_ones_read_as_members():
    clip = Clip()
    clip.attribute3 = 99
    clip.attribute8 = plurexdata.UserProtect.Kep | plurexdata.UserProtect.Dorsel
    assert clip.attribute3 == 99 and not isinstance(clip.attribute3, plurexdata.Camera)
    assert clip.attribute8 == 0x11 and Clip.from_bytes(clip.to_bytes()).attribute3 == 99
    clip.attribute3 = plurexdata.Camera.L
    assert clip.attribute3 is plurexdata.Camera.L
    with pytest.raises(TypeError):
        clip.attribute3 = 1 << 40  # not a 32-bit value


def test_standard_timecodes_and_essences():
    clip = Clip()
    rate = clip.rate
    assert rate == VideoRates.rate50() and clip.video_standard is plurexdata.VideoStandard.Pal
    clip.video_standard = plurexdata.VideoStandard.Ntsc
    assert rate == VideoRates.rate50() and clip.rate == VideoRates.rate60()  # a copy, not the clip's own
    assert clip.in_bound_tod_timecode.rate == VideoRates.rate60()  # rebuilt at the new rate
    with pytest.raises(ValueError, match="^Timecode Rate inconsistent with Clip Rate$"):
        clip.in_bound_tod_timecode = TimeCode(VideoRates.rate50(), 0)
    clip.in_bound_tod_timecode = TimeCode.parse("10:00:00:00", VideoRates.rate60())
    clip.set_out_bound_tod_timecode(TimeCode.parse("10:00:10:00", VideoRates.rate60()))
    assert clip.out_position - clip.in_position == 600
    essence = clip.essences[0]
    essence.value1 = 185  # the clip's own essence
    assert clip.essences[0].value1 == 185 and essence.type is plurexdata.essences.Type.Intra
    assert not essence.set_metadata(plurexdata.essences.Metadata.LowResNone) and essence.set_metadata(2)
    assert clip.essences[0].metadata is plurexdata.essences.Metadata.IntraEncodingBitLength10


def test_record_size_and_byte_order_refusals():
    for read in (Clip.from_bytes, Clip().load_bytes):
        with pytest.raises(ValueError, match="^a clip record is 290 bytes, got 289$"):
            read(bytes(289))
    with pytest.raises(ValueError, match="^an essence record is 15 bytes, got 14$"):
        Clip.Essence().load_bytes(bytes(14))
    assert Clip.detect_byte_order(b"\x00\x08") is None and Clip.RECORD_SIZE == 290
    with pytest.raises(ValueError, match="^raw_bytes takes 8 bytes, got 7$"):
        Clip().raw_bytes = bytes(7)


@pytest.mark.parametrize("name, big_endian", [("clip-le.bin", False), ("clip-be.bin", True)])
def test_essences_are_the_records_last_45_bytes_and_load_in_place(name, big_endian):
    record = (EXAMPLES / name).read_bytes()
    clip = Clip.from_bytes(record, big_endian)
    for i, essence in enumerate(clip.essences):
        part = record[245 + 15 * i:260 + 15 * i]
        assert essence.to_bytes(big_endian) == part and len(part) == Clip.Essence.RECORD_SIZE
        loaded = Clip.Essence(essence.type)  # the type is not in the record: the essence keeps its own
        loaded.load_bytes(part, big_endian)
        assert loaded == essence
    # An Ntsc record with the legacy drop flag: a reader at another standard loses the flag.
    assert clip.video_standard == plurexdata.VideoStandard.Ntsc and clip.is_legacy_timecode_drop
    for standard, kept in ((plurexdata.VideoStandard.Pal, False), (plurexdata.VideoStandard.Ntsc, True)):
        in_place = Clip()
        in_place.video_standard = standard
        in_place.load_bytes(record, big_endian)
        assert in_place.is_legacy_timecode_drop is kept and (in_place == clip) is kept


@pytest.mark.parametrize("name", ["clip-le.bin", "clip-be.bin"])
def test_to_dict_is_the_tools_json_and_from_dict_reads_it_back(tool, name):
    record = (EXAMPLES / name).read_bytes()
    clip = Clip.from_bytes(record, big_endian=Clip.detect_byte_order(record))
    expected = json.loads(tool("clip", "decode", "--json", str(EXAMPLES / name)))
    del expected["record"]  # the record's place in its file, not the clip's
    fields = clip.to_dict()
    assert json.dumps(fields) == json.dumps(expected)  # keys in the same order
    assert Clip.from_dict(fields) == clip and Clip.from_dict({}) == Clip()


@pytest.mark.parametrize("fields, error, message", [
    ({"colour": 1}, ValueError, "unknown field: colour"),
    ({"attribute3": "Cam"}, ValueError, "attribute3: unknown name Cam"),
    ({"value1": 1 << 32}, ValueError, "value1: 4294967296 is out of range"),
    ({"keywords": [{"text": 5}] + [{"text": ""}] * 4}, ValueError, "keywords[0].text: a text expected"),
    ({"keywords": []}, ValueError, "keywords: five texts expected"),
    ({"name": {"text": "€"}}, ValueError, "name: U+20AC not in iso-8859-1"),
    ({1: 2}, TypeError, "dict keys must be str, not int"),
    ({"value1": b"\x01"}, TypeError, "cannot read a bytes as a clip value"),
])
def test_from_dict_refusals(fields, error, message):
    with pytest.raises(error) as raised:
        Clip.from_dict(fields)
    assert str(raised.value) == message
