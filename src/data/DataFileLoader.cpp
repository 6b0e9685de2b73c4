#include "data/DataFileLoader.h"

#include <algorithm>

#include "data/DataTexts.h"
#include "data/Windows1252.h"
#include "platform/AsciiText.h"

namespace brask {
namespace {

using namespace data_texts;

// The shortest line that is a reading takes about half of the usual one; what lies beyond the
// estimate moves the arrays, which is slower but as right.
std::size_t ExpectedReadings(std::uint64_t fileSize) {
    constexpr std::uint64_t kMost =
        1 << 24;  // never set aside more than a file could be honest about
    return static_cast<std::size_t>(std::min(fileSize / FixedLineParser::kLineLength, kMost)) + 502;
}

// The progress window must not stay open when reading ends by an exception.
class ProgressScope {
  public:
    explicit ProgressScope(UserInterface& user) : user_(user) {
        user_.BeginProgress(ProgressMode::kReadingFile);
    }
    ~ProgressScope() { user_.EndProgress(); }
    ProgressScope(const ProgressScope&) = delete;
    ProgressScope& operator=(const ProgressScope&) = delete;

  private:
    UserInterface& user_;
};

std::string BadLineText(const Texts& texts, const LineReport& report) {
    const std::string field = Windows1252ToUtf8(report.Field);
    std::string text;
    if (report.Problem == LineProblem::kInvalidDate) {
        text = texts.Fill(kInvalidDate, {Windows1252ToUtf8(report.Rewritten), field});
    } else if (report.Problem == LineProblem::kInvalidGas) {
        text = texts.Fill(kInvalidGas, {field});
    } else {
        text = texts.Fill(kInvalidTemperature, {field});
    }
    return text + "\r\n" + texts.Fill(kOriginalLine, {Windows1252ToUtf8(report.Line)}) + "\r\n" +
           texts.Find(kIgnoringLine);
}

}  // namespace

bool LiesInTempDirectory(const Files& files, const std::string& path) {
    // separators on both sides: "/data/temperatures/" and a file called temp are none of these
    const std::string separator(1, files.Separator());
    return ContainsIgnoringCase(files.Absolute(path), separator + "temp" + separator);
}

DataFileLoader::DataFileLoader(DataSet& data, UserInterface& user, const Texts& texts, Files& files,
                               DiagnosticLog& log)
    : data_(data), user_(user), texts_(texts), files_(files), log_(log) {}

LoadOutcome DataFileLoader::LoadDataFile(const ReadOptions& options) {
    rejectedLines_ = 0;
    readFailed_ = false;
    showBadLines_ = true;
    cancelled_ = false;
    // events run from here on, and nobody may see the old readings any more
    data_.ReadingCount = 0;
    if (data_.CurrentDataFile.empty()) {
        data_.Recreate(0);
        return LoadOutcome::kNoFile;
    }
    {
        const ProgressScope progress(user_);
        Read(options);
    }
    // After a cancel nothing is shown: the user knows why there is no data.
    if (cancelled_) {
        rejectedLines_ = 0;
        data_.Recreate(0);
        return LoadOutcome::kCancelled;
    }
    if (data_.ReadingCount > 0) return LoadOutcome::kRead;
    ShowText(texts_.Find(kNoDataWasRead));
    return LoadOutcome::kNothingRead;
}

void DataFileLoader::Read(const ReadOptions& options) {
    const std::string& path = data_.CurrentDataFile;
    if (LiesInTempDirectory(files_, path)) {
        data_.Recreate(0);
        // The message is the same as for an empty file; only the log tells the reason.
        log_.WriteLog(texts_.Fill(kTempDirectory, {path}));
        return;
    }
    auto opened = files_.Open(path);
    // The arrays are re-created also when the file cannot be opened: the old readings are gone by
    // now.
    data_.Recreate(opened.Ok() ? ExpectedReadings(opened.Value()->Size()) : 0);
    if (!opened.Ok()) {
        readFailed_ = true;
        ShowText(texts_.Fill(kCannotRead, {path, opened.Why().Reason}));
        return;
    }
    // An estimate, too: as if every line were a reading of the usual form.
    user_.SetProgressTotal(
        static_cast<std::int64_t>(opened.Value()->Size() / FixedLineParser::kLineLength));
    const ReadSummary summary = DataFileReader(data_, options, *this).ReadDataFile(*opened.Value());
    rejectedLines_ = summary.RejectedLines;
    cancelled_ = summary.Cancelled || user_.Ended();
    if (cancelled_) return;
    if (!summary.Outcome.Ok()) {
        readFailed_ = true;
        ShowText(texts_.Fill(kCannotRead, {path, summary.Outcome.Why().Reason}));
    }
    // A file that an editor of another system has saved looks right on the screen and yet holds no
    // line; without the hint nobody would find out why nothing was read.
    if (data_.ReadingCount == 0 && summary.LoneLineFeeds) {
        user_.ShowNotice(texts_.Fill(kLoneLineFeeds, {BaseName(files_, path)}));
    }
}

void DataFileLoader::OnBadLine(const LineReport& report) {
    if (report.Problem == LineProblem::kTooLong) {
        log_.WriteLog(
            texts_.Fill(kLineTooLong, {data_.CurrentDataFile, std::to_string(report.LineNumber)}));
        return;
    }
    // Counted all the same: RejectedLines tells of those that were not shown.
    if (!showBadLines_ || user_.Ended()) return;
    showBadLines_ =
        user_.ShowRepeatedMessage({texts_.Find(kProgramTitle), BadLineText(texts_, report)});
}

bool DataFileLoader::KeepReading() {
    user_.LetEventsRun();
    return !user_.ProgressCancelled() && !user_.Ended();
}

void DataFileLoader::ShowText(const std::string& text) {
    user_.ShowMessage({texts_.Find(kProgramTitle), text});
}

}  // namespace brask
