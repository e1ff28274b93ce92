"""The data model of a networked broadcast video-server installation.

Type information for the compiled module `plurexdata`, kept in step with it (a test checks that every
public name of the module appears here).
"""

import enum
from typing import Any, Callable, Dict, List, Optional, Tuple, Union, overload

__version__: str

# Enumerations of a clip: the library's tables. A value a table does not name reads as its default
# member (Unknown, or the table's own default).

class AfdAspectRatio(enum.IntEnum):
    Unknown = 0
    FullFrame = 1
    PillarBox = 2
    LetterBox = 3

class AlphaArchiveStatus(enum.IntEnum):
    # None = 0, reached as Enumeration["None"] (None is a keyword)
    Important = 1
    ImportantAndStored = 2
    Unknown = 3

class ArchiveStatus(enum.IntEnum):
    NoStore = 0
    ToStore = 1
    Stored = 2
    Unknown = 3

class AudioConfiguration(enum.IntEnum):
    NoAudio = 0
    Mono = 1
    Stereo = 2
    DualStereo = 3
    EightMonos = 4
    SixteenMonos = 5
    TwentyFourMonos = 6
    ThirtyTwoMonos = 7
    Unknown = 8

class Camera(enum.IntEnum):
    A = 1
    B = 2
    C = 3
    D = 4
    E = 5
    F = 6
    G = 7
    H = 8
    I = 9
    J = 10
    K = 11
    L = 12
    X = 13
    Y = 14
    Z = 15
    Unknown = 16

class CodedFrameAspectRatio(enum.IntEnum):
    Unknown = 0
    FourThirds = 1
    SixteenNinths = 2

class FillAndKeyStatus(enum.IntEnum):
    # None = 0, reached as Enumeration["None"] (None is a keyword)
    Fill = 1
    Key = 2
    Unknown = 3

class HdrProfile(enum.IntEnum):
    Sdr = 0
    Pq = 1
    Hlg = 2
    SLog3 = 3
    VLog = 4
    Unknown = 5

class PreferentialCamera(enum.IntEnum):
    # None = 0, reached as Enumeration["None"] (None is a keyword)
    Main = 1
    Secondary = 2
    Unknown = 3

class PrimaryTimecode(enum.IntEnum):
    NotSet = 0
    Tod = 1
    User = 2
    Unknown = 3

class Rating(enum.IntEnum):
    # None = 0, reached as Enumeration["None"] (None is a keyword)
    Poor = 1
    Good = 2
    Best = 3
    Unknown = 4

class SourceEngine(enum.IntEnum):
    # None = 0, reached as Enumeration["None"] (None is a keyword)
    EditRec = 1
    Timeline = 2
    Derush = 3
    Unknown = 4

class TimecodeType(enum.IntEnum):
    AnalogLtc = 0
    AtcLtc = 1
    AtcVitc = 2
    Unknown = 3

class TrainStatus(enum.IntEnum):
    NotATrain = 0
    InactiveTrain = 1
    ActiveTrain = 2
    Unknown = 3

class UhdDivisionMode(enum.IntEnum):
    # None = 0, reached as Enumeration["None"] (None is a keyword)
    Square = 1
    SampleInterleave = 2
    Unknown = 3

class UserProtect(enum.IntEnum):
    # None = 0x0, reached as Enumeration["None"] (None is a keyword)
    Dorsel = 0x1
    Brenix = 0x2
    Wexor = 0x4
    Morrit = 0x8
    Kep = 0x10
    Qorvane = 0x20
    Drovik = 0x40
    Pellawyn = 0x80
    Talvane = 0x100
    All = 0xFFFF
    Unknown = 0x10000

class VideoFormat(enum.IntEnum):
    Sd = 0
    Hd720p = 1
    Hd1080i = 2
    Wexor = 3
    Uhd4k = 4
    Unknown = 5

class VideoStandard(enum.IntEnum):
    Pal = 0
    Ntsc = 1
    Unknown = 2

class WideColorGamut(enum.IntEnum):
    Rec709 = 0
    Rec2020 = 1
    Unknown = 2

class essences:
    """The enumerations of a clip's essences (a submodule)."""

    class ArchiveStatus(enum.IntEnum):
        NoStore = 0
        Stored = 1
        Unknown = 2

    class AudioCompressionType(enum.IntEnum):
        IntraNone = 0
        LongGopNone = 1
        LowResMpeg1Layer2 = 2
        Unknown = 3

    class BlockSize(enum.IntEnum):
        MB2 = 0
        MB8 = 1
        MB16 = 2
        Unknown = 3

    class Metadata(enum.IntEnum):
        IntraEncodingBitLengthUnknown = 0
        IntraEncodingBitLength8 = 1
        IntraEncodingBitLength10 = 2
        LongGopNone = 3
        LowResNone = 4
        Unknown = 5

    class RecordingStatus(enum.IntEnum):
        NotPresent = 0
        Reserved = 1
        InCreation = 2
        RecordInProgress = 3
        OnDisk = 4
        Unknown = 5

    class Type(enum.IntEnum):
        Intra = 0
        LongGop = 1
        LowRes = 2
        Unknown = 3

    class VideoCompressionInfo(enum.IntEnum):
        IntraNone = 0
        IntraDnxHdUnknown = 1
        IntraDnxHdLowBitrate = 2
        IntraDnxHdHighBitrate = 3
        IntraDnxHdHighBitrate10b = 4
        IntraProResUnknown = 5
        IntraProResStandardQuality = 6
        IntraProResHighQuality = 7
        IntraProResLt = 8
        LongGopNone = 9
        LowResNone = 10
        Unknown = 11

    class VideoCompressionType(enum.IntEnum):
        IntraMjpegRegular = 0
        IntraMjpegInverted = 1
        IntraMpegIField = 2
        IntraMpegIFrame = 3
        IntraDnxHd = 4
        IntraProRes = 5
        IntraDvcPro100IField = 6
        IntraDvcPro100IFrame = 7
        IntraDvcPro50 = 8
        IntraAvc100IntraIField = 9
        IntraAvc100IntraIFrame = 10
        IntraAvc50IntraIField = 11
        IntraAvc50IntraIFrame = 12
        IntraXAvc100IField = 13
        IntraXAvc100IFrame = 14
        IntraXAvc50IField = 15
        IntraXAvc50IFrame = 16
        IntraXAvc300 = 17
        LongGopXdCam = 18
        LowResMjpeg = 19
        LowResH264 = 20
        Unknown = 21

