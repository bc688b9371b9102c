// SPDX-License-Identifier: GPL-3.0-or-later
#include "solver/solutions.h"

#include <array>
#include <bit>
#include <cstdint>

#if defined(__SSE2__)
#include <emmintrin.h>
#endif

namespace tavi {

namespace {

// The grid is held per digit and per band of three rows: 27 bits, bit 9r + c
// for row r of the band and column c. A set bit says the digit may still stand
// there (or stands there, for a solved cell). Rows and boxes lie inside one
// band word, a column is the same three bits in each of the three words.
constexpr std::uint32_t kBandBits = 0x7FFFFFF;
constexpr std::uint32_t kRowBits = 0x1FF;
constexpr std::uint32_t kColumnBits = 0x40201;  // column 0 in rows 0, 1 and 2

constexpr std::uint32_t BoxBits(int box) { return (0x7u | 0x7u << 9 | 0x7u << 18) << (3 * box); }

// For each place in a band: its row and box inside the band, itself included.
constexpr std::array<std::uint32_t, 27> kBandPeers = [] {
    std::array<std::uint32_t, 27> t{};
    for (int p = 0; p < 27; ++p)
        t[p] = kRowBits << (9 * (p / 9)) | BoxBits(p % 9 / 3);
    return t;
}();

// For the three rows of a band: which of its boxes a 9-bit row touches.
constexpr std::array<std::uint8_t, 512> kRowBoxes = [] {
    std::array<std::uint8_t, 512> t{};
    for (int row = 0; row < 512; ++row)
        t[row] = std::uint8_t((row & 0x7 ? 1 : 0) | (row & 0x38 ? 2 : 0) | (row & 0x1C0 ? 4 : 0));
    return t;
}();

// A digit stands once in each row and once in each box of a band, so the rows
// and boxes it takes there are a permutation. From the row-box pairs (bit 3r +
// k) where it may still stand: the pairs that some permutation uses, 0 when
// none.
constexpr std::array<std::uint16_t, 512> kPermutationPairs = [] {
    std::array<std::uint16_t, 512> t{};
    constexpr int perms[6][3] = {{0, 1, 2}, {0, 2, 1}, {1, 0, 2}, {1, 2, 0}, {2, 0, 1}, {2, 1, 0}};
    for (int pairs = 0; pairs < 512; ++pairs)
        for (const auto& p : perms) {
            const int used = 1 << p[0] | 1 << (3 + p[1]) | 1 << (6 + p[2]);
            if ((pairs & used) == used) t[pairs] |= std::uint16_t(used);
        }
    return t;
}();

// Three box bits of a row to the 9 places they cover.
constexpr std::array<std::uint32_t, 8> kBoxesToRow = [] {
    std::array<std::uint32_t, 8> t{};
    for (int boxes = 0; boxes < 8; ++boxes)
        t[boxes] = (boxes & 1 ? 0x7u : 0) | (boxes & 2 ? 0x38u : 0) | (boxes & 4 ? 0x1C0u : 0);
    return t;
}();

// The row-box pairs of kPermutationPairs as the places of a band they cover.
constexpr std::array<std::uint32_t, 512> kKeepPlaces = [] {
    std::array<std::uint32_t, 512> t{};
    for (int pairs = 0; pairs < 512; ++pairs) {
        const int keep = kPermutationPairs[pairs];
        t[pairs] =
            kBoxesToRow[keep & 7] | kBoxesToRow[keep >> 3 & 7] << 9 | kBoxesToRow[keep >> 6] << 18;
    }
    return t;
}();

// For a 9-bit row: 1 when exactly one bit is set.
constexpr std::array<std::uint8_t, 512> kOnePlace = [] {
    std::array<std::uint8_t, 512> t{};
    for (int row = 0; row < 512; ++row)
        t[row] = std::popcount(unsigned(row)) == 1;
    return t;
}();

// Three row bits to the places of those rows in a band word.
constexpr std::array<std::uint32_t, 8> kRowsToPlaces = {0,
                                                        kRowBits,
                                                        kRowBits << 9,
                                                        kRowBits | kRowBits << 9,
                                                        kRowBits << 18,
                                                        kRowBits | kRowBits << 18,
                                                        kRowBits << 9 | kRowBits << 18,
                                                        kBandBits};

// The branch cell's score counts bits. Where the processor has an instruction
// for that it is used; the plain version runs everywhere else.
#if defined(__GNUC__) && defined(__x86_64__) && defined(__linux__)
#define TAVI_COUNTS_BITS __attribute__((target_clones("popcnt", "default")))
#else
#define TAVI_COUNTS_BITS
#endif

struct State {
    std::array<std::uint32_t, 27> may;  // index 9 * band + digit, digits 0..8
    std::array<std::uint32_t, 3> solved;
    std::uint32_t dirty;          // bit 9 * band + digit: that word changed since it was looked at
    std::uint32_t digitsChanged;  // bit d: a word of digit d changed since Columns looked
    std::uint32_t bandsChanged;   // bit b: a word of band b changed since NakedSingles looked

