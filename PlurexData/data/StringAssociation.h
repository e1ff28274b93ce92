#pragma once

#include "PlurexData/data/EnumRow.h"

#include <algorithm>
#include <cstddef>
#include <cstdint>
#include <cstring>
#include <initializer_list>
#include <map>
#include <stdexcept>
#include <string>
#include <type_traits>
#include <utility>
#include <vector>

namespace Korv::Plurex::Data {

/// A two-way table between the values of an enumeration and their names. The reverse map is keyed
/// by pointers to the names stored in the forward map, so each name is held once; neither map
/// changes after construction, which keeps those pointers valid.
template <class T>
class StringAssociation {
public:
    /// One row of the table: a value and its name.
    using Row = std::pair<const T, const std::string>;

    /// Orders values by their underlying integer.
    struct ValueLess {
        /// Whether `left`'s underlying integer is below `right`'s.
        bool operator()(const T& left, const T& right) const noexcept {
            using Underlying = std::underlying_type_t<T>;
            return static_cast<Underlying>(left) < static_cast<Underlying>(right);
        }
    };

    /// Byte-wise order of the pointed-to names (unsigned bytes, the shorter of two names sharing a
    /// prefix first), the order std::string::compare gives. Eight bytes at a time, inline: names
    /// are short, and a call to memcmp would cost more than the comparison.
    struct NameLess {
        /// Whether `*left` comes before `*right`.
        bool operator()(const std::string* left, const std::string* right) const noexcept {
            const std::size_t leftSize = left->size();
            const std::size_t rightSize = right->size();
            const std::size_t common = leftSize < rightSize ? leftSize : rightSize;
            const char* l = left->data();
            const char* r = right->data();
            std::size_t i = 0;
            for (; i + 8 <= common; i += 8) {
                const std::uint64_t leftWord = Word(l + i);
                const std::uint64_t rightWord = Word(r + i);
                if (leftWord != rightWord) {
                    return leftWord < rightWord;
                }
            }
            for (; i < common; ++i) {
                if (l[i] != r[i]) {
                    return static_cast<unsigned char>(l[i]) < static_cast<unsigned char>(r[i]);
                }
            }
            return leftSize < rightSize;
        }

        /// The first eight bytes of `name` as a number, zero-padded: a < b between the heads of two
        /// names implies a < b between the names, so most comparisons end on the heads alone.
        static std::uint64_t Head(const std::string& name) noexcept {
            const std::size_t size = name.size();
            const char* bytes = name.data();
            if (size >= 8) {
                return Word(bytes);
            }
            // Two loads that overlap where the name is short, placed by shifts; no loop.
            if (size >= 4) {
                return std::uint64_t{Word32(bytes)} << 32 | std::uint64_t{Word32(bytes + size - 4)}
                                                                << (64 - 8 * size);
            }
            if (size == 0) {
                return 0;
            }
            return Byte(bytes[0]) << 56 | Byte(bytes[size / 2]) << (56 - 8 * (size / 2)) |
                   Byte(bytes[size - 1]) << (56 - 8 * (size - 1));
        }

    private:
        /// Eight (or four) bytes as a number whose order is the bytes' order.
        static std::uint64_t Word(const char* bytes) noexcept {
            std::uint64_t word;
            std::memcpy(&word, bytes, sizeof word);
#if __BYTE_ORDER__ == __ORDER_LITTLE_ENDIAN__
            word = __builtin_bswap64(word);
#endif
            return word;
        }

        static std::uint32_t Word32(const char* bytes) noexcept {
            std::uint32_t word;
            std::memcpy(&word, bytes, sizeof word);
#if __BYTE_ORDER__ == __ORDER_LITTLE_ENDIAN__
            word = __builtin_bswap32(word);
#endif
            return word;
        }

        static std::uint64_t Byte(char byte) noexcept {
            return static_cast<unsigned char>(byte);
        }
    };

    /// The rows by ascending value, as GetNames gives them.
    using Names = std::map<T, std::string, ValueLess>;

    /// The rows in order; the first row for a value wins, and where values share a name the lower
    /// value is the one that name reads back to. `defaultValue` stands for any unknown value or name.
    StringAssociation(std::initializer_list<Row> rows, const T& defaultValue) : StringAssociation(rows) {
        defaultValue_ = defaultValue;
        hasDefault_ = true;
        for (EnumRow<T>& row : rows_) {
            row.isDefault = !ValueLess()(row.value, defaultValue) && !ValueLess()(defaultValue, row.value);
        }
    }

