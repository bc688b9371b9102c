// Small text conversions of the game window: clock fields and the numbers typed
// into its input boxes.
#pragma once

#include <charconv>
#include <string>
#include <string_view>

namespace tavi {

// "05" for 5: the last two digits of the number plus 100.
inline std::string TwoDigits(int n) {
    const std::string s = std::to_string(n + 100);
    return s.substr(s.size() - 2);
}

// The number at the head of an answer: its leading digits, after any blanks; 0
// when there are none. "2nd" reads 2.
inline long LeadingNumber(std::string_view text) {
    size_t i = 0;
    while (i < text.size() && text[i] == ' ')
        ++i;
    long n = 0;
    const auto result = std::from_chars(text.data() + i, text.data() + text.size(), n);
    return result.ec == std::errc() ? n : 0;
}

}  // namespace tavi
