#include "cli/K42Options.h"

#include <array>
#include <cstdint>
#include <limits>

#include "cli/HelpCommand.h"
#include "cli/K42Texts.h"
#include "platform/simulated/InfraredFrames.h"

namespace brask {
namespace {

using namespace k42_texts;
using enum OptionKind;

constexpr auto kOptions = std::to_array<OptionRow>({
    {"listen", kText, "HOST:PORT", TextRow("cli", "wait for programs there; port 0: a free one")},
    {"file", kText, "DATAFILE", TextRow("cli", "the data file that the instrument holds")},
    {"once", kSwitch, "", TextRow("cli", "end after one session")},
    {"name", kText, "NAME", TextRow("cli", "name of the device; VEK TK42 by default")},
    {"devices", kCount, "N", TextRow("cli", "N devices in range, the others called DEVICE 2, ...")},
    {"block", kCount, "BYTES", TextRow("cli", "size of the data blocks; 512 by default")},
    {"delay", kCount, "MS", TextRow("cli", "pause of MS milliseconds between blocks")},
    {"silent-after", kCount, "BYTES", TextRow("cli", "stop sending there, keep the link open")},
    {"cut-after", kCount, "BYTES", TextRow("cli", "close the link there")},
    {"corrupt", kCount, "OFFSET",
     TextRow("cli", "invert the lowest bit of this byte of the stream, counted from 0")},
    {"drop-line", kCount, "N", TextRow("cli", "leave out data line N, counted from 1")},
    {"count", kCount, "N", TextRow("cli", "announce N data lines in END DATA:")},
    {"filler", kCount, "EVERY", TextRow("cli", "a filler byte after every so many bytes")},
    {"refuse", kCount, "ERROR", TextRow("cli", "refuse the connection with this error number")},
    {"merge", kCount, "N", TextRow("cli", "join N blocks, as many as fit, into one frame")},
    {"clear-answer", kText, "TEXT", TextRow("cli", "answer [CLEAR] with TEXT instead of [OK]")},
    {"no-clear-answer", kSwitch, "", TextRow("cli", "do not answer [CLEAR]")},
    {"help", kSwitch, "", TextRow("cli", "print this")},
    {"version", kSwitch, "", TextRow("cli", "print the version")},
});

constexpr CommandRow kProgram{"k42sim",
                              "--listen HOST:PORT --file DATAFILE [OPTION...]",
                              TextRow("cli", "play an instrument that programs can download from"),
                              kOptions,
                              0,
                              0,
                              nullptr};

// Which numbers make sense for an option.
struct CountRange {
    const char* Option;
    std::int64_t Least;
    std::int64_t Most;
};
// a block and its control byte fill a frame
constexpr auto kLongestBlock = static_cast<std::int64_t>(kMaxFramePayload) - 1;
constexpr std::size_t kLongestName = 22;
constexpr std::int64_t kAny = std::numeric_limits<std::int64_t>::max();
constexpr auto kRanges = std::to_array<CountRange>({
    {"devices", 0, 255},  // the list has one byte for it
    {"block", 1, kLongestBlock},
    {"delay", 0, 3'600'000},
    {"drop-line", 1, kAny},
    {"filler", 1, kAny},
    {"refuse", 0, std::numeric_limits<std::uint32_t>::max()},
    {"merge", 1, kAny},
});

Status CheckCounts(const CommandLine& line, const Texts& texts) {
    for (const CountRange& range : kRanges) {
        const auto count = line.Count(range.Option);
        if (!count || (*count >= range.Least && *count <= range.Most)) continue;
        const std::string option = OptionText(range.Option);
        const std::string given = std::to_string(*count);
        const std::string least = std::to_string(range.Least);
        if (range.Most == kAny) return Error{0, texts.Fill(kTooSmall, {option, given, least})};
        return Error{0,
                     texts.Fill(kOutOfRange, {option, given, least, std::to_string(range.Most)})};
    }
    return {};
}

Status CheckTexts(const CommandLine& line, const Texts& texts) {
    for (const auto& [option, longest] :
         {std::pair("name", kLongestName),
          std::pair("clear-answer", static_cast<std::size_t>(kLongestBlock))}) {
        const auto value = line.Value(option);
        if (value && value->size() > longest) {
            return Error{0, texts.Fill(kTooLong, {OptionText(option), std::to_string(longest)})};
        }
    }
    if (line.Has("clear-answer") && line.Has("no-clear-answer")) {
        return Error{0, texts.Find(kBothAnswers)};
    }
    return {};
}

InstrumentBehaviour BehaviourOf(const CommandLine& line) {
    InstrumentBehaviour behaviour;
    behaviour.Name = line.Value("name").value_or(behaviour.Name);
    behaviour.Devices = static_cast<int>(line.Count("devices").value_or(behaviour.Devices));
    if (const auto block = line.Count("block")) {
        behaviour.BlockSize = static_cast<std::size_t>(*block);
    }
    behaviour.DelayMilliseconds = line.Count("delay").value_or(0);
    behaviour.Merge = line.Count("merge").value_or(1);
    behaviour.Filler = line.Count("filler");
    behaviour.SilentAfter = line.Count("silent-after");
    behaviour.CutAfter = line.Count("cut-after");
    behaviour.Corrupt = line.Count("corrupt");
    behaviour.DropLine = line.Count("drop-line");
    behaviour.Count = line.Count("count");
    if (const auto error = line.Count("refuse")) {
        behaviour.Refuse = static_cast<std::uint32_t>(*error);
    }
    if (const auto answer = line.Value("clear-answer")) behaviour.ClearAnswer = answer;
    if (line.Has("no-clear-answer")) behaviour.ClearAnswer.reset();
    return behaviour;
}

}  // namespace

const CommandRow& K42Program() { return kProgram; }

Result<K42Request> ReadK42Request(const CommandLine& line, const Texts& texts) {
    for (const char* needed : {"listen", "file"}) {
        if (line.Has(needed)) continue;
        return Error{0, texts.Fill(kMissing, {OptionText(needed)})};
    }
    const auto listen = ParseTcpAddress(*line.Value("listen"));
    if (!listen) return Error{0, texts.Fill(kNotAnAddress, {*line.Value("listen")})};
    if (Status counts = CheckCounts(line, texts); !counts.Ok()) return counts.Why();
    if (Status words = CheckTexts(line, texts); !words.Ok()) return words.Why();
    return K42Request{*listen, *line.Value("file"), BehaviourOf(line), line.Has("once")};
}

std::string K42Help(const Texts& texts) {
    return texts.Find(kHelpHead) + OptionLines(kOptions, texts) + texts.Find(kHelpFoot);
}

}  // namespace brask
