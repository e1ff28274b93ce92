#pragma once

#include <cstdint>

namespace Korv::Plurex::Data {

/// The outcome a server reports for a failed clip or angle-group operation. Carried as it arrives:
/// any 32-bit value is a valid OperationResult, named or not.
enum class OperationResult : std::int32_t {
    Success = 0,
    Failure = 1,
};

}  // namespace Korv::Plurex::Data
