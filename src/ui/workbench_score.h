// SPDX-License-Identifier: GPL-3.0-or-later
// The difficulty score of the workbench's puzzle, shown under its number. Rated
// once per puzzle and kept, and not while a batch runs.
#pragma once

#include <QString>

#include "grid/board.h"

namespace tavi::ui {

// "Score 6.4" for `puzzle`, or empty for an empty board or while `busy`.
QString WorkbenchScoreText(const Digits& puzzle, bool busy);

}  // namespace tavi::ui
