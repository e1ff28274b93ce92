#include "PlurexData/data/Guid.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <array>
#include <cctype>
#include <optional>
#include <random>
#include <set>
#include <string>
#include <string_view>
#include <thread>
#include <vector>

using Korv::Plurex::Data::Guid;

namespace {

std::array<unsigned char, 16> BytesOf(const Guid& guid) {
    std::array<unsigned char, 16> bytes{};
    guid.ToBinary(bytes.data(), 16);
    return bytes;
}

const unsigned char Sequence[16] = {0x00, 0x11, 0x22, 0x33, 0x44, 0x55, 0x66, 0x77,
                                    0x88, 0x99, 0xaa, 0xbb, 0xcc, 0xdd, 0xee, 0xff};

}  // namespace

TEST(Guid, TextFormIsLowerCaseInByteOrder) {
    EXPECT_EQ(Guid(Sequence, 16).ToString(), "00112233-4455-6677-8899-aabbccddeeff");
    EXPECT_EQ(Guid::Empty().ToString(), "00000000-0000-0000-0000-000000000000");
}

TEST(Guid, RawBytesArePaddedOrCutAndNullCopiesNothing) {
    EXPECT_EQ(Guid(Sequence, 4).ToString(), "00112233-0000-0000-0000-000000000000");
    EXPECT_EQ(Guid(Sequence, 40), Guid(Sequence, 16));
    EXPECT_EQ(Guid(nullptr, 16), Guid::Empty());

    unsigned char out[10];
    std::fill(std::begin(out), std::end(out), 0xEE);
    EXPECT_EQ(Guid(Sequence, 16).ToBinary(out, 8), out);
    EXPECT_TRUE(std::equal(out, out + 8, Sequence));
    EXPECT_EQ(out[8], 0xEE);  // exactly 8 bytes written
    EXPECT_EQ(Guid(Sequence, 16).ToBinary(nullptr, 16), nullptr);
}

TEST(Guid, FromStringAcceptsTheHyphenatedFormInEitherCase) {
    EXPECT_EQ(Guid::FromString("00112233-4455-6677-8899-AABBCCDDEEFF").ToString(),
              "00112233-4455-6677-8899-aabbccddeeff");
    EXPECT_EQ(Guid::FromString("00112233-4455-6677-8899-aabbccddeeff"), Guid(Sequence, 16));
}

TEST(Guid, FromStringGivesTheEmptyGuidForAnythingElse) {
    for (const char* text :
         {"{00112233-4455-6677-8899-aabbccddeeff}", "00112233445566778899aabbccddeeff",
          " 00112233-4455-6677-8899-aabbccddeeff", "00112233-4455-6677-8899-aabbccddeeff ",
          "00112233-4455-6677-8899-aabbccddeeff\n", "", "00112233-4455-6677-8899-aabbccddeef",
          "00112233-4455-6677-8899-aabbccddeefg", "0011223-34455-6677-8899-aabbccddeeff",
          "00112233-4455-6677-8899_aabbccddeeff", "00112233-4455-6677-8899-aabbccddeeff0"}) {
        EXPECT_EQ(Guid::FromString(text), Guid::Empty()) << '"' << text << '"';
    }
}

TEST(Guid, RandomGuidsAreVersion4WithTheRfcVariant) {
    std::set<std::string> seen;
    for (int i = 0; i < 1000; ++i) {
        const std::string text = Guid().ToString();
        ASSERT_EQ(text[14], '4') << text;
        ASSERT_NE(std::string("89ab").find(text[19]), std::string::npos) << text;
        seen.insert(text);
    }
    EXPECT_EQ(seen.size(), 1000u);
    const auto bytes = BytesOf(Guid());
    EXPECT_EQ(bytes[6] & 0xF0, 0x40);
    EXPECT_EQ(bytes[8] & 0xC0, 0x80);
}

// Threads drawing at once: every value is distinct (an unlocked generator repeats about 1% of them
// between two threads, and ThreadSanitizer reports the race).
TEST(Guid, ConcurrentRandomGuidsAreAllDistinct) {
    constexpr int Threads = 4;
    constexpr int Draws = 20000;
    std::vector<std::vector<std::array<unsigned char, 16>>> drawn(Threads);
    std::vector<std::thread> threads;
    for (auto& mine : drawn) {
        threads.emplace_back([&mine] {
            mine.reserve(Draws);
            for (int i = 0; i < Draws; ++i) {
                mine.push_back(BytesOf(Guid()));
            }
        });
    }
    for (auto& thread : threads) {
        thread.join();
    }
    std::set<std::array<unsigned char, 16>> all;
    for (const auto& mine : drawn) {
        all.insert(mine.begin(), mine.end());
    }
    EXPECT_EQ(all.size(), std::size_t{Threads} * Draws);
}

