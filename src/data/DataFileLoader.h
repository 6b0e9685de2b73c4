// Loads the current data file: runs the reader, turns what it reports into messages, shows the
// progress. The same for the window and for the shell.
#pragma once

#include <cstdint>

#include "data/DataFileReader.h"
#include "data/DataSet.h"
#include "data/DiagnosticLog.h"
#include "platform/Files.h"
#include "platform/Texts.h"
#include "platform/UserInterface.h"

namespace brask {

enum class LoadOutcome {
    kNoFile,       // CurrentDataFile is empty
    kRead,         // at least one reading
    kNothingRead,  // no reading; the message "No data was read" was shown
    kCancelled,    // by the user or the end of the program; no reading is left, nothing was shown
};

// Works on objects that it does not own and that outlive it.
class DataFileLoader final : private ReadObserver {
  public:
    DataFileLoader(DataSet& data, UserInterface& user, const Texts& texts, Files& files,
                   DiagnosticLog& log);

    // Replaces the readings by those of data.CurrentDataFile. Whoever shows the old readings must
    // have let go of them. Events run meanwhile; a second load must not start.
    LoadOutcome LoadDataFile(const ReadOptions& options);

    // Lines of the last load that a message was due for, shown or switched off. 0 after a cancelled
    // load.
    std::int64_t RejectedLines() const { return rejectedLines_; }
    // Whether the last load could not read the file, or not to its end; a message has said so.
    // Readings that came before a failure are kept, so kRead is possible then.
    bool ReadFailed() const { return readFailed_; }

  private:
    void Read(const ReadOptions& options);
    void OnBadLine(const LineReport& report) override;
    void OnReadings(std::int32_t count) override { user_.SetProgressCount(count); }
    bool KeepReading() override;
    void ShowText(const std::string& text);

    DataSet& data_;
    UserInterface& user_;
    const Texts& texts_;
    Files& files_;
    DiagnosticLog& log_;
    std::int64_t rejectedLines_ = 0;
    bool readFailed_ = false;
    bool showBadLines_ = true;
    bool cancelled_ = false;
};

// Whether a directory of this path is called temp, in any letter case. Such files are never read:
// they are half-done transfers of other programs.
bool LiesInTempDirectory(const Files& files, const std::string& path);

}  // namespace brask
