// SPDX-License-Identifier: GPL-3.0-or-later
#include "ui/workbench_score.h"

#include <algorithm>

#include "solver/difficulty_score.h"

namespace tavi::ui {

QString WorkbenchScoreText(const Digits& puzzle, bool busy) {
    static Digits last{};
    static QString text;
    if (std::all_of(puzzle.begin(), puzzle.end(), [](auto d) { return d == 0; })) return {};
    if (puzzle != last) {
        if (busy) return {};
        last = puzzle;
        text = QStringLiteral("Score %1")
                   .arg(QString::fromStdString(FormatScore(RatePuzzleWithScore(puzzle).score)));
    }
    return text;
}

}  // namespace tavi::ui
