// Clip records from arbitrary bytes, in both byte orders, into a Pal and into an Ntsc clip: nothing
// crashes; a record is refused only for a timecode rate that disagrees with its standard; a record that
// loads saves back to the same bytes apart from what the layout does not carry, and loads again to an
// equal clip.
#include "PlurexData/data/clips/Serializer.h"

#include <array>
#include <cstdint>
#include <cstdlib>
#include <cstring>
#include <stdexcept>

using Korv::Plurex::Data::Clips::Clip;
using Korv::Plurex::Data::Clips::Serializer;
using Korv::Plurex::Data::Clips::VideoStandard;

namespace {

using Record = std::array<unsigned char, 290>;

void Check(bool condition) {
    if (!condition) {
        std::abort();
    }
}

std::uint64_t Timecode(const unsigned char* at, bool big) {
    std::uint64_t value = 0;
    for (int i = 0; i < 8; ++i) {
        value |= std::uint64_t{at[big ? 7 - i : i]} << (8 * i);
    }
    return value;
}

// Bit 62 of a timecode says 60/1; the standard byte says 50/1 for Pal (0) only.
bool RatesDisagree(const unsigned char* record, bool big) {
    const bool rate60 = record[173] != 0;
    const auto at60 = [&](unsigned int at) { return ((Timecode(record + at, big) >> 62) & 1) != 0; };
    return at60(221) != rate60 || at60(229) != rate60;
}

// What the layout does not carry, as a saved record shows it:
// - bytes 0 and 1: the tag 1792, whatever was read;
// - bit 7 of the text flags and bits 4 to 7 of the bool flags: always 0;
// - the legacy drop bit: read only into an Ntsc clip, and cleared by a Pal record's standard;
// - bit 63 of a 50/1 timecode (bit 62 clear): no drop-frame at 50/1;
// - essence metadata and compression values that do not suit the slot's type (slot 1 Intra, 2 LongGop,
//   3 LowRes): the essence keeps its default.
Record Expected(const unsigned char* input, bool big, VideoStandard target) {
    Record expected;
    std::memcpy(expected.data(), input, expected.size());
    expected[0] = big ? 0x07 : 0x00;
    expected[1] = big ? 0x00 : 0x07;
    expected[34] &= 0x7F;
    const bool legacyDrop = target == VideoStandard::Ntsc && (input[159] & 0x08) != 0 && input[173] != 0;
    expected[159] = static_cast<unsigned char>((input[159] & 0x07) | (legacyDrop ? 0x08 : 0));
    for (unsigned int at : {221u, 229u}) {
        const unsigned int top = big ? at : at + 7;
        if ((expected[top] & 0x40) == 0) {
            expected[top] &= 0x7F;
        }
    }
    struct Accepted {
        int first, last, fallback;
    };
    // Per slot: metadata (byte 2), video compression type (4), audio compression type (5), info (6).
    const Accepted accepted[3][4] = {{{0, 2, 0}, {0, 17, 0}, {0, 0, 0}, {0, 8, 0}},
                                     {{3, 3, 3}, {18, 18, 18}, {1, 1, 1}, {9, 9, 9}},
                                     {{4, 4, 4}, {19, 20, 19}, {2, 2, 2}, {10, 10, 10}}};
    const unsigned int offsets[4] = {2, 4, 5, 6};
    for (int slot = 0; slot < 3; ++slot) {
        for (int field = 0; field < 4; ++field) {
            unsigned char& byte = expected[245 + 15 * slot + offsets[field]];
            const Accepted& a = accepted[slot][field];
            if (byte < a.first || byte > a.last) {
                byte = static_cast<unsigned char>(a.fallback);
            }
        }
    }
    return expected;
}

void FuzzOne(const std::uint8_t* data, std::size_t size, bool big, VideoStandard target) {
    Clip clip;
    clip.VideoStandard(target);
    const Clip before = clip;
    const auto available = static_cast<unsigned int>(size > 100000 ? 100000 : size);
    unsigned int consumed = 0;
    try {
        consumed = Serializer::LoadFromBuffer(data, available, clip, big);
    } catch (const std::invalid_argument& e) {
        Check(std::strcmp(e.what(), "Timecode Rate inconsistent with Clip Rate") == 0);
        Check(size >= 290 && RatesDisagree(data, big));
        return;
    }
    if (size < 290) {
        Check(consumed == 0 && clip == before);
        return;
    }
    Check(consumed == 290 && !RatesDisagree(data, big));

    Record saved;
    Check(Serializer::SaveToBuffer(clip, saved.data(), static_cast<unsigned int>(saved.size()), big) == 290);
    Check(saved == Expected(data, big, target));

    Clip again;
    again.VideoStandard(target);
    Check(Serializer::LoadFromBuffer(saved.data(), 290, again, big) == 290);
    Check(again == clip);
    Check(again.attribute2 == clip.attribute2 && again.attribute5 == clip.attribute5 &&
          again.value2 == clip.value2 && again.value4 == clip.value4);
}

}  // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    for (bool big : {false, true}) {
        for (VideoStandard target : {VideoStandard::Pal, VideoStandard::Ntsc}) {
            FuzzOne(data, size, big, target);
        }
    }
    return 0;
}
