// What the game needs of the platform, as small interfaces the shell implements
// and tests script: sounds, the time of day, and opening a page in the user's
// browser. Questions and message boxes are the Prompter of grid/notifier.h.
#pragma once

#include <string>

#include "grid/notifier.h"

namespace tavi {

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
    virtual bool Open(const std::string& url) = 0;
};

}  // namespace tavi
