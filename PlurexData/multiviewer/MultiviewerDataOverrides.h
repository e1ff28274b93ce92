#pragma once

#include "PlurexData/Export.h"
#include "PlurexData/multiviewer/PlayerDataOverrides.h"

#include <array>

namespace Korv::Plurex::Multiviewer {

/// The overrides of the six players a multiviewer shows.
class PLUREXDATA_API MultiviewerDataOverrides {
public:
    static constexpr unsigned int PlayerCount = 6;  ///< the players, indexed 0 to 5

    /// The overrides of player `index`. Throw
    /// std::out_of_range("MultiviewerDataOverrides: index out of range") for an index of 6 or more.
    ///@{
    PlayerDataOverrides& operator[](unsigned int index);
    const PlayerDataOverrides& operator[](unsigned int index) const;
    ///@}

private:
    std::array<PlayerDataOverrides, PlayerCount> players_;
};

}  // namespace Korv::Plurex::Multiviewer