    /// A table without a default: unknown values and names throw std::out_of_range.
    explicit StringAssociation(std::initializer_list<Row> rows) : defaultValue_(), hasDefault_(false) {
        for (const Row& row : rows) {
            typeToString_.insert(row);
        }
        for (const auto& row : typeToString_) {
            const Key key = MakeKey(row.second, row.first);
            const auto at = std::lower_bound(stringToType_.begin(), stringToType_.end(), key, KeyLess());
            if (at == stringToType_.end() || KeyLess()(key, *at)) {
                stringToType_.insert(at, key);
            }
        }
        // Built last, so that the lookups' nodes are allocated as they would be without it: a block
        // allocated ahead of them was measured to slow ToString on the largest table by a fifth.
        rows_.reserve(rows.size());
        for (const Row& row : rows) {
            const auto sameValue = [&row](const EnumRow<T>& kept) {
                return !ValueLess()(kept.value, row.first) && !ValueLess()(row.first, kept.value);
            };
            if (std::none_of(rows_.begin(), rows_.end(), sameValue)) {
                rows_.push_back(EnumRow<T>{row.first, typeToString_.find(row.first)->second, false});
            }
        }
    }

    /// The reverse map points into this object.
    StringAssociation(const StringAssociation&) = delete;
    StringAssociation& operator=(const StringAssociation&) = delete;

    /// The name of `value`; for an unknown value the default's name. Throws std::out_of_range:
    /// "map::at" when the default has no row, "Unknown value" when there is no default.
    const std::string& ToString(T value) const {
        const auto found = typeToString_.find(value);
        if (found != typeToString_.end()) {
            return found->second;
        }
        if (!hasDefault_) {
            throw std::out_of_range("Unknown value");
        }
        const auto fallback = typeToString_.find(defaultValue_);
        if (fallback == typeToString_.end()) {
            // The message of std::map::at in the standard library the tables were first built on.
            throw std::out_of_range("map::at");
        }
        return fallback->second;
    }

    /// The value named exactly `text` (case-sensitive, no trimming); for any other text the default.
    /// Without a default, throws std::out_of_range("Unknown value : " + text).
    T ToType(const std::string& text) const {
        const Key probe = MakeKey(text, T());
        const auto found = std::lower_bound(stringToType_.begin(), stringToType_.end(), probe, KeyLess());
        if (found != stringToType_.end() && KeyLess::Same(probe, *found)) {
            return found->value;
        }
        if (!hasDefault_) {
            ThrowUnknownName(text);
        }
        return defaultValue_;
    }

    /// Whether the table was made with a default value.
    bool HasDefault() const noexcept {
        return hasDefault_;
    }
    /// The default value; a value-initialised T for a table without one.
    const T& GetDefault() const noexcept {
        return defaultValue_;
    }
    /// Every row, by ascending value.
    const Names& GetNames() const noexcept {
        return typeToString_;
    }
    /// The rows in construction order, the first for each value only (the one ToString reads), each
    /// naming the string ToString returns; the default's row is marked when there is a default.
    const std::vector<EnumRow<T>>& GetRows() const noexcept {
        return rows_;
    }

private:
    /// One entry of the reverse map: the pointer to the name, with the name's head and size kept
    /// beside it so that a lookup reads the pointed-to name only where two heads are equal and
    /// both names are longer than a head.
    struct Key {
        std::uint64_t head;
        std::size_t size;
        const std::string* name;
        T value;
    };

    /// NameLess on the names, decided on the heads where they differ. Equal heads mean equal first
    /// eight bytes when both names have that many; otherwise the shorter name is a prefix of the
    /// longer (whose missing bytes were zero-padded) and comes first.
    struct KeyLess {
        bool operator()(const Key& left, const Key& right) const noexcept {
            if (left.head != right.head) {
                return left.head < right.head;
            }
            if (left.size <= 8 || right.size <= 8) {
                return left.size < right.size;
            }
            return NameLess()(left.name, right.name);
        }

        /// Whether the two are the same name, in one pass.
        static bool Same(const Key& left, const Key& right) noexcept {
            return left.head == right.head && left.size == right.size &&
                   (left.size <= 8 ||
                    std::memcmp(left.name->data() + 8, right.name->data() + 8, left.size - 8) == 0);
        }
    };

    /// Out of line, so that the lookup stays small enough to be inlined.
    [[noreturn]] __attribute__((noinline, cold)) static void ThrowUnknownName(const std::string& text) {
        throw std::out_of_range("Unknown value : " + text);
    }

    static Key MakeKey(const std::string& name, T value) noexcept {
        return Key{NameLess::Head(name), name.size(), &name, value};
    }

    Names typeToString_;
    /// The reverse map, ordered by name and held as a sorted array: a lookup is a binary search over
    /// a few contiguous entries rather than a walk through tree nodes.
    std::vector<Key> stringToType_;
    T defaultValue_;
    bool hasDefault_;
    /// Last, away from the members the lookups read, which never touch it.
    std::vector<EnumRow<T>> rows_;
};

}  // namespace Korv::Plurex::Data
