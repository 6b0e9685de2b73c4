#include "link/InstrumentMemory.h"

#include <algorithm>

#include "link/SimulatorTexts.h"

namespace brask {
namespace {

constexpr std::string_view kEndData = "END DATA:";
constexpr std::string_view kInstrument = "INSTRUMENT:";

bool IsDataLine(const std::string& line) { return std::count(line.begin(), line.end(), ',') == 2; }

// The count stands right-aligned in seven columns, as instruments write it.
std::string EndOfDataLine(std::int64_t count) {
    const std::string digits = std::to_string(count);
    const std::size_t blanks = digits.size() < 7 ? 7 - digits.size() : 0;
    return std::string(kEndData) + std::string(blanks, ' ') + digits;
}

// As bytes: whether a plain char is signed depends on the machine.
bool Carried(char c) {
    const auto byte = static_cast<unsigned char>(c);
    return byte > 0 && byte < 128;
}

}  // namespace

bool IsEndOfDataLine(std::string_view line) { return line.find(kEndData) != line.npos; }

Result<InstrumentMemory> InstrumentMemory::Read(std::string_view file, const Texts& texts) {
    InstrumentMemory memory;
    bool instrumentSeen = false;
    bool ended = false;
    while (!file.empty()) {
        const auto lineFeed = file.find('\n');
        std::string line(file.substr(0, lineFeed));
        file.remove_prefix(lineFeed == file.npos ? file.size() : lineFeed + 1);
        if (lineFeed != file.npos && line.ends_with('\r')) line.pop_back();

        const std::string number = std::to_string(memory.lines_.size() + 1);
        if (!std::all_of(line.begin(), line.end(), Carried)) {
            return Error{0, texts.Fill(simulator_texts::kNotCarried, {number})};
        }
        const auto instrument = instrumentSeen ? line.npos : line.find(kInstrument);
        if (instrument != line.npos && instrument != 0) {
            return Error{0, texts.Fill(simulator_texts::kBeforeInstrument, {number})};
        }
        instrumentSeen = instrumentSeen || instrument == 0;
        ended = ended || IsEndOfDataLine(line);
        memory.lines_.push_back(std::move(line));
    }
    if (!ended) memory.lines_.push_back(EndOfDataLine(memory.DataLineCount()));
    return memory;
}

std::int64_t InstrumentMemory::DataLineCount() const {
    return std::count_if(lines_.begin(), lines_.end(), IsDataLine);
}

bool InstrumentMemory::DropDataLine(std::int64_t number) {
    std::int64_t seen = 0;
    const auto found = std::find_if(lines_.begin(), lines_.end(), [&](const std::string& line) {
        return IsDataLine(line) && ++seen == number;
    });
    if (found == lines_.end()) return false;
    lines_.erase(found);
    return true;
}

void InstrumentMemory::SetAnnouncedCount(std::int64_t count) {
    for (std::string& line : lines_) {
        if (IsEndOfDataLine(line)) line = EndOfDataLine(count);
    }
}

void InstrumentMemory::Clear() {
    std::erase_if(lines_, IsDataLine);
    SetAnnouncedCount(0);
}

}  // namespace brask
