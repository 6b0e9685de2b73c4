// Small work on texts whose meaning is ASCII, whatever else they hold: keys, names, fields. Never
// the locale's rules, so that a file means the same on every machine.
#pragma once

#include <algorithm>
#include <string>
#include <string_view>

namespace brask {

// Bytes of 128 and more stay as they are: they belong to UTF-8 or Windows-1252 letters, and no key
// or name of ours holds any.
constexpr char LowerCase(char c) { return c >= 'A' && c <= 'Z' ? static_cast<char>(c + 32) : c; }

// The same for a whole text.
inline std::string LowerCase(std::string text) {
    for (char& c : text) c = LowerCase(c);
    return text;
}

// Whether two texts are the same but for letter case.
inline bool SameIgnoringCase(std::string_view a, std::string_view b) {
    return std::equal(a.begin(), a.end(), b.begin(), b.end(),
                      [](char x, char y) { return LowerCase(x) == LowerCase(y); });
}

// Whether `part` stands anywhere in the text, in any letter case. Used where a line or a path may
// bring its own letter case: "Instrument:" in a header, "\Temp\" in a path. An empty part stands in
// every text.
inline bool ContainsIgnoringCase(std::string_view text, std::string_view part) {
    const auto found = std::search(text.begin(), text.end(), part.begin(), part.end(),
                                   [](char x, char y) { return LowerCase(x) == LowerCase(y); });
    return found != text.end() || part.empty();
}

// Without the given characters at both ends; blanks unless told otherwise. Points into the text
// handed in, so that text must live as long as the result.
constexpr std::string_view Trimmed(std::string_view text, std::string_view characters = " ") {
    const auto first = text.find_first_not_of(characters);
    if (first == std::string_view::npos) return {};
    return text.substr(first, text.find_last_not_of(characters) - first + 1);
}

}  // namespace brask