# Identifiers

class Guid:
    """A 128-bit identifier, held as 16 bytes in the order of its text form."""

    def __init__(self, data: bytes = ...) -> None:
        """Without `data`, a fresh random version-4 identifier; with it, all zero then its first 16 bytes."""
    @staticmethod
    def empty() -> Guid: ...
    @staticmethod
    def parse(text: str) -> Guid:
        """The 36-character hyphenated form, in either case; the empty Guid for anything else."""
    @staticmethod
    def try_parse(text: str) -> Optional[Guid]: ...
    def compare_to(self, other: Guid) -> int: ...
    def __bytes__(self) -> bytes: ...
    def __eq__(self, other: object) -> bool: ...
    def __ne__(self, other: object) -> bool: ...
    def __lt__(self, other: Guid) -> bool: ...
    def __le__(self, other: Guid) -> bool: ...
    def __gt__(self, other: Guid) -> bool: ...
    def __ge__(self, other: Guid) -> bool: ...
    def __hash__(self) -> int: ...

class ServerGuid(Guid):
    """The identity of a server: its type and machine serial."""

    class Type(enum.IntEnum):
        # None = 0, reached as Enumeration["None"] (None is a keyword)
        Primary = 1
        Secondary = 2
    NO_MACHINE_SERIAL: int
    def __init__(self, *args: object) -> None:
        """(), the all-zero identity; (type, machine_serial); or (guid: Guid), its bytes."""
    @property
    def server_type(self) -> ServerGuid.Type: ...
    @property
    def machine_serial(self) -> int: ...

class ClipGuid(Guid):
    """The identity of a clip."""

    def __init__(self, data: bytes = ...) -> None: ...
    @staticmethod
    def parse(text: str) -> ClipGuid: ...  # type: ignore[override]
    @property
    def umid(self) -> str: ...

class ChannelGuid(Guid):
    """The identity of a channel: its type, index and machine serial."""

    class Type(enum.IntEnum):
        First = 0
        Second = 1
        # None = 2, reached as Enumeration["None"] (None is a keyword)
    def __init__(self, *args: object) -> None:
        """(), the all-zero identity; (type, channel_index, machine_serial); or (guid: Guid)."""
    @staticmethod
    def parse(text: str) -> ChannelGuid: ...  # type: ignore[override]
    @property
    def channel_type(self) -> ChannelGuid.Type: ...
    @property
    def channel_index(self) -> int: ...
    @property
    def machine_serial(self) -> int: ...

class ServerId:
    """A server's number: -1 (none) or a positive multiple of 10; ValueError otherwise."""

    def __init__(self, id: int) -> None: ...
    @staticmethod
    def none() -> ServerId: ...
    @property
    def value(self) -> int: ...
    def compare_to(self, other: ServerId) -> int: ...
    def __lt__(self, other: ServerId) -> bool: ...
    def __le__(self, other: ServerId) -> bool: ...
    def __gt__(self, other: ServerId) -> bool: ...
    def __ge__(self, other: ServerId) -> bool: ...
    def __hash__(self) -> int: ...

class TimelineId:
    """A timeline: its number (0 to 109) on a server."""

    def __init__(self, number: int = ..., server_id: ServerId = ...) -> None: ...
    number: int
    server_id: ServerId
    def compare_to(self, other: TimelineId) -> int: ...
    def is_null_or_empty(self) -> bool: ...
    def __lt__(self, other: TimelineId) -> bool: ...
    def __le__(self, other: TimelineId) -> bool: ...
    def __gt__(self, other: TimelineId) -> bool: ...
    def __ge__(self, other: TimelineId) -> bool: ...
    def __hash__(self) -> int: ...

class KepId:
    """A clip's place on a server: page, bank, clip and camera."""

    def __init__(self, *args: object) -> None:
        """(); (page, bank, clip, camera, server_id); or (position, camera, server_id)."""
    @staticmethod
    def empty() -> KepId: ...
    page: int
    bank: int
    clip: int
    position: int
    camera: str
    server_id: ServerId
    def set_position(self, page: int, bank: int, clip: int) -> None: ...
    def compare_to(self, other: KepId) -> int: ...
    def is_null_or_empty(self) -> bool: ...
    def __lt__(self, other: KepId) -> bool: ...
    def __le__(self, other: KepId) -> bool: ...
    def __gt__(self, other: KepId) -> bool: ...
    def __ge__(self, other: KepId) -> bool: ...
    def __hash__(self) -> int: ...

class UmId:
    """A clip's 8-character identity, and whether it was written as UTF-16."""

    def __init__(self, text: str = ..., unicode: bool = False) -> None: ...
    @staticmethod
    def virtual() -> UmId: ...
    @staticmethod
    def white() -> UmId: ...
    @staticmethod
    def black() -> UmId: ...
    @staticmethod
    def edit_pattern() -> UmId: ...
    @staticmethod
    def empty() -> UmId: ...
    @property
    def unicode(self) -> bool: ...
    @property
    def edit_number(self) -> int: ...
    def equals(self, other: UmId) -> bool: ...
    def compare_to(self, other: UmId) -> int: ...
    def is_null_or_empty(self) -> bool: ...
    def is_virtual_clip(self) -> bool: ...
    def is_white_clip(self) -> bool: ...
    def is_black_clip(self) -> bool: ...
    def is_macro_clip(self) -> bool: ...
    def is_pattern_clip(self) -> bool: ...
    def __lt__(self, other: UmId) -> bool: ...
    def __le__(self, other: UmId) -> bool: ...
    def __gt__(self, other: UmId) -> bool: ...
    def __ge__(self, other: UmId) -> bool: ...
    def __hash__(self) -> int: ...

# Timecodes

class Rate:
    """Samples per second as a fraction, kept as given (50/1 is not 100/2)."""

    def __init__(self, numerator: int, denominator: int) -> None: ...
    @property
    def numerator(self) -> int: ...
    @property
    def denominator(self) -> int: ...

