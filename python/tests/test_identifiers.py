import pytest

import plurexdata
from plurexdata import ChannelGuid, ClipGuid, Guid, KepId, ServerGuid, ServerId, TimelineId, UmId

TEXT = "0123abcd-4567-89ef-0011-223344556677"


def test_guid_text_bytes_and_order():
    guid = Guid.parse(TEXT.upper())
    assert str(guid) == TEXT and repr(guid) == f"Guid('{TEXT}')"
    assert bytes(guid) == bytes.fromhex(TEXT.replace("-", ""))
    assert Guid(bytes(guid)) == guid and hash(Guid(bytes(guid))) == hash(guid)
    assert bytes(Guid(b"\x01")) == b"\x01" + bytes(15)  # short data: the rest zero
    assert Guid.parse("not a guid") == Guid.empty() and Guid.try_parse("not a guid") is None
    assert Guid.try_parse(str(Guid.empty())) == Guid.empty()
    low, high = Guid(b"\x01" * 16), Guid(b"\x80" * 16)  # bytes compare unsigned
    assert low < high and high > low and low <= low and not high <= low and low != high
    assert low.compare_to(high) == 1 - 0x80
    assert Guid() != Guid() and len({Guid.parse(TEXT), Guid.parse(TEXT)}) == 1


def test_server_clip_and_channel_guids():
    server = ServerGuid(ServerGuid.Type.Primary, 123456)
    assert str(server) == "00000000-0000-0064-0140-000000123456"
    assert server.server_type is ServerGuid.Type.Primary and server.machine_serial == 123456
    assert str(ServerGuid(2, 4294967294)) == "00000000-0000-0065-01fe-004294967294"
    assert ServerGuid(Guid(bytes(server))) == server and isinstance(server, Guid)
    assert ServerGuid().server_type is ServerGuid.Type["None"]

    channel = ChannelGuid(ChannelGuid.Type.First, 12, 123456)
    assert str(channel) == "00000000-0000-0001-0012-000000123456"
    assert (channel.channel_type, channel.channel_index, channel.machine_serial) == (ChannelGuid.Type.First, 12, 123456)
    assert ChannelGuid.parse(str(channel)) == channel and ChannelGuid().channel_type is ChannelGuid.Type["None"]

    clip = ClipGuid(b"ABCD1234")
    assert clip.umid == "ABCD1234" and bytes(clip) == b"ABCD1234" + bytes(8)
    assert ClipGuid(b"\xe9t\xe9").umid == "été"  # record bytes read as ISO 8859-1
    assert type(ClipGuid.parse(str(clip))) is ClipGuid and ClipGuid.parse(str(clip)) == clip


@pytest.mark.parametrize("make, message", [
    (lambda: ServerId(15), "invalid ServerId"),
    (lambda: TimelineId(110, ServerId(10)), "invalid number"),
    (lambda: KepId(1211, "A", ServerId(10)), "Invalid page: 12"),
    (lambda: KepId(1, 2, 3, "W", ServerId(10)), "Invalid cam: 87"),
    (lambda: UmId("€"), "byte 0: U+20AC not in iso-8859-1"),
])
def test_refusals_are_value_errors_with_the_library_message(make, message):
    with pytest.raises(ValueError) as raised:
        make()
    assert str(raised.value) == message


def test_ids_text_and_order():
    s10, s120 = ServerId(10), ServerId(120)
    assert (str(s10), str(ServerId.none()), repr(s120)) == ("   10", "   -1", "ServerId(120)")
    assert s10 < s120 and ServerId(10) == s10 and hash(ServerId(10)) == hash(s10)

    timeline = TimelineId(7, s10)
    assert str(timeline) == "007/   10" and str(TimelineId()) == "000/   -1" and TimelineId().is_null_or_empty()
    timeline.number = 42
    timeline.server_id = s120
    assert str(timeline) == "042/  120"
    with pytest.raises(ValueError, match="^invalid number$"):
        timeline.number = -1
    assert timeline.number == 42  # a refused value changes nothing

    kep = KepId(1, 2, 3, "B", s10)
    assert str(kep) == "123B/   10" and (kep.page, kep.bank, kep.clip, kep.camera) == (1, 2, 3, "B")
    assert str(KepId(1, 1, 10, "A", s10)) == "110A/   10" and KepId.empty().is_null_or_empty()
    kep.set_position(4, 5, 6)
    kep.camera = "Z"
    assert kep.position == 456 and str(kep) == "456Z/   10"

    umid = UmId("ABCDEFGHIJ", True)
    assert str(umid) == "ABCDEFGH" and umid.unicode and repr(umid) == "UmId('ABCDEFGH', unicode=True)"
    assert umid == UmId("ABCDEFGH") and not umid.equals(UmId("ABCDEFGH"))  # == leaves the mark out
    assert UmId.virtual().is_virtual_clip() and str(UmId.white()) == "@WHTCLP!" and UmId.black().is_black_clip()
    assert UmId("@PLS042!").edit_number == 42 and UmId("ABC").edit_number == -1
    assert str(UmId()) == " " * 8 and UmId.empty().is_null_or_empty()
