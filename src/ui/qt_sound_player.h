// SPDX-License-Identifier: GPL-3.0-or-later
// The game's ten sounds, wave files in the program's folder played through Qt
// Multimedia. Missing files and a machine without an audio device make it
// silent: it then says it isn't available, and the game turns sounds off.
#pragma once

#include <QObject>
#include <array>
#include <filesystem>
#include <memory>

#include "platform/platform.h"

class QSoundEffect;

namespace tavi::ui {

// The files by sound id, as the game numbers them.
inline constexpr std::array<const char*, 10> kSoundFiles = {
    "applause.wav", "Patch54p.wav", "Beep2.wav",   "Boink4.wav", "Blaster_1.wav",
    "Beep5.wav",    "Beep1.wav",    "Cashreg.wav", "Error.wav",  "Giggle.wav"};

class QtSoundPlayer : public SoundPlayer {
  public:
    explicit QtSoundPlayer(const std::filesystem::path& folder);
    ~QtSoundPlayer() override;

    bool Available() const override { return available_; }
    void Play(int id) override;

  private:
    std::unique_ptr<QObject> owner_;  // parent of the effects
    std::array<QSoundEffect*, kSoundFiles.size()> effects_{};
    bool available_ = false;
};

}  // namespace tavi::ui
