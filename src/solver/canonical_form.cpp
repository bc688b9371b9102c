// SPDX-License-Identifier: GPL-3.0-or-later
#include "solver/canonical_form.h"

#include <algorithm>
#include <vector>

namespace tavi {

namespace {

using Line = std::array<std::uint8_t, 9>;

// The 1,296 orders of the columns that keep the stacks: the order of the stacks,
// then the order within each. Entry j is the input column shown at place j.
const std::vector<Line>& ColumnOrders() {
    static const std::vector<Line> orders = [] {
        std::vector<Line> all;
        std::array<int, 3> stacks{0, 1, 2};
        std::array<std::array<int, 3>, 6> within;
        std::array<int, 3> p{0, 1, 2};
        for (int i = 0; i < 6; ++i, std::next_permutation(p.begin(), p.end()))
            within[i] = p;
        do {
            for (int a = 0; a < 6; ++a)
                for (int b = 0; b < 6; ++b)
                    for (int c = 0; c < 6; ++c) {
                        const std::array<int, 3> in{a, b, c};
                        Line line{};
                        for (int s = 0; s < 3; ++s)
                            for (int k = 0; k < 3; ++k)
                                line[s * 3 + k] = std::uint8_t(stacks[s] * 3 + within[in[s]][k]);
                        all.push_back(line);
                    }
        } while (std::next_permutation(stacks.begin(), stacks.end()));
        return all;
    }();
    return orders;
}

// A column order still in the running, with the relabelling its rows so far made.
struct Contender {
    std::uint16_t order;
    std::uint8_t next;  // the label the next new digit gets
    std::array<std::uint8_t, 10> label;
};

// Places the rows one by one, bands kept together, and for each placed row keeps
// only the column orders that make it smallest. A row arrangement whose rows so far
// are larger than the best found is dropped at once, so few are followed far.
class Canonicaliser {
  public:
    std::array<Line, 9> best{};
    int bestRows = 0;  // rows of `best` that hold a form found so far

    void Run(const Digits& grid) {
        grid_ = grid;
        const auto& orders = ColumnOrders();
        contenders_[0].clear();
        for (std::size_t o = 0; o < orders.size(); ++o)
            contenders_[0].push_back({std::uint16_t(o), 1, {}});
        Place(0, 0, -1);
    }

  private:
    void Place(int depth, unsigned usedRows, int band) {
        if (depth == 9) return;
        const int firstBand = depth % 3 == 0 ? 0 : band;
        const int lastBand = depth % 3 == 0 ? 2 : band;
        for (int b = firstBand; b <= lastBand; ++b)
            for (int r = b * 3; r < b * 3 + 3; ++r) {
                if (usedRows & (1u << r)) continue;
                if (depth % 3 == 0 && (usedRows & (7u << (b * 3)))) continue;
                Line row;
                if (!Narrow(depth, r, row)) continue;
                Line& bestRow = best[depth];
                if (depth >= bestRows || row < bestRow) {
                    bestRow = row;
                    bestRows = depth + 1;
                } else if (row > bestRow) {
                    continue;
                }
                Place(depth + 1, usedRows | (1u << r), b);
            }
    }

    // Fills contenders_[depth + 1] with the contenders that show input row `r`
    // smallest, and that row in `row`. False when the row is larger than the best
    // form's row at this depth (nothing is kept then).
    bool Narrow(int depth, int r, Line& row) {
        const auto& orders = ColumnOrders();
        const Line* limit = depth < bestRows ? &best[depth] : nullptr;
        Line smallest{};
        bool any = false;
        auto& kept = contenders_[depth + 1];
        kept.clear();
        for (const Contender& c : contenders_[depth]) {
            Contender n = c;
            const Line& columns = orders[c.order];
            // -1 smaller than the smallest so far, 0 equal, 1 larger: decided at the
            // first cell that differs.
            int versus = any ? 0 : -1;
            int versusLimit = limit ? 0 : -1;
            Line out;
            for (int j = 0; j < 9; ++j) {
                const std::uint8_t d = grid_[r * 9 + columns[j]];
                std::uint8_t v = 0;
                if (d) {
                    if (!n.label[d]) n.label[d] = n.next++;
                    v = n.label[d];
                }
                out[j] = v;
                if (versus == 0 && v != smallest[j]) versus = v < smallest[j] ? -1 : 1;
                if (versusLimit == 0 && v != (*limit)[j]) versusLimit = v < (*limit)[j] ? -1 : 1;
                if (versus > 0 || versusLimit > 0) break;
            }
            if (versus > 0 || versusLimit > 0) continue;
            if (versus < 0) {
                kept.clear();
                smallest = out;
                any = true;
            }
            kept.push_back(n);
        }
        row = smallest;
        return any;
    }

    Digits grid_{};
    std::array<std::vector<Contender>, 10> contenders_;
};

Digits Transposed(const Digits& grid) {
    Digits t{};
    for (int r = 0; r < 9; ++r)
        for (int c = 0; c < 9; ++c)
            t[c * 9 + r] = grid[r * 9 + c];
    return t;
}

}  // namespace

Digits CanonicalForm(const Digits& puzzle) {
    Canonicaliser c;
    c.Run(puzzle);
    c.Run(Transposed(puzzle));
    Digits form{};
    for (int r = 0; r < 9; ++r)
        std::copy(c.best[r].begin(), c.best[r].end(), form.begin() + r * 9);
    return form;
}

Digits GridSymmetry::Apply(const Digits& grid) const {
    const Digits in = transpose ? Transposed(grid) : grid;
    Digits out{};
    for (int r = 0; r < 9; ++r)
        for (int c = 0; c < 9; ++c)
            out[r * 9 + c] = digits[in[rows[r] * 9 + columns[c]]];
    return out;
}

}  // namespace tavi
