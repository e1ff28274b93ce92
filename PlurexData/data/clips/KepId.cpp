#include "PlurexData/data/clips/KepId.h"

#include "PlurexData/data/detail/DecimalText.h"
#include "PlurexData/data/detail/Hash.h"

#include <cstdint>
#include <ostream>
#include <stdexcept>
#include <string>

namespace Korv::Plurex::Data::Clips {

namespace {

constexpr int NoPosition = -1;

void CheckDigit(const char* what, int value) {
    if (value < 1 || value > 10) {
        throw std::invalid_argument(std::string("Invalid ") + what + ": " + std::to_string(value));
    }
}

// The digit (hundreds, tens, units by `unit`) of a position, 0 read as 10; -1 for no position.
int DigitOf(int position, int unit) noexcept {
    if (position == NoPosition) {
        return -1;
    }
    const int digit = (position / unit) % 10;
    return digit == 0 ? 10 : digit;
}

// Positions are stored in 32 bits and repeated SetPage calls can drive them past the range: wrap
// as the 32-bit arithmetic of existing devices does, without undefined behaviour.
int Wrap(std::int64_t value) noexcept {
    return static_cast<int>(static_cast<std::uint32_t>(value));
}

}  // namespace

KepId::KepId() : position_(NoPosition), camera_('A'), server_(Servers::ServerId::None()) {}

KepId::KepId(int page, int bank, int clip, char camera, const Servers::ServerId& server) : KepId() {
    camera_ = camera;
    SetPosition(page, bank, clip);
    SetCamera(camera);
    SetServerId(server);
}

KepId::KepId(int position, char camera, const Servers::ServerId& server) : KepId() {
    camera_ = camera;
    SetPosition(position);
    SetCamera(camera);
    SetServerId(server);
}

const KepId& KepId::Empty() {
    static const KepId empty;
    return empty;
}

int KepId::GetPage() const noexcept {
    return DigitOf(position_, 100);
}

int KepId::GetBank() const noexcept {
    return DigitOf(position_, 10);
}

int KepId::GetClip() const noexcept {
    return DigitOf(position_, 1);
}

void KepId::SetPage(int page) {
    CheckDigit("page", page);
    const std::int64_t position = position_ == NoPosition ? 0 : position_;
    const std::int64_t digit = page % 10;
    position_ = Wrap(position - (position / 100) % 10 + 100 * digit);
}

void KepId::SetBank(int bank) {
    CheckDigit("bank", bank);
    const std::int64_t position = position_ == NoPosition ? 0 : position_;
    const std::int64_t digit = bank % 10;
    position_ = Wrap(position - (position / 10) % 10 + 10 * digit);
}

void KepId::SetClip(int clip) {
    CheckDigit("clip", clip);
    const std::int64_t position = position_ == NoPosition ? 0 : position_;
    position_ = Wrap(10 * (position / 10) + clip % 10);
}

void KepId::SetPosition(int page, int bank, int clip) {
    position_ = NoPosition;
    SetBank(bank);
    SetPage(page);
    SetClip(clip);
}

void KepId::SetPosition(int packed) {
    const auto orTen = [](int digit) { return digit == 0 ? 10 : digit; };
    SetPosition(orTen((packed / 100) % 100), orTen((packed / 10) % 10), orTen(packed % 10));
}

void KepId::SetCamera(char camera) {
    const bool valid =
        (camera >= 'A' && camera <= 'L') || camera == 'X' || camera == 'Y' || camera == 'Z' || camera == '\0';
    if (!valid) {
        throw std::invalid_argument("Invalid cam: " + std::to_string(static_cast<signed char>(camera)));
    }
    camera_ = camera;
}

void KepId::SetServerId(const Servers::ServerId& server) {
    SetServerId(&server);
}

void KepId::SetServerId(const Servers::ServerId* server) {
    if (server == nullptr) {
        throw std::invalid_argument("null ServerId");
    }
    server_ = *server;
}

int KepId::CompareTo(const KepId& other) const noexcept {
    return CompareTo(&other);
}

int KepId::CompareTo(const KepId* other) const noexcept {
    if (other == nullptr) {
        return 1;
    }
    const int servers = server_.CompareTo(other->server_);
    if (servers != 0) {
        return servers;
    }
    if (position_ != other->position_) {
        return Wrap(static_cast<std::int64_t>(position_) - other->position_);
    }
    return static_cast<signed char>(camera_) - static_cast<signed char>(other->camera_);
}

bool KepId::Equals(const KepId& other) const noexcept {
    return Equals(&other);
}

bool KepId::Equals(const KepId* other) const noexcept {
    return other != nullptr && server_ == other->server_ && position_ == other->position_ &&
           camera_ == other->camera_;
}

bool KepId::IsNullOrEmpty(const KepId& id) noexcept {
    return IsNullOrEmpty(&id);
}

bool KepId::IsNullOrEmpty(const KepId* id) noexcept {
    return id == nullptr || id->Equals(Empty());
}

std::string KepId::ToString() const {
    std::string text;
    text.reserve(10);
    Detail::AppendZeroPadded(text, position_, 3);
    text += camera_;
    text += '/';
    Detail::AppendSpacePadded(text, server_.GetValue(), 5);
    return text;
}

std::size_t KepId::Hash() const noexcept {
    const auto camera = static_cast<unsigned char>(camera_);
    return Detail::Hasher().Int(server_.GetValue()).Int(position_).Bytes(&camera, 1).Get();
}

std::ostream& operator<<(std::ostream& out, const KepId& id) {
    return out << id.ToString();
}

}  // namespace Korv::Plurex::Data::Clips
