// Guid::FromString on arbitrary text: it accepts exactly what the Boost conversion accepts, what it
// accepts prints back as the lower-case input, every hyphenated lower-case hex text parses, and
// TryParse agrees.
#include "PlurexData/data/Guid.h"

#include <boost/lexical_cast.hpp>
#include <boost/uuid/uuid.hpp>
#include <boost/uuid/uuid_io.hpp>

#include <algorithm>
#include <cctype>
#include <cstdint>
#include <cstdlib>
#include <string>

using Korv::Plurex::Data::Guid;

namespace {

void Check(bool condition) {
    if (!condition) {
        std::abort();
    }
}

bool BoostAccepts(const std::string& text) {
    try {
        boost::lexical_cast<boost::uuids::uuid>(text);
        return true;
    } catch (const boost::bad_lexical_cast&) {
        return false;
    }
}

std::string Lower(std::string text) {
    std::transform(text.begin(), text.end(), text.begin(),
                   [](unsigned char c) { return static_cast<char>(std::tolower(c)); });
    return text;
}

}  // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    const std::string text(reinterpret_cast<const char*>(data), size);
    const Guid parsed = Guid::FromString(text);
    const bool accepted = BoostAccepts(text);
    if (parsed != Guid::Empty()) {
        Check(accepted);
        Check(parsed.ToString() == Lower(text));
    } else if (accepted) {
        Check(Lower(text) == Guid::Empty().ToString());
    }

    // TryParse accepts what FromString accepts, the all-zero text included, with the same value.
    const auto tried = Guid::TryParse(text);
    Check(tried.has_value() == (parsed != Guid::Empty() || Lower(text) == Guid::Empty().ToString()));
    Check(!tried || *tried == parsed);

    // The same bytes as a GUID: their text form always parses back to them.
    const Guid fromBytes(data, static_cast<unsigned int>(std::min<std::size_t>(size, Guid::Size)));
    Check(Guid::FromString(fromBytes.ToString()) == fromBytes);
    return 0;
}
