// SPDX-License-Identifier: GPL-3.0-or-later
// Aligned exclusion: list every way two (or three) cells that see each other can
// hold their digits, strike each way that would leave a cell, or a group of cells,
// that sees all of them without enough digits, and remove the digits that no way
// is left for.
#include "solver/primitives.h"
#include "solver/techniques.h"

namespace tavi {

namespace {

// The cells that struck something, in the order they first did, for the hint. A
// cell is listed once, and at most the 13 cells that see two aligned cells can
// strike, so the list can't run full.
struct Reducers {
    int cells[81];
    int n = 0;
    CellSet listed;
    void Add(int c) {
        if (listed.Has(c)) return;
        listed.Add(c);
        cells[n++] = c;
    }
};

bool Open(const Board& b, int c) { return b.CurrentGrid[c] == 0 && b.Candidates[c] != 0; }

// ---------------------------------------------------------------- pairs

struct PairTable {
    bool allowed[10][10] = {};

    PairTable(const Board& b, int a, int c) {
        for (int x : b.CandidatesOf(a))
            for (int y : b.CandidatesOf(c))
                allowed[x][y] = x != y;
    }
    // Strikes (x, y) and (y, x) for the digits x != y of `digits`; true if any was allowed.
    bool StrikeWithin(CandidateMask digits) {
        bool struck = false;
        for (int x : DigitSet(digits))
            for (int y : DigitSet(digits))
                if (allowed[x][y]) struck = true, allowed[x][y] = false;
        return struck;
    }
};

// Rule of the bi-value cell: a seen cell of exactly {x, y} would be empty if the
// pair took x and y, in either order.
void StrikeByBiValues(const Board& b, PairTable& t, const int* seen, int n, Reducers& r) {
    for (int k = 0; k < n; ++k) {
        const int c = seen[k];
        if (CountDigits(b.Candidates[c]) == 2 && t.StrikeWithin(b.Candidates[c])) r.Add(c);
    }
}

// Removes what is left without a partner; positive digits from the first cell,
// negative from the second, in the order they go.
int RemoveUnpartnered(SolveContext& ctx, const PairTable& t, int a, int c, int (&values)[18]) {
    int n = 0;
    for (int x : ctx.board.CandidatesOf(a)) {
        bool partner = false;
        for (int y = 1; y <= 9; ++y)
            partner |= t.allowed[x][y];
        if (!partner && VerwijderKnop(ctx, x, a)) values[n++] = x;
    }
    for (int y : ctx.board.CandidatesOf(c)) {
        bool partner = false;
        for (int x = 1; x <= 9; ++x)
            partner |= t.allowed[x][y];
        if (!partner && VerwijderKnop(ctx, y, c)) values[n++] = -y;
    }
    return n;
}

// The record of AlignedPairExclusion and AlignedTripleExclusion. HintCells[1..] the pair or
// triple and then the reducing cells, HintCellCount counting all.
// HintValues[1..HintValueCount] the digits that go, each naming its cell: for a pair the
// digit of the first cell and the negated digit of the second; for a triple the digit plus
// 10 for the second cell and plus 100 for the third. HintVariant for a pair: 0 when it
// shares one unit, 1 a row and a box (HintRow the row, HintColumn the box's top left cell),
// 2 a column and a box (HintColumn the column, HintRow the box's top left cell), 3 and 4
// the same when extended, with the stack or band number for the box. For a triple: 1 the
// row pass, 2 the column pass, 3 and 4 extended.
void FillExclusion(SolveContext& ctx, HintKind kind, int variant, int row, int column,
                   const int* cells, int size, const Reducers& r, const int* values, int count) {
    HintRecord& h = ctx.hint;
    h.HintVariant = variant;
    h.HintRow = row;
    h.HintColumn = column;
    int n = 0;
    for (int k = 0; k < size; ++k)
        h.HintCells[++n] = cells[k];
    for (int k = 0; k < r.n && n < HintRecord::kListSize; ++k)
        h.HintCells[++n] = r.cells[k];
    h.HintCellCount = n;
    for (int k = 0; k < count; ++k)
        h.HintValues[k + 1] = values[k];
    h.HintValueCount = count;
    h.HintKind = kind;
}

// The cells of `units` (up to three, in the order given) other than `skip`, each once.
int SeenCells(const int* units, int count, CellSet skip, int (&out)[27]) {
    int n = 0;
    for (int u = 0; u < count; ++u)
        for (int c : UnitCells[units[u]])
            if (!skip.Has(c)) {
                skip.Add(c);
                out[n++] = c;
            }
    return n;
}

// True if striking every pair of digits within each of `masks` leaves a digit of
// cell a or cell c without a partner in the other, which is what RemoveUnpartnered
// would then find.
bool LeavesUnpartnered(CandidateMask a, CandidateMask c, const CandidateMask* masks, int n) {
    CandidateMask struck[10] = {};  // per digit, the partners some mask takes from it
    for (int k = 0; k < n; ++k)
        for (CandidateMask m = masks[k]; m; m &= m - 1) {
            const int x = LowestDigit(m);
            struck[x] |= CandidateMask(masks[k] & ~DigitBit(x));
        }
    for (int x : DigitSet(a))
        if (!(c & ~DigitBit(x) & ~struck[x])) return true;
    for (int y : DigitSet(c))
        if (!(a & ~DigitBit(y) & ~struck[y])) return true;
    return false;
}

// ---------------------------------------------------------------- triples

// Every way three cells can hold three different digits, with its digits as a mask.
struct TripleTable {
    struct Way {
        std::uint8_t digit[3];
        CandidateMask mask;
        bool allowed;
    };
    Way ways[9 * 8 * 7];
    int n = 0;

