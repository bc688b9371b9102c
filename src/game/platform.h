// What the game needs of the platform, as small interfaces the shell implements
// and tests script: questions and message boxes, sounds, the time of day, and
// opening a page in the user's browser.
#pragma once

#include <optional>
#include <string>
#include <string_view>

#include "grid/notifier.h"

namespace tavi {

enum class Buttons { Ok, OkCancel, YesNo, YesNoCancel, AbortRetryIgnore };
enum class Answer { Ok, Cancel, Yes, No, Abort, Retry, Ignore };
enum class Icon { None, Information, Exclamation, Question, Critical };

// The mouse buttons the game tells apart.
enum class MouseButton { Left, Right, Middle };

// Message boxes and the input box. A message box with only OK is Notifier's
// Message, so the core's routines can speak through the same object.
class Prompter : public Notifier {
  public:
    virtual Answer Ask(std::string_view title, std::string_view text, Buttons buttons,
                       Icon icon = Icon::None) = 0;
    // Nothing when the user cancels.
    virtual std::optional<std::string> Input(std::string_view title, std::string_view prompt,
                                             std::string_view defaultText) = 0;

    void Message(std::string_view title, std::string_view text) override {
        Ask(title, text, Buttons::Ok, Icon::None);
    }
};

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
    virtual bool Open(const std::string& url) = 0;
};

}  // namespace tavi
