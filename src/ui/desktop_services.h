// SPDX-License-Identifier: GPL-3.0-or-later
// The time of day for the game's clock, and opening pages with the desktop's
// default handler.
#pragma once

#include <QUrl>
#include <string>

#include "platform/platform.h"

namespace tavi::ui {

class QtTimeSource : public TimeSource {
  public:
    int SecondOfDay() const override;
};

// The URL of a page: an address with a scheme as it is, a path on disk (with an
// optional "#anchor") as a file URL.
QUrl PageUrl(const std::string& page);

// Opens web addresses as they are, and local files (with an optional "#anchor")
// as file URLs.
class DesktopPageOpener : public PageOpener {
  public:
    bool BrowserFound() const override;
    bool Open(const std::string& url) override;
};

}  // namespace tavi::ui
