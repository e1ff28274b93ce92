#include "PlurexData/data/clips/Train.h"

#include <stdexcept>
#include <utility>

namespace Korv::Plurex::Data::Clips {

namespace {
// Checked before anything is moved, so that a refused call leaves the caller's ranges as they were.
std::unique_ptr<Clip>&& NotNull(std::unique_ptr<Clip>&& clip) {
    if (!clip) {
        throw std::invalid_argument("null Clip");
    }
    return std::move(clip);
}
}  // namespace

Train::Train(const Clip& clip, const std::vector<RecordingRange>& ranges, bool recording, bool looping,
             const TimePoints::TimeCode& headTimecode)
    : clip_(std::make_unique<Clip>(clip)),
      ranges_(ranges),
      recording_(recording),
      looping_(looping),
      headTimecode_(headTimecode) {
    MarkAsTrain();
}

Train::Train(std::unique_ptr<Clip>&& clip, std::vector<RecordingRange>&& ranges, bool recording, bool looping,
             TimePoints::TimeCode&& headTimecode)
    : clip_(NotNull(std::move(clip))),
      ranges_(std::move(ranges)),
      recording_(recording),
      looping_(looping),
      headTimecode_(headTimecode) {
    MarkAsTrain();
}

Train::~Train() = default;

void Train::MarkAsTrain() noexcept {
    if (clip_->attribute1 == 0) {
        clip_->attribute1 = 1;
    }
}

}  // namespace Korv::Plurex::Data::Clips
