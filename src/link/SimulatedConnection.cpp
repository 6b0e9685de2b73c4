#include "link/SimulatedConnection.h"

#include <algorithm>
#include <utility>

#include "link/SimulatorTexts.h"
#include "platform/Utf8.h"

namespace brask {
namespace {

using namespace simulator_texts;

constexpr std::string_view kOutput = "[OUTPUT ";
constexpr std::string_view kClear = "[CLEAR]";
// family, device identifier, service name padded with zeros
constexpr std::size_t kAddressSize = 31;
constexpr std::size_t kServiceAt = 6;
constexpr std::size_t kIdentifierAt = 2;

std::string Hexadecimal(std::string_view bytes) {
    constexpr std::string_view kDigits = "0123456789ABCDEF";
    std::string text;
    for (const char c : bytes) {
        const auto byte = static_cast<unsigned char>(c);
        text += {kDigits[byte / 16U], kDigits[byte % 16U]};
    }
    return text;
}

// What a connect names: the service and the device.
std::string AddressText(std::string_view address) {
    const std::string_view service = address.substr(kServiceAt);
    return PrintableText(service.substr(0, service.find('\0'))) + " of device " +
           Hexadecimal(address.substr(kIdentifierAt, kServiceAt - kIdentifierAt));
}

std::string BigEndian(std::uint32_t number) {
    std::string bytes;
    for (const unsigned shift : {24U, 16U, 8U, 0U}) {
        bytes += static_cast<char>(number >> shift & 0xFFU);
    }
    return bytes;
}

// Where a stream of this length stops when a fault stops it.
std::size_t StopAt(std::size_t size, const std::optional<std::int64_t>& limit) {
    if (!limit || static_cast<std::uint64_t>(*limit) > size) return size;
    return static_cast<std::size_t>(*limit);
}

}  // namespace

Status SimulatedConnection::Take(const InfraredFrame& frame) {
    switch (frame.Type) {
        case FrameType::kDevices:
            needs_.Note(needs_.Words.Fill(kAskedForDevices,
                                          {std::to_string(needs_.Instrument.Behaviour().Devices)}));
            answers_ += EncodeFrame(FrameType::kDevices, needs_.Instrument.DeviceList());
            return {};
        case FrameType::kConnect:
            return TakeConnect(frame.Payload);
        case FrameType::kData:
            // the first byte is the link's own, not the command's
            if (!frame.Payload.empty()) TakeCommand(std::string_view(frame.Payload).substr(1));
            return {};
    }
    return {};
}

Status SimulatedConnection::TakeConnect(const std::string& address) {
    isSession_ = true;
    if (address.size() != kAddressSize) {
        return Error{0, needs_.Words.Fill(kBadAddress, {std::to_string(address.size())})};
    }
    const auto& refuse = needs_.Instrument.Behaviour().Refuse;
    const std::string target = AddressText(address);
    connected_ = !refuse;
    needs_.Note(connected_ ? needs_.Words.Fill(kConnected, {target})
                           : needs_.Words.Fill(kRefused, {target, std::to_string(*refuse)}));
    answers_ += EncodeFrame(FrameType::kConnect, connected_ ? "" : BigEndian(*refuse));
    return {};
}

void SimulatedConnection::TakeCommand(std::string_view text) {
    const std::string command = PrintableText(text);
    if (!connected_) {
        needs_.Note(needs_.Words.Fill(kNotConnected, {command}));
    } else if (text.starts_with(kOutput)) {
        needs_.Note(needs_.Words.Fill(kCommand, {command}));
        BeginStream();
    } else if (text.starts_with(kClear)) {
        AnswerClear(command);
    } else {
        needs_.Note(needs_.Words.Fill(kUnknownCommand, {command}));
    }
}

void SimulatedConnection::BeginStream() {
    const InstrumentBehaviour& behaviour = needs_.Instrument.Behaviour();
    stream_ = needs_.Instrument.Stream();
    position_ = 0;
    end_ = std::min(StopAt(stream_.size(), behaviour.SilentAfter),
                    StopAt(stream_.size(), behaviour.CutAfter));
    due_ = needs_.Time.SteadyMilliseconds();
    needs_.Note(needs_.Words.Fill(kSending, {std::to_string(stream_.size()),
                                             std::to_string(needs_.Instrument.DataLineCount())}));
    if (StreamDone()) FinishStream();
}

void SimulatedConnection::AnswerClear(const std::string& command) {
    needs_.Note(needs_.Words.Fill(kCommand, {command}));
    if (silent_) return;
    const auto answer = needs_.Instrument.AnswerClear();
    if (!answer) {
        needs_.Note(needs_.Words.Find(kNoClearAnswer));
        return;
    }
    needs_.Note(needs_.Words.Fill(needs_.Instrument.Cleared() ? kCleared : kNotCleared,
                                  {PrintableText(*answer)}));
    answers_ += EncodeFrame(FrameType::kData, std::string(1, '\0') + *answer);
}

std::optional<std::string> SimulatedConnection::NextFrame() {
    if (!answers_.empty()) return std::exchange(answers_, {});
    if (StreamDone() || needs_.Time.SteadyMilliseconds() < due_) return std::nullopt;
    std::string frame = NextDataFrame();
    due_ = needs_.Time.SteadyMilliseconds() + needs_.Instrument.Behaviour().DelayMilliseconds;
    if (StreamDone()) FinishStream();
    return frame;
}

std::string SimulatedConnection::NextDataFrame() {
    const InstrumentBehaviour& behaviour = needs_.Instrument.Behaviour();
    std::string payload;
    for (std::int64_t joined = 0; joined < behaviour.Merge && !StreamDone(); ++joined) {
        const std::size_t length = std::min(behaviour.BlockSize, end_ - position_);
        if (payload.size() + 1 + length > kMaxFramePayload) break;
        payload += '\0';
        payload.append(stream_, position_, length);
        position_ += length;
    }
    return EncodeFrame(FrameType::kData, payload);
}

std::optional<std::int64_t> SimulatedConnection::NextDue() const {
    if (!answers_.empty()) return 0;
    if (StreamDone()) return std::nullopt;
    return std::max<std::int64_t>(0, due_ - needs_.Time.SteadyMilliseconds());
}

void SimulatedConnection::FinishStream() {
    const auto reached = [this](const std::optional<std::int64_t>& limit) {
        return limit && static_cast<std::uint64_t>(*limit) == position_;
    };
    const InstrumentBehaviour& behaviour = needs_.Instrument.Behaviour();
    hangsUp_ = reached(behaviour.CutAfter);
    silent_ = !hangsUp_ && reached(behaviour.SilentAfter);
    const TextRow& text = hangsUp_ ? kCut : silent_ ? kSilent : kSent;
    needs_.Note(needs_.Words.Fill(text, {std::to_string(position_)}));
}

}  // namespace brask