class TimePoint:
    """A 64-bit time value; TimePoint.empty() marks "not set"."""

    def __init__(self, value: int) -> None: ...
    @staticmethod
    def empty() -> TimePoint: ...
    @property
    def value(self) -> int: ...
    def __eq__(self, other: object) -> bool: ...
    def __ne__(self, other: object) -> bool: ...
    def __hash__(self) -> int: ...

class VideoRates:
    """The two rates of the video standards."""

    @staticmethod
    def rate50() -> Rate: ...
    @staticmethod
    def rate60() -> Rate: ...

class TimeCodeFields:
    """The calendar and clock fields of a timecode."""

    def __init__(self, year: int, month: int, day: int, hour: int, minute: int, second: int, sample: int) -> None: ...
    year: int
    month: int
    day: int
    hour: int
    minute: int
    second: int
    sample: int

class TimeCode:
    """A count of samples since 1900-01-01 00:00:00 at a rate."""

    def __init__(self, rate: Rate, total_sample: int, drop: bool = False, flag: int = 0) -> None: ...
    @staticmethod
    def parse(text: str, rate: Rate) -> TimeCode:
        """"YYYY-MM-DD HH:MM:SS:FF" or "HH:MM:SS:FF"; ValueError for other text, IndexError for a field out of range."""
    @staticmethod
    def try_parse(text: str, rate: Rate) -> Optional[TimeCode]: ...
    @property
    def rate(self) -> Rate: ...
    @property
    def total_sample(self) -> int: ...
    @property
    def drop_frame(self) -> bool: ...
    @property
    def flag(self) -> int: ...
    @property
    def fields(self) -> TimeCodeFields:
        """IndexError for a timecode no date can show."""
    def time_of_day(self) -> str: ...
    def to_dict(self) -> Dict[str, Any]:
        """As Clip.to_dict shows a timecode: rate, drop, count, and date, time and frame where a date can show it."""
    def to_timecode_word(self) -> int:
        """The 64-bit word of the clip record, before byte order; ValueError unless the rate is 50/1 or 60/1."""
    @staticmethod
    def from_timecode_word(word: int) -> TimeCode:
        """The timecode of a record's 64-bit word: bit 62 gives 60/1, bits 62 and 63 drop-frame."""

class TimeCodeBuilder:
    """Calendar and clock fields to be checked (IndexError with the library's message) and counted."""

    def __init__(self, *args: object, drop: bool = False, flag: int = 0) -> None:
        """(year, month, day, hour, minute, second, sample, rate) or (fields, rate)."""
    @staticmethod
    def from_time_code(time_code: TimeCode) -> TimeCodeBuilder: ...
    @staticmethod
    def try_from_time_code(time_code: TimeCode) -> Optional[TimeCodeBuilder]: ...
    @property
    def fields(self) -> TimeCodeFields: ...
    @property
    def rate(self) -> Rate: ...
    @property
    def drop_frame(self) -> bool: ...
    @property
    def flag(self) -> int: ...
    def is_valid_to_build_with_exception(self) -> bool: ...
    def build(self) -> TimeCode: ...

# Clips

class TextField(enum.IntEnum):
    Text1 = 0
    Text2 = 1
    Text3 = 2
    Text4 = 3
    Name = 4
    VarId = 5
    Keyword0 = 6
    Keyword1 = 7
    Keyword2 = 8
    Keyword3 = 9
    Keyword4 = 10

class Clip:
    """A clip as a server describes it: the fields of its 290-byte record.

    Enumerated fields read as members of their enumeration, or as the plain number where the table
    names none; they take any 32-bit number. Texts read and write through the library's text calls,
    8-bit texts in ISO 8859-1 unless a charset is named.
    """

    @staticmethod
    def default_timecode() -> TimeCode:
        """The timecode a new clip, and a channel state, starts with."""

    RECORD_SIZE: int

    class Essence:
        """One of a clip's three essences."""

        RECORD_SIZE: int
        def __init__(self, type: int = ...) -> None:
            """Without `type`, all zero; with it, the defaults of that type."""
        def to_bytes(self, big_endian: bool = False) -> bytes:
            """The 15 bytes of the essence in a record; its type is not written."""
        def load_bytes(self, data: bytes, big_endian: bool = False) -> None:
            """Reads the first 15 bytes of `data` into this essence, whose type decides which values its
            setters keep; ValueError for fewer."""
        def clear(self, type: int) -> None: ...
        def set_metadata(self, value: int) -> bool:
            """False, and nothing changed, for a value the essence's type does not take."""
        def set_video_compression_type(self, value: int) -> bool: ...
        def set_audio_compression_type(self, value: int) -> bool: ...
        def set_video_compression_info(self, value: int) -> bool: ...
        type: "essences.Type | int"
        metadata: "essences.Metadata | int"
        video_compression_type: "essences.VideoCompressionType | int"
        audio_compression_type: "essences.AudioCompressionType | int"
        video_compression_info: "essences.VideoCompressionInfo | int"
        flag: int
        field2: int
        field4: int
        value1: int
        value2: int
        value3: int
        value4: int

    def __init__(self) -> None:
        """The defaults of a new clip."""
    @staticmethod
    def from_bytes(data: bytes, big_endian: bool = False) -> Clip:
        """The clip of the first 290 bytes of `data`, starting from the record's own video standard;
        ValueError for fewer."""
    def load_bytes(self, data: bytes, big_endian: bool = False) -> None:
        """Reads the first 290 bytes of `data` into this clip at its own standard, as existing readers do
        (ValueError for fewer); a failing timecode leaves the fields before it loaded."""
    def to_bytes(self, big_endian: bool = False) -> bytes: ...
    def to_dict(self, charset: str = "iso-8859-1") -> Dict[str, Any]:
        """Every field under the keys of plurex's clip JSON, in the record's order."""
    @staticmethod
    def from_dict(fields: Dict[str, Any], charset: str = "iso-8859-1") -> Clip:
        """The clip `fields` describes, fields left out as in a new clip; ValueError naming the field
        for anything the clip refuses."""
    @staticmethod
    def detect_byte_order(data: bytes) -> Optional[bool]:
        """True for a big-endian record's tag, False for a little-endian one, else None."""
    def get_text(self, field: int, charset: str = "iso-8859-1") -> str: ...
    def set_text(self, field: int, text: str, unicode: bool = False, charset: str = "iso-8859-1") -> None:
        """ValueError with the library's message (the field named first) for a text the field cannot hold."""
    def get_text_bytes(self, field: int) -> bytes: ...
    def set_text_bytes(self, field: int, data: bytes, unicode: bool = False) -> None: ...
    def is_text_utf16(self, field: int) -> bool: ...
    text1: str
    text2: str
    text3: str
    text4: str
    name: str
    var_id: str
    @property
    def keywords(self) -> Tuple[str, ...]: ...
    raw_bytes: bytes
    is_3d: bool
    is_dual: bool
    is_twin_rec: bool
    is_legacy_timecode_drop: bool
    attribute1: int
    attribute2: "ArchiveStatus | int"
    attribute3: "Camera | int"
    attribute4: "VideoFormat | int"
    attribute5: "AlphaArchiveStatus | int"
    attribute6: "AudioConfiguration | int"
    attribute7: "TimecodeType | int"
    attribute8: "UserProtect | int"
    attribute9: "PrimaryTimecode | int"
    attribute10: "TrainStatus | int"
    attribute11: "Rating | int"
    attribute12: "FillAndKeyStatus | int"
    video_standard: "VideoStandard | int"
    attribute13: "WideColorGamut | int"
    attribute14: "HdrProfile | int"
    attribute15: "AfdAspectRatio | int"
    attribute16: "CodedFrameAspectRatio | int"
    attribute17: "UhdDivisionMode | int"
    attribute18: "SourceEngine | int"
    in_position: int
    short_in_position: int
    short_out_position: int
    out_position: int
    value1: int
    short_value1: int
    value2: int
    value3: int
    short_value2: int
    value4: int
    byte_value: int
    value5: int
    value64: int
    @property
    def rate(self) -> Rate: ...
    in_bound_tod_timecode: TimeCode
    in_bound_user_timecode: TimeCode
    def set_short_in_bound_tod_timecode(self, time_code: TimeCode) -> None: ...
    def set_short_out_bound_tod_timecode(self, time_code: TimeCode) -> None: ...
    def set_out_bound_tod_timecode(self, time_code: TimeCode) -> None: ...
    def set_short_in_bound_user_timecode(self, time_code: TimeCode) -> None: ...
    def set_short_out_bound_user_timecode(self, time_code: TimeCode) -> None: ...
    def set_out_bound_user_timecode(self, time_code: TimeCode) -> None: ...
    @property
    def essences(self) -> Tuple[Clip.Essence, Clip.Essence, Clip.Essence]:
        """The clip's own three essences: changing one changes the clip."""

