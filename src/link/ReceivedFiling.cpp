#include "link/ReceivedFiling.h"

#include <algorithm>
#include <array>
#include <cerrno>
#include <cstdio>
#include <utility>

#include "data/DataTexts.h"
#include "data/FileNames.h"
#include "data/FilePlacing.h"
#include "data/NumberText.h"
#include "data/Windows1252.h"
#include "link/LinkTexts.h"

namespace brask {
namespace {

using namespace link_texts;

constexpr std::uint64_t kShortestFile = 10;
// what file systems take
constexpr std::size_t kLongestName = 255;
// leaves room for a full stop and an ending in any file system's names
constexpr std::size_t kLongestStem = 200;

}  // namespace

std::string ReceivedFileName(std::string_view instrument, const CivilDateTime& now) {
    std::array<char, 64> stamp{};
    std::snprintf(stamp.data(), stamp.size(), " %02d_%02d_%04d_%02d_%02d_%02d.csv", now.Date.Month,
                  now.Date.Day, now.Date.Year, now.Hour, now.Minute, now.Second);
    constexpr std::string_view kPrefix = "K42 ";
    // cut here, so that time and ending are never what goes
    const std::size_t room = kLongestName - kPrefix.size() - std::string_view(stamp.data()).size();
    std::string text(instrument.substr(0, room));
    // no byte of an instrument is that large; here it would be half a character
    std::replace_if(
        text.begin(), text.end(), [](char c) { return (c & 0x80) != 0; }, '_');
    return SafeFileName(std::string(kPrefix) + text + stamp.data());
}

ReceivedFiling::ReceivedFiling(const LinkSystem& system, const LinkData& data,
                               std::function<bool()> keepGoing)
    : system_(system), data_(data), keepGoing_(std::move(keepGoing)) {}

FiledDownload ReceivedFiling::VerifyAndFile(const std::string& rawPath) {
    FiledDownload filed;
    system_.User.BeginProgress(ProgressMode::kVerifying);
    if (const auto expanded = Expand(rawPath)) {
        const std::string target = TargetFor(*expanded);
        if (Place(*expanded, target)) {
            filed.File = target;
            filed.Accepted = Check(filed);
        }
    }
    system_.User.EndProgress();
    if (filed.Accepted && data_.Options.IsYes("NotifyUserOfNewFiles")) {
        system_.User.ShowNotice(system_.Words.Fill(kDataFileSaved, {filed.File}));
    }
    return filed;
}

// In the directory that it is meant for, so that it gets the permissions of a new file there and
// reaches its name in one step. Hidden, and a name of its own for each stream.
std::string ReceivedFiling::ExpandedPath(const std::string& rawPath) const {
    const std::string name = BaseName(system_.Disk, rawPath).substr(0, kLongestStem);
    return data_.Directories.InstrumentDir() + "." + SafeFileName(name, ".expanded");
}

// The path of the expanded file; nothing when there is none.
std::optional<std::string> ReceivedFiling::Expand(const std::string& rawPath) {
    std::string path = ExpandedPath(rawPath);
    // kept for a second try, which must begin as the first one did
    const std::string previous = data_.Expander.PreviousLine();
    auto lines = data_.Expander.ExpandReceivedFile(rawPath, path, keepGoing_);
    if (!lines.Ok() && lines.Why().Number != ECANCELED) {
        // Where the directory cannot be written to, the user is told by the failing move, and finds
        // the whole file where that message says.
        auto temporary = system_.Disk.CreateTemporary("CFG");
        if (temporary.Ok()) {
            path = temporary.Value();
            data_.Expander.SetPreviousLine(previous);
            lines = data_.Expander.ExpandReceivedFile(rawPath, path, keepGoing_);
        }
    }
    if (lines.Ok()) return path;
    if (lines.Why().Number == ECANCELED) return std::nullopt;
    Log(kLogRejected, {rawPath, lines.Why().Reason});
    system_.User.ShowNotice(
        system_.Words.Fill(data_texts::kCannotRead, {rawPath, lines.Why().Reason}));
    return std::nullopt;
}

std::string ReceivedFiling::TargetFor(const std::string& expandedPath) const {
    std::string instrument;
    if (const auto opened = system_.Disk.Open(expandedPath); opened.Ok()) {
        const auto text = ReadInstrumentText(*opened.Value());
        if (text.Ok()) instrument = text.Value();
    }
    return data_.Directories.InstrumentDir() + ReceivedFileName(instrument, system_.Time.Now());
}

bool ReceivedFiling::Place(const std::string& expandedPath, const std::string& target) {
    // Names have a resolution of seconds; an emptied instrument read again at once must not cost
    // the readings that were just filed.
    if (system_.Disk.Exists(target)) {
        const auto sum = Sha256OfFile(system_.Disk, expandedPath);
        const auto kept = sum.Ok() ? data_.Recovery.KeepReplaced(target, sum.Value())
                                   : Result<std::string>(sum.Why());
        if (!kept.Ok()) {
            const std::string line = system_.Words.Fill(kNotReplaced, {target, kept.Why().Reason});
            data_.Log.WriteLog(line);
            system_.User.ShowNotice(line);
            // the stream itself stays, so it can be expanded again
            static_cast<void>(system_.Disk.Remove(expandedPath).Ok());
            return false;
        }
    }
    FilePlacing placing(system_.Disk, system_.User, system_.Words, system_.Information);
    return placing.PlaceReceivedFile(expandedPath, target, data_.Directories.InstrumentDir());
}

bool ReceivedFiling::Check(FiledDownload& filed) {
    const auto opened = system_.Disk.Open(filed.File);
    if (!opened.Ok()) {
        Log(kLogRejected, {filed.File, opened.Why().Reason});
        return false;
    }
    const std::uint64_t size = opened.Value()->Size();
    if (size < kShortestFile) {
        Log(kLogTooShort, {filed.File, std::to_string(size)});
        return false;
    }
    const CheckedFile checked = CheckReceivedFile(*opened.Value(), keepGoing_);
    filed.Counted = checked.Counted;
    filed.Expected = checked.Expected;
    return Judge(checked, filed.File);
}

bool ReceivedFiling::Judge(const CheckedFile& checked, const std::string& path) {
    const Texts& words = system_.Words;
    if (checked.BadLine) {
        return Reject(words.Fill(kInvalidLength, {Windows1252ToUtf8(*checked.BadLine)}), path);
    }
    if (!checked.Outcome.Ok()) {
        const Error& why = checked.Outcome.Why();
        if (why.Number != ECANCELED) Log(kLogRejected, {path, why.Reason});
        return false;
    }
    if (!checked.Expected) {
        Log(kLogNoEnd, {path});
        return false;
    }
    const std::string counted = std::to_string(checked.Counted);
    if (*checked.Expected != static_cast<double>(checked.Counted)) {
        return Reject(words.Fill(kWrongCount, {counted, FormatNumber(*checked.Expected)}), path);
    }
    if (checked.Counted == 0) return Reject(words.Find(kNoData), path);
    Log(kLogAccepted, {path, counted});
    return true;
}

// Always false, for the caller to hand on.
bool ReceivedFiling::Reject(const std::string& message, const std::string& path) {
    // one line of the log, where the box has several
    std::string line = message;
    std::erase(line, '\r');
    std::replace(line.begin(), line.end(), '\n', ' ');
    Log(kLogRejected, {path, line});
    system_.User.ShowMessage({system_.Words.Find(data_texts::kProgramTitle), message});
    return false;
}

void ReceivedFiling::Log(const TextRow& row, std::initializer_list<std::string_view> arguments) {
    data_.Log.WriteLog(system_.Words.Fill(kLogDownload, {system_.Words.Fill(row, arguments)}));
}

}  // namespace brask
