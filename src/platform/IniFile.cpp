#include "platform/IniFile.h"

#include <algorithm>
#include <cstdio>

#include "platform/AsciiText.h"

namespace brask {
namespace {

int HexDigit(char c) {
    if (c >= '0' && c <= '9') return c - '0';
    if (c >= 'A' && c <= 'F') return c - 'A' + 10;
    if (c >= 'a' && c <= 'f') return c - 'a' + 10;
    return -1;
}

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
        char code[4];
        std::snprintf(code, sizeof code, "%%%02X", static_cast<unsigned char>(c));
        encoded += code;
    }
    return encoded;
}

std::string Decode(std::string_view text) {
    std::string decoded;
    for (std::size_t i = 0; i < text.size(); ++i) {
        // A "%" that no two hexadecimal digits follow stands for itself: people type it by hand.
        const int high = text[i] == '%' && i + 2 < text.size() ? HexDigit(text[i + 1]) : -1;
        const int low = high >= 0 ? HexDigit(text[i + 2]) : -1;
        if (low < 0) {
            decoded += text[i];
            continue;
        }
        decoded += static_cast<char>(high * 16 + low);
        i += 2;
    }
    return decoded;
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
        file.lines_.push_back({section, Decode(Trimmed(line.substr(0, equals), kBlanks)),
                               Decode(Trimmed(line.substr(equals + 1), kBlanks)), true});
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
