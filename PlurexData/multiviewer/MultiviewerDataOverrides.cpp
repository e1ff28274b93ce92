#include "PlurexData/multiviewer/MultiviewerDataOverrides.h"

#include <stdexcept>

namespace Korv::Plurex::Multiviewer {

namespace {
void CheckIndex(unsigned int index) {
    if (index >= MultiviewerDataOverrides::PlayerCount) {
        throw std::out_of_range("MultiviewerDataOverrides: index out of range");
    }
}
}  // namespace

PlayerDataOverrides& MultiviewerDataOverrides::operator[](unsigned int index) {
    CheckIndex(index);
    return players_[index];
}

const PlayerDataOverrides& MultiviewerDataOverrides::operator[](unsigned int index) const {
    CheckIndex(index);
    return players_[index];
}

}  // namespace Korv::Plurex::Multiviewer
