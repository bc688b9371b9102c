// SPDX-License-Identifier: GPL-3.0-or-later
#include "game/library_position.h"

#include <string>

#include "grid/levels.h"
#include "library/library_pair.h"
#include "settings/setting_values.h"

namespace tavi {

namespace {

std::string LevelSection(int level) { return "SudokuLevel" + std::to_string(level); }

// Any record number a pair can hold; anything else is no number.
int ReadRecordNumber(const SettingsStore& store, int level) {
    return int(ReadWhole(store, LevelSection(level), "Number", 0, 0, kMaxRecords));
}

void FileError(Notifier* notifier, std::string_view text) {
    if (notifier) notifier->Message(kFileErrorTitle, text);
}

}  // namespace

void HaalLaatsteSudoku(const SettingsStore& store, LibraryPosition& position) {
    const std::string levelText = store.Read("Sudoku", "Level", "0");
    const auto level = ParseWhole(levelText, 0, kLevelCount);
    if (!level) store.NoteUnreadable("Sudoku", "Level", levelText);
    position.LevelUnread = !level;
    position.LastLevel = int(level.value_or(0));
    for (int i = 1; i <= kLevelCount; ++i) {
        position.StoredNumber[i] = ReadRecordNumber(store, i);
        position.PuzzleNumber[i] = position.StoredNumber[i];
        const std::string busy = store.Read(LevelSection(i), "Busy", "No");
        position.LevelBusy[i] = busy == "Yes";
        position.BusyUnread[i] = busy != "Yes" && busy != "No";
        if (position.BusyUnread[i]) store.NoteUnreadable(LevelSection(i), "Busy", busy);
    }
}

void SaveLastSudoku(SettingsStore& store, const LibraryPosition& p) {
    WriteInt(store, "Sudoku", "Level", p.ChosenLevel);
    const bool untouched = p.CurrentStep == 0 && !p.SudokuSolved && !p.SudokuAutosolved;
    for (int i = 1; i <= kLevelCount; ++i) {
        long number = p.PuzzleNumber[i];
        if (i == p.OpenLevel)
            number = untouched && p.OpenRecord >= 1 ? p.OpenRecord - 1 : p.OpenRecord;
        WriteInt(store, LevelSection(i), "Number", number);
        store.Write(LevelSection(i), "Busy", "No");
    }
    const bool inProgress = p.OpenLevel != 0 && p.OpenRecord != 0 && !p.SudokuSolved &&
                            p.CurrentStep > 0 && !p.SudokuAutosolved;
    if (inProgress && IsLevel(p.OpenLevel)) store.Write(LevelSection(p.OpenLevel), "Busy", "Yes");
}

bool SudInProgress(const LibraryFolders& folders, const LibraryPosition& position) {
    const std::string_view stem = LevelStem(position.ChosenLevel);
    if (stem.empty()) return false;
    const auto sds = PuzzleFile(folders.DataFolder, stem);
    if (!(SudokuCount(sds) > 0)) return false;
    SudokuRecord sudoku;
    SudokuLogRecord log;
    if (!ReadSudokuRecord(sds, position.OpenRecord, sudoku)) return false;
    if (!ReadSudokuLogRecord(LogFile(folders.DataFolder, stem), position.OpenRecord, log))
        return false;
    return HasUserDigits(sudoku, log);
}

bool AutoWisProgress(const LibraryFolders& folders, const LibraryPosition& position,
                     const SudokuRecord& sudoku, SudokuLogRecord& log) {
    if (position.OpenLevel == 0 || position.OpenRecord == 0) return false;
    log.StepCount = 0;
    log.Grid = sudoku.Puzzle;
    log.ElapsedMinutes = log.ElapsedSeconds = 0;
    const std::string_view stem = LevelStem(position.OpenLevel);
    return !stem.empty() &&
           WriteSudokuLogRecord(LogFile(folders.DataFolder, stem), position.OpenRecord, log);
}

bool BewaarBestTime(const LibraryFolders& folders, const LibraryPosition& position,
                    const SudokuRecord& sudoku, Notifier* notifier) {
    const std::string_view stem = LevelStem(position.OpenLevel);
    if (stem.empty() || position.OpenRecord < 1 ||
        !WriteSudokuRecord(PuzzleFile(folders.DataFolder, stem), position.OpenRecord, sudoku)) {
        FileError(notifier, kWriteErrorText);
        return false;
    }
    return true;
}

bool AddMadePuzzle(const LibraryFolders& folders, int level, LibraryPosition& position,
                   const SudokuRecord& sudoku, const SudokuLogRecord& log, Notifier* notifier) {
    std::string why = "There is no level " + std::to_string(level) + ".";
    long number = 0;
    if (!IsLevel(level) ||
        !AppendToPair(folders.DataFolder, LevelStem(level), sudoku, log, &number, &why)) {
        FileError(notifier, std::string(kWriteErrorText) + "\n" + why);
        return false;
    }
    position.PuzzleNumber[level] = int(number);
    return true;
}

bool SaveGameLog(const LibraryFolders& folders, const LibraryPosition& position,
                 const SudokuLogRecord& log, Notifier* notifier) {
    if (position.OpenLevel == 0 || position.OpenRecord == 0) return false;
    if (log.StepCount > kLogSteps || log.StepCount < 0) {
        if (notifier) notifier->Message(kStepLimitTitle, kStepLimitText);
        return false;
    }
    const std::string_view stem = LevelStem(position.OpenLevel);
    if (stem.empty() ||
        !WriteSudokuLogRecord(LogFile(folders.DataFolder, stem), position.OpenRecord, log)) {
        FileError(notifier, kWriteErrorText);
        return false;
    }
    return true;
}

}  // namespace tavi
