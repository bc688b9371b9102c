// SPDX-License-Identifier: GPL-3.0-or-later
// The per-user key store that all settings live in: sections of named text
// values, read with a default. The program keeps it in an INI file; tests keep
// it in memory.
#pragma once

#include <map>
#include <string>
#include <string_view>
#include <utility>
#include <vector>

namespace tavi {

class SettingsStore {
  public:
    virtual ~SettingsStore() = default;
    // The value of `key` in `section`, or `fallback` when there is none.
    virtual std::string Read(std::string_view section, std::string_view key,
                             std::string_view fallback) const = 0;
    virtual void Write(std::string_view section, std::string_view key, std::string_view value) = 0;
    // Puts what was written where it survives the end of the program. Writers of
    // keys that must not wait for the exit call it; the rest goes out at the end.
    virtual void Flush() {}

    // Why the store could not be read, empty when it was: the program then runs
    // on defaults in memory and never writes over the file.
    const std::string& Problem() const { return problem_; }
    void SetProblem(std::string text) { problem_ = std::move(text); }

    // The values read so far that could not be understood, as "Section/Key=value";
    // the default stood in for each.
    const std::vector<std::string>& Unreadable() const { return unreadable_; }
    // A long value is cut: the note is for a message box.
    void NoteUnreadable(std::string_view section, std::string_view key,
                        std::string_view value) const {
        constexpr std::size_t kShown = 40;
        std::string shown(value.substr(0, kShown));
        if (value.size() > kShown) shown += "... (" + std::to_string(value.size()) + " characters)";
        unreadable_.push_back(std::string(section) + "/" + std::string(key) + "=" + shown);
    }

  private:
    std::string problem_;
    mutable std::vector<std::string> unreadable_;
};

// A store that forgets everything when it goes; for tests and for a run without
// a settings file.
class MemorySettingsStore : public SettingsStore {
  public:
    std::string Read(std::string_view section, std::string_view key,
                     std::string_view fallback) const override {
        const auto it = values_.find({std::string(section), std::string(key)});
        return it == values_.end() ? std::string(fallback) : it->second;
    }
    void Write(std::string_view section, std::string_view key, std::string_view value) override {
        values_[{std::string(section), std::string(key)}] = std::string(value);
    }

    bool Has(std::string_view section, std::string_view key) const {
        return values_.count({std::string(section), std::string(key)}) > 0;
    }
    // Every (section, key) pair with its value, sorted.
    const std::map<std::pair<std::string, std::string>, std::string>& Values() const {
        return values_;
    }

  private:
    std::map<std::pair<std::string, std::string>, std::string> values_;
};

}  // namespace tavi
