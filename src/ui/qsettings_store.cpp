#include "ui/qsettings_store.h"

namespace tavi::ui {

namespace {

inline constexpr char kApplication[] = "TaviSud1";

QString Text(std::string_view s) { return QString::fromUtf8(s.data(), qsizetype(s.size())); }

// Sections and keys keep their own spelling in the file: "Options/TimeOn".
QString Path(std::string_view section, std::string_view key) {
    return Text(section) + QLatin1Char('/') + Text(key);
}

}  // namespace

QSettingsStore::QSettingsStore()
    : settings_(std::make_unique<QSettings>(QSettings::IniFormat, QSettings::UserScope,
                                            kApplication, kApplication)) {}

QSettingsStore::QSettingsStore(const QString& iniFile)
    : settings_(std::make_unique<QSettings>(iniFile, QSettings::IniFormat)) {}

std::string QSettingsStore::Read(std::string_view section, std::string_view key,
                                 std::string_view fallback) const {
    const QVariant value = settings_->value(Path(section, key));
    // A list or other structure written by someone else is no text of ours.
    if (!value.isValid() || !value.canConvert<QString>()) return std::string(fallback);
    return value.toString().toStdString();
}

void QSettingsStore::Write(std::string_view section, std::string_view key, std::string_view value) {
    settings_->setValue(Path(section, key), Text(value));
}

void QSettingsStore::Flush() { settings_->sync(); }

}  // namespace tavi::ui
