#include "data/RecoveryIndex.h"

#include <algorithm>
#include <array>
#include <charconv>
#include <optional>

#include "platform/PercentCode.h"

namespace brask {
namespace {

constexpr std::size_t kFields = 7;
constexpr std::array<std::string_view, 3> kKinds = {"stream", "replaced", "handheld"};
// for whoever opens the file to see what lies beside it
constexpr std::string_view kHeading =
    "# File\tWhat it is\tKept on\tBytes\tSHA-256\tCame from\tLine before it";

std::string Encoded(std::string_view field, bool asciiOnly) {
    std::string encoded;
    for (const char c : field) {
        const auto byte = static_cast<unsigned char>(c);
        if (byte < 32 || byte == 127 || c == '%' || (asciiOnly && byte > 127)) {
            AppendPercentCode(encoded, c);
        } else {
            encoded += c;
        }
    }
    return encoded;
}

std::optional<KeptFile> ParseEntry(std::string_view line) {
    if (line.starts_with('#')) return std::nullopt;
    std::array<std::string_view, kFields> fields;
    for (std::size_t i = 0; i < kFields; ++i) {
        const auto tab = line.find('\t');
        if ((tab == std::string_view::npos) != (i + 1 == kFields)) return std::nullopt;
        fields[i] = line.substr(0, tab);
        line.remove_prefix(tab == std::string_view::npos ? line.size() : tab + 1);
    }
    const auto* const kind = std::find(kKinds.begin(), kKinds.end(), fields[1]);
    std::uint64_t bytes = 0;
    const char* const end = fields[3].data() + fields[3].size();
    const auto number = std::from_chars(fields[3].data(), end, bytes);
    if (kind == kKinds.end() || number.ec != std::errc() || number.ptr != end) return std::nullopt;
    return KeptFile{PercentDecoded(fields[0]), static_cast<KeptKind>(kind - kKinds.begin()),
                    PercentDecoded(fields[2]), bytes,
                    PercentDecoded(fields[4]), PercentDecoded(fields[5]),
                    PercentDecoded(fields[6])};
}

}  // namespace

RecoveryIndex RecoveryIndex::Parse(std::string_view content) {
    RecoveryIndex index;
    while (!content.empty()) {
        const auto end = content.find('\n');
        const std::string_view line = content.substr(0, end);
        content.remove_prefix(end == std::string_view::npos ? content.size() : end + 1);
        if (auto entry = ParseEntry(line)) {
            index.entries_.push_back(std::move(*entry));
        } else if (!line.empty() && line != kHeading) {
            index.otherLines_.emplace_back(line);
        }
    }
    return index;
}

std::vector<std::string> RecoveryIndex::DropOldStreams(std::size_t count) {
    const auto isStream = [](const KeptFile& file) { return file.Kind == KeptKind::kStream; };
    auto surplus = std::count_if(entries_.begin(), entries_.end(), isStream) -
                   static_cast<std::ptrdiff_t>(count);
    std::vector<std::string> dropped;
    for (auto file = entries_.begin(); file != entries_.end() && surplus > 0;) {
        if (!isStream(*file)) {
            ++file;
            continue;
        }
        dropped.push_back(std::move(file->Name));
        file = entries_.erase(file);
        --surplus;
    }
    return dropped;
}

std::string RecoveryIndex::Text() const {
    std::string text(kHeading);
    text += '\n';
    for (const std::string& line : otherLines_) text += line + '\n';
    for (const KeptFile& file : entries_) {
        text += Encoded(file.Name, false) + '\t';
        text += std::string(kKinds.at(static_cast<std::size_t>(file.Kind))) + '\t';
        text += Encoded(file.Date, false) + '\t' + std::to_string(file.Bytes) + '\t';
        text += Encoded(file.Sha256, false) + '\t' + Encoded(file.Origin, false) + '\t';
        text += Encoded(file.PreviousLine, true) + '\n';
    }
    return text;
}

}  // namespace brask