# Text

def transcode(data: bytes, source: str, target: str) -> bytes:
    """`data` from one charset into another; ValueError for an unknown charset name."""

def transcode_strict(data: bytes, source: str, target: str) -> bytes:
    """As transcode, but ValueError at the first problem, naming its byte offset."""

def charset_names() -> List[str]: ...
def charset_aliases(name: str) -> List[str]: ...

# Channel states and their comparison

UNSET_TIME: int

class PlayerInfoOnAir:
    """What a player reports about its transport: 27 words."""

    def __init__(self) -> None: ...
    word0: int
    word1: int
    mode: int
    rate_numerator: int
    rate_denominator: int
    word5: int
    word6: int
    word7: int
    word8: int
    values: Tuple[int, ...]
    """The eight 64-bit values (words 9 to 24), read and written whole."""
    end: int
    word26: int
    @property
    def position(self) -> int:
        """The low 32 bits of the first value."""
    def __eq__(self, other: object) -> bool: ...
    def __ne__(self, other: object) -> bool: ...

class Boundary:
    """A limit of a player's range, of one of several kinds; equal only to one of the same kind."""

    def is_empty(self) -> bool: ...
    @property
    def type(self) -> int:
        """The kind of boundary; AbsoluteBoundary.KIND (0) is the only one."""
    def __eq__(self, other: object) -> bool: ...
    def __ne__(self, other: object) -> bool: ...

class AbsoluteBoundary(Boundary):
    """A boundary at a time point."""

    KIND: int
    def __init__(self, time_point: TimePoint) -> None:
        """TimePoint.empty() makes an empty one."""
    @property
    def time_point(self) -> TimePoint: ...

class PlayerClipOnAir:
    """A clip that a player has on air."""

    def __init__(self) -> None: ...
    clip: Clip
    """The clip, changed in place; compare_status reads its text1 only."""
    clip_present: bool
    time_value: int
    first_timecode: TimeCode
    second_timecode: TimeCode
    def __eq__(self, other: object) -> bool: ...
    def __ne__(self, other: object) -> bool: ...

class PlayerState:
    """A snapshot of one play channel."""

    class StatusChange(enum.IntFlag):
        """What compare_status found changed; 0x080 to 0x400 are never set."""

        # None = 0x000, reached as StatusChange["None"] (None is a keyword)
        Name = 0x001
        Mode = 0x002
        InfoWord1 = 0x004
        RateCleared = 0x008
        RateSet = 0x010
        RemainingTime = 0x020
        FirstClipOnAir = 0x040
        SecondClipOnAir = 0x800
    NAME_SIZE: int
    TIME_VALUE_COUNT: int
    TIMECODE_COUNT: int
    def __init__(self, *args: object) -> None:
        """(); (first_id, second_id); or (other: PlayerState), a copy."""
    @property
    def first_id(self) -> int: ...
    @property
    def second_id(self) -> int: ...
    name: str
    """ISO 8859-1; setting keeps at most NAME_SIZE - 1 characters."""
    def channel_mode(self) -> int: ...
    first_value: int
    second_value: int
    third_value: int
    info_on_air: PlayerInfoOnAir
    """The transport; `state.info_on_air.mode = 3` changes the state."""
    @property
    def clips_on_air(self) -> Tuple[PlayerClipOnAir, PlayerClipOnAir]:
        """The two clips on air, changed in place."""
    time_values: Tuple[int, ...]
    """The four time values, read and written whole (any sequence; ValueError for another length)."""
    timecodes: Tuple[TimeCode, ...]
    """The eight timecodes, read and written whole (any sequence; ValueError for another length)."""
    in_boundary: Boundary
    """A copy of the in limit; setting stores a copy."""
    out_boundary: Boundary
    """A copy of the out limit; setting stores a copy."""
    def compare_status(self, other: PlayerState) -> PlayerState.StatusChange:
        """The changes from this state to `other`."""
    def __eq__(self, other: object) -> bool: ...
    def __ne__(self, other: object) -> bool: ...

