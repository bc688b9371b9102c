// SPDX-License-Identifier: GPL-3.0-or-later
#include "ui/desktop_services.h"

#include <QDesktopServices>
#include <QProcess>
#include <QStandardPaths>
#include <QTime>
#include <QUrl>

#include "ui/qt_convert.h"

namespace tavi::ui {

int QtTimeSource::SecondOfDay() const { return QTime::currentTime().msecsSinceStartOfDay() / 1000; }

// A page is either an address with a scheme ("https://...") or a path on disk.
QUrl PageUrl(const std::string& page) {
    const QString text = ToQString(page);
    const QUrl asUrl(text);
    if (asUrl.scheme().size() > 1) return asUrl;  // one letter is a drive, not a scheme
    const qsizetype hash = text.indexOf(QLatin1Char('#'));
    QUrl url = QUrl::fromLocalFile(hash < 0 ? text : text.left(hash));
    if (hash >= 0) url.setFragment(text.mid(hash + 1));
    return url;
}

bool DesktopPageOpener::BrowserFound() const {
#if defined(Q_OS_UNIX) && !defined(Q_OS_MACOS)
    // A browser named by the user, the system's choice of one, or the
    // desktop's handler of web pages.
    if (!qEnvironmentVariableIsEmpty("BROWSER")) return true;
    if (!QStandardPaths::findExecutable(QStringLiteral("x-www-browser")).isEmpty()) return true;
    const QString mime = QStandardPaths::findExecutable(QStringLiteral("xdg-mime"));
    if (mime.isEmpty()) return false;
    for (const char* type : {"x-scheme-handler/https", "text/html"}) {
        QProcess query;
        query.start(
            mime, {QStringLiteral("query"), QStringLiteral("default"), QString::fromLatin1(type)});
        if (query.waitForFinished(3000) && query.exitCode() == 0 &&
            !query.readAllStandardOutput().trimmed().isEmpty())
            return true;
    }
    return false;
#else
    return true;
#endif
}

bool DesktopPageOpener::Open(const std::string& url) {
    return QDesktopServices::openUrl(PageUrl(url));
}

}  // namespace tavi::ui
