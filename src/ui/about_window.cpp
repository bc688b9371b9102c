// SPDX-License-Identifier: GPL-3.0-or-later
#include "ui/about_window.h"

#include <QDialogButtonBox>
#include <QHBoxLayout>
#include <QLabel>
#include <QPixmap>
#include <QTextBrowser>
#include <QVBoxLayout>

#include "ui/app_icon.h"
#include "ui/program_info.h"
#include "ui/revision_window.h"

namespace tavi::ui {

namespace {

QString Q(std::string_view text) { return QString::fromUtf8(text.data(), qsizetype(text.size())); }

}  // namespace

AboutWindow::AboutWindow(QWidget* parent) : QDialog(parent) {
    setObjectName(QStringLiteral("FormAbout"));
    setWindowTitle(QStringLiteral("About %1").arg(Q(kProgramName)));

    auto* icon = new QLabel(this);
    const qreal ratio = devicePixelRatioF();
    QPixmap picture = QPixmap::fromImage(AppIconImage(int(64 * ratio)));
    picture.setDevicePixelRatio(ratio);
    icon->setPixmap(picture);
    icon->setAlignment(Qt::AlignTop);

    auto* name = new QLabel(Q(kProgramName), this);
    name->setObjectName(QStringLiteral("LabelName"));
    QFont big = name->font();
    big.setPointSizeF(big.pointSizeF() * 1.5);
    big.setBold(true);
    name->setFont(big);
    auto* version = new QLabel(QStringLiteral("Version %1").arg(Q(kProgramVersion)), this);
    version->setObjectName(QStringLiteral("LabelVersion"));
    auto* summary =
        new QLabel(QStringLiteral("Sudoku game and puzzle workbench with explained hints"), this);
    summary->setWordWrap(true);
    // The licence in the words of the GNU GPL's own notice, with its links.
    auto* licence = new QLabel(
        QStringLiteral("%1.<br>This program is free software under the "
                       "<a href=\"https://www.gnu.org/licenses/gpl-3.0.html\">GNU General "
                       "Public License</a>, version 3 or (at your option) any later version. "
                       "It comes with ABSOLUTELY NO WARRANTY.<br><a href=\"%2\">%2</a>")
            .arg(Q(kCopyrightLine).toHtmlEscaped(), Q(kHomepage)),
        this);
    licence->setObjectName(QStringLiteral("LabelLicence"));
    licence->setWordWrap(true);
    licence->setTextFormat(Qt::RichText);
    licence->setOpenExternalLinks(true);

    auto* head = new QVBoxLayout;
    head->setSpacing(4);
    head->addWidget(name);
    head->addWidget(version);
    head->addWidget(summary);
    head->addSpacing(6);
    head->addWidget(licence);
    auto* top = new QHBoxLayout;
    top->setSpacing(16);
    top->addWidget(icon);
    top->addLayout(head, 1);

    auto* history = new QTextBrowser(this);
    history->setObjectName(QStringLiteral("TextRevision"));
    history->setHtml(RevisionHistoryHtml());
    auto* buttons = new QDialogButtonBox(QDialogButtonBox::Close, this);
    connect(buttons, &QDialogButtonBox::rejected, this, &QDialog::close);

    auto* layout = new QVBoxLayout(this);
    layout->setContentsMargins(16, 16, 16, 12);
    layout->setSpacing(12);
    layout->addLayout(top);
    layout->addWidget(history, 1);
    layout->addWidget(buttons);
    resize(520, 560);
}

}  // namespace tavi::ui
