// SPDX-License-Identifier: GPL-3.0-or-later
// How the core speaks to the person: a beep and a message box with a title
// (Notifier), and questions with buttons and the input box (Prompter). The shell
// implements them with real dialogs; tests record what was said and script the
// answers.
#pragma once

#include <charconv>
#include <optional>
#include <string>
#include <string_view>

namespace tavi {

class Notifier {
  public:
    virtual ~Notifier() = default;
    virtual void Beep() = 0;
    virtual void Message(std::string_view title, std::string_view text) = 0;
};

enum class Buttons { Ok, OkCancel, YesNo, YesNoCancel, AbortRetryIgnore };
enum class Answer { Ok, Cancel, Yes, No, Abort, Retry, Ignore };
enum class Icon { None, Information, Exclamation, Question, Critical };

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

// The number at the head of an input box's answer: its leading digits, after any
// blanks; 0 when there are none. "2nd" reads 2.
inline long LeadingNumber(std::string_view text) {
    size_t i = 0;
    while (i < text.size() && text[i] == ' ')
        ++i;
    long n = 0;
    const auto result = std::from_chars(text.data() + i, text.data() + text.size(), n);
    return result.ec == std::errc() ? n : 0;
}

}  // namespace tavi
