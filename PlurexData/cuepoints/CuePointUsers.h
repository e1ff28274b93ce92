#pragma once

#include "PlurexData/Export.h"
#include "PlurexData/cuepoints/CuePoint.h"
#include "PlurexData/cuepoints/CuePointCache.h"
#include "PlurexData/cuepoints/CuePointClip.h"
#include "PlurexData/cuepoints/CuePointCopyCommand.h"
#include "PlurexData/cuepoints/CuePointDbEventArgs.h"
#include "PlurexData/cuepoints/CuePointDeleteCommand.h"
#include "PlurexData/cuepoints/CuePointUser.h"
#include "PlurexData/cuepoints/CuePointUserCommand.h"
#include "PlurexData/data/clips/UmId.h"
#include "PlurexData/system/Delegate.h"

#include <array>
#include <cstdint>
#include <memory>
#include <string>
#include <vector>

namespace Korv::Plurex::BusinessObjects::CuePoints {

/// The cue points of the four users (0 to 3) of one installation, each with at most 256 train cue
/// points and 32 per clip. Changes are announced synchronously to the listeners of the one
/// process-wide delegate. A user number outside 0 to 3 makes every operation do nothing and return
/// 0, false or an empty command.
class PLUREXDATA_API CuePointUsers {
public:
    /// The operator's mode (see CuePointUserCommand).
    using cue_point_user_command = CuePointUserCommand::cue_point_user_command;
    /// The listeners of store changes.
    using DbDelegate = Korv::System::Delegate<void(const CuePointDbEventArgs&)>;

    static constexpr std::int32_t UserCount = 4;            ///< users 0 to 3
    static constexpr std::int32_t MaxTrainCuePoints = 256;  ///< each user's train list capacity
    static constexpr std::int32_t MaxClipCuePoints = 32;    ///< each user's capacity per clip

    /// The listeners of every CuePointUsers of the process.
    static DbDelegate cuePointDbDelegate;

    /// Four users without cue points, and an empty cache.
    CuePointUsers();

    /// AddCuePointToList on the user; a cue point added (code 2) raises CuePointAdded with it,
    /// number included.
    std::int32_t AddCuePoint(std::int32_t user, CuePoint& cuePoint);
    /// RemoveCuePointToListOfClip on the user; when that returns true, raises CuePointRemoved with
    /// `cuePoint`, even if only an empty clip entry went.
    bool RemoveCuePoint(std::int32_t user, const CuePoint& cuePoint);
    /// FindCuePointInList on the user with `cuePoint` as key; on a match `cuePoint` becomes the
    /// stored one. The result is its number, 0 when none (and so also for a stored number 0).
    std::int32_t FindCuePoint(std::int32_t user, CuePoint& cuePoint);
    /// The same with FindCuePointInListByZoom.
    std::int32_t FindCuePointByZoom(std::int32_t user, CuePoint& cuePoint);
    /// The user's FindCuePointAfter and FindCuePointBefore.
    ///@{
    bool FindCuePointAfter(std::int32_t user, const CuePoint& key, CuePoint& found);
    bool FindCuePointBefore(std::int32_t user, const CuePoint& key, CuePoint& found);
    ///@}
    /// CopyCuePoint on the user; no event.
    void CopyCuePoint(std::int32_t user, const CuePointCopyCommand& command);

    /// The user's GetCuePointCount and GetCuePointList; `cuePoints` is left alone for a bad user.
    ///@{
    std::int32_t GetCuePointCount(std::int32_t user, const Data::Clips::UmId& umid, bool train) const;
    void GetCuePointList(std::int32_t user, const Data::Clips::UmId& umid, bool train,
                         std::vector<CuePoint>& cuePoints) const;
    ///@}
    /// The user's IsListEmpty, GetCuePointCount and GetCuePointList with the clip given as text
    /// (UmId's text constructor).
    ///@{
    bool IsListEmpty(std::int32_t user, const std::string& umid, bool train) const;
    std::int32_t GetCuePointCount(std::int32_t user, const std::string& umid, bool train) const;
    void GetCuePointList(std::int32_t user, const std::string& umid, bool train,
                         std::vector<CuePoint>& cuePoints) const;
    ///@}
    /// The user's GetClipList; `clips` is left alone for a bad user.
    void GetClipList(std::int32_t user, std::vector<CuePointClip>& clips) const;

    /// The user's delete-command slots and current mode (see CuePointUser).
    ///@{
    CuePointDeleteCommand GetCurrentClipToDelete(std::int32_t user, std::int32_t slot) const;
    void SetCurrentClipToDelete(std::int32_t user, std::int32_t slot, const CuePointDeleteCommand& command);
    void ClearAllCurrentClipToDelete(std::int32_t user);
    void SetCurrentUserCommand(std::int32_t user, const cue_point_user_command& command);
    cue_point_user_command GetCurrentUserCommand(std::int32_t user) const;
    ///@}

    /// Drops the entries of all the user's clips, not of one; no event.
    void RemoveAllCuePointOfClip(std::int32_t user);
    /// Saves the train list into the cache, empties it (counter 0) and raises CuePointsRemovedAll
    /// with the command (UmId::Empty(), train).
    void RemoveAllCuePointOfUser(std::int32_t user);
    /// RemoveAllCuePoint(command) on the user, then CuePointsRemovedAll with `command`, whether or
    /// not anything was removed.
    void RemoveAllCuePointOfUser(std::int32_t user, const CuePointDeleteCommand& command);

    /// Saves a copy of the user's train list and counter under the controller attached by
    /// SetCacheUser; nothing when none is attached.
    void SetCuePointsIntoCache(std::int16_t user);
    /// Attaches `controller` to the user in the cache, replacing the one there was.
    void SetCacheUser(std::int32_t user, std::uint8_t controller);
    /// Whether the cache holds a list, even an empty one, saved for (user, controller).
    bool HasCacheCuePoints(std::int32_t user, std::uint8_t controller) const;
    /// Puts the cue points saved under (user, controller) back behind the user's train list,
    /// unsorted, with the saved counter; nothing when that counter is below 1. The controller comes
    /// first here, unlike everywhere else: kept for existing callers.
    void SetCuePoint(std::uint8_t controller, std::int32_t user);

    /// Fills `cuePoint` from a controller's values: the server number is multiplied by ten for both
    /// server ids and the zoom is -1; the number is left alone. The std::invalid_argument of ServerId
    /// (for server 0, for instance) or of KepId (a bad kep or camera) passes through, with
    /// `cuePoint` partly filled.
    static void FillCuePoint(long long tc, std::int32_t server, char camera, bool train, std::int32_t pcx,
                             const std::string& umid, std::int16_t kep, CuePoint& cuePoint);
    /// Calls the delegate's listeners, in the order they were added, on this thread.
    static void InvokeCuePointDbCallback(const CuePointDbEventArgs& args);

private:
    CuePointUser* UserAt(std::int32_t user) const noexcept;

    std::array<std::shared_ptr<CuePointUser>, UserCount> users_;
    CuePointCache cache_;
};

}  // namespace Korv::Plurex::BusinessObjects::CuePoints
