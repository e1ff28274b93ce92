#pragma once

#include "PlurexData/Export.h"
#include "PlurexData/data/clips/Clip.h"
#include "PlurexData/data/clips/RecordingRange.h"
#include "PlurexData/timepoints/TimeCode.h"

#include <memory>
#include <vector>

namespace Korv::Plurex::Data::Clips {

/// A clip that a recorder keeps recording, with the ranges recorded so far. Owns its clip; movable, not
/// copyable. A moved-from Train holds no clip.
class PLUREXDATA_API Train {
public:
    /// Copies the clip onto the heap and the ranges. `recording`: the recorder is recording the train
    /// now; `looping`: it records in a loop, over its oldest material; `headTimecode`: the timecode of
    /// the last sample recorded. Marks the owned clip as a train: attribute 1 set to 1 when it is 0.
    Train(const Clip& clip, const std::vector<RecordingRange>& ranges, bool recording, bool looping,
          const TimePoints::TimeCode& headTimecode);
    /// Takes ownership of all of them and marks the clip as the other constructor does. A null clip
    /// throws std::invalid_argument("null Clip") before anything is moved from.
    Train(std::unique_ptr<Clip>&& clip, std::vector<RecordingRange>&& ranges, bool recording, bool looping,
          TimePoints::TimeCode&& headTimecode);

    /// Takes the other's clip over; the moved-from Train holds none.
    ///@{
    Train(Train&&) noexcept = default;
    Train& operator=(Train&&) noexcept = default;
    ///@}
    Train(const Train&) = delete;
    Train& operator=(const Train&) = delete;
    ~Train();

    /// The owned clip; not for a moved-from Train, which holds none.
    ///@{
    const Clip& GetClip() const noexcept { return *clip_; }
    Clip& GetClip() noexcept { return *clip_; }
    ///@}
    /// The ranges recorded so far.
    ///@{
    const std::vector<RecordingRange>& GetRecordingRanges() const noexcept { return ranges_; }
    std::vector<RecordingRange>& GetRecordingRanges() noexcept { return ranges_; }
    ///@}
    /// Whether the recorder is recording the train now.
    bool IsRecording() const noexcept { return recording_; }
    /// Whether it records in a loop, over its oldest material.
    bool IsLooping() const noexcept { return looping_; }
    /// The timecode of the last sample recorded.
    const TimePoints::TimeCode& GetHeadTimecode() const noexcept { return headTimecode_; }

private:
    void MarkAsTrain() noexcept;

    std::unique_ptr<Clip> clip_;
    std::vector<RecordingRange> ranges_;
    bool recording_;
    bool looping_;
    TimePoints::TimeCode headTimecode_;
};

}  // namespace Korv::Plurex::Data::Clips