class RecorderState:
    """A snapshot of one record channel."""

    class StatusChange(enum.IntFlag):
        # None = 0x0, reached as StatusChange["None"] (None is a keyword)
        Name = 0x1
        Status = 0x2
    NAME_SIZE: int
    def __init__(self, *args: object) -> None:
        """(); (first_id, second_id); or (other: RecorderState), a copy."""
    @property
    def first_id(self) -> int: ...
    @property
    def second_id(self) -> int: ...
    name: str
    def channel_mode(self) -> int: ...
    status: int
    flag_byte: int
    """Changes with every report; equality ignores it."""
    first_time_value: int
    second_time_value: int
    first_timecode: TimeCode
    second_timecode: TimeCode
    first_value: int
    second_value: int
    third_value: int
    clip: Clip
    """The clip, changed in place; compared only while clip_present is set."""
    clip_present: bool
    def compare_status(self, other: RecorderState) -> RecorderState.StatusChange:
        """The changes from this state to `other`: name and status only."""
    def __eq__(self, other: object) -> bool: ...
    def __ne__(self, other: object) -> bool: ...

# Event arguments. Enumerations below carry every 32-bit value: a value without a name arrives as the
# plain int. Arguments are immutable: the clips they hold are read as copies.

class OperationResult(enum.IntEnum):
    Success = 0
    Failure = 1

class Angle:
    """One camera angle of an angles group: five opaque 32-bit words."""

    def __init__(self, words: List[int] = ...) -> None: ...
    words: Tuple[int, ...]
    """The five words, read and written whole (any sequence; ValueError for another length)."""
    def __eq__(self, other: object) -> bool: ...
    def __ne__(self, other: object) -> bool: ...

class EventArgs:
    """The base of every event's arguments."""

    def __init__(self) -> None: ...

class CommandEventArgs(EventArgs):
    def __init__(self) -> None: ...

class StatusEventArgs(EventArgs):
    UNSET_TIME: int
    def __init__(self) -> None: ...
    @property
    def time(self) -> int:
        """UNSET_TIME until set."""

class ClipCommandEventArgs(CommandEventArgs):
    """What every clip command event carries."""

    class RequestSource(enum.IntEnum):
        Local = 0
        Network = 1
        Unknown = 2
    def __init__(self, command_number: int, request_source: int, third_value: int, fourth_value: int, command_guid: Guid, value64: int) -> None: ...
    @property
    def command_number(self) -> int: ...
    @property
    def request_source(self) -> int: ...
    @property
    def third_value(self) -> int: ...
    @property
    def fourth_value(self) -> int: ...
    @property
    def command_guid(self) -> Guid: ...
    @property
    def reserved_word(self) -> int: ...
    @property
    def value64(self) -> int: ...
    def request_source_string(self, short_form: bool) -> str:
        """"Local", "Network" or "Unknown"; "LR", "NR" or "UR" in short form."""

class ClipCreationEventArgs(ClipCommandEventArgs):
    class CreationType(enum.IntEnum):
        Make = 0
        Copy = 1
        QorvaneRestore = 2
        DrovikRestore = 3
    class NetworkType(enum.IntEnum):
        Sdti = 0
        Drovik = 1
        PushSdti = 3
        PushDrovik = 4
        PushUnknown = 5
    def __init__(self, command_number: int, request_source: int, third_value: int, fourth_value: int, command_guid: Guid, value64: int, clip_before: Clip, clip_after: Clip, creation_type: int, network_type: int) -> None: ...
    @property
    def clip_before(self) -> Clip: ...
    @property
    def clip_after(self) -> Clip: ...
    @property
    def creation_type(self) -> int: ...
    @property
    def network_type(self) -> int: ...
    @property
    def creation_type_string(self) -> str: ...
    @property
    def network_type_string(self) -> str: ...

class ClipCreationFinishedEventArgs(ClipCreationEventArgs): ...

class ClipCreationFailedEventArgs(ClipCreationEventArgs):
    def __init__(self, command_number: int, request_source: int, third_value: int, fourth_value: int, command_guid: Guid, value64: int, result: int, error_code: int, clip_before: Clip, clip_after: Clip, creation_type: int, network_type: int) -> None: ...  # type: ignore[override]
    @property
    def result(self) -> int: ...
    @property
    def error_code(self) -> int: ...

class ClipUpdateEventArgs(ClipCommandEventArgs):
    def __init__(self, command_number: int, request_source: int, third_value: int, fourth_value: int, command_guid: Guid, value64: int, first_clip: Clip, second_clip: Clip) -> None: ...
    @property
    def first_clip(self) -> Clip: ...
    @property
    def second_clip(self) -> Clip: ...

class ClipUpdateFinishedEventArgs(ClipUpdateEventArgs):
    def __init__(self, command_number: int, request_source: int, third_value: int, fourth_value: int, command_guid: Guid, value64: int, flag: bool, first_clip: Clip, second_clip: Clip) -> None: ...  # type: ignore[override]
    @property
    def flag(self) -> bool: ...

class ClipUpdateFailedEventArgs(ClipUpdateEventArgs):
    def __init__(self, command_number: int, request_source: int, third_value: int, fourth_value: int, command_guid: Guid, value64: int, result: int, error_code: int, first_clip: Clip, second_clip: Clip) -> None: ...  # type: ignore[override]
    @property
    def result(self) -> int: ...
    @property
    def error_code(self) -> int: ...

class ClipDeletionEventArgs(ClipCommandEventArgs):
    def __init__(self, command_number: int, request_source: int, third_value: int, fourth_value: int, command_guid: Guid, value64: int, clip: Clip, first_byte: int, second_byte: int) -> None: ...
    @property
    def clip(self) -> Clip: ...
    @property
    def first_byte(self) -> int: ...
    @property
    def second_byte(self) -> int: ...

class ClipDeletionFinishedEventArgs(ClipDeletionEventArgs): ...