    std::uint32_t Open(int d, int b) const { return may[9 * b + d] & ~solved[b]; }
    std::uint32_t Placed(int d, int b) const { return may[9 * b + d] & solved[b]; }

    void Keep(int i, std::uint32_t bits) {
        const std::uint32_t was = may[i];
        may[i] = was & bits;
        dirty |= std::uint32_t(may[i] != was) << i;
    }

    // Puts digit d at place p of band b. False when d may no longer stand there.
    bool Place(int d, int b, int p) {
        const std::uint32_t bit = 1u << p;
        const int i = 9 * b + d;
        if (!(may[i] & bit)) return false;
        if (solved[b] & bit) return true;
        solved[b] |= bit;
        // The changed words are gathered here and marked once: `dirty` sits next
        // to the words, so marking it per word would reload it after every store.
        std::uint32_t changed = 0;
        std::uint32_t* const band = &may[9 * b];
#if defined(__SSE2__)
        // The nine words of a band lie together: eight go in two vector steps.
        const __m128i one = _mm_set1_epi32(int(bit)), zero = _mm_setzero_si128();
        for (int e = 0; e < 8; e += 4) {
            const __m128i x = _mm_loadu_si128(reinterpret_cast<const __m128i*>(band + e));
            const __m128i had = _mm_cmpeq_epi32(_mm_and_si128(x, one), zero);
            changed |= std::uint32_t(~_mm_movemask_ps(_mm_castsi128_ps(had)) & 0xF) << e;
            _mm_storeu_si128(reinterpret_cast<__m128i*>(band + e), _mm_andnot_si128(one, x));
        }
        changed |= (band[8] >> p & 1) << 8;
        band[8] &= ~bit;
        changed <<= 9 * b;
#else
        for (int e = 0; e < 9; ++e) {
            changed |= (band[e] >> p & 1) << (9 * b + e);
            band[e] &= ~bit;
        }
#endif
        const std::uint32_t own = may[i] | bit, peers = kBandPeers[p] & ~bit;
        may[i] = own & ~peers;
        changed = (changed & ~(1u << i)) | std::uint32_t((own & peers) != 0) << i;
        const std::uint32_t column = kColumnBits << (p % 9);
        for (int other = 0; other < 3; ++other)
            if (other != b) {
                const std::uint32_t x = may[9 * other + d];
                changed |= std::uint32_t((x & column) != 0) << (9 * other + d);
                may[9 * other + d] = x & ~column;
            }
        dirty |= changed;
        return true;
    }

