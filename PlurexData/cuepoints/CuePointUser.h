#pragma once

#include "PlurexData/Export.h"
#include "PlurexData/cuepoints/CuePoint.h"
#include "PlurexData/cuepoints/CuePointClip.h"
#include "PlurexData/cuepoints/CuePointCopyCommand.h"
#include "PlurexData/cuepoints/CuePointDeleteCommand.h"
#include "PlurexData/cuepoints/CuePointUserCommand.h"
#include "PlurexData/data/clips/UmId.h"

#include <array>
#include <cstdint>
#include <memory>
#include <vector>

namespace Korv::Plurex::BusinessObjects::CuePoints {

/// The cue points of one user (operator position): one list for marks on record trains and one
/// CuePointClip per clip with marks. Each list numbers its cue points 1 to 999, keeps them sorted by
/// CuePoint < and, when full, drops the lowest. A cue point belongs to the train list when its train
/// flag is set, else to the first clip entry whose UmId Equals its own.
class PLUREXDATA_API CuePointUser {
public:
    /// One list of cue points, sorted by CuePoint < (unless restored from the cache).
    using List = std::vector<CuePoint>;
    /// The operator's mode (see CuePointUserCommand).
    using cue_point_user_command = CuePointUserCommand::cue_point_user_command;

    /// @name Codes of AddCuePointToList
    ///@{
    static constexpr std::int32_t NotAdded = 0;      ///< numbers used up
    static constexpr std::int32_t AlreadyThere = 1;  ///< the argument now holds the stored cue point
    static constexpr std::int32_t Added = 2;         ///< the argument holds its new number and zoom
    ///@}
    /// The number of delete-command slots, 0 to 9.
    static constexpr std::int32_t DeleteSlots = 10;

    /// Empty lists, at most the given numbers of cue points on the train and per clip. Both capacities
    /// must be at least 1; otherwise std::invalid_argument("Invalid maxTrainCuePoints: " + value), or
    /// the same for maxClipCuePoints.
    CuePointUser(std::int32_t maxTrainCuePoints, std::int32_t maxClipCuePoints);

    /// Adds a copy of `cuePoint` to its list unless an == one is there; see the codes above. A list
    /// gives out 999 numbers and then accepts no more until its counter is reset, even if cue points
    /// were removed meanwhile. At capacity the list's first (lowest) cue point is dropped.
    std::int32_t AddCuePointToList(CuePoint& cuePoint);
    /// Clip form: every mark of the source clip, renumbered in the destination clip, keeping its
    /// position, pcx and zoom. Train form: the marks of the command's server within field in to
    /// field out (inclusive), at most the last maxClipCuePoints of them. The copies take the
    /// command's camera, server and KepId. The clip form does nothing for a source without entry,
    /// and otherwise appends a destination entry even when there is one already (kept: that one,
    /// the first, receives the copies and the new one stays empty).
    void CopyCuePoint(const CuePointCopyCommand& command);

    /// The first cue point that key.Equals. This and the three searches below look in the list of
    /// `key` (through GetList, so an unknown clip gets an empty entry) and on a match copy it into
    /// `found` and return true; `found` is untouched otherwise.
    bool FindCuePointInList(const CuePoint& key, CuePoint& found);
    /// Front to back, the first cue point of the key's server with key < it.
    bool FindCuePointAfter(const CuePoint& key, CuePoint& found);
    /// Back to front, the first cue point of the key's server with key > it.
    bool FindCuePointBefore(const CuePoint& key, CuePoint& found);
    /// Front to back, the first cue point of the key's server with the key's zoom.
    bool FindCuePointInListByZoom(const CuePoint& key, CuePoint& found);

    /// The shared list of `cuePoint`: the train list, or its clip's list, appending an empty entry
    /// for a clip that has none. Returned, or stored into `list`.
    ///@{
    std::shared_ptr<List> GetList(const CuePoint& cuePoint);
    void GetList(const CuePoint& cuePoint, std::shared_ptr<List>& list);
    ///@}
    /// The shared counter of the list of `cuePoint`; std::out_of_range("CuePoint not found") when
    /// its clip has no entry.
    std::shared_ptr<std::int32_t> GetIndex(const CuePoint& cuePoint) const;
    /// The train counter's value.
    std::int32_t GetIndex() const noexcept { return *trainIndex_; }
    /// The train list.
    const List& GetCuePoints() const noexcept { return *trainCuePoints_; }

