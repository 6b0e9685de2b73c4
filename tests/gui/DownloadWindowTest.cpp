// The download as the user sees it, on a scripted link.
#include <gmock/gmock.h>

#include <QTest>

#include "WindowFixture.h"
#include "link/ui/frmDiscoverStatus.h"
#include "platform/simulated/ScriptedInfraredSockets.h"

namespace brask {
namespace {

using namespace std::string_literals;
using testing::Contains;
using testing::HasSubstr;
using testing::IsEmpty;

class DownloadWindow : public WindowFixture {
  protected:
    static constexpr const char* kFile =
        "/home/documents/VEK/From TalvexK42/K42 K42 03_05_2004_13_30_00.csv";

    DownloadWindow() {
        Link.Devices[0] = 1;
        const std::string record = "\x11\x22\x33\x44VEK TK42";
        std::copy(record.begin(), record.end(), Link.Devices.begin() + 4);
        SetStream(kThreeReadings);
        User.OnEvents = [this] {
            ++Turns;
            OnTurn();
            QApplication::processEvents();
        };
    }

    frmBraskLite& Start() {
        frmBraskLite& window = WindowFixture::Start();
        window.Instrument().UseLinks([this](const InstrumentAddress& address) {
            UsedTcp = address.Simulated.has_value();
            return std::make_unique<Forwarding>(Link);
        });
        return window;
    }
    // One block for each line and one for the answer to clearing.
    void SetStream(const std::string& stream) {
        Link.Arrivals.clear();
        for (std::size_t at = 0; at < stream.size();) {
            const std::size_t end = stream.find('\n', at) + 1;
            Link.Arrivals.push_back({"\0"s + stream.substr(at, end - at)});
            at = end;
        }
    }
    // Presses the command and waits for its end.
    void Download() {
        Window().Download();
        AwaitEnd();
    }
    void AwaitEnd() {
        EXPECT_TRUE(QTest::qWaitFor([this] { return !Window().Registry().Busy(); }, 60'000));
        EXPECT_EQ(Link.OpenSockets, 0);
        EXPECT_EQ(Dialog(), nullptr);
    }
    frmDiscoverStatus* Dialog() {
        return Window().findChild<frmDiscoverStatus*>(QStringLiteral("frmDiscoverStatus"));
    }
    void Cancel() { Find<QPushButton>("cmdCancel", Dialog())->click(); }
    void LeaveInEveryWay(bool receiving);
    // The labels, joined; a prompt in red has a mark.
    std::string Labels() {
        std::string texts;
        for (int i = 0; i < 6; ++i) {
            const auto* label = Dialog()->findChild<QLabel*>(QStringLiteral("lblIRDAConnect_") +
                                                             QString::number(i));
            const bool red = label->palette().color(QPalette::WindowText) == QColor(255, 0, 0);
            texts += FromQt(label->text()) + (red ? "!" : "") + "|";
        }
        return texts;
    }

    // The fixture's link behind the sockets that a download owns.
    class Forwarding final : public InfraredSockets {
      public:
        explicit Forwarding(ScriptedInfraredSockets& link) : link_(link) {}
        Status Start() override { return link_.Start(); }
        void Stop() override { link_.Stop(); }
        Result<std::unique_ptr<InfraredSocket>> Open() override { return link_.Open(); }
        void Rest() override { link_.Rest(); }

      private:
        ScriptedInfraredSockets& link_;
    };

    ScriptedInfraredSockets Link{Clock};
    // What happens in the download's turns for events, and how many there were.
    std::function<void()> OnTurn = [] {};
    int Turns = 0;
    bool UsedTcp = false;
};

TEST_F(DownloadWindow, ShowsWhatItDoesAndEndsWithTheReadingsOnThePlot) {
    Start();
    Window().Registry().Run("mnuProgramOptions");
    Link.ListWaits = 3;
    std::vector<std::string> seen;
    bool rested = false;
    OnTurn = [&] {
        if (Dialog() == nullptr || !Dialog()->isVisible()) return;
        if (seen.empty() || seen.back() != Labels()) seen.push_back(Labels());
        // nothing else can start meanwhile, a second download neither
        EXPECT_FALSE(Item("mnuOpen")->isEnabled());
        EXPECT_FALSE(Item("mnuReadDataFromTalvexK42")->isEnabled());
        Window().Download();
        // the bar moves while time is counted, and rests when all has come
        const auto* bar = Find<QProgressBar>("progressBar", Dialog());
        rested = bar->maximum() != 0;
        EXPECT_EQ(Find<QTimer>("timer10s", Dialog())->isActive(), !rested);
    };
    Download();
    EXPECT_THAT(seen, Contains("Waiting for Talvex© K42|to connect over IRDA||Winsock Connected|"
                               "Press Any Key!|On The Talvex© K42!|"));
    EXPECT_THAT(seen, Contains("Data Transfer:|Received 17 Bytes|||||"));
    EXPECT_TRUE(rested);
    EXPECT_EQ(Link.Attempts.size(), 1U);
    EXPECT_EQ(Data.Source, DataSource::kInstrument);
    EXPECT_EQ(Disk.Contents[kFile], kThreeReadings);
    EXPECT_EQ(Caption(), "VEK Talvex© K42   Brask Lite   File:K42 K42 03_05_2004_13_30_00.csv");
    EXPECT_EQ(Find<QTabWidget>("SSTab1")->currentIndex(), 0);
    EXPECT_EQ(User.Notices.back(), "Data file saved: "s + kFile);
    EXPECT_THAT(Link.Sent, testing::Not(Contains("\0[CLEAR]"s)));
    EXPECT_THAT(Disk.Contents, Contains(testing::Pair(testing::EndsWith("VEKLog.Txt"),
                                                      HasSubstr("Back From SetViewData(1)"))));
}

// Ends a download in every way there is, before the connection stands or behind it.
void DownloadWindow::LeaveInEveryWay(bool receiving) {
    const std::function<void()> ways[] = {
        [this] { Cancel(); }, [this] { QTest::keyClick(Dialog(), Qt::Key_Escape); },
        [this] { Dialog()->close(); }, [this] { Window().close(); }};
    for (std::size_t way = 0; way < 4; ++way) {
        const bool endsProgram = way == 3;
        Start();
        Open("/data/three.csv");
        Link.Attempts.clear();
        Link.Devices[0] = receiving ? 1 : 0;
        SetStream("INSTRUMENT: K42\r\n");
        int left = 0;
        OnTurn = [&] {
            const bool reached = receiving ? Link.Arrivals.empty() : Link.Attempts.size() > 1;
            if (left != 0 || !reached || Dialog() == nullptr) return;
            left = Turns;
            ways[way]();
            EXPECT_TRUE(endsProgram || !Dialog()->isVisible()) << way;
        };
        Download();
        OnTurn = [] {};
        // a turn comes at least every 50 ms
        EXPECT_GT(left, 0) << way;
        EXPECT_LE(Turns - left, 3) << way;
        EXPECT_EQ(User.Ended(), endsProgram) << way;
        EXPECT_EQ(Data.CurrentDataFile, "/data/three.csv");
        EXPECT_EQ(Data.ReadingCount, 3);
        EXPECT_THAT(User.Shown, IsEmpty());
        EXPECT_TRUE(endsProgram || Item("mnuReadDataFromTalvexK42")->isEnabled()) << way;
    }
}

TEST_F(DownloadWindow, EveryWayOutEndsTheWaitingAtOnce) { LeaveInEveryWay(false); }
TEST_F(DownloadWindow, EveryWayOutEndsTheReceivingAtOnce) { LeaveInEveryWay(true); }

TEST_F(DownloadWindow, CancelBeforeItBeganNeverTouchesTheLink) {
    Start();
    Window().Download();
    Cancel();
    AwaitEnd();
    EXPECT_THAT(Link.Attempts, IsEmpty());
    Download();
    EXPECT_EQ(Data.ReadingCount, 3);
}

TEST_F(DownloadWindow, OnlyWhatWasReceivedWholeIsOpenedAndThenClearedIfWanted) {
    Start();
    auto* box = Find<QCheckBox>("chkAutoDeleteK42");
    EXPECT_FALSE(box->isChecked());
    box->click();
    EXPECT_EQ(Store.Values["AutoClear"], "YES");
    Link.OnSend = [this](const std::string& bytes) {
        if (bytes == "\0[CLEAR]"s) Link.Arrivals.push_back({"\0[OK]"s});
    };
    Disk.Contents["/home/documents/VEK/.recovery"] = "a file in the folder's place";
    SetStream("INSTRUMENT: K42\r\nEND DATA: 1\r\n");
    Download();
    EXPECT_EQ(Data.CurrentDataFile, "");
    // the clock stands, and a file that cannot be kept is not replaced
    Disk.Contents.erase(kFile);
    SetStream(kThreeReadings);
    Download();
    EXPECT_THAT(User.ShownTexts(),
                testing::ElementsAre(HasSubstr("not received correctly\r\nReceived 0 lines"),
                                     "Talvex© K42 Data Was Cleared"));
    EXPECT_THAT(User.Notices.back(), HasSubstr("No copy of the received stream"));
    EXPECT_EQ(Data.ReadingCount, 3);
    box->click();
    EXPECT_EQ(Store.Values["AutoClear"], "NO");
}

TEST_F(DownloadWindow, TheInstrumentIsChosenByItsAddress) {
    OwnStore.Values["InstrumentAddress"] = "serial";
    Start();
    Download();
    EXPECT_THAT(User.ShownTexts(), testing::ElementsAre(HasSubstr("serial is no address")));
    auto* choice = Find<QComboBox>("cmbInstrumentAddress");
    const auto type = [choice](const char* text) {
        choice->setEditText(QString::fromLatin1(text));
        emit choice->lineEdit()->editingFinished();
        return FromQt(choice->currentText());
    };
    EXPECT_EQ(type("tcp:nowhere"), "serial");
    EXPECT_THAT(User.Notices.back(), HasSubstr("tcp:nowhere is no address"));
    EXPECT_EQ(type(" tcp:localhost:4242 "), "tcp:localhost:4242");
    Download();
    EXPECT_TRUE(UsedTcp);
    SetStream(kThreeReadings);
    Window().Instrument().Override({});
    Download();
    EXPECT_FALSE(UsedTcp);
    EXPECT_EQ(OwnStore.Values["InstrumentAddress"], "tcp:localhost:4242");
}

}  // namespace
}  // namespace brask
