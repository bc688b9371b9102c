// SPDX-License-Identifier: GPL-3.0-or-later
#include "ui/hint_window.h"

#include <QApplication>
#include <QDir>
#include <QFileDialog>
#include <QFileInfo>
#include <QGuiApplication>
#include <QMenuBar>
#include <QMoveEvent>
#include <QPainter>
#include <QPrintDialog>
#include <QPrinter>
#include <QRegularExpression>
#include <QScreen>
#include <QStandardPaths>
#include <QStyle>

#include <algorithm>
#include <tuple>

#include "hints/hint_kinds.h"
#include "ui/qt_convert.h"

namespace tavi::ui {

namespace {

// The board of the window: it draws the copy it is given and nothing else.
class SnapshotView : public QWidget {
  public:
    SnapshotView(const HintSnapshot& snapshot, QWidget* parent)
        : QWidget(parent), snapshot_(snapshot) {
        setObjectName(QStringLiteral("Picture1"));
        setAttribute(Qt::WA_OpaquePaintEvent);
        setSizePolicy(QSizePolicy::Expanding, QSizePolicy::Expanding);
    }
    QSize sizeHint() const override { return {400, 400}; }
    QSize minimumSizeHint() const override { return {190, 190}; }

  protected:
    void paintEvent(QPaintEvent*) override {
        QPainter p(this);
        p.fillRect(rect(), palette().window());
        BoardGeometry fit;
        fit.FitIn(rect().adjusted(4, 4, -4, -4), true);
        PaintBoard(p, fit, snapshot_, ScreenLook(palette()));
    }

