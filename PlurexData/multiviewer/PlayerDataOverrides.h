#pragma once

#include "PlurexData/Export.h"

#include <cstdint>
#include <optional>
#include <string>
#include <utility>

namespace Korv::Plurex::Multiviewer {

/// What a client overrides of what a multiviewer shows or assumes for one player. Each override is
/// either absent (the multiviewer's own value applies) or present with its value.
class PLUREXDATA_API PlayerDataOverrides {
public:
    /// Who controls the player.
    enum class ControlType : std::int32_t { Local = 0, Remote = 1 };
    /// What the player's output is used for.
    enum class ProgramType : std::int32_t { Program = 0, Preview = 1 };

    /// Every override absent.
    PlayerDataOverrides() = default;

    /// The clip-creation in override; setting makes it present, Disable absent.
    ///@{
    std::optional<unsigned int> ClipCreationIn() const { return clipCreationIn_; }
    void ClipCreationIn(const unsigned int& value) { clipCreationIn_ = value; }
    void DisableClipCreationIn() noexcept { clipCreationIn_.reset(); }
    ///@}

    /// The clip-creation out override; setting makes it present, Disable absent.
    ///@{
    std::optional<unsigned int> ClipCreationOut() const { return clipCreationOut_; }
    void ClipCreationOut(const unsigned int& value) { clipCreationOut_ = value; }
    void DisableClipCreationOut() noexcept { clipCreationOut_.reset(); }
    ///@}

    /// The override of whether the player is the first controlled media output; setting makes it
    /// present, Disable absent.
    ///@{
    std::optional<bool> IsFirstControlledMediaOutput() const { return isFirstControlledMediaOutput_; }
    void IsFirstControlledMediaOutput(bool value) { isFirstControlledMediaOutput_ = value; }
    void DisableIsFirstControlledMediaOutput() noexcept { isFirstControlledMediaOutput_.reset(); }
    ///@}

    /// The override of who controls the player; setting makes it present, Disable absent.
    ///@{
    std::optional<ControlType> ControlMode() const { return controlMode_; }
    void ControlMode(ControlType value) { controlMode_ = value; }
    void DisableControlMode() noexcept { controlMode_.reset(); }
    ///@}

    /// The override of what the player's output is used for; setting makes it present, Disable
    /// absent.
    ///@{
    std::optional<ProgramType> ProgramMode() const { return programMode_; }
    void ProgramMode(ProgramType value) { programMode_ = value; }
    void DisableProgramMode() noexcept { programMode_.reset(); }
    ///@}

    /// The override of whether post-roll is enabled; setting makes it present, Disable absent.
    ///@{
    std::optional<bool> IsPostRollEnabled() const { return isPostRollEnabled_; }
    void IsPostRollEnabled(bool value) { isPostRollEnabled_ = value; }
    void DisableIsPostRollEnabled() noexcept { isPostRollEnabled_.reset(); }
    ///@}

    /// The message override.
    ///@{
    /// A copy of the message, when present.
    std::optional<std::string> Message() const { return message_; }
    /// Makes the message present with `value`.
    void Message(std::string value) { message_ = std::move(value); }
    /// Marks the message absent and releases its text.
    void DisableMessage() noexcept { message_.reset(); }
    ///@}

private:
    std::optional<unsigned int> clipCreationIn_;
    std::optional<unsigned int> clipCreationOut_;
    std::optional<bool> isFirstControlledMediaOutput_;
    std::optional<ControlType> controlMode_;
    std::optional<ProgramType> programMode_;
    std::optional<bool> isPostRollEnabled_;
    std::optional<std::string> message_;
};

}  // namespace Korv::Plurex::Multiviewer
