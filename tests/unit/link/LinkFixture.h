// A download on a scripted link, a disk in memory and a clock by hand.
#pragma once

#include <gtest/gtest.h>

#include <string>
#include <vector>

#include "../data/Surroundings.h"
#include "link/DownloadSession.h"
#include "platform/simulated/ScriptedInfraredSockets.h"

namespace brask {

inline const std::string kInstrumentDir = "/data/VEK/From TalvexK42/";
inline const std::string kFiledName = kInstrumentDir + "K42 A1 03_05_2004_13_30_00.csv";

// What the instrument holds, and how it sends it: repeats wherever they save bytes.
inline const std::string kDataFile =
    "INSTRUMENT: A1\r\nGAS: CO\r\n"
    "JAN-01-2003 00:05:12,    0.1,  26.1\r\n"
    "JAN-01-2003 00:05:22,    0.2,  26.1\r\n"
    "JAN-01-2003 00:05:32,   10.2,  26.0\r\n"
    "END DATA: 3\r\n";
inline const std::string kStream =
    "INSTRUMENT: A1\r\nGAS: CO\r\n"
    "JAN-01-2003 00:05:12,    0.1,  26.1\r\n"
    "\x92"
    "22\x87"
    "2\x89\x92"
    "32\x84"
    "1\x89"
    "0\x82"
    "END DATA: 3\r\n";

inline InfraredDeviceList DeviceNamed(const std::string& name, int count = 1) {
    InfraredDeviceList list{};
    list[0] = static_cast<char>(count);
    const std::string record = "\x11\x22\x33\x44" + name;
    std::copy(record.begin(), record.end(), list.begin() + 4);
    return list;
}

// One receive for each block, control byte included.
inline std::deque<ScriptedInfraredSockets::Arrival> Blocks(const std::string& stream,
                                                           std::size_t size) {
    std::deque<ScriptedInfraredSockets::Arrival> arrivals;
    for (std::size_t at = 0; at < stream.size(); at += size) {
        arrivals.push_back({std::string(1, '\0') + stream.substr(at, size)});
    }
    return arrivals;
}

struct Download : Surroundings {
    Download() {
        Link.Devices = DeviceNamed("VEK TK42");
        Link.Arrivals = Blocks(kStream, 64);
        Link.OnSend = [this](const std::string& bytes) {
            if (bytes.ends_with("[CLEAR]")) Link.Arrivals = AnswersToClear;
        };
        Directories.OverrideBase("/data");
        Directories.ResolveDataDirectories(Options, WindowsKind::kNotClassified);
    }

    DownloadReport Run(DownloadOptions options = {}) {
        Report = DownloadSession(Link, System(), Data(), View, options).Run();
        EXPECT_NE(Collect.State, CollectState::kRunning);
        EXPECT_EQ(Link.OpenSockets, 0);
        EXPECT_FALSE(Link.Started);
        EXPECT_TRUE(Collect.ReceivedFile.empty() || Report.Accepted);
        return Report;
    }

    LinkSystem System() { return {User, Words, Disk, Information, Clock}; }
    LinkData Data() { return {Collect, Directories, Options, Log, Expander, Recovery}; }
    bool Sent(const std::string& command) const {
        return std::count(Link.Sent.begin(), Link.Sent.end(), std::string(1, '\0') + command) > 0;
    }

    struct LastView final : DownloadView {
        DownloadDisplay Last;
        std::vector<DownloadDisplay> All;
        void OnDownload(const DownloadDisplay& display) override { All.push_back(Last = display); }
    };

    ScriptedInfraredSockets Link{Clock};
    std::deque<ScriptedInfraredSockets::Arrival> AnswersToClear;
    CollectSession Collect;
    DataDirectories Directories{Disk, User, Words};
    DiagnosticLog Log{Disk, Clock};
    ReceivedFileExpander Expander{Disk};
    RecoveryFolder Recovery{Disk, Clock, Directories};
    LastView View;
    DownloadReport Report;
};

}  // namespace brask