    TripleTable(const Board& b, const int (&cells)[3]) {
        for (int x : b.CandidatesOf(cells[0]))
            for (int y : b.CandidatesOf(cells[1]))
                for (int z : b.CandidatesOf(cells[2]))
                    if (x != y && x != z && y != z)
                        ways[n++] = {{std::uint8_t(x), std::uint8_t(y), std::uint8_t(z)},
                                     CandidateMask(DigitBit(x) | DigitBit(y) | DigitBit(z)),
                                     true};
    }
    // Strikes every way that leaves fewer than `cells` digits of `digits`: a group
    // of that many cells that see each other and the triple, holding only `digits`,
    // would be short of a digit. True if any way was still allowed.
    bool StrikeShort(CandidateMask digits, int cells) {
        bool struck = false;
        for (int k = 0; k < n; ++k)
            if (ways[k].allowed && CountDigits(CandidateMask(digits & ~ways[k].mask)) < cells)
                struck = true, ways[k].allowed = false;
        return struck;
    }
};

// The two parts of what all three cells of a line segment see: the rest of the
// line, and the rest of the box.
struct SeenParts {
    int cells[2][6];
    int n[2] = {0, 0};
};

bool AlignedTriple(SolveContext& ctx, const int (&triple)[3], int line, int box, bool extended,
                   int variant, int row, int column) {
    const Board& b = ctx.board;
    for (int c : triple)
        if (!Open(b, c)) return false;
    TripleTable t(b, triple);
    const CellSet skip = CellSet::FromCells(triple);
    SeenParts parts;
    for (int part = 0; part < 2; ++part)
        for (int c : UnitCells[part == 0 ? line : box])
            if (!skip.Has(c) && Open(b, c)) parts.cells[part][parts.n[part]++] = c;
    Reducers r;
    // A cell of two digits is emptied when the triple takes both, whichever two
    // places they stand in (the third is a wildcard); a cell of three when the
    // triple takes all three.
    for (int part = 0; part < 2; ++part)
        for (int k = 0; k < parts.n[part]; ++k) {
            const int c = parts.cells[part][k];
            const int count = CountDigits(b.Candidates[c]);
            if ((count == 2 || count == 3) && t.StrikeShort(b.Candidates[c], 1)) r.Add(c);
        }
    // Extended: two or three cells of one part see each other, so they need as many
    // different digits; with no more than 4 (or 5) between them, a triple taking
    // enough of those leaves them short.
    if (extended)
        for (int part = 0; part < 2; ++part) {
            const int* cells = parts.cells[part];
            const int n = parts.n[part];
            auto small = [&](int c) {
                const int count = CountDigits(b.Candidates[c]);
                return count >= 2 && count <= 5;
            };
            for (int p = 0; p < n; ++p) {
                if (!small(cells[p])) continue;
                for (int q = p + 1; q < n; ++q) {
                    if (!small(cells[q])) continue;
                    const CandidateMask two = b.Candidates[cells[p]] | b.Candidates[cells[q]];
                    if (CountDigits(two) <= 4 && t.StrikeShort(two, 2))
                        r.Add(cells[p]), r.Add(cells[q]);
                    for (int s = q + 1; s < n; ++s) {
                        if (!small(cells[s])) continue;
                        const CandidateMask three = two | b.Candidates[cells[s]];
                        if (CountDigits(three) <= 5 && t.StrikeShort(three, 3))
                            r.Add(cells[p]), r.Add(cells[q]), r.Add(cells[s]);
                    }
                }
            }
        }
    int values[27];
    int count = 0;
    for (int place = 0; place < 3; ++place)
        for (int d : b.CandidatesOf(triple[place])) {
            bool kept = false;
            for (int k = 0; k < t.n && !kept; ++k)
                kept = t.ways[k].allowed && t.ways[k].digit[place] == d;
            if (!kept && VerwijderKnop(ctx, d, triple[place]))
                values[count++] = d + (place == 1 ? 10 : place == 2 ? 100 : 0);
        }
    if (!count) return false;
    if (ctx.HintOnly())
        FillExclusion(ctx, HintKind::AlignedTripleExclusion, variant, row, column, triple, 3, r,
                      values, count);
    return true;
}

// Rows, then columns: the three cells where a line crosses a box.
bool TripleExclusion(SolveContext& ctx, bool extended) {
    for (int pass = 0; pass < 2; ++pass)
        for (int line = 0; line < 9; ++line)
            for (int segment = 0; segment < 3; ++segment) {
                ctx.Yield();
                int triple[3];
                for (int k = 0; k < 3; ++k)
                    triple[k] =
                        pass == 0 ? 9 * line + 3 * segment + k : 9 * (3 * segment + k) + line;
                const int box = 18 + Global::BoxOfCell[triple[0]];
                const int variant = (pass == 0 ? 1 : 2) + (extended ? 2 : 0);
                const int row = pass == 0 ? line : segment, column = pass == 0 ? segment : line;
                if (AlignedTriple(ctx, triple, pass == 0 ? line : 9 + line, box, extended, variant,
                                  row, column))
                    return true;
            }
    return false;
}

}  // namespace

// Every pair of open cells that see each other, the first cell first. The cells
// both see are those of the units they share; only their bi-value cells strike.
bool APE(SolveContext& ctx) {
    const Board& b = ctx.board;
    CellSet biValue;
    for (int x = 0; x < 81; ++x)
        if (CountDigits(b.Candidates[x]) == 2) biValue.Add(x);
    for (int a = 0; a < 80; ++a) {
        if (!Open(b, a)) continue;
        for (int c = a + 1; c < 81; ++c) {
            if (!Open(b, c) || !SeesCell(a, c)) continue;
            // Without a bi-value cell that both see nothing is struck, and only a
            // cell of one digit could leave the other without a partner.
            const CellSet striking = PeerSet(a) & PeerSet(c) & biValue;
            if (striking.Empty() && CountDigits(b.Candidates[a]) > 1 &&
                CountDigits(b.Candidates[c]) > 1)
                continue;
            // The pair is worked out in full only if it can remove something.
            {
                CandidateMask masks[20];
                int m = 0;
                for (int x : striking)
                    masks[m++] = b.Candidates[x];
                if (!LeavesUnpartnered(b.Candidates[a], b.Candidates[c], masks, m)) continue;
            }
            const bool sameRow = a / 9 == c / 9, sameColumn = a % 9 == c % 9;
            const bool sameBox = Global::BoxOfCell[a] == Global::BoxOfCell[c];
            int units[3], k = 0;
            if (sameRow) units[k++] = a / 9;
            if (sameColumn) units[k++] = 9 + a % 9;
            if (sameBox) units[k++] = 18 + Global::BoxOfCell[a];
            const CellSet skip = CellSet::Of(a, c);
            int seen[27];
            const int n = SeenCells(units, k, skip, seen);
            PairTable t(b, a, c);
            Reducers r;
            StrikeByBiValues(b, t, seen, n, r);
            int values[18];
            const int count = RemoveUnpartnered(ctx, t, a, c, values);
            if (!count) continue;
            if (ctx.HintOnly()) {
                const int leftTop = Global::BoxLeftTopOfCell[a];
                const int variant = sameBox ? (sameRow ? 1 : sameColumn ? 2 : 0) : 0;
                const int row = variant == 1 ? a / 9 : variant == 2 ? leftTop : ctx.hint.HintRow;
                const int column = variant == 1   ? leftTop
                                   : variant == 2 ? a % 9
                                                  : ctx.hint.HintColumn;
                const int pair[2] = {a, c};
                FillExclusion(ctx, HintKind::AlignedPairExclusion, variant, row, column, pair, 2, r,
                              values, count);
            }
            return true;
        }
    }
    return false;
}

// Pairs inside the segment where a row (then a column) crosses a box. Besides the
// bi-value cells, two cells of the line or of the box that see each other and hold
// no more than three digits between them strike every pair of those digits: with
// two of the three gone, they would be left one digit for two cells.
bool ExtendedAPE(SolveContext& ctx) {
    const Board& b = ctx.board;
    for (int pass = 0; pass < 2; ++pass)
        for (int line = 0; line < 9; ++line)
            for (int segment = 0; segment < 3; ++segment)
                for (int p = 0; p < 2; ++p)
                    for (int q = p + 1; q < 3; ++q) {
                        auto at = [&](int k) {
                            return pass == 0 ? 9 * line + 3 * segment + k
                                             : 9 * (3 * segment + k) + line;
                        };
                        const int a = at(p), c = at(q);
                        if (!Open(b, a) || !Open(b, c)) continue;
                        const int lineUnit = pass == 0 ? line : 9 + line;
                        const int boxUnit = 18 + Global::BoxOfCell[a];
                        const CellSet skip = CellSet::Of(a, c);
                        // The pair is worked out in full only if it can remove
                        // something: the masks below are the ones struck there.
                        {
                            CandidateMask masks[20 + 2 * 36];
                            int k = 0;
                            const CellSet around = (UnitSet(lineUnit) | UnitSet(boxUnit)) - skip;
                            for (int x : around)
                                if (CountDigits(b.Candidates[x]) == 2) masks[k++] = b.Candidates[x];
                            for (int unit : {lineUnit, boxUnit}) {
                                CandidateMask small[9];
                                int m = 0;
                                for (int x : UnitCells[unit]) {
                                    const int count = CountDigits(b.Candidates[x]);
                                    if (!skip.Has(x) && !b.CurrentGrid[x] &&
                                        (count == 2 || count == 3))
                                        small[m++] = b.Candidates[x];
                                }
                                for (int i = 0; i < m; ++i)
                                    for (int j = i + 1; j < m; ++j)
                                        if (CountDigits(CandidateMask(small[i] | small[j])) == 3)
                                            masks[k++] = CandidateMask(small[i] | small[j]);
                            }
                            if (!LeavesUnpartnered(b.Candidates[a], b.Candidates[c], masks, k))
                                continue;
                        }
                        PairTable t(b, a, c);
                        Reducers r;
                        int seen[27];
                        const int units[2] = {lineUnit, boxUnit};
                        const int n = SeenCells(units, 2, skip, seen);
                        StrikeByBiValues(b, t, seen, n, r);
                        for (int unit : {lineUnit, boxUnit}) {
                            int cells[9], m = 0;
                            for (int x : UnitCells[unit]) {
                                const int count = CountDigits(b.Candidates[x]);
                                if (!skip.Has(x) && !b.CurrentGrid[x] && (count == 2 || count == 3))
                                    cells[m++] = x;
                            }
                            for (int i = 0; i < m; ++i)
                                for (int j = i + 1; j < m; ++j) {
                                    const CandidateMask both =
                                        b.Candidates[cells[i]] | b.Candidates[cells[j]];
                                    if (CountDigits(both) != 3 || !t.StrikeWithin(both)) continue;
                                    for (int x : {cells[i], cells[j]})
                                        if (CountDigits(b.Candidates[x]) == 3) r.Add(x);
                                }
                        }
                        int values[18];
                        const int count = RemoveUnpartnered(ctx, t, a, c, values);
                        if (!count) continue;
                        if (ctx.HintOnly()) {
                            const int pair[2] = {a, c};
                            FillExclusion(ctx, HintKind::AlignedPairExclusion, pass == 0 ? 3 : 4,
                                          pass == 0 ? line : segment, pass == 0 ? segment : line,
                                          pair, 2, r, values, count);
                        }
                        return true;
                    }
    return false;
}

bool ATE(SolveContext& ctx) { return TripleExclusion(ctx, false); }
bool ExtendedATE(SolveContext& ctx) { return TripleExclusion(ctx, true); }

}  // namespace tavi
