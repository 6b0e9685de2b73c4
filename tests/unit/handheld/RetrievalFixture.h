// A retrieval on fakes: a handheld and a disk in memory, a scripted user.
#pragma once

#include <map>
#include <set>
#include <string>
#include <vector>

#include "handheld/CollectionRetrieval.h"
#include "platform/simulated/FixedSystemInformation.h"
#include "platform/simulated/FixedUserLocale.h"
#include "platform/simulated/ManualClock.h"
#include "platform/simulated/MemoryFiles.h"
#include "platform/simulated/MemorySettingsStore.h"
#include "platform/simulated/ScriptedHandheld.h"
#include "platform/simulated/ScriptedUserInterface.h"

namespace brask {

inline constexpr const char* kPda = "\\TalvexPDA\\collections\\";
inline constexpr const char* kPpc = "\\TalvexPPC\\collections\\";
inline constexpr const char* kPcDirectory = "/b/VEK/From PocketPC/";

struct Retrieval : RetrievalView {
    ScriptedHandheld Handheld;
    MemoryFiles Disk;
    ScriptedUserInterface User;
    HandheldAddress Address{true, ""};
    CollectSession Session;
    MemorySettingsStore Store;
    std::vector<std::string> Lines;  // what stood above the grid
    RetrievalOutcome Outcome = RetrievalOutcome::kDone;
    std::vector<RetrievalRow> Rows;

    Retrieval() {
        Directories.OverrideBase("/b");
        Directories.ResolveDataDirectories(Options, WindowsKind::kNotClassified);
        Disk.Operations = 0;
    }
    void ShowStatus(const std::string& text) override { Lines.push_back(text); }

    void Run() {
        RecoveryFolder recovery(Disk, time_, Directories);
        DiagnosticLog log(Disk, time_);
        CollectionRetrieval retrieval(
            {Handheld, Disk, User, words_, information_, Directories, recovery, log}, Address,
            Options, Session, *this);
        Outcome = retrieval.Run();
        Rows = retrieval.Rows();
    }

    // The rows as "name downloaded deleted status".
    std::vector<std::string> Grid() const {
        std::vector<std::string> grid;
        for (const RetrievalRow& row : Rows) {
            grid.push_back(row.Name + (row.Downloaded ? " Yes" : " No") +
                           (row.Deleted ? " Yes " : " No ") + row.Status);
        }
        return grid;
    }
    // Which of these bytes are neither on the handheld nor on the PC.
    std::vector<std::string> Gone(const std::map<std::string, std::string>& originals) const {
        std::set<std::string> there;
        for (const auto& [path, bytes] : Handheld.Contents) there.insert(bytes);
        for (const auto& [path, bytes] : Disk.Contents) there.insert(bytes);
        std::vector<std::string> gone;
        for (const auto& [path, bytes] : originals) {
            if (!there.contains(bytes)) gone.push_back(path);
        }
        return gone;
    }

  private:
    ManualClock time_;
    EnglishTexts words_;
    FixedUserLocale locale_;
    FixedSystemInformation information_;
    MemorySettingsStore own_;
    Settings Options{Store, own_, locale_, [](const auto&, const auto&) {}};
    DataDirectories Directories{Disk, User, words_};
};

}  // namespace brask
