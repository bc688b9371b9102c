// SPDX-License-Identifier: GPL-3.0-or-later
#include "game/recovery_copy.h"

#include <charconv>
#include <fstream>
#include <sstream>

#include "game/saved_game_check.h"

namespace tavi {

namespace fs = std::filesystem;

namespace {

constexpr std::string_view kHeader = "Tavi Sudoku recovery copy 1";
constexpr long kMaxRecord = 2147483647;
constexpr std::size_t kMaxFileSize = 1 << 20;

std::string DigitText(const Digits& d) {
    std::string s(81, '0');
    for (int c = 0; c < 81; ++c)
        s[c] = char('0' + d[c]);
    return s;
}

// Reads the copy line by line, each a keyword and its values; any surprise
// ends the read.
class Reader {
  public:
    explicit Reader(std::string_view text) : text_(text) {}
    std::string error;

    bool Line(std::string_view keyword) {
        if (!error.empty()) return false;
        const auto end = text_.find('\n');
        if (end == std::string_view::npos)
            return Fail("the copy ends early, before " + std::string(keyword));
        line_ = text_.substr(0, end);
        text_.remove_prefix(end + 1);
        if (line_.substr(0, keyword.size()) != keyword ||
            (line_.size() > keyword.size() && line_[keyword.size()] != ' '))
            return Fail("expected \"" + std::string(keyword) + "\"");
        line_.remove_prefix(keyword.size());
        return true;
    }
    bool Number(long long low, long long high, long long& value) {
        if (!error.empty()) return false;
        if (line_.empty() || line_.front() != ' ') return Fail("a number is missing");
        line_.remove_prefix(1);
        const auto [end, ec] = std::from_chars(line_.data(), line_.data() + line_.size(), value);
        if (ec != std::errc() || value < low || value > high)
            return Fail("a number is out of range");
        line_.remove_prefix(std::size_t(end - line_.data()));
        return true;
    }
    template <typename T>
    bool Get(long long low, long long high, T& out) {
        long long v = 0;
        if (!Number(low, high, v)) return false;
        out = T(v);
        return true;
    }
    bool Digits81(Digits& d) {
        if (!error.empty()) return false;
        if (line_.size() != 82 || line_.front() != ' ') return Fail("81 digits are expected");
        for (int c = 0; c < 81; ++c) {
            const char ch = line_[std::size_t(c) + 1];
            if (ch < '0' || ch > '9') return Fail("81 digits are expected");
            d[c] = std::uint8_t(ch - '0');
        }
        line_ = {};
        return true;
    }
    bool End() {
        if (!error.empty()) return false;
        if (!line_.empty()) return Fail("a line holds more than expected");
        return true;
    }
    bool Done() const { return error.empty() && text_.empty(); }
    bool Fail(std::string why) {
        if (error.empty()) error = std::move(why);
        return false;
    }