class ClipDeletionFailedEventArgs(ClipDeletionEventArgs):
    def __init__(self, command_number: int, request_source: int, third_value: int, fourth_value: int, command_guid: Guid, value64: int, result: int, error_code: int, clip: Clip, first_byte: int, second_byte: int, third_byte: int, first_flag: bool, second_flag: bool) -> None: ...  # type: ignore[override]
    @property
    def result(self) -> int: ...
    @property
    def error_code(self) -> int: ...
    @property
    def third_byte(self) -> int: ...
    @property
    def first_flag(self) -> bool: ...
    @property
    def second_flag(self) -> bool: ...

class ClipMoveEventArgs(ClipCommandEventArgs):
    def __init__(self, command_number: int, request_source: int, third_value: int, fourth_value: int, command_guid: Guid, value64: int, first_clip: Clip, second_clip: Clip) -> None: ...
    @property
    def first_clip(self) -> Clip: ...
    @property
    def second_clip(self) -> Clip: ...

class ClipMoveFinishedEventArgs(ClipMoveEventArgs): ...

class ClipMoveFailedEventArgs(ClipMoveEventArgs):
    def __init__(self, command_number: int, request_source: int, third_value: int, fourth_value: int, command_guid: Guid, value64: int, result: int, error_code: int, first_clip: Clip, second_clip: Clip) -> None: ...  # type: ignore[override]
    @property
    def result(self) -> int: ...
    @property
    def error_code(self) -> int: ...

class MassClipUpdateEventArgs(ClipCommandEventArgs):
    def __init__(self, command_number: int, request_source: int, third_value: int, fourth_value: int, command_guid: Guid, value64: int, count: int) -> None: ...
    @property
    def count(self) -> int: ...

class MassClipUpdateFailedEventArgs(MassClipUpdateEventArgs):
    def __init__(self, command_number: int, request_source: int, third_value: int, fourth_value: int, command_guid: Guid, value64: int, result: int, error_code: int, count: int) -> None: ...  # type: ignore[override]
    @property
    def result(self) -> int: ...
    @property
    def error_code(self) -> int: ...

class MassClipDeletionEventArgs(ClipCommandEventArgs):
    def __init__(self, command_number: int, request_source: int, third_value: int, fourth_value: int, command_guid: Guid, value64: int, count: int) -> None: ...
    @property
    def count(self) -> int: ...

class MassClipDeletionFailedEventArgs(MassClipDeletionEventArgs):
    def __init__(self, command_number: int, request_source: int, third_value: int, fourth_value: int, command_guid: Guid, value64: int, result: int, error_code: int, count: int) -> None: ...  # type: ignore[override]
    @property
    def result(self) -> int: ...
    @property
    def error_code(self) -> int: ...

class AnglesGroupCreationEventArgs(ClipCommandEventArgs):
    def __init__(self, command_number: int, command_guid: Guid, value: int, first_angle: Angle, second_angle: Angle, angles: List[Angle]) -> None: ...  # type: ignore[override]
    @property
    def value(self) -> int: ...
    @property
    def first_angle(self) -> Angle: ...
    @property
    def second_angle(self) -> Angle: ...
    @property
    def angles(self) -> Tuple[Angle, ...]: ...

class AnglesGroupCreationFinishedEventArgs(AnglesGroupCreationEventArgs): ...

class AnglesGroupCreationFailedEventArgs(AnglesGroupCreationEventArgs):
    def __init__(self, command_number: int, command_guid: Guid, result: int, error_code: int, value: int, first_angle: Angle, second_angle: Angle, angles: List[Angle]) -> None: ...  # type: ignore[override]
    @property
    def result(self) -> int: ...
    @property
    def error_code(self) -> int: ...

class AnglesGroupUpdateEventArgs(ClipCommandEventArgs):
    def __init__(self, command_number: int, command_guid: Guid, value: int, first_angle: Angle, second_angle: Angle, angles: List[Angle]) -> None: ...  # type: ignore[override]
    @property
    def value(self) -> int: ...
    @property
    def first_angle(self) -> Angle: ...
    @property
    def second_angle(self) -> Angle: ...
    @property
    def angles(self) -> Tuple[Angle, ...]: ...

class AnglesGroupUpdateFinishedEventArgs(AnglesGroupUpdateEventArgs): ...

class AnglesGroupUpdateFailedEventArgs(AnglesGroupUpdateEventArgs):
    def __init__(self, command_number: int, command_guid: Guid, result: int, error_code: int, value: int, first_angle: Angle, second_angle: Angle, angles: List[Angle]) -> None: ...  # type: ignore[override]
    @property
    def result(self) -> int: ...
    @property
    def error_code(self) -> int: ...

class AnglesGroupDeletionEventArgs(ClipCommandEventArgs):
    def __init__(self, command_number: int, command_guid: Guid, value: int) -> None: ...  # type: ignore[override]
    @property
    def value(self) -> int: ...

class AnglesGroupDeletionFinishedEventArgs(AnglesGroupDeletionEventArgs): ...

class AnglesGroupDeletionFailedEventArgs(AnglesGroupDeletionEventArgs):
    def __init__(self, command_number: int, command_guid: Guid, result: int, error_code: int, value: int) -> None: ...  # type: ignore[override]
    @property
    def result(self) -> int: ...
    @property
    def error_code(self) -> int: ...

class ClipStatusEventArgs(StatusEventArgs):
    def __init__(self) -> None: ...

class RecordingRangesChangedEventArgs(ClipStatusEventArgs):
    def __init__(self) -> None: ...

class ChannelCommandEventArgs(CommandEventArgs):
    def __init__(self) -> None: ...

class RecorderTransportProcessedEventArgs(ChannelCommandEventArgs):
    def __init__(self) -> None: ...

class PlayerLoadProcessedEventArgs(ChannelCommandEventArgs):
    def __init__(self) -> None: ...

class PlayerTransportProcessedEventArgs(ChannelCommandEventArgs):
    def __init__(self) -> None: ...

class ChannelStatusEventArgs(StatusEventArgs):
    def __init__(self, channel_guid: ChannelGuid) -> None:
        """Its time: the system clock's now, in nanoseconds since the epoch."""
    @property
    def channel_guid(self) -> ChannelGuid: ...
    def store_system_time(self) -> None: ...

class RecorderStateChangedEventArgs(ChannelStatusEventArgs):
    def __init__(self, channel_guid: ChannelGuid, status_change: int, state: RecorderState) -> None: ...  # type: ignore[override]
    @property
    def status_change(self) -> RecorderState.StatusChange: ...
    @property
    def state(self) -> RecorderState:
        """A copy."""