  private:
    const HintSnapshot& snapshot_;
};

}  // namespace

HintWindow::HintWindow(const Game& game, LibraryFolders folders, QWidget* parent)
    : QMainWindow(parent, Qt::Window), game_(game), folders_(std::move(folders)) {
    setObjectName(QStringLiteral("FormHint"));
    setWindowTitle(ToQString(kMainDuplicateCaption));
    board_ = new SnapshotView(snapshot_, this);
    setCentralWidget(board_);

    QMenu* menu = menuBar()->addMenu(QStringLiteral("&Window"));
    menu->setObjectName(QStringLiteral("mnuWindow"));
    const auto item = [&](const char* name, const char* caption, auto slot) {
        QAction* a = menu->addAction(QString::fromLatin1(caption));
        a->setObjectName(QString::fromLatin1(name));
        connect(a, &QAction::triggered, this, slot);
    };
    item("mnuWindowRefresh", "&Refresh", [this] { Refresh(); });
    item("mnuWindowSave", "&Save as BMP", [this] { SaveAsBmp(); });
    item("mnuWindowPrint", "&Print", [this] { Print(); });
    item("mnuWindowClose", "&Close", [this] { close(); });

    askPath_ = [this](const QString& title, const QString& suggested) -> std::optional<QString> {
        const QString answer =
            QFileDialog::getSaveFileName(this, title, suggested, QString::fromLatin1(kBmpFilter));
        if (answer.isEmpty()) return std::nullopt;
        return answer;
    };
    TakeSnapshot();
    adjustSize();
}

void HintWindow::TakeSnapshot() {
    snapshot_ = SnapshotOf(game_);
    board_->update();
}

void HintWindow::ShowHint() {
    TakeSnapshot();
    const std::string& caption = game_.HintWindowCaption();
    setWindowTitle(ToQString(caption.empty() ? kMainDuplicateCaption : caption));
    Present();
}

void HintWindow::Present() {
    if (!isVisible()) Place();
    show();
    raise();
}

namespace {

long Overlap(const QRect& a, const QRect& b) {
    const QRect both = a.intersected(b);
    return both.isEmpty() ? 0 : long(both.width()) * both.height();
}

// How much a window at `r` hides: of what must stay clear, of what had better
// stay clear, of the game window.
using Hidden = std::tuple<long, long, long>;

Hidden HiddenBy(const QRect& r, const QRect& mainFrame, const std::vector<QRect>& keepClear,
                const std::vector<QRect>& rather) {
    long keep = 0, better = 0;
    for (const QRect& k : keepClear)
        keep += Overlap(r, k);
    for (const QRect& k : rather)
        better += Overlap(r, k);
    return {keep, better, Overlap(r, mainFrame)};
}

// The best place of a window of `size` among places along the screen's edges
// and beside every part to keep clear.
std::pair<Hidden, QPoint> BestPlace(const QRect& mainFrame, const QSize& size, const QRect& free,
                                    const std::vector<QRect>& keepClear,
                                    const std::vector<QRect>& rather) {
    constexpr int kGap = 8;
    const int w = size.width(), h = size.height();
    std::vector<int> xs = {free.left(), free.right() + 1 - w, mainFrame.left(),
                           mainFrame.right() + 1 - w};
    std::vector<int> ys = {free.top(), free.bottom() + 1 - h, mainFrame.top(),
                           mainFrame.bottom() + 1 - h};
    for (const auto* list : {&keepClear, &rather})
        for (const QRect& r : *list) {
            xs.insert(xs.end(), {r.right() + 1 + kGap, r.left() - kGap - w, r.left()});
            ys.insert(ys.end(), {r.bottom() + 1 + kGap, r.top() - kGap - h, r.top()});
        }
    auto clampTo = [](int v, int low, int high) { return std::max(low, std::min(v, high)); };
    std::optional<std::pair<Hidden, QPoint>> best;
    for (int x : xs)
        for (int y : ys) {
            const QPoint at(clampTo(x, free.left(), free.right() + 1 - w),
                            clampTo(y, free.top(), free.bottom() + 1 - h));
            const Hidden hidden = HiddenBy(QRect(at, size), mainFrame, keepClear, rather);
            // Ties go to the lower right, where the game window keeps the least.
            if (!best || hidden < best->first ||
                (hidden == best->first && at.x() + at.y() > best->second.x() + best->second.y()))
                best = {hidden, at};
        }
    return *best;
}

}  // namespace

QRect HintWindowPlace(const QRect& mainFrame, const QSize& hintFrame, const QRect& screenFree,
                      const std::vector<QRect>& keepClear, QSize smallest,
                      const std::vector<QRect>& rather) {
    constexpr int kGap = 8;
    const int top =
        std::clamp(mainFrame.top(), screenFree.top(),
                   std::max(screenFree.top(), screenFree.bottom() + 1 - hintFrame.height()));
    const int right = mainFrame.right() + 1 + kGap;
    if (right + hintFrame.width() <= screenFree.right() + 1 &&
        hintFrame.height() <= screenFree.height())
        return {QPoint(right, top), hintFrame};
    const int left = mainFrame.left() - kGap - hintFrame.width();
    if (left >= screenFree.left() && hintFrame.height() <= screenFree.height())
        return {QPoint(left, top), hintFrame};
    // No room beside: over the game window where it hides the least, and
    // smaller (down to 60 %) when that hides less.
    const QSize fitting = hintFrame.boundedTo(screenFree.size());
    smallest = smallest.expandedTo(fitting * 0.6).boundedTo(fitting);
    auto best = BestPlace(mainFrame, fitting, screenFree, keepClear, rather);
    QSize size = fitting;
    for (int step = 1; (std::get<0>(best.first) > 0 || std::get<1>(best.first) > 0) && step <= 6;
         ++step) {
        const QSize smaller(fitting.width() - (fitting.width() - smallest.width()) * step / 6,
                            fitting.height() - (fitting.height() - smallest.height()) * step / 6);
        const auto there = BestPlace(mainFrame, smaller, screenFree, keepClear, rather);
        const auto key = [](const Hidden& h) { return std::pair(std::get<0>(h), std::get<1>(h)); };
        if (key(there.first) < key(best.first)) {
            best = there;
            size = smaller;
        }
    }
    return {best.second, size};
}

void HintWindow::SetStore(SettingsStore* store) {
    store_ = store;
    if (!store_ || placed_) return;
    bool okX = false, okY = false;
    const int x = QString::fromStdString(store_->Read("FormHint", "Left", "")).toInt(&okX);
    const int y = QString::fromStdString(store_->Read("FormHint", "Top", "")).toInt(&okY);
    if (okX && okY) placed_ = QPoint(x, y);
}

void HintWindow::Place() {
    const QWidget* main = parentWidget() ? parentWidget()->window() : nullptr;
    QScreen* screen = main ? main->screen() : this->screen();
    if (!screen) return;
    // Before the first showing the window manager has not told the frame yet:
    // a title bar and borders are reckoned with, so the frame stays on screen.
    QSize decoration = frameGeometry().size().expandedTo(size()) - size();
    if (decoration.isNull()) {
        const int border = style()->pixelMetric(QStyle::PM_MdiSubWindowFrameWidth);
        decoration =
            QSize(2 * border, style()->pixelMetric(QStyle::PM_TitleBarHeight) + 2 * border);
    }
    const QSize frame = size() + decoration;
    const QRect free = screen->availableGeometry();
    const std::vector<QRect> keepClear = keepClear_ ? keepClear_() : std::vector<QRect>{};
    if (placed_) {
        // The person's place, while it is wholly on a screen and hides neither
        // the board nor the hint text; else it is dropped.
        const QRect there(*placed_, frame);
        const QScreen* on = QGuiApplication::screenAt(there.center());
        bool clear = on && on->availableGeometry().contains(there);
        for (const QRect& k : keepClear)
            clear = clear && !there.intersects(k);
        if (clear) {
            placing_ = true;
            move(*placed_);
            placing_ = false;
            return;
        }
        placed_.reset();
    }
    if (!main) return;
    const std::vector<QRect> rather = rather_ ? rather_() : std::vector<QRect>{};
    const QRect at = HintWindowPlace(main->frameGeometry(), frame, free, keepClear,
                                     minimumSizeHint() + decoration, rather);
    placing_ = true;
    if (at.size() != frame) resize(at.size() - decoration);
    move(at.topLeft());
    placing_ = false;
}

void HintWindow::moveEvent(QMoveEvent* e) {
    QMainWindow::moveEvent(e);
    // Only a move by the person counts, of a window on the screen.
    if (placing_ || !isVisible() || !e->spontaneous()) return;
    placed_ = pos();
    if (store_) {
        store_->Write("FormHint", "Left", std::to_string(placed_->x()));
        store_->Write("FormHint", "Top", std::to_string(placed_->y()));
    }
}

void HintWindow::Refresh() {
    TakeSnapshot();
    setWindowTitle(ToQString(kMainDuplicateCaption));
}

QImage HintWindow::Picture() {
    // Let pending paints land first, so the picture is what the window shows.
    QApplication::processEvents();
    return grab().toImage();
}

QString PictureFileName(QString answer) {
    answer = answer.trimmed();
    if (answer.endsWith(QStringLiteral(".bmp"), Qt::CaseInsensitive)) answer.chop(4);
    static const QRegularExpression kForbidden(QStringLiteral(R"([/\\:*?"<>|\x00-\x1f])"));
    answer.replace(kForbidden, QStringLiteral("-"));
    return answer;
}

QString SuggestedPictureName(const QString& caption, const QString& folder) {
    const QString prefix = ToQString(kHintCaptionPrefix);
    const QString stem =
        PictureFileName(caption.startsWith(prefix) ? caption.mid(prefix.size()) : caption);
    for (int n = 1;; ++n) {
        const QString name = QStringLiteral("%1_%2").arg(stem).arg(n, 4, 10, QLatin1Char('0'));
        if (folder.isEmpty() || !QFileInfo::exists(QDir(folder).filePath(name + ".bmp")))
            return name;
    }
}

QString HintWindow::PictureFolder() const {
    if (!pictureFolder_.isEmpty()) return pictureFolder_;
    if (store_) {
        const QString kept =
            QString::fromStdString(store_->Read(kPictureFolderSection, kPictureFolderKey, ""));
        if (!kept.isEmpty()) return kept;
    }
    const QString pictures = QStandardPaths::writableLocation(QStandardPaths::PicturesLocation);
    return pictures.isEmpty() ? QDir::homePath() : pictures;
}

QString HintWindow::SaveAsBmp() {
    const QString folder = PictureFolder();
    const auto answer = askPath_(QString::fromLatin1(kSaveAsTitle),
                                 QDir(folder).filePath(SuggestedPictureName(windowTitle(), folder) +
                                                       QStringLiteral(".bmp")));
    if (!answer) return {};
    const QFileInfo chosen(*answer);
    const QString name = PictureFileName(chosen.fileName());
    if (name.isEmpty()) return {};
    const QString dir = chosen.absolutePath();
    // The folder is made only now, for a picture that is written.
    if (!QDir().mkpath(dir)) return {};
    const QString file = QDir(dir).filePath(name + QStringLiteral(".bmp"));
    if (!Picture().save(file, "BMP")) return {};
    pictureFolder_ = dir;
    if (store_) store_->Write(kPictureFolderSection, kPictureFolderKey, dir.toStdString());
    return file;
}

bool HintWindow::PrintTo(QPrinter& printer) {
    const QImage picture = Picture();
    QPainter painter;
    if (!painter.begin(&printer)) return false;
    const QRect page = painter.viewport();
    const QSize size = picture.size().scaled(page.size(), Qt::KeepAspectRatio);
    painter.drawImage(QRect(page.topLeft(), size), picture);
    return painter.end();
}

void HintWindow::Print() {
    QPrinter printer(QPrinter::HighResolution);
    QPrintDialog dialog(&printer, this);
    // A cancel ends the command without a word.
    if (dialog.exec() != QDialog::Accepted) return;
    PrintTo(printer);
}

}  // namespace tavi::ui
