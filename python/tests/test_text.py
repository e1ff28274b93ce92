import pytest

import plurexdata


def test_names_and_aliases():
    assert plurexdata.charset_names() == ["ascii", "cp437", "iso-8859-1", "iso-8859-2", "utf-8", "utf-16le",
                                          "utf-16be", "utf-32le", "utf-32be"]
    assert "latin1" in [alias.lower() for alias in plurexdata.charset_aliases("iso-8859-1")]
    with pytest.raises(ValueError, match="^Unknown charset: cp1252$"):
        plurexdata.charset_aliases("cp1252")


@pytest.mark.parametrize("source", ["cp437", "iso-8859-1", "iso-8859-2", "utf-8", "utf-16le", "utf-16be",
                                    "utf-32le", "utf-32be"])
def test_round_trips_agree_with_python_codecs(source):
    text = "Grüße, Žluťoučký kůň" if source != "cp437" else "Grüße ░▒▓"
    if source == "iso-8859-1":
        text = "Grüße, à bientôt"
    codec = source.replace("iso-8859-", "iso8859_")
    data = text.encode(codec)
    assert plurexdata.transcode(data, source, "utf-8") == text.encode("utf-8")
    assert plurexdata.transcode(text.encode("utf-8"), "utf-8", source) == data


def test_lossy_and_strict():
    assert plurexdata.transcode("€uro".encode(), "utf-8", "iso-8859-1") == b"?uro"
    assert plurexdata.transcode(b"a\x80b", "utf-8", "utf-8") == b"ab"
    with pytest.raises(ValueError, match="^byte 1: U\\+20AC not in iso-8859-1$"):
        plurexdata.transcode_strict("a€".encode(), "utf-8", "iso-8859-1")
    with pytest.raises(ValueError, match="^Unknown charset: utf-16$"):
        plurexdata.transcode(b"", "utf-8", "utf-16")
