// SPDX-License-Identifier: GPL-3.0-or-later
// What the game needs of the platform, as small interfaces the shell implements
// and tests script: questions and message boxes, sounds, the time of day, and
// opening a page in the user's browser.
#pragma once

#include <optional>
#include <string>
#include <string_view>

#include "platform/notifier.h"

namespace tavi {

// The mouse buttons the game tells apart.
enum class MouseButton { Left, Right, Middle };

// Sound ids of the game.
enum Sound : int {
    kSoundSolved = 0,       // "applause.wav"
    kSoundMarkRemoved = 1,  // "Patch54p.wav"
    kSoundPlaced = 2,       // "Beep2.wav"
    kSoundResetCell = 3,    // "Boink4.wav"
    kSoundSolution = 4,     // "Blaster_1.wav"
    kSoundHeader = 5,       // "Beep5.wav"
    kSoundUndoRedo = 6,     // "Beep1.wav"
    kSoundPenalty = 7,      // "Cashreg.wav"
    kSoundWrongNumber = 8,  // "Error.wav"
    kSoundStillMarked = 9,  // "Giggle.wav"
};

// The ten sounds of the game, by id; see Speel.
class SoundPlayer {
  public:
    virtual ~SoundPlayer() = default;
    virtual bool Available() const = 0;
    virtual void Play(int id) = 0;
};

// The time of day, as the clock reads it.
class TimeSource {
  public:
    virtual ~TimeSource() = default;
    virtual int SecondOfDay() const = 0;  // 0..86399
};

// Opens a page or a file with the system's default handler.
class PageOpener {
  public:
    virtual ~PageOpener() = default;
    // Whether a browser is there at all to open pages with.
    virtual bool BrowserFound() const { return true; }
    virtual bool Open(const std::string& url) = 0;
};

}  // namespace tavi
