// k42sim: a simulated instrument, to try the software without one, to train, and to reproduce what
// went wrong with a real one.
#include <cstdio>
#include <new>
#include <span>
#include <string>
#include <vector>

#include "cli/K42Options.h"
#include "cli/K42Server.h"
#include "cli/K42Texts.h"
#include "platform/NativeSystem.h"
#include "platform/Utf8.h"
#include "platform/Version.h"

namespace {

using namespace brask;

// No data file of an instrument comes near it; a device or a disk image named by mistake does.
constexpr std::size_t kLargestFile = std::size_t{1} << 30U;

ExitStatus Fail(ExitStatus status, const std::string& reason) {
    std::string line = "k42sim: " + reason;
    for (char& c : line) c = c == '\n' ? ' ' : c;
    std::fprintf(stderr, "%s\n", PrintableText(line).c_str());
    return status;
}

Result<SimulatedInstrument> ReadInstrument(Files& files, const K42Request& request,
                                           const Texts& texts) {
    const auto bytes = ReadWholeFile(files, request.File, kLargestFile);
    if (!bytes.Ok()) return bytes.Why();
    return SimulatedInstrument::Create(bytes.Value(), request.Behaviour, texts);
}

ExitStatus Play(NativeSystem& system, const K42Request& request, const Texts& texts) {
    auto instrument = ReadInstrument(system.Disk(), request, texts);
    if (!instrument.Ok()) {
        return Fail(ExitStatus::kFailed,
                    texts.Fill(k42_texts::kCannotPlay, {request.File, instrument.Why().Reason}));
    }
    // Before the first line of output: whoever has read it may stop the program at once.
    const auto stop = system.WatchStopSignal();
    const auto listener = system.Network().Listen(request.Listen);
    if (!listener.Ok()) {
        return Fail(ExitStatus::kFailed,
                    texts.Fill(k42_texts::kCannotListen,
                               {TcpAddressText(request.Listen), listener.Why().Reason}));
    }
    const TcpAddress address{request.Listen.Host, listener.Value()->Port()};
    std::printf("%s\n", texts.Fill(k42_texts::kListening, {TcpAddressText(address)}).c_str());
    std::fflush(stdout);
    return K42Server({*listener.Value(), instrument.Value(), *stop, system.Time(), texts, stdout})
        .Run(request.Once);
}

ExitStatus RunWords(std::span<char* const> arguments) {
    NativeSystem system;
    const std::vector<std::string> words = system.OtherPrograms().CommandWords(arguments);
    const EnglishTexts texts;
    const auto line = CommandLine::ParseProgram(K42Program(), words, texts);
    if (!line.Ok()) return Fail(ExitStatus::kUsage, line.Why().Reason);
    if (line.Value().Has("help")) {
        std::fputs(K42Help(texts).c_str(), stdout);
        return ExitStatus::kDone;
    }
    if (line.Value().Has("version")) {
        const std::string version(ProgramVersion());
        std::printf("%s\n", texts.Fill(k42_texts::kVersionLine, {version}).c_str());
        return ExitStatus::kDone;
    }
    const auto request = ReadK42Request(line.Value(), texts);
    if (!request.Ok()) return Fail(ExitStatus::kUsage, request.Why().Reason);
    return Play(system, request.Value(), texts);
}

}  // namespace

int main(int argc, char** argv) {
    try {
        return static_cast<int>(RunWords({argv, static_cast<std::size_t>(argc)}));
    } catch (const std::bad_alloc&) {
        std::fprintf(stderr, "%s\n", k42_texts::kNoMemory.English);
        return static_cast<int>(ExitStatus::kFailed);
    }
}
