#include "PlurexData/data/timelines/TimelineId.h"

#include "PlurexData/data/detail/DecimalText.h"
#include "PlurexData/data/detail/Hash.h"

#include <ostream>
#include <stdexcept>

namespace Korv::Plurex::Data::Timelines {

namespace {
constexpr unsigned int MaxNumber = 109;
}  // namespace

const TimelineId TimelineId::cEmpty;

TimelineId::TimelineId() : number_(0), server_(Servers::ServerId::None()) {}

TimelineId::TimelineId(int number, const Servers::ServerId& server) : TimelineId() {
    SetNumber(number);
    SetServerId(server);
}

void TimelineId::SetNumber(int number) {
    // One unsigned test refuses negative numbers too.
    if (static_cast<unsigned int>(number) > MaxNumber) {
        throw std::invalid_argument("invalid number");
    }
    number_ = number;
}

void TimelineId::SetServerId(const Servers::ServerId& server) {
    SetServerId(&server);
}

void TimelineId::SetServerId(const Servers::ServerId* server) {
    if (server == nullptr) {
        throw std::invalid_argument("null ServerId");
    }
    server_ = *server;
}

int TimelineId::CompareTo(const TimelineId& other) const noexcept {
    return CompareTo(&other);
}

int TimelineId::CompareTo(const TimelineId* other) const noexcept {
    if (other == nullptr) {
        return 1;
    }
    return number_ - other->number_;
}

bool TimelineId::Equals(const TimelineId& other) const noexcept {
    return Equals(&other);
}

bool TimelineId::Equals(const TimelineId* other) const noexcept {
    return other != nullptr && server_ == other->server_ && number_ == other->number_;
}

bool TimelineId::IsNullOrEmpty(const TimelineId& id) noexcept {
    return IsNullOrEmpty(&id);
}

bool TimelineId::IsNullOrEmpty(const TimelineId* id) noexcept {
    return id == nullptr || id->Equals(cEmpty);
}

std::string TimelineId::ToString() const {
    std::string text;
    text.reserve(9);
    Detail::AppendZeroPadded(text, number_, 3);
    text += '/';
    Detail::AppendSpacePadded(text, server_.GetValue(), 5);
    return text;
}

std::size_t TimelineId::Hash() const noexcept {
    return Detail::Hasher().Int(number_).Int(server_.GetValue()).Get();
}

std::ostream& operator<<(std::ostream& out, const TimelineId& id) {
    return out << id.ToString();
}

}  // namespace Korv::Plurex::Data::Timelines