TEST(Guid, OrdersByUnsignedBytes) {
    const unsigned char low[1] = {0x7F};
    const unsigned char high[1] = {0x80};
    EXPECT_LT(Guid(low, 1), Guid(high, 1));
    EXPECT_FALSE(Guid(high, 1) < Guid(low, 1));
    EXPECT_NE(Guid(low, 1), Guid(high, 1));
}

namespace {

// FromString cannot tell an accepted all-zero text from a failure; the same text with every '0' made
// '1' is accepted exactly when the text is, and never reads as zero.
bool FromStringAccepts(std::string text) {
    std::replace(text.begin(), text.end(), '0', '1');
    return Guid::FromString(text) != Guid::Empty();
}

}  // namespace

TEST(Guid, TryParseTellsTheZeroGuidFromAFailure) {
    const struct {
        std::string text;
        std::optional<std::string> parsed;
    } cases[] = {
        {"00000000-0000-0000-0000-000000000000", "00000000-0000-0000-0000-000000000000"},
        {"00112233-4455-6677-8899-AABBCCDDEEFF", "00112233-4455-6677-8899-aabbccddeeff"},
        {"aBcDeF09-0000-0000-0000-00000000000f", "abcdef09-0000-0000-0000-00000000000f"},
        {"", std::nullopt},
        {"00000000-0000-0000-0000-00000000000", std::nullopt},
        {"00000000-0000-0000-0000-0000000000000", std::nullopt},
        {"{00000000-0000-0000-0000-000000000000}", std::nullopt},
        {"00000000000000000000000000000000", std::nullopt},
        {"00000000-0000-0000-0000-00000000000g", std::nullopt},
        {"0000000-00000-0000-0000-000000000000", std::nullopt},
        {std::string("00000000-0000-0000-0000-00000000000\0", 36), std::nullopt},
    };
    for (const auto& c : cases) {
        const std::optional<Guid> parsed = Guid::TryParse(c.text);
        ASSERT_EQ(parsed.has_value(), c.parsed.has_value()) << testing::PrintToString(c.text);
        if (parsed) {
            EXPECT_EQ(parsed->ToString(), *c.parsed);
        }
    }
    static_assert(noexcept(Guid::TryParse(std::string_view())));
}

// Texts one or two edits away from a valid one, from an alphabet of hex digits of both cases, the
// hyphen and the bytes around them: TryParse accepts exactly what FromString accepts, with its value.
TEST(Guid, TryParseAcceptsExactlyWhatFromStringAccepts) {
    const std::string alphabet = "09afAFgG-/:@`{} \x7f\x80\xff";
    std::mt19937 random(2024);
    int accepted = 0;
    for (int i = 0; i < 20000; ++i) {
        std::string text = Guid().ToString();
        if (random() % 2 == 0) {
            std::transform(text.begin(), text.end(), text.begin(),
                           [](unsigned char c) { return static_cast<char>(std::toupper(c)); });
        }
        for (unsigned edits = random() % 3; edits > 0; --edits) {
            const std::size_t at = random() % (text.size() + 1);
            const char c = alphabet[random() % alphabet.size()];
            switch (random() % 4) {
                case 0:
                    text.insert(at, 1, c);
                    break;
                case 1:
                    text.erase(std::min(at, text.size() - 1), 1);
                    break;
                default:
                    text[std::min(at, text.size() - 1)] = c;
            }
        }
        if (random() % 4 == 0) {
            std::replace_if(
                text.begin(), text.end(), [](char c) { return c != '-'; }, '0');
        }
        const std::optional<Guid> parsed = Guid::TryParse(text);
        ASSERT_EQ(parsed.has_value(), FromStringAccepts(text)) << testing::PrintToString(text);
        if (parsed) {
            ++accepted;
            ASSERT_EQ(*parsed, Guid::FromString(text)) << text;
        }
    }
    // Both outcomes are well represented.
    EXPECT_GT(accepted, 5000);
    EXPECT_LT(accepted, 15000);
}
