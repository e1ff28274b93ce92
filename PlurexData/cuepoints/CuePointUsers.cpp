#include "PlurexData/cuepoints/CuePointUsers.h"

#include "PlurexData/data/clips/KepId.h"
#include "PlurexData/data/servers/ServerId.h"

namespace Korv::Plurex::BusinessObjects::CuePoints {

using Data::Clips::KepId;
using Data::Clips::UmId;
using Data::Servers::ServerId;

CuePointUsers::DbDelegate CuePointUsers::cuePointDbDelegate;

CuePointUsers::CuePointUsers() : users_(), cache_() {
    for (auto& user : users_) {
        user = std::make_shared<CuePointUser>(MaxTrainCuePoints, MaxClipCuePoints);
    }
}

CuePointUser* CuePointUsers::UserAt(std::int32_t user) const noexcept {
    return user >= 0 && user < UserCount ? users_[static_cast<std::size_t>(user)].get() : nullptr;
}

std::int32_t CuePointUsers::AddCuePoint(std::int32_t user, CuePoint& cuePoint) {
    CuePointUser* target = UserAt(user);
    if (target == nullptr) {
        return CuePointUser::NotAdded;
    }
    const std::int32_t result = target->AddCuePointToList(cuePoint);
    if (result == CuePointUser::Added) {
        InvokeCuePointDbCallback(CuePointDbEventArgs(user, CuePointDbEventType::CuePointAdded, cuePoint));
    }
    return result;
}

bool CuePointUsers::RemoveCuePoint(std::int32_t user, const CuePoint& cuePoint) {
    CuePointUser* target = UserAt(user);
    if (target == nullptr || !target->RemoveCuePointToListOfClip(cuePoint)) {
        return false;
    }
    InvokeCuePointDbCallback(CuePointDbEventArgs(user, CuePointDbEventType::CuePointRemoved, cuePoint));
    return true;
}

std::int32_t CuePointUsers::FindCuePoint(std::int32_t user, CuePoint& cuePoint) {
    CuePointUser* target = UserAt(user);
    CuePoint found;
    if (target == nullptr || !target->FindCuePointInList(cuePoint, found)) {
        return 0;
    }
    cuePoint = found;
    return found.GetNumber();
}

std::int32_t CuePointUsers::FindCuePointByZoom(std::int32_t user, CuePoint& cuePoint) {
    CuePointUser* target = UserAt(user);
    CuePoint found;
    if (target == nullptr || !target->FindCuePointInListByZoom(cuePoint, found)) {
        return 0;
    }
    cuePoint = found;
    return found.GetNumber();
}

bool CuePointUsers::FindCuePointAfter(std::int32_t user, const CuePoint& key, CuePoint& found) {
    CuePointUser* target = UserAt(user);
    return target != nullptr && target->FindCuePointAfter(key, found);
}

bool CuePointUsers::FindCuePointBefore(std::int32_t user, const CuePoint& key, CuePoint& found) {
    CuePointUser* target = UserAt(user);
    return target != nullptr && target->FindCuePointBefore(key, found);
}

void CuePointUsers::CopyCuePoint(std::int32_t user, const CuePointCopyCommand& command) {
    if (CuePointUser* target = UserAt(user)) {
        target->CopyCuePoint(command);
    }
}

std::int32_t CuePointUsers::GetCuePointCount(std::int32_t user, const UmId& umid, bool train) const {
    const CuePointUser* target = UserAt(user);
    return target == nullptr ? 0 : target->GetCuePointCount(umid, train);
}

void CuePointUsers::GetCuePointList(std::int32_t user, const UmId& umid, bool train,
                                    std::vector<CuePoint>& cuePoints) const {
    if (const CuePointUser* target = UserAt(user)) {
        target->GetCuePointList(umid, train, cuePoints);
    }
}

bool CuePointUsers::IsListEmpty(std::int32_t user, const std::string& umid, bool train) const {
    const CuePointUser* target = UserAt(user);
    return target != nullptr && target->IsListEmpty(UmId(umid), train);
}

std::int32_t CuePointUsers::GetCuePointCount(std::int32_t user, const std::string& umid, bool train) const {
    return UserAt(user) == nullptr ? 0 : GetCuePointCount(user, UmId(umid), train);
}

void CuePointUsers::GetCuePointList(std::int32_t user, const std::string& umid, bool train,
                                    std::vector<CuePoint>& cuePoints) const {
    if (UserAt(user) != nullptr) {
        GetCuePointList(user, UmId(umid), train, cuePoints);
    }
}

void CuePointUsers::GetClipList(std::int32_t user, std::vector<CuePointClip>& clips) const {
    if (const CuePointUser* target = UserAt(user)) {
        target->GetClipList(clips);
    }
}

CuePointDeleteCommand CuePointUsers::GetCurrentClipToDelete(std::int32_t user, std::int32_t slot) const {
    const CuePointUser* target = UserAt(user);
    return target == nullptr ? CuePointDeleteCommand() : target->GetCurrentClipToDelete(slot);
}

void CuePointUsers::SetCurrentClipToDelete(std::int32_t user, std::int32_t slot,
                                           const CuePointDeleteCommand& command) {
    if (CuePointUser* target = UserAt(user)) {
        target->SetCurrentClipToDelete(slot, command);
    }
}

void CuePointUsers::ClearAllCurrentClipToDelete(std::int32_t user) {
    if (CuePointUser* target = UserAt(user)) {
        target->ClearAllCurrentClipToDelete();
    }
}

void CuePointUsers::SetCurrentUserCommand(std::int32_t user, const cue_point_user_command& command) {
    if (CuePointUser* target = UserAt(user)) {
        target->SetCurrentUserCommand(command);
    }
}

CuePointUsers::cue_point_user_command CuePointUsers::GetCurrentUserCommand(std::int32_t user) const {
    const CuePointUser* target = UserAt(user);
    return target == nullptr ? cue_point_user_command() : target->GetCurrentUserCommand();
}

void CuePointUsers::RemoveAllCuePointOfClip(std::int32_t user) {
    if (CuePointUser* target = UserAt(user)) {
        target->RemoveAllclips();
    }
}

void CuePointUsers::RemoveAllCuePointOfUser(std::int32_t user) {
    CuePointUser* target = UserAt(user);
    if (target == nullptr) {
        return;
    }
    SetCuePointsIntoCache(static_cast<std::int16_t>(user));
    target->RemoveAllCuePoint();
    InvokeCuePointDbCallback(CuePointDbEventArgs(user, CuePointDbEventType::CuePointsRemovedAll,
                                                 CuePointDeleteCommand(UmId::Empty(), true)));
}

void CuePointUsers::RemoveAllCuePointOfUser(std::int32_t user, const CuePointDeleteCommand& command) {
    CuePointUser* target = UserAt(user);
    if (target == nullptr) {
        return;
    }
    target->RemoveAllCuePoint(command);
    InvokeCuePointDbCallback(CuePointDbEventArgs(user, CuePointDbEventType::CuePointsRemovedAll, command));
}

void CuePointUsers::SetCuePointsIntoCache(std::int16_t user) {
    if (const CuePointUser* target = UserAt(user)) {
        cache_.SetCuePoints(user, target->GetCuePoints(), target->GetIndex());
    }
}

void CuePointUsers::SetCacheUser(std::int32_t user, std::uint8_t controller) {
    if (UserAt(user) != nullptr) {
        cache_.SetPortAndController(static_cast<std::int16_t>(user), controller);
    }
}

bool CuePointUsers::HasCacheCuePoints(std::int32_t user, std::uint8_t controller) const {
    return UserAt(user) != nullptr && cache_.HasCuePoints(static_cast<std::int16_t>(user), controller);
}

void CuePointUsers::SetCuePoint(std::uint8_t controller, std::int32_t user) {
    CuePointUser* target = UserAt(user);
    if (target == nullptr) {
        return;
    }
    const CuePointCache::CacheItem& saved = cache_.GetCuePoints(static_cast<std::int16_t>(user), controller);
    if (saved.GetIndex() >= 1) {
        target->SetCuePoint(saved.GetCuePoints(), saved.GetIndex());
    }
}

void CuePointUsers::FillCuePoint(long long tc, std::int32_t server, char camera, bool train, std::int32_t pcx,
                                 const std::string& umid, std::int16_t kep, CuePoint& cuePoint) {
    // Multiplied in 32 bits with wrap-around, so that an out-of-range number is refused alike on
    // every platform instead of overflowing.
    const auto serverNumber = static_cast<std::int32_t>(static_cast<std::uint32_t>(server) * 10U);
    cuePoint.SetTc(tc);
    cuePoint.SetServerId(ServerId(serverNumber));
    cuePoint.SetCamera(camera);
    cuePoint.SetTrain(train);
    cuePoint.SetPcx(pcx);
    cuePoint.SetUmId(UmId(umid));
    cuePoint.SetKepId(KepId(kep, camera, ServerId(serverNumber)));
    cuePoint.SetZoom(-1);
}

void CuePointUsers::InvokeCuePointDbCallback(const CuePointDbEventArgs& args) {
    cuePointDbDelegate.Invoke(args);
}

}  // namespace Korv::Plurex::BusinessObjects::CuePoints
