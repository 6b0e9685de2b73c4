#include "link/SimulatedInstrument.h"

#include "link/SimulatorTexts.h"
#include "link/StreamEncoder.h"

namespace brask {
namespace {

constexpr std::size_t kListHeader = 4;
constexpr std::size_t kIdentifierSize = 4;
constexpr std::size_t kNameSize = 22;
// hint bytes, character set and padding behind each name
constexpr std::size_t kRecordRest = 4;

// The low byte tells the devices apart; the rest is as arbitrary as real identifiers are.
std::string DeviceIdentifier(int index) {
    return std::string("\x4B\x34\x32", 3) + static_cast<char>(index + 1);
}

std::string WithFillers(const std::string& stream, std::size_t every) {
    std::string filled;
    filled.reserve(stream.size() + stream.size() / every);
    for (std::size_t at = 0; at < stream.size(); at += every) {
        filled.append(stream, at, every);
        if (at + every <= stream.size()) filled += '\0';
    }
    return filled;
}

// Whether a position names one of `size` things that are counted from 0.
bool Within(std::int64_t position, std::size_t size) {
    return position >= 0 && static_cast<std::uint64_t>(position) < size;
}

}  // namespace

Result<SimulatedInstrument> SimulatedInstrument::Create(std::string_view file,
                                                        InstrumentBehaviour behaviour,
                                                        const Texts& texts) {
    auto memory = InstrumentMemory::Read(file, texts);
    if (!memory.Ok()) return memory.Why();
    const std::string lines = std::to_string(memory.Value().DataLineCount());
    if (behaviour.DropLine && !memory.Value().DropDataLine(*behaviour.DropLine)) {
        return Error{0, texts.Fill(simulator_texts::kNoSuchLine,
                                   {std::to_string(*behaviour.DropLine), lines})};
    }
    if (behaviour.Count) memory.Value().SetAnnouncedCount(*behaviour.Count);
    if (behaviour.Corrupt) {
        const std::size_t size = EncodeStream(memory.Value().Lines()).size();
        if (!Within(*behaviour.Corrupt, size)) {
            return Error{0, texts.Fill(simulator_texts::kNoSuchByte,
                                       {std::to_string(*behaviour.Corrupt), std::to_string(size)})};
        }
    }
    return SimulatedInstrument(std::move(memory.Value()), std::move(behaviour));
}

std::string SimulatedInstrument::DeviceList() const {
    std::string list(kListHeader, '\0');
    list[0] = static_cast<char>(behaviour_.Devices);
    for (int index = 0; index < behaviour_.Devices; ++index) {
        std::string name = index == 0 ? behaviour_.Name : "DEVICE " + std::to_string(index + 1);
        name.resize(kNameSize, '\0');
        list += DeviceIdentifier(index).substr(0, kIdentifierSize) + name;
        list.append(kRecordRest, '\0');
    }
    return list;
}

std::string SimulatedInstrument::Stream() const {
    std::string stream = EncodeStream(memory_.Lines());
    // A stream that became shorter by clearing may not have the byte any more.
    if (behaviour_.Corrupt && Within(*behaviour_.Corrupt, stream.size())) {
        char& byte = stream[static_cast<std::size_t>(*behaviour_.Corrupt)];
        byte = static_cast<char>(byte ^ 1);
    }
    if (!behaviour_.Filler) return stream;
    return WithFillers(stream, static_cast<std::size_t>(*behaviour_.Filler));
}

std::optional<std::string> SimulatedInstrument::AnswerClear() {
    const auto& answer = behaviour_.ClearAnswer;
    if (answer && answer->find("[OK]") != std::string::npos) {
        memory_.Clear();
        cleared_ = true;
    }
    return answer;
}

}  // namespace brask
