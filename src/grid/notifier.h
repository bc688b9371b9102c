// How the core speaks to the person: a beep and a message box with a title. The
// shell implements it with real dialogs; tests record what was said.
#pragma once

#include <string_view>

namespace tavi {

class Notifier {
  public:
    virtual ~Notifier() = default;
    virtual void Beep() = 0;
    virtual void Message(std::string_view title, std::string_view text) = 0;
};

}  // namespace tavi