    // Puts digit d at the given places of band b, found as the only open place of
    // their rows after Band. Such places lie in different rows, boxes and
    // columns, and the narrowing has already taken their rows and boxes from the
    // word.
    void PlaceRows(int d, int b, std::uint32_t places) {
        solved[b] |= places;
        std::uint32_t changed = 0;
        std::uint32_t* const band = &may[9 * b];
#if defined(__SSE2__)
        const __m128i gone = _mm_set1_epi32(int(places)), zero = _mm_setzero_si128();
        for (int e = 0; e < 8; e += 4) {
            const __m128i x = _mm_loadu_si128(reinterpret_cast<const __m128i*>(band + e));
            const __m128i kept = _mm_cmpeq_epi32(_mm_and_si128(x, gone), zero);
            changed |= std::uint32_t(~_mm_movemask_ps(_mm_castsi128_ps(kept)) & 0xF) << e;
            _mm_storeu_si128(reinterpret_cast<__m128i*>(band + e), _mm_andnot_si128(gone, x));
        }
        changed |= std::uint32_t((band[8] & places) != 0) << 8;
        band[8] &= ~places;
#else
        for (int e = 0; e < 9; ++e) {
            changed |= std::uint32_t((band[e] & places) != 0) << e;
            band[e] &= ~places;
        }
#endif
        band[d] |= places;
        changed = (changed & ~(1u << d)) << (9 * b);
        std::uint32_t columns = (places | places >> 9 | places >> 18) & kRowBits;
        columns |= columns << 9 | columns << 18;
        for (int other = 0; other < 3; ++other)
            if (other != b) {
                const std::uint32_t x = may[9 * other + d];
                changed |= std::uint32_t((x & columns) != 0) << (9 * other + d);
                may[9 * other + d] = x & ~columns;
            }
        dirty |= changed;
    }

    // One digit in one band: only the row-box pairs of some permutation stay,
    // and a row left with one place puts the digit there. This finds the hidden
    // singles of rows and boxes and the locked candidates inside the band.
    bool Band(int i) {
        const std::uint32_t x = may[i];
        const std::uint32_t keep =
            kKeepPlaces[kRowBoxes[x & kRowBits] | kRowBoxes[x >> 9 & kRowBits] << 3 |
                        kRowBoxes[x >> 18] << 6];
        if (!keep) return false;
        // Narrowing twice keeps the same pairs, so this word need not be marked.
        const std::uint32_t now = x & keep;
        may[i] = now;
        const int b = i / 9;
        const std::uint32_t open = now & ~solved[b];
        const int rows = kOnePlace[open & kRowBits] | kOnePlace[open >> 9 & kRowBits] << 1 |
                         kOnePlace[open >> 18] << 2;
        if (rows) PlaceRows(i % 9, b, open & kRowsToPlaces[rows]);
        return true;
    }

    // Naked singles: cells left with one digit. False on a cell with none.
    bool NakedSingles(bool& progress) {
        const std::uint32_t bands = bandsChanged;
        bandsChanged = 0;
        for (int b = 0; b < 3; ++b) {
            if (!(bands >> b & 1)) continue;
            const std::uint32_t open = ~solved[b] & kBandBits;
            if (!open) continue;
            std::uint32_t one = 0, two = 0;
            for (int d = 0; d < 9; ++d) {
                const std::uint32_t x = may[9 * b + d] & open;
                two |= one & x;
                one |= x;
            }
            if (open & ~one) return false;
            for (std::uint32_t singles = one & ~two; singles; singles &= singles - 1) {
                const int p = std::countr_zero(singles);
                for (int d = 0; d < 9; ++d)
                    if (may[9 * b + d] >> p & 1) {
                        // A cell emptied by an earlier placement of this pass shows
                        // up as a cell without digits in the next pass.
                        if (!Place(d, b, p)) return false;
                        progress = true;
                        break;
                    }
            }
        }
        return true;
    }

