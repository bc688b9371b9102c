#include "workbench/duplicates.h"

#include <string_view>
#include <unordered_set>

namespace tavi {

std::vector<bool> DuplicateFlags(std::span<const Digits> puzzles) {
    std::vector<bool> flags(puzzles.size());
    std::unordered_set<std::string_view> seen;
    seen.reserve(puzzles.size());
    for (size_t i = 0; i < puzzles.size(); ++i) {
        const std::string_view bytes(reinterpret_cast<const char*>(puzzles[i].data()), 81);
        flags[i] = !seen.insert(bytes).second;
    }
    return flags;
}

}  // namespace tavi
