// Whatever fails, and whenever: after every run the bytes of every file exist somewhere.
#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <iostream>

#include "RetrievalFixture.h"

namespace brask {
namespace {

using Fault = ScriptedHandheld::Fault;
using FileMap = std::map<std::string, std::string>;

// Every file has bytes of its own, and two blocks of them.
FileMap Numbered(std::initializer_list<std::string> paths) {
    FileMap files;
    for (const std::string& path : paths) files[path] = path + std::string(5000, '.');
    return files;
}

std::vector<FileMap> Layouts() {
    return {Numbered({kPda + "A.csv"}), Numbered({kPda + "A.csv", kPda + "A.col"}),
            Numbered({kPpc + "A.csv", kPpc + "A.col", kPda + "B.csv"}),
            Numbered({kPda + "A.csv", kPpc + "A.csv"}),
            Numbered({kPda + "A.csv", kPda + "A.col", kPpc + "A.csv", kPpc + "A.col"}),
            Numbered({kPda + "A.col", kPpc + "A.csv"}),
            // two names that become one on the PC, and a name that is taken among the kept
            Numbered({kPda + "A?.csv", kPda + "A_.csv", "\\VEK kept\\A?.csv"})};
}

// What fails in one run: operations of the handheld and of the disk.
struct Faults {
    Fault How = Fault::kRefused;
    int Handheld = -1;
    bool HandheldForGood = false;
    int Disk = -1;
    bool DiskForGood = false;
};

class RetrievalFaults : public testing::Test {
  protected:
    ~RetrievalFaults() override { std::cout << runs_ << " runs, " << gone_ << " files gone\n"; }

    // Runs a layout with these faults; true when the handheld's came to be (the disk's
    // where the handheld is to have none).
    bool Reaches(const FileMap& layout, const Faults& faults) {
        Retrieval run;
        FileMap originals = layout;
        originals["an older file of the PC"] = "old";
        run.Handheld.Contents = layout;
        run.Handheld.Folders.insert("\\VEK kept");
        run.Disk.Contents[kPcDirectory + "A.csv"] = "old";
        run.Handheld.How = faults.How;
        run.Handheld.FailAt = faults.Handheld;
        run.Handheld.FailForGood = faults.HandheldForGood;
        run.Disk.FailAt = faults.Disk;
        run.Disk.FailForGood = faults.DiskForGood;
        run.Run();
        ++runs_;
        const auto gone = run.Gone(originals);
        gone_ += gone.size();
        EXPECT_THAT(gone, testing::IsEmpty())
            << "handheld " << faults.Handheld << " fault " << static_cast<int>(faults.How)
            << " disk " << faults.Disk;
        for (const auto& [path, bytes] : run.Disk.Contents) {
            // what has a data file's name is whole
            if (path.starts_with(kPcDirectory) && bytes != "old") {
                EXPECT_EQ(bytes.size(), bytes.find('.', bytes.rfind('\\')) + 4 + 5000) << path;
            }
        }
        EXPECT_NE(run.Session.State, CollectState::kRunning);
        return faults.Handheld >= 0 ? run.Handheld.Operations > faults.Handheld
                                    : run.Disk.Operations > faults.Disk;
    }

  private:
    int runs_ = 0;
    std::size_t gone_ = 0;
};

TEST_F(RetrievalFaults, HandheldFailsAtEveryOperation) {
    for (const FileMap& layout : Layouts()) {
        for (const Fault how :
             {Fault::kRefused, Fault::kNothing, Fault::kSilent, Fault::kDoneOnly}) {
            for (const bool forGood : {false, true}) {
                // also with a full disk, where nothing can be kept on the PC
                for (const int disk : {-1, 0}) {
                    int at = 0;
                    while (Reaches(layout, {how, at, forGood, disk, true}) && at < 200) ++at;
                    EXPECT_GE(at, 2);
                }
            }
        }
    }
}

TEST_F(RetrievalFaults, DiskFailsAtEveryOperation) {
    for (const FileMap& layout : Layouts()) {
        for (const bool forGood : {false, true}) {
            int at = 0;
            while (Reaches(layout, {Fault::kRefused, -1, false, at, forGood}) && at < 300) ++at;
            EXPECT_GT(at, 10);
        }
    }
}

}  // namespace
}  // namespace brask