  private:
    std::string_view text_;
    std::string_view line_;
};

}  // namespace

std::string FormatRecoveryCopy(const RecoveryCopy& copy) {
    std::ostringstream out;
    out << kHeader << '\n';
    out << "level " << copy.level << '\n';
    out << "record " << copy.record << '\n';
    out << "puzzle " << DigitText(copy.sudoku.Puzzle) << '\n';
    out << "solution " << DigitText(copy.sudoku.Solution) << '\n';
    out << "best " << copy.sudoku.BestMinutes << ' ' << copy.sudoku.BestSeconds << '\n';
    out << "clock " << copy.clockSeconds << ' ' << copy.TimeOn << ' ' << copy.TimeShow << '\n';
    out << "autosolved " << copy.autosolved << '\n';
    out << "grid " << DigitText(copy.grid) << '\n';
    out << "marks";
    for (CandidateMask m : copy.marks)
        out << ' ' << m;
    out << '\n';
    out << "steps " << copy.currentStep << ' ' << copy.steps.size() << '\n';
    for (const MoveStep& s : copy.steps)
        out << "step " << s.LogDigit << ' ' << s.LogCell << ' ' << s.LogOwnMarks << ' '
            << s.LogColumnMarks << ' ' << s.LogRowMarks << ' ' << s.LogBoxMarks << '\n';
    out << "end\n";
    return out.str();
}

std::optional<RecoveryCopy> ParseRecoveryCopy(std::string_view text, std::string* why) {
    RecoveryCopy copy;
    Reader in(text);
    in.Line(kHeader) && in.End();
    in.Line("level") && in.Get(1, 9, copy.level) && in.End();
    in.Line("record") && in.Get(0, kMaxRecord, copy.record) && in.End();
    in.Line("puzzle") && in.Digits81(copy.sudoku.Puzzle);
    in.Line("solution") && in.Digits81(copy.sudoku.Solution);
    in.Line("best") && in.Get(0, 32767, copy.sudoku.BestMinutes) &&
        in.Get(0, 59, copy.sudoku.BestSeconds) && in.End();
    in.Line("clock") && in.Get(0, 24 * 3600 * 366, copy.clockSeconds) &&
        in.Get(0, 1, copy.TimeOn) && in.Get(0, 1, copy.TimeShow) && in.End();
    in.Line("autosolved") && in.Get(0, 1, copy.autosolved) && in.End();
    in.Line("grid") && in.Digits81(copy.grid);
    if (in.Line("marks")) {
        for (CandidateMask& m : copy.marks)
            in.Get(0, 511, m);
        in.End();
    }
    long long count = 0;
    in.Line("steps") && in.Get(0, kRecoverySteps, copy.currentStep) &&
        in.Number(0, kRecoverySteps, count) && in.End();
    if (copy.currentStep > count) in.Fail("more steps are applied than the copy holds");
    for (long long i = 0; i < count && in.error.empty(); ++i) {
        MoveStep s;
        in.Line("step") && in.Get(-9, 19, s.LogDigit) && in.Get(0, 80, s.LogCell) &&
            in.Get(0, 511, s.LogOwnMarks) && in.Get(0, 511, s.LogColumnMarks) &&
            in.Get(0, 511, s.LogRowMarks) && in.Get(0, 511, s.LogBoxMarks) && in.End();
        copy.steps.push_back(s);
    }
    in.Line("end") && in.End();
    if (in.error.empty() && !in.Done()) in.Fail("something follows the end");
    // The copy must be a game of its own puzzle: the clues in place, and no step
    // that could not have been played on it.
    for (int c = 0; c < 81 && in.error.empty(); ++c)
        if (copy.sudoku.Puzzle[c] && copy.grid[c] != copy.sudoku.Puzzle[c])
            in.Fail("its digits cover a clue");
    SudokuLogRecord one;
    for (std::size_t i = 0; i < copy.steps.size() && in.error.empty(); ++i) {
        const MoveStep& s = copy.steps[i];
        one.LogDigit[0] = std::int16_t(s.LogDigit), one.LogCell[0] = std::int16_t(s.LogCell);
        one.LogOwnMarks[0] = std::int16_t(s.LogOwnMarks);
        one.LogColumnMarks[0] = std::int16_t(s.LogColumnMarks);
        one.LogRowMarks[0] = std::int16_t(s.LogRowMarks);
        one.LogBoxMarks[0] = std::int16_t(s.LogBoxMarks);
        if (!StepFitsPuzzle(copy.sudoku.Puzzle, one, 1))
            in.Fail("step " + std::to_string(i + 1) + " could not have been played on its puzzle");
    }
    if (!in.error.empty()) {
        if (why) *why = in.error;
        return std::nullopt;
    }
    return copy;
}

fs::path RecoveryFile(const fs::path& dataFolder) { return dataFolder / kRecoveryFileName; }

bool WriteRecoveryCopy(const fs::path& dataFolder, const RecoveryCopy& copy) {
    const fs::path file = RecoveryFile(dataFolder);
    fs::path fresh = file;
    fresh += ".new";
    {
        std::ofstream out(fresh, std::ios::binary | std::ios::trunc);
        out << FormatRecoveryCopy(copy);
        out.flush();
        if (!out) return false;
    }
    std::error_code ec;
    fs::rename(fresh, file, ec);
    return !ec;
}

bool RecoveryCopyExists(const fs::path& dataFolder) {
    std::error_code ec;
    return fs::exists(RecoveryFile(dataFolder), ec);
}

std::optional<RecoveryCopy> ReadRecoveryCopy(const fs::path& dataFolder, std::string* why) {
    const fs::path file = RecoveryFile(dataFolder);
    std::error_code ec;
    const auto size = fs::file_size(file, ec);
    if (ec) {
        if (why) *why = "it can't be read";
        return std::nullopt;
    }
    if (size > kMaxFileSize) {
        if (why) *why = "it is far too large for a copy of one game";
        return std::nullopt;
    }
    std::ifstream in(file, std::ios::binary);
    std::string text(size, '\0');
    if (!in.read(text.data(), std::streamsize(size))) {
        if (why) *why = "it can't be read";
        return std::nullopt;
    }
    return ParseRecoveryCopy(text, why);
}

void RemoveRecoveryCopy(const fs::path& dataFolder) {
    std::error_code ec;
    fs::remove(RecoveryFile(dataFolder), ec);
}

fs::path SetAsideRecoveryCopy(const fs::path& dataFolder) {
    const fs::path file = RecoveryFile(dataFolder);
    for (int i = 1;; ++i) {
        fs::path aside = file;
        aside += ".unread" + std::to_string(i);
        std::error_code ec;
        if (fs::exists(aside, ec)) continue;
        fs::rename(file, aside, ec);
        if (ec) RemoveRecoveryCopy(dataFolder);
        return aside;
    }
}

}  // namespace tavi
