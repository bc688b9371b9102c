// The techniques that are not built yet. Each stands in the ladder already and
// answers that it found nothing, so a rating simply goes on to the next rung.
// When a technique lands, its routine moves from here to the file of its family.
#include "solver/techniques.h"

namespace tavi {

bool XWing(SolveContext&) { return false; }
bool SwordFish(SolveContext&) { return false; }
bool MultiXWing(SolveContext&) { return false; }
bool EmptyRectangle(SolveContext&) { return false; }
bool XYWing(SolveContext&) { return false; }
bool TwoStringKite(SolveContext&) { return false; }
bool Skyscraper(SolveContext&) { return false; }
bool XYZWing(SolveContext&) { return false; }
bool JellyFish(SolveContext&) { return false; }
bool WXYZWing(SolveContext&) { return false; }
bool FinnedXWing(SolveContext&) { return false; }
bool SueDeCoq(SolveContext&) { return false; }
bool APE(SolveContext&) { return false; }
bool UniqueRectangle(SolveContext&) { return false; }
bool AvoidableRectangle(SolveContext&) { return false; }
bool ExtendedAPE(SolveContext&) { return false; }
bool BUG(SolveContext&) { return false; }
bool ATE(SolveContext&) { return false; }
bool ALSxz(SolveContext&) { return false; }
bool MultiFish(SolveContext&) { return false; }
bool Forcing(SolveContext&) { return false; }
bool ExtendedATE(SolveContext&) { return false; }

}  // namespace tavi
