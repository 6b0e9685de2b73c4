// A retrieval on fakes: a handheld and a disk in memory, a scripted user.
#pragma once

#include <map>
#include <set>
#include <string>
#include <vector>

#include "../data/Surroundings.h"
#include "handheld/CollectionRetrieval.h"
#include "platform/simulated/ScriptedHandheld.h"

namespace brask {

inline const std::string kPda = "\\TalvexPDA\\collections\\";
inline const std::string kPpc = "\\TalvexPPC\\collections\\";
inline const std::string kPcDirectory = "/b/VEK/From PocketPC/";

struct Retrieval : Surroundings, RetrievalView {
    ScriptedHandheld Handheld;
    HandheldAddress Address{true, ""};
    CollectSession Session;
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
        RecoveryFolder recovery(Disk, Clock, Directories);
        DiagnosticLog log(Disk, Clock);
        CollectionRetrieval retrieval(
            {Handheld, Disk, User, Words, Information, Directories, recovery, log}, Address,
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

    DataDirectories Directories{Disk, User, Words};
};

}  // namespace brask
