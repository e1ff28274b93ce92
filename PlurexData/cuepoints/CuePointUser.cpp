#include "PlurexData/cuepoints/CuePointUser.h"

#include <algorithm>
#include <cstddef>
#include <cstring>
#include <iterator>
#include <stdexcept>
#include <string>

namespace Korv::Plurex::BusinessObjects::CuePoints {

using Data::Clips::UmId;

namespace {

constexpr std::int32_t LastNumber = 999;

std::int32_t CheckedCapacity(const char* what, std::int32_t capacity) {
    if (capacity < 1) {
        throw std::invalid_argument(std::string("Invalid ") + what + ": " + std::to_string(capacity));
    }
    return capacity;
}

struct Less {
    bool operator()(const CuePoint& left, const CuePoint& right) const noexcept { return left < right; }
};

// Sorts by CuePoint <, stably, in n log n: a bottom-up merge sort. Once positions lie more than 2^31
// apart that order is not a strict weak ordering, and std::sort may then read outside the range; a
// merge only ever compares the fronts of two runs whose ends it holds, so it never leaves them. A list
// restored from the cache again and again grows large, which rules out sorting by insertion.
void SortWithinBounds(CuePointUser::List& list) {
    const std::size_t size = list.size();
    CuePointUser::List merged;
    merged.reserve(size);
    for (std::size_t width = 1; width < size; width *= 2) {
        merged.clear();
        for (std::size_t left = 0; left < size; left += 2 * width) {
            const std::size_t middle = std::min(left + width, size);
            const std::size_t right = std::min(middle + width, size);
            const auto at = [&list](std::size_t i) { return std::make_move_iterator(list.begin() + i); };
            std::merge(at(left), at(middle), at(middle), at(right), std::back_inserter(merged), Less{});
        }
        list.swap(merged);
    }
}

// Erases the first element (when `evict`), appends `cuePoint` and sorts, as a sorted `list` sees it:
// one binary search and one shift.
void InsertSorted(CuePointUser::List& list, const CuePoint& cuePoint, bool evict) {
    if (!evict) {
        list.insert(std::upper_bound(list.begin(), list.end(), cuePoint, Less{}), cuePoint);
        return;
    }
    const auto at = std::upper_bound(list.begin() + 1, list.end(), cuePoint, Less{});
    std::move(list.begin() + 1, at, list.begin());
    *(at - 1) = cuePoint;
}

// UmId::Equals without the call into it: the text is NUL-padded to 8 bytes, so comparing all 8
// agrees with its comparison that stops at a NUL. Clip lookups run on every add and search.
bool SameClip(const UmId& left, const UmId& right) noexcept {
    return std::memcmp(left.GetUmId(), right.GetUmId(), UmId::Length) == 0 &&
           left.IsUnicode() == right.IsUnicode();
}

bool SameServer(const CuePoint& left, const CuePoint& right) noexcept {
    return left.GetServerId() == right.GetServerId();
}

}  // namespace

CuePointUser::CuePointUser(std::int32_t maxTrainCuePoints, std::int32_t maxClipCuePoints)
    : trainCuePoints_(std::make_shared<List>()),
      trainIndex_(std::make_shared<std::int32_t>(0)),
      maxTrainCuePoints_(CheckedCapacity("maxTrainCuePoints", maxTrainCuePoints)),
      maxClipCuePoints_(CheckedCapacity("maxClipCuePoints", maxClipCuePoints)),
      clips_(std::make_shared<std::vector<CuePointClip>>()),
      currentClipToDelete_(),
      currentUserCommand_() {
    trainCuePoints_->reserve(static_cast<std::size_t>(maxTrainCuePoints_));
}

const CuePointClip* CuePointUser::FindClip(const UmId& umid) const noexcept {
    for (const CuePointClip& clip : *clips_) {
        if (SameClip(clip.GetUmId(), umid)) {
            return &clip;
        }
    }
    return nullptr;
}

std::vector<CuePointClip>::iterator CuePointUser::FindClipEntry(const UmId& umid) noexcept {
    return std::find_if(clips_->begin(), clips_->end(),
                        [&umid](const CuePointClip& clip) { return SameClip(clip.GetUmId(), umid); });
}

void CuePointUser::ReserveClips() {
    // Kept: the clip sequence is reserved to the clip capacity, whatever its own size.
    if (clips_->capacity() < static_cast<std::size_t>(maxClipCuePoints_)) {
        clips_->reserve(static_cast<std::size_t>(maxClipCuePoints_));
    }
}

CuePointUser::Slot CuePointUser::SlotOf(const CuePoint& cuePoint) {
    if (cuePoint.IsTrain()) {
        return Slot{trainCuePoints_.get(), trainIndex_.get(), maxTrainCuePoints_};
    }
    const UmId umid = cuePoint.GetUmId();
    const CuePointClip* clip = FindClip(umid);
    if (clip == nullptr) {
        ReserveClips();
        clip = &clips_->emplace_back(umid, maxClipCuePoints_);
    }
    return Slot{clip->GetList().get(), clip->GetIndex().get(), maxClipCuePoints_};
}

std::int32_t CuePointUser::AddCuePointToList(CuePoint& cuePoint) {
    const Slot slot = SlotOf(cuePoint);
    List& list = *slot.list;

    // One pass finds the first == cue point and tells whether the list is in order; it is not
    // after a restore from the cache, which appends unsorted.
    bool ordered = true;
    for (std::size_t i = 0; i < list.size(); ++i) {
        if (list[i] == cuePoint) {
            cuePoint = list[i];
            return AlreadyThere;
        }
        if (i > 0 && list[i] < list[i - 1]) {
            ordered = false;
        }
    }

    if (*slot.counter >= LastNumber) {
        return NotAdded;
    }
    const std::int32_t number = ++*slot.counter;
    cuePoint.SetNumber(number);
    if (cuePoint.GetZoom() == 0) {
        cuePoint.SetZoom(number);
    }

    const bool evict = static_cast<std::int64_t>(list.size()) + 1 > slot.capacity;
    if (ordered) {
        InsertSorted(list, cuePoint, evict);
    } else {
        if (evict) {
            list.erase(list.begin());
        }
        list.push_back(cuePoint);
        SortWithinBounds(list);
    }
    return Added;
}

void CuePointUser::CopyCuePoint(const CuePointCopyCommand& command) {
    const UmId destination = command.GetClipIdDestination();
    if (command.IsTrain()) {
        const long long fieldIn = command.GetFieldIn();
        const long long fieldOut = command.GetFieldOut();
        List taken;
        for (const CuePoint& mark : *trainCuePoints_) {
            if (mark.GetServerId() == command.GetServerId() && mark.GetTc() >= fieldIn &&
                mark.GetTc() <= fieldOut) {
                taken.push_back(mark);
            }
        }
        const std::size_t limit = static_cast<std::size_t>(maxClipCuePoints_);
        const std::size_t skipped = taken.size() > limit ? taken.size() - limit : 0;
        for (std::size_t i = skipped; i < taken.size(); ++i) {
            const CuePoint& mark = taken[i];
            CuePoint copy;
            copy.SetTc(mark.GetTc());
            copy.SetPcx(mark.GetPcx());
            copy.SetServerId(mark.GetServerId());
            copy.SetZoom(mark.GetZoom());
            copy.SetUmId(destination);
            copy.SetKepId(command.GetKepId());
            copy.SetCamera(command.GetCamera());
            copy.SetTrain(false);
            AddCuePointToList(copy);
        }
        return;
    }

    const UmId source = command.GetClipIdSource();
    if (FindClip(source) == nullptr) {
        return;
    }
    // Kept: a new entry even when the destination has one already; adds go to the first of them.
    ReserveClips();
    clips_->emplace_back(destination, maxClipCuePoints_);
    for (std::size_t c = 0; c < clips_->size(); ++c) {
        if (!SameClip((*clips_)[c].GetUmId(), source)) {
            continue;
        }
        // A snapshot: the destination may be this very list.
        const List marks = *(*clips_)[c].GetList();
        for (CuePoint copy : marks) {
            copy.SetUmId(destination);
            copy.SetKepId(command.GetKepId());
            copy.SetCamera(command.GetCamera());
            copy.SetTrain(false);
            copy.SetServerId(command.GetServerId());
            AddCuePointToList(copy);
        }
    }
}

bool CuePointUser::FindCuePointInList(const CuePoint& key, CuePoint& found) {
    const List& list = *SlotOf(key).list;
    const auto match =
        std::find_if(list.begin(), list.end(), [&key](const CuePoint& mark) { return key.Equals(mark); });
    if (match == list.end()) {
        return false;
    }
    found = *match;
    return true;
}

bool CuePointUser::FindCuePointAfter(const CuePoint& key, CuePoint& found) {
    const List& list = *SlotOf(key).list;
    const auto match = std::find_if(list.begin(), list.end(), [&key](const CuePoint& mark) {
        return key < mark && SameServer(mark, key);
    });
    if (match == list.end()) {
        return false;
    }
    found = *match;
    return true;
}

bool CuePointUser::FindCuePointBefore(const CuePoint& key, CuePoint& found) {
    const List& list = *SlotOf(key).list;
    const auto match = std::find_if(list.rbegin(), list.rend(), [&key](const CuePoint& mark) {
        return key > mark && SameServer(mark, key);
    });
    if (match == list.rend()) {
        return false;
    }
    found = *match;
    return true;
}

bool CuePointUser::FindCuePointInListByZoom(const CuePoint& key, CuePoint& found) {
    const List& list = *SlotOf(key).list;
    const auto match = std::find_if(list.begin(), list.end(), [&key](const CuePoint& mark) {
        return mark.GetZoom() == key.GetZoom() && SameServer(mark, key);
    });
    if (match == list.end()) {
        return false;
    }
    found = *match;
    return true;
}

std::shared_ptr<CuePointUser::List> CuePointUser::GetList(const CuePoint& cuePoint) {
    std::shared_ptr<List> list;
    GetList(cuePoint, list);
    return list;
}

void CuePointUser::GetList(const CuePoint& cuePoint, std::shared_ptr<List>& list) {
    if (cuePoint.IsTrain()) {
        list = trainCuePoints_;
        return;
    }
    SlotOf(cuePoint);
    list = FindClip(cuePoint.GetUmId())->GetList();
}

std::shared_ptr<std::int32_t> CuePointUser::GetIndex(const CuePoint& cuePoint) const {
    if (cuePoint.IsTrain()) {
        return trainIndex_;
    }
    const CuePointClip* clip = FindClip(cuePoint.GetUmId());
    if (clip == nullptr) {
        throw std::out_of_range("CuePoint not found");
    }
    return clip->GetIndex();
}

std::int32_t CuePointUser::GetCuePointCount(const UmId& umid, bool train) const {
    if (train) {
        return static_cast<std::int32_t>(trainCuePoints_->size());
    }
    const CuePointClip* clip = FindClip(umid);
    return clip == nullptr ? 0 : clip->GetCuePointCount();
}

bool CuePointUser::IsListEmpty(const UmId* umid, bool train) const {
    if (train) {
        return trainCuePoints_->empty();
    }
    if (UmId::IsNullOrEmpty(umid)) {
        return true;
    }
    const CuePointClip* clip = FindClip(*umid);
    return clip == nullptr || clip->GetCuePointCount() == 0;
}

void CuePointUser::GetCuePointList(const UmId& umid, bool train, List& cuePoints) const {
    cuePoints.clear();
    if (train) {
        cuePoints = *trainCuePoints_;
        return;
    }
    if (const CuePointClip* clip = FindClip(umid)) {
        cuePoints = *clip->GetList();
    }
}

void CuePointUser::GetClipList(std::vector<CuePointClip>& clips) const {
    clips = *clips_;
}

bool CuePointUser::RemoveCuePoint(const CuePoint& cuePoint) {
    const auto found = std::find(trainCuePoints_->begin(), trainCuePoints_->end(), cuePoint);
    if (found == trainCuePoints_->end()) {
        return false;
    }
    trainCuePoints_->erase(found);
    return true;
}

bool CuePointUser::RemoveCuePointToListOfClip(const CuePoint& cuePoint) {
    if (cuePoint.IsTrain()) {
        return RemoveCuePoint(cuePoint);
    }
    return RemoveCuePointToListOfClip(cuePoint, cuePoint.GetUmId());
}

bool CuePointUser::RemoveCuePointToListOfClip(const CuePoint& cuePoint, const UmId& umid) {
    const auto entry = FindClipEntry(umid);
    if (entry == clips_->end()) {
        return false;
    }
    bool removed = false;
    if (entry->GetCuePointCount() != 0) {
        removed = entry->RemoveCuePoint(cuePoint);
    }
    if (entry->GetCuePointCount() == 0) {
        clips_->erase(entry);
        return true;
    }
    return removed;
}

bool CuePointUser::RemoveCuePointClip(const CuePointClip& clip) {
    const auto found = std::find(clips_->begin(), clips_->end(), clip);
    if (found == clips_->end()) {
        return false;
    }
    clips_->erase(found);
    return true;
}

void CuePointUser::RemoveAllCuePoint() noexcept {
    trainCuePoints_->clear();
    *trainIndex_ = 0;
}

void CuePointUser::ClearCuePointList() noexcept {
    RemoveAllCuePoint();
}

void CuePointUser::ClearCuePointList(const UmId& umid) {
    const auto entry = FindClipEntry(umid);
    if (entry != clips_->end()) {
        entry->ClearCuePointList();
    }
}

void CuePointUser::RemoveAllCuePoint(const CuePointDeleteCommand& command) {
    if (command.IsTrain()) {
        RemoveAllCuePoint();
        return;
    }
    const UmId clipId = command.GetClipId();
    if (UmId::IsNullOrEmpty(clipId)) {
        return;
    }
    const auto entry = FindClipEntry(clipId);
    if (entry != clips_->end()) {
        entry->ClearCuePointList();
        clips_->erase(entry);
    }
}

void CuePointUser::SetCuePoint(const List& cuePoints, std::int32_t index) {
    trainCuePoints_->insert(trainCuePoints_->end(), cuePoints.begin(), cuePoints.end());
    *trainIndex_ = index;
}

void CuePointUser::SetCurrentClipToDelete(std::int32_t slot, const CuePointDeleteCommand& command) {
    if (slot >= 0 && slot < DeleteSlots) {
        currentClipToDelete_[static_cast<std::size_t>(slot)] = command;
    }
}

CuePointDeleteCommand CuePointUser::GetCurrentClipToDelete(std::int32_t slot) const {
    if (slot >= 0 && slot < DeleteSlots) {
        return currentClipToDelete_[static_cast<std::size_t>(slot)];
    }
    return CuePointDeleteCommand();
}

void CuePointUser::ClearAllCurrentClipToDelete() noexcept {
    for (CuePointDeleteCommand& command : currentClipToDelete_) {
        command.Clear();
    }
}

}  // namespace Korv::Plurex::BusinessObjects::CuePoints