    // The same narrowing across the bands: in a stack of three columns a digit
    // takes each column once and each band once, so only the column-band pairs of
    // some permutation stay. Then the hidden singles of the columns. False when a
    // digit has no place left in some stack or column.
    bool Columns(bool& progress) {
        for (int d = 0; d < 9; ++d) {
            if (!(digitsChanged >> d & 1)) continue;
            digitsChanged &= ~(1u << d);
            std::array<std::uint32_t, 3> columns;  // per band: the columns the digit may take
            for (int b = 0; b < 3; ++b) {
                const std::uint32_t x = may[9 * b + d];
                columns[b] = (x | x >> 9 | x >> 18) & kRowBits;
            }
            for (int stack = 0; stack < 3; ++stack) {
                const int shift = 3 * stack;
                const int pairs = int(columns[0] >> shift & 7) | int(columns[1] >> shift & 7) << 3 |
                                  int(columns[2] >> shift & 7) << 6;
                const int keep = kPermutationPairs[pairs];
                if (!keep) return false;
                if (keep == pairs) continue;
                for (int b = 0; b < 3; ++b) {
                    const std::uint32_t gone =
                        ~std::uint32_t(keep >> (3 * b)) & 7u & (columns[b] >> shift);
                    for (std::uint32_t g = gone; g; g &= g - 1)
                        Keep(9 * b + d, ~(kColumnBits << (shift + std::countr_zero(g))));
                }
            }
            std::uint32_t one = 0, two = 0, placed = 0;
            for (int b = 0; b < 3; ++b) {
                const std::uint32_t open = Open(d, b), done = Placed(d, b);
                for (int r = 0; r < 3; ++r) {
                    const std::uint32_t row = open >> (9 * r) & kRowBits;
                    two |= one & row;
                    one |= row;
                    placed |= done >> (9 * r) & kRowBits;
                }
            }
            if (kRowBits & ~(one | placed)) return false;
            for (std::uint32_t singles = one & ~two; singles; singles &= singles - 1) {
                const std::uint32_t column = kColumnBits << std::countr_zero(singles);
                for (int b = 0; b < 3; ++b)
                    if (const std::uint32_t at = Open(d, b) & column) {
                        if (!Place(d, b, std::countr_zero(at))) return false;
                        progress = true;
                        break;
                    }
            }
        }
        return true;
    }

    // Singles to a fixed point. False on a contradiction.
    bool Propagate() {
        std::uint32_t touched = 0;  // words looked at since the last pass across them
        for (;;) {
            while (dirty) {
                const std::uint32_t batch = dirty;
                dirty = 0;
                touched |= batch;
                for (std::uint32_t left = batch; left; left &= left - 1)
                    if (!Band(std::countr_zero(left))) return false;
            }
            if (touched) {
                // Bit 9 * band + digit to a bit per digit and a bit per band.
                digitsChanged |= (touched | touched >> 9 | touched >> 18) & 0x1FF;
                bandsChanged |= std::uint32_t((touched & 0x1FF) != 0) |
                                std::uint32_t((touched & 0x3FE00) != 0) << 1 |
                                std::uint32_t((touched >> 18) != 0) << 2;
                touched = 0;
            }
            bool progress = false;
            if (!NakedSingles(progress)) return false;
            if (progress) continue;
            if (!Columns(progress)) return false;
            if (!progress && !dirty) return true;
        }
    }

    bool Full() const { return (solved[0] & solved[1] & solved[2]) == kBandBits; }

