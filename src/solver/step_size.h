// SPDX-License-Identifier: GPL-3.0-or-later
// What a hit tells of its own size beyond its rung: the nodes of a chain or loop,
// how deep the branches of a forcing chain had to run, the trials Bifurcation
// made. The ladder's walk empties it before each rung; the difficulty score reads
// it after a hit. A technique that has nothing to say leaves it empty.
#pragma once

namespace tavi {

struct StepSize {
    int links = 0;   // cells of the chain or loop; for a forcing chain, the singles
                     // its branches ran through up to the conclusion, all together
    int trials = 0;  // Bifurcation: the guesses tried, the one that held included
};

}  // namespace tavi
