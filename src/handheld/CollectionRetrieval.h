// One retrieval of collection files from the handheld, without a window: connect, list, and for
// every file copy it, then delete it on the handheld whatever became of the copy. What would be
// lost by that is kept first (see SafeDeletion).
#pragma once

#include <cstddef>
#include <string>
#include <vector>

#include "data/CollectSession.h"
#include "handheld/CollectionCopy.h"
#include "handheld/RetrievalParts.h"
#include "handheld/SafeDeletion.h"
#include "platform/HandheldAddress.h"

namespace brask {

// One line of the grid.
struct RetrievalRow {
    std::string Name;
    bool Downloaded = false;  // a copy was attempted, whatever became of it
    bool Deleted = false;
    std::string Status;  // what went wrong, and where bytes were kept
};

// What shows a run. Does nothing unless overridden. Calls come from within Run.
class RetrievalView {
  public:
    virtual ~RetrievalView() = default;

    virtual void ShowWaiting(bool /*waiting*/) {}
    // One line, UTF-8.
    virtual void ShowStatus(const std::string& /*text*/) {}
    // All rows, once, when they are known.
    virtual void ShowRows(const std::vector<RetrievalRow>& /*rows*/) {}
    // A row is worked on: at its begin, and whenever it has changed.
    virtual void ShowRow(std::size_t /*number*/, const RetrievalRow& /*row*/) {}
};

enum class RetrievalOutcome {
    kDone,          // all files there were (perhaps none) are copied and deleted
    kNotDeleted,    // all are copied; some could not be deleted, or not be closed
    kFailed,        // some could not be copied, or a folder not be listed
    kNotConnected,  // nothing was touched
    kStopped,       // by the user, or with the program
};

class CollectionRetrieval {
  public:
    // `address` is where `parts.Handheld` leads, for advice. All must outlive the retrieval.
    CollectionRetrieval(const RetrievalParts& parts, const HandheldAddress& address,
                        const Settings& settings, CollectSession& session, RetrievalView& view);

    // Runs once. Sets the session's state: connecting while it runs; then finished, cancelled when
    // nothing was connected or the user stopped it, and still connecting after an error, until the
    // window is closed. The session's first copied file is the one to open afterwards.
    RetrievalOutcome Run();
    // Stops the run before its next step; what is being copied then is not deleted.
    void Cancel() { session_.State = CollectState::kCancelled; }

    const std::vector<RetrievalRow>& Rows() const { return rows_; }

  private:
    bool MayGoOn() const;
    // False, with everything said, when there is no handheld.
    bool Connect();
    void ReportMissing();
    void ReportTypeMismatch(const Error& error);
    void FindFiles();
    void ListFolder(const std::string& folder);
    void Retrieve(std::size_t row);
    void Copied(const CopyOutcome& copy);
    RetrievalOutcome Finish();
    void ShowMessage(const std::string& text);

    const RetrievalParts parts_;
    const HandheldAddress& address_;
    const Settings& settings_;
    CollectSession& session_;
    RetrievalView& view_;
    CollectionCopy copy_;
    SafeDeletion deletion_;
    std::vector<RetrievalRow> rows_;
    std::string listingError_;  // in words; empty while there was none
    bool copyFailed_ = false;
    bool otherFailed_ = false;  // a copy is complete all the same
};

}  // namespace brask
