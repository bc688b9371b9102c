// SPDX-License-Identifier: GPL-3.0-or-later
#include "ui/sud_tekst.h"

#include <QApplication>
#include <QDragEnterEvent>
#include <QDropEvent>
#include <QFontDatabase>
#include <QMimeData>
#include <QUrl>

#include "game/game.h"
#include "game/make_entry.h"
#include "ui/qt_convert.h"

namespace tavi::ui {

SudTekstLine::SudTekstLine(QWidget* parent) : QLineEdit(parent) {
    setObjectName(QStringLiteral("SudTekst"));
    setReadOnly(true);
    setAcceptDrops(false);
}

void SudTekstLine::ShowGame(const Game& game) {
    const bool making = game.MakeMode();
    setReadOnly(!making);
    setAcceptDrops(making);
    // The prompt stands as the placeholder, so that what the user types or
    // pastes is the whole text.
    const bool prompt = making && game.SudTekst() == kMakePrompt;
    setPlaceholderText(making ? ToQString(kMakePrompt) : QString());
    setToolTip(placeholderText());
    const QString text = prompt ? QString() : ToQString(game.SudTekst());
    if (this->text() != text) {
        setText(text);
        setCursorPosition(0);
    }
    FitFont();
}

void SudTekstLine::resizeEvent(QResizeEvent* e) {
    FitFont();
    QLineEdit::resizeEvent(e);
}

void SudTekstLine::FitFont() {
    const bool prompt = text().isEmpty() && !placeholderText().isEmpty();
    QFont f =
        prompt ? QApplication::font(this) : QFontDatabase::systemFont(QFontDatabase::FixedFont);
    const QString sample = prompt ? placeholderText() : QString(81, QLatin1Char('0'));
    for (int px = 15; px >= (prompt ? 7 : 8); --px) {
        f.setPixelSize(px);
        if (QFontMetrics(f).horizontalAdvance(sample) + 14 <= width()) break;
    }
    if (f != font()) setFont(f);
}

// A drag that carries files is the line's own: taken while making, refused in play.
bool SudTekstLine::AnswerFileDrag(QDragMoveEvent* e) {
    if (!e->mimeData()->hasUrls()) return false;
    if (acceptDrops())
        e->acceptProposedAction();
    else
        e->ignore();
    return true;
}

void SudTekstLine::dragEnterEvent(QDragEnterEvent* e) {
    if (!AnswerFileDrag(e)) QLineEdit::dragEnterEvent(e);
}

void SudTekstLine::dragMoveEvent(QDragMoveEvent* e) {
    if (!AnswerFileDrag(e)) QLineEdit::dragMoveEvent(e);
}

void SudTekstLine::dropEvent(QDropEvent* e) {
    if (!e->mimeData()->hasUrls()) return QLineEdit::dropEvent(e);
    std::vector<std::filesystem::path> files;
    for (const QUrl& url : e->mimeData()->urls()) {
        const QString local = url.isLocalFile() ? url.toLocalFile() : url.toString();
        files.emplace_back(local.toStdU16String());
    }
    e->acceptProposedAction();
    if (onDrop) onDrop(files);
}

}  // namespace tavi::ui
