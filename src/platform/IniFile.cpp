#include "platform/IniFile.h"

#include <algorithm>

#include "platform/AsciiText.h"
#include "platform/PercentCode.h"

namespace brask {
namespace {

std::string Encode(std::string_view text, bool isKey) {
    std::string encoded;
    for (std::size_t i = 0; i < text.size(); ++i) {
        const char c = text[i];
        // Only what Parse would lose or misread is encoded, so that paths and names stay readable.
        const bool atEnd = i == 0 || i + 1 == text.size();
        const bool blank = atEnd && (c == ' ' || c == '\t');
        const bool special = c == '%' || c == '\r' || c == '\n' || c == '\0';
        const bool ofKey = isKey && (c == '=' || (i == 0 && (c == '[' || c == ';' || c == '#')));
        if (!blank && !special && !ofKey) {
            encoded += c;
            continue;
        }
        AppendPercentCode(encoded, c);
    }
    return encoded;
}

// Blanks that count for nothing at the ends; a CR is left by editors of other systems.
constexpr std::string_view kBlanks = " \t\r";

}  // namespace

Result<IniFile> IniFile::Parse(std::string_view content) {
    IniFile file;
    std::string section;
    int number = 0;
    // some editors put a byte-order mark in front when they save as UTF-8
    constexpr std::string_view kByteOrderMark = "\xEF\xBB\xBF";
    if (content.substr(0, 3) == kByteOrderMark) content.remove_prefix(3);
    while (!content.empty()) {
        ++number;
        const auto end = content.find('\n');
        const std::string_view line = Trimmed(content.substr(0, end), kBlanks);
        content.remove_prefix(end == std::string_view::npos ? content.size() : end + 1);
        // Zero bytes are what a file system leaves of a file after a power cut; no editor writes
        // them.
        if (line.find('\0') != std::string_view::npos) {
            return Error{0, "line " + std::to_string(number) + " holds a zero byte"};
        }
        if (line.empty() || line[0] == ';' || line[0] == '#') {
            file.lines_.push_back({section, "", std::string(line), false});
            continue;
        }
        if (line[0] == '[' && line.back() == ']') {
            section = std::string(line.substr(1, line.size() - 2));
            file.lines_.push_back({section, "", std::string(line), false});
            continue;
        }
        const auto equals = line.find('=');
        if (equals == std::string_view::npos) {
            return Error{0, "line " + std::to_string(number) + " is no Key=Value line"};
        }
        file.lines_.push_back({section, PercentDecoded(Trimmed(line.substr(0, equals), kBlanks)),
                               PercentDecoded(Trimmed(line.substr(equals + 1), kBlanks)), true});
    }
    return file;
}

// From the end, since the last of two equal keys counts; Set changes that same one.
std::optional<std::string> IniFile::Get(const std::string& section, const std::string& key) const {
    for (auto line = lines_.rbegin(); line != lines_.rend(); ++line) {
        if (line->IsSetting && line->Section == section && line->Key == key) return line->Value;
    }
    return std::nullopt;
}

void IniFile::Set(const std::string& section, const std::string& key, const std::string& value) {
    for (auto line = lines_.rbegin(); line != lines_.rend(); ++line) {
        if (!line->IsSetting || line->Section != section || line->Key != key) continue;
        line->Value = value;
        return;
    }
    // A section may be empty or stand in several parts; the new key goes behind the last line of
    // it.
    const auto last = std::find_if(lines_.rbegin(), lines_.rend(),
                                   [&](const Line& line) { return line.Section == section; });
    auto place = last.base();
    // the first setting of a section brings its head with it
    if (last == lines_.rend()) {
        lines_.push_back({section, "", "[" + section + "]", false});
        place = lines_.end();
    }
    lines_.insert(place, {section, key, value, true});
}

std::string IniFile::Text() const {
    std::string text;
    for (const Line& line : lines_) {
        text +=
            line.IsSetting ? Encode(line.Key, true) + "=" + Encode(line.Value, false) : line.Value;
        text += '\n';
    }
    return text;
}

}  // namespace brask