    // The open cell with the fewest digits, as band and place; its count is at
    // least 2 after Propagate.
    TAVI_COUNTS_BITS void FewestDigits(int& band, int& place) const {
        // Cells with two digits are the usual answer. Of those, the one whose
        // two digits stand open in the most other cells it sees, where a digit
        // taken from another two-digit cell of its band (which leaves a single)
        // counts three times: either way the branch takes the most from the
        // grid, and the search stays small.
        int best = -1;
        for (int b = 0; b < 3; ++b) {
            const std::uint32_t open = ~solved[b] & kBandBits;
            std::uint32_t one = 0, two = 0, three = 0;
            for (int d = 0; d < 9; ++d) {
                const std::uint32_t x = may[9 * b + d] & open;
                three |= two & x;
                two |= one & x;
                one |= x;
            }
            const std::uint32_t pairs = two & ~three;
            if (!pairs) continue;
            const int b1 = b == 0 ? 1 : 0, b2 = b == 2 ? 1 : 2;
            std::array<std::uint8_t, 27> score{};
            for (int d = 0; d < 9; ++d) {
                const std::uint32_t x = may[9 * b + d];
                for (std::uint32_t cells = pairs & x; cells; cells &= cells - 1) {
                    const int p = std::countr_zero(cells);
                    // The two other bands' column bits do not meet when one is shifted.
                    const std::uint32_t column = kColumnBits << (p % 9);
                    const std::uint32_t across = (may[9 * b1 + d] & column & ~solved[b1]) |
                                                 (may[9 * b2 + d] & column & ~solved[b2]) << 1;
                    const std::uint32_t seen = x & kBandPeers[p];
                    score[p] += std::uint8_t(
                        std::popcount(std::uint64_t(seen & open) | std::uint64_t(across) << 32) +
                        2 * std::popcount(seen & pairs));
                }
            }
            for (std::uint32_t cells = pairs; cells; cells &= cells - 1) {
                const int p = std::countr_zero(cells);
                if (score[p] > best) best = score[p], band = b, place = p;
            }
        }
        if (best >= 0) return;
        std::array<std::array<std::uint32_t, 4>, 3> sum{};  // a 4-bit count per cell
        for (int b = 0; b < 3; ++b) {
            const std::uint32_t open = ~solved[b] & kBandBits;
            auto& s = sum[b];
            for (int d = 0; d < 9; ++d) {
                std::uint32_t carry = may[9 * b + d] & open;
                for (int i = 0; i < 4; ++i) {
                    const std::uint32_t next = s[i] & carry;
                    s[i] ^= carry;
                    carry = next;
                }
            }
        }
        for (int k = 3; k <= 9; ++k)
            for (int b = 0; b < 3; ++b) {
                std::uint32_t m = ~solved[b] & kBandBits;
                for (int i = 0; i < 4; ++i)
                    m &= (k >> i & 1) ? sum[b][i] : ~sum[b][i];
                if (m) {
                    band = b, place = std::countr_zero(m);
                    return;
                }
            }
        band = -1, place = -1;
    }

    Digits Grid() const {
        Digits grid{};
        for (int d = 0; d < 9; ++d)
            for (int b = 0; b < 3; ++b)
                for (std::uint32_t x = may[9 * b + d]; x; x &= x - 1)
                    grid[27 * b + std::countr_zero(x)] = std::uint8_t(d + 1);
        return grid;
    }
};

struct Search {
    int limit;
    SolutionCount answer;

    // Takes over `s`: the last digit of the branch cell is tried on it directly.
    void Run(State& s) {
        if (s.Full()) {
            if (answer.count++ == 0) answer.first = s.Grid();
            return;
        }
        int b, p;
        s.FewestDigits(b, p);
        if (b < 0) return;
        std::uint32_t digits = 0;
        for (int d = 0; d < 9; ++d)
            digits |= (s.may[9 * b + d] >> p & 1) << d;
        for (; digits && answer.count < limit; digits &= digits - 1) {
            const int d = std::countr_zero(digits);
            if (!(digits & (digits - 1))) {
                if (s.Place(d, b, p) && s.Propagate()) Run(s);
                return;
            }
            State t = s;
            if (t.Place(d, b, p) && t.Propagate()) Run(t);
        }
    }
};

}  // namespace

SolutionCount Solutions(const Digits& givens, int limit) {
    // The givens go in all at once: per digit, where it is given and which
    // places its givens see. A given that sees another of its digit is a clash.
    std::array<std::uint32_t, 27> given{}, seen{};
    State s;
    s.solved.fill(0);
    for (int cell = 0; cell < 81; ++cell) {
        const int digit = givens[cell];
        if (digit < 1 || digit > 9) continue;
        const int d = digit - 1, b = cell / 27, p = cell % 27;
        const std::uint32_t bit = 1u << p;
        if (seen[9 * b + d] & bit) return {};
        given[9 * b + d] |= bit;
        s.solved[b] |= bit;
        seen[9 * b + d] |= kBandPeers[p];
        for (int other = 0; other < 3; ++other)
            if (other != b) seen[9 * other + d] |= kColumnBits << (p % 9);
    }
    for (int i = 0; i < 27; ++i)
        s.may[i] = (kBandBits & ~s.solved[i / 9] & ~seen[i]) | given[i];
    s.dirty = kBandBits;
    s.digitsChanged = 0x1FF;
    s.bandsChanged = 7;
    Search search{limit < 1 ? 1 : limit, {}};
    if (s.Propagate()) search.Run(s);
    return search.answer;
}

}  // namespace tavi
