// SPDX-License-Identifier: GPL-3.0-or-later
// The program's settings store: an INI file of the user, application "TaviSud1".
// Writes are gathered in memory and reach the file at Flush and when the store
// goes.
#pragma once

#include <QSettings>
#include <QString>
#include <memory>

#include "settings/settings_store.h"

namespace tavi::ui {

class QSettingsStore : public SettingsStore {
  public:
    // The user's store: TaviSud1/TaviSud1.ini in the platform's configuration
    // folder.
    QSettingsStore();
    // A store in a given file, for tests and for a portable setup.
    explicit QSettingsStore(const QString& iniFile);

    std::string Read(std::string_view section, std::string_view key,
                     std::string_view fallback) const override;
    void Write(std::string_view section, std::string_view key, std::string_view value) override;
    void Flush() override;

    QString FileName() const { return settings_->fileName(); }

  private:
    // Sets the store's Problem when the file is there but can't be read.
    void CheckReadable();

    std::unique_ptr<QSettings> settings_;
};

}  // namespace tavi::ui
