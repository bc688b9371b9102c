// SPDX-License-Identifier: GPL-3.0-or-later
// SchrijfHint: the sentence that explains a hint, built from the hint record and
// the board the hint was found on. Pure: it reads both and changes neither. The
// colours that go with the sentence are PaintHint's (hints/hint_paint.h), the
// caption of the hint window HintCaption's (hints/hint_kinds.h).
#pragma once

#include <string>

#include "grid/board.h"
#include "solver/hint_record.h"

namespace tavi {

// The text for the hint box. Empty for a kind outside 1..37, which writes nothing,
// so the box keeps what it had. A form the kind does not have ends the sentence
// where the form would have been chosen.
std::string SchrijfHint(const HintRecord& hint, const Board& board);

// The record as the sentence writer leaves it: a PointingPair keeps the
// line it names, in HintRow for segments 0..2 and in HintColumn for 3..5. Every
// other field, and every other kind, comes back as it was.
HintRecord RecordAfterSchrijfHint(HintRecord hint);

}  // namespace tavi