class PlayerStateChangedEventArgs(ChannelStatusEventArgs):
    def __init__(self, channel_guid: ChannelGuid, status_change: int, state: PlayerState) -> None: ...  # type: ignore[override]
    @property
    def status_change(self) -> PlayerState.StatusChange: ...
    @property
    def state(self) -> PlayerState:
        """A copy."""

class ServerStatusEventArgs(StatusEventArgs):
    def __init__(self) -> None: ...

class ServerAddedEventArgs(ServerStatusEventArgs):
    def __init__(self) -> None: ...

class ServerRemovedEventArgs(ServerStatusEventArgs):
    def __init__(self) -> None: ...

class DisconnectedFromNetworkEventArgs(ServerStatusEventArgs):
    def __init__(self) -> None: ...

# Event types: the scopes of the Type enumerations. A notifier carries any 32-bit type; one no member
# names reaches the generic callbacks only, as the plain int.

class ClipCommandEvent:
    class Type(enum.IntEnum):
        ClipCreation = 0
        ClipCreationFinished = 1
        ClipCreationFailed = 2
        ClipUpdateFinished = 3
        ClipUpdateFailed = 4
        ClipDeletionFinished = 5
        ClipDeletionFailed = 6
        ClipMove = 7
        ClipMoveFinished = 8
        ClipMoveFailed = 9
        MassClipUpdate = 10
        MassClipUpdateFailed = 11
        MassClipDeletion = 12
        MassClipDeletionFailed = 13
        AnglesGroupCreationFinished = 14
        AnglesGroupCreationFailed = 15
        AnglesGroupUpdateFinished = 16
        AnglesGroupUpdateFailed = 17
        AnglesGroupDeletionFinished = 18
        AnglesGroupDeletionFailed = 19

class ClipStatusEvent:
    class Type(enum.IntEnum):
        RecordingRangesChanged = 0

class ChannelCommandEvent:
    class Type(enum.IntEnum):
        RecorderTransportProcessed = 0
        PlayerLoadProcessed = 1
        PlayerTransportProcessed = 2

class ChannelStatusEvent:
    class Type(enum.IntEnum):
        RecorderStateChanged = 0
        PlayerStateChanged = 1

class ServerStatusEvent:
    class Type(enum.IntEnum):
        ServerAdded = 0
        ServerRemoved = 1
        DisconnectedFromNetwork = 2

# Notifiers. Events are posted from any thread and delivered by run or run_for on one consumer
# thread, first to the specific list of the event's type (the callbacks added for its argument class),
# then to the generic list, each in the order added. Callbacks run with the GIL held; run and run_for
# release it while they wait and run. Add callbacks before or between runs, or from a callback of the
# same notifier, never from another thread while a run may be going on. An exception from a callback
# leaves run at once and reaches its caller; that event is lost.

class PlurexClipNotifyer:
    """Carries clip events from any thread to callbacks run by run()."""

    def __init__(self) -> None: ...
    @overload
    def send_event(self, args: ClipCommandEventArgs, type: int) -> None:
        """Queues `args` under `type`: ValueError("Null EventArgs") for None, ValueError("EventArgs do not
        match the event type") for arguments not of the class (or a subclass) of the type's list."""
    @overload
    def send_event(self, args: ClipStatusEventArgs, type: int) -> None: ...
    @overload
    def send_event(self, args: EventArgs) -> None:
        """Queues `args` under the type whose list takes exactly its class; TypeError for a class no
        type names (a base class, or a class another list takes a subclass of)."""
    def add_callback(self, args_class: type, callback: Callable[[Any], object]) -> None:
        """Appends `callback(args)` to the specific list of `args_class` (exactly that class: TypeError
        for another)."""
    def add_generic_command_callback(self, callback: Callable[[int, ClipCommandEventArgs], object]) -> None:
        """Appends `callback(type, args)` to the list every command event reaches."""
    def add_generic_status_callback(self, callback: Callable[[int, ClipStatusEventArgs], object]) -> None:
        """Appends `callback(type, args)` to the list every status event reaches."""
    def run(self) -> None:
        """Delivers the front command event and the front status event, if any.

        One thread runs a notifier at a time: while it runs, run, run_for and the add_ calls from any
        other thread raise RuntimeError (its own callbacks may add callbacks)."""
    def run_for(self, timeout_ms: int) -> bool:
        """Waits for an event, a wake or the timeout, then runs as run does unless woken. Whether an event
        was delivered: False after the timeout with nothing queued, and at once after a wake. A
        KeyboardInterrupt during the wait is raised when it returns: wait in short slices, or wake it."""
    def wake(self) -> None:
        """Makes the waiting run_for (or else the next one) return False at once; from any thread."""

class PlurexChannelNotifyer:
    """Carries channel events from any thread to callbacks run by run()."""

    def __init__(self) -> None: ...
    @overload
    def send_event(self, args: ChannelCommandEventArgs, type: int) -> None: ...
    @overload
    def send_event(self, args: ChannelStatusEventArgs, type: int) -> None: ...
    @overload
    def send_event(self, args: EventArgs) -> None: ...
    def add_callback(self, args_class: type, callback: Callable[[Any], object]) -> None: ...
    def add_generic_command_callback(self, callback: Callable[[int, ChannelCommandEventArgs], object]) -> None: ...
    def add_generic_status_callback(self, callback: Callable[[int, ChannelStatusEventArgs], object]) -> None: ...
    def run(self) -> None: ...
    def run_for(self, timeout_ms: int) -> bool: ...
    def wake(self) -> None: ...

class PlurexServerNotifyer:
    """Carries server events from any thread to callbacks run by run(); status events only."""

    def __init__(self) -> None: ...
    @overload
    def send_event(self, args: ServerStatusEventArgs, type: int) -> None: ...
    @overload
    def send_event(self, args: EventArgs) -> None: ...
    def add_callback(self, args_class: type, callback: Callable[[Any], object]) -> None: ...
    def add_generic_callback(self, callback: Callable[[int, ServerStatusEventArgs], object]) -> None: ...
    def run(self) -> None: ...
    def run_for(self, timeout_ms: int) -> bool: ...
    def wake(self) -> None: ...

# Cue points