    /// The train list's size when `train`, else the clip's count (0 for an unknown clip).
    std::int32_t GetCuePointCount(const Data::Clips::UmId& umid, bool train) const;
    /// Whether the train list is empty.
    bool IsListEmpty() const noexcept { return trainCuePoints_->empty(); }
    /// Whether the train list is empty when `train`; else whether the clip's list is, true for a
    /// null or empty UmId and for an unknown clip.
    ///@{
    bool IsListEmpty(const Data::Clips::UmId& umid, bool train) const { return IsListEmpty(&umid, train); }
    bool IsListEmpty(const Data::Clips::UmId* umid, bool train) const;
    ///@}
    /// The number of clip entries, those with no cue points included.
    std::int32_t GetClipCount() const noexcept { return static_cast<std::int32_t>(clips_->size()); }
    /// Replaces `cuePoints` with a copy of the train list or of the clip's list (empty for an
    /// unknown clip).
    void GetCuePointList(const Data::Clips::UmId& umid, bool train, List& cuePoints) const;
    /// Replaces `clips` with copies of the clip entries, which share their lists with them.
    void GetClipList(std::vector<CuePointClip>& clips) const;

    /// Train list only: erases the first == cue point; the counter stays.
    bool RemoveCuePoint(const CuePoint& cuePoint);
    /// A train cue point goes to RemoveCuePoint, any other to its clip.
    bool RemoveCuePointToListOfClip(const CuePoint& cuePoint);
    /// Erases the first == cue point from the clip's list; a clip left without cue points loses its
    /// entry, counter included (then the result is true).
    bool RemoveCuePointToListOfClip(const CuePoint& cuePoint, const Data::Clips::UmId& umid);
    /// Erases the first clip entry == `clip`.
    bool RemoveCuePointClip(const CuePointClip& clip);
    /// Both empty the train list and set its counter to 0.
    ///@{
    void RemoveAllCuePoint() noexcept;
    void ClearCuePointList() noexcept;
    ///@}
    /// Empties the clip's list and keeps its entry and counter.
    void ClearCuePointList(const Data::Clips::UmId& umid);
    /// The train list for a train command; else the clip's entry goes, unless its id is null or
    /// empty.
    void RemoveAllCuePoint(const CuePointDeleteCommand& command);
    /// Drops every clip entry. The lower-case c is kept: callers use this name.
    void RemoveAllclips() noexcept { clips_->clear(); }

    /// Appends `cuePoints` to the train list as they are (no sorting, capacity or numbering) and
    /// sets the train counter to `index`: the restore from the cache.
    void SetCuePoint(const List& cuePoints, std::int32_t index);

    /// The delete command kept in `slot`: slots 0 to 9; other slots are ignored on setting and read
    /// as a default command.
    ///@{
    void SetCurrentClipToDelete(std::int32_t slot, const CuePointDeleteCommand& command);
    CuePointDeleteCommand GetCurrentClipToDelete(std::int32_t slot) const;
    ///@}
    /// Clears every slot (CuePointDeleteCommand::Clear).
    void ClearAllCurrentClipToDelete() noexcept;

    /// The operator's current mode, stored as given.
    ///@{
    void SetCurrentUserCommand(const cue_point_user_command& command) noexcept {
        currentUserCommand_.SetCommand(command);
    }
    cue_point_user_command GetCurrentUserCommand() const noexcept { return currentUserCommand_.GetCommand(); }
    ///@}

private:
    struct Slot {
        List* list;
        std::int32_t* counter;
        std::int32_t capacity;
    };

    Slot SlotOf(const CuePoint& cuePoint);
    const CuePointClip* FindClip(const Data::Clips::UmId& umid) const noexcept;
    std::vector<CuePointClip>::iterator FindClipEntry(const Data::Clips::UmId& umid) noexcept;
    void ReserveClips();

    std::shared_ptr<List> trainCuePoints_;
    std::shared_ptr<std::int32_t> trainIndex_;
    std::int32_t maxTrainCuePoints_;
    std::int32_t maxClipCuePoints_;
    std::shared_ptr<std::vector<CuePointClip>> clips_;
    std::array<CuePointDeleteCommand, DeleteSlots> currentClipToDelete_;
    CuePointUserCommand currentUserCommand_;
};

}  // namespace Korv::Plurex::BusinessObjects::CuePoints
