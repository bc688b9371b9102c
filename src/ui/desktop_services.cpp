#include "ui/desktop_services.h"

#include <QDesktopServices>
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

bool DesktopPageOpener::Open(const std::string& url) {
    return QDesktopServices::openUrl(PageUrl(url));
}

}  // namespace tavi::ui