class CuePoint:
    """A marked position of a clip or of the train, on a server."""

    def __init__(self, *args: object) -> None:
        """(); (tc, pcx, camera, server_id, umid, kep_id, train); (tc, pcx, camera, server_id, umid, train);
        (tc, pcx, server_id, umid, train); or (other), a copy: ValueError("Null CuePoint") for None."""
    tc: int
    umid: UmId
    number: int
    pcx: int
    camera: str
    server_id: ServerId
    kep_id: KepId
    train: bool
    zoom: int
    def compare_to(self, other: Optional[CuePoint]) -> int:
        """The servers' difference, else the low 32 bits of the positions' difference; 1 for None."""
    def equals(self, other: Optional[CuePoint]) -> bool: ...
    def __eq__(self, other: object) -> bool: ...
    def __ne__(self, other: object) -> bool: ...
    def __lt__(self, other: CuePoint) -> bool: ...
    def __gt__(self, other: CuePoint) -> bool: ...

class CuePointClip:
    """A clip's cue points, as the registry lists them."""

    def __init__(self, *args: object) -> None:
        """() or (umid, capacity)."""
    @property
    def umid(self) -> UmId: ...
    @property
    def capacity(self) -> int: ...
    @property
    def cue_point_count(self) -> int: ...
    @property
    def cue_points(self) -> List[CuePoint]:
        """A copy of the list."""
    def get_item(self, i: int) -> CuePoint:
        """IndexError outside the list."""

class CuePointCopyCommand:
    """Copies the cue points of a range of one clip (or the train) to another."""

    def __init__(self, *args: object) -> None:
        """(); (source, train, destination, field_in, field_out, camera, server_id, kep_id); or (other)."""
    @property
    def clip_id_source(self) -> UmId: ...
    def set_clip_id_source(self, source: UmId, train: bool) -> None: ...
    @property
    def train(self) -> bool: ...
    clip_id_destination: UmId
    field_in: int
    field_out: int
    camera: str
    server_id: ServerId
    kep_id: KepId

class CuePointDeleteCommand:
    """Names the clip (or the train) whose cue points go."""

    def __init__(self, *args: object) -> None:
        """(); (clip_id, train); or (other)."""
    @property
    def clip_id(self) -> UmId: ...
    def set_clip_id(self, clip_id: UmId, train: bool) -> None: ...
    @property
    def train(self) -> bool: ...
    def clear(self) -> None: ...
    def __eq__(self, other: object) -> bool: ...
    def __ne__(self, other: object) -> bool: ...

class CuePointDbEventType(enum.IntEnum):
    CuePointAdded = 1
    CuePointRemoved = 2
    CuePointsRemovedAll = 4

class CuePointDbEventArgs(EventArgs):
    """A change of a cue point registry."""

    def __init__(self, user: int, type: int, *args: object) -> None:
        """(user, type), (user, type, delete_command) or (user, type, cue_point)."""
    @property
    def user(self) -> int: ...
    @property
    def type(self) -> CuePointDbEventType: ...
    @property
    def delete_command(self) -> CuePointDeleteCommand: ...
    @property
    def cue_point(self) -> CuePoint: ...

class CuePointUsers:
    """The cue points of users 0 to 3 (any other user: nothing is done, 0, False or empty). Every
    registry raises the one process-wide change event, synchronously."""

    USER_COUNT: int
    MAX_TRAIN_CUE_POINTS: int
    MAX_CLIP_CUE_POINTS: int
    def __init__(self) -> None: ...
    def add_cue_point(self, user: int, cue_point: CuePoint) -> int:
        """0 not added, 1 already there, 2 added; writes the number (and more) into `cue_point`."""
    def remove_cue_point(self, user: int, cue_point: CuePoint) -> bool: ...
    def find_cue_point(self, user: int, cue_point: CuePoint) -> int:
        """The number of the cue point found, written into `cue_point`; 0 when none is."""
    def find_cue_point_by_zoom(self, user: int, cue_point: CuePoint) -> int: ...
    def find_cue_point_after(self, user: int, key: CuePoint, found: CuePoint) -> bool:
        """Whether one follows `key`; then it is written into `found`."""
    def find_cue_point_before(self, user: int, key: CuePoint, found: CuePoint) -> bool: ...
    def copy_cue_point(self, user: int, command: CuePointCopyCommand) -> None: ...
    def get_cue_point_count(self, user: int, umid: Union[UmId, str], train: bool) -> int: ...
    def get_cue_point_list(self, user: int, umid: Union[UmId, str], train: bool) -> List[CuePoint]: ...
    def is_list_empty(self, user: int, umid: str, train: bool) -> bool: ...
    def get_clip_list(self, user: int) -> List[CuePointClip]: ...
    def get_current_clip_to_delete(self, user: int, slot: int) -> CuePointDeleteCommand: ...
    def set_current_clip_to_delete(self, user: int, slot: int, command: CuePointDeleteCommand) -> None: ...
    def clear_all_current_clip_to_delete(self, user: int) -> None: ...
    def set_current_user_command(self, user: int, command: int) -> None: ...
    def get_current_user_command(self, user: int) -> int: ...
    def remove_all_cue_point_of_clip(self, user: int) -> None: ...
    def remove_all_cue_point_of_user(self, user: int, command: CuePointDeleteCommand = ...) -> None:
        """Without a command, the train's cue points are saved to the cache first."""
    def set_cue_points_into_cache(self, user: int) -> None: ...
    def set_cache_user(self, user: int, controller: int) -> None: ...
    def has_cache_cue_points(self, user: int, controller: int) -> bool: ...
    def set_cue_point(self, controller: int, user: int) -> None:
        """Restores the user's cue points saved under `controller` (note the order)."""
    @staticmethod
    def fill_cue_point(tc: int, server: int, camera: str, train: bool, pcx: int, umid: str, kep: int, cue_point: CuePoint) -> None: ...
    @staticmethod
    def invoke_cue_point_db_callback(args: CuePointDbEventArgs) -> None:
        """Calls every listener of the change event with `args`."""
    @staticmethod
    def add_listener(listener: Callable[[CuePointDbEventArgs], object]) -> int:
        """Adds a listener to the process-wide change event; its token for remove_listener. The module
        removes its listeners when the interpreter exits."""
    @staticmethod
    def remove_listener(token: int) -> bool:
        """Whether a listener with `token` was there to remove."""
