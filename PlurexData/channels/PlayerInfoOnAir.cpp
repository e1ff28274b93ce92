#include "PlurexData/channels/PlayerInfoOnAir.h"

#include <algorithm>
#include <iterator>

namespace Korv::Plurex::Data::Channels {

bool PlayerInfoOnAir::operator==(const PlayerInfoOnAir& other) const noexcept {
    return word0 == other.word0 && word1 == other.word1 && mode == other.mode &&
           rateNumerator == other.rateNumerator && rateDenominator == other.rateDenominator &&
           word5 == other.word5 && word6 == other.word6 && word7 == other.word7 && word8 == other.word8 &&
           std::equal(std::begin(values), std::end(values), std::begin(other.values)) && end == other.end &&
           word26 == other.word26;
}

}  // namespace Korv::Plurex::Data::Channels
