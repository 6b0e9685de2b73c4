// The windows of the handheld, on a handheld in memory.
#include <gmock/gmock.h>

#include <QComboBox>
#include <QLineEdit>
#include <QPushButton>
#include <QTest>

#include "WindowFixture.h"
#include "handheld/ui/frmAccessPDA.h"
#include "platform/simulated/ScriptedHandheld.h"

namespace brask {
namespace {

using testing::ElementsAre;
using testing::HasSubstr;
using testing::IsEmpty;

constexpr const char* kPda = "\\TalvexPDA\\collections\\";

class HandheldWindow : public WindowFixture {
  protected:
    // Starts the window, with a handheld that `prepare` fills, and calls the command.
    void Begin(const std::function<void(ScriptedHandheld&)>& prepare) {
        OwnStore.Values["HandheldAddress"] = "dir:/pda";
        Start().Handheld().ReachWith([this, prepare](const HandheldAddress&) {
            auto handheld = std::make_unique<ScriptedHandheld>();
            prepare(*handheld);
            handheld_ = handheld.get();
            return handheld;
        });
        Item("mnuReadPDAFile")->trigger();
        shown_ = Find<frmAccessPDA>("frmAccessPDA");
        EXPECT_TRUE(shown_->isVisible());
        EXPECT_FALSE(Item("mnuOpen")->isEnabled());
        EXPECT_TRUE(Item("mnuExit")->isEnabled());
    }
    // Whether the window is gone and the commands are there again.
    bool Over() {
        return QTest::qWaitFor(
            [this] { return shown_.isNull() && Item("mnuReadPDAFile")->isEnabled(); });
    }
    std::string Cell(int row, int column) {
        return FromQt(Find<QTableWidget>("MSFlexGrid1", shown_)->item(row, column)->text());
    }
    template <class T>
    T* Find(const char* name, QWidget* in = nullptr) {
        return in == nullptr ? WindowFixture::Find<T>(name)
                             : in->findChild<T*>(QString::fromLatin1(name));
    }

    ScriptedHandheld* handheld_ = nullptr;
    QPointer<frmAccessPDA> shown_;
};

TEST_F(HandheldWindow, OpensTheFirstFileAndClosesByItself) {
    Begin([](ScriptedHandheld& handheld) {
        handheld.Contents = {{std::string(kPda) + "A.csv", kThreeReadings},
                             {std::string(kPda) + "B.csv", kBadLines}};
    });
    EXPECT_TRUE(Over());
    EXPECT_THAT(Caption(), HasSubstr("File:A.csv"));
    EXPECT_EQ(Data.Source, DataSource::kHandheld);
    EXPECT_EQ(Data.ReadingCount, 3);
    EXPECT_TRUE(Find<QWidget>("frameGraph")->isVisible());
    EXPECT_THAT(User.Shown, IsEmpty());
}

TEST_F(HandheldWindow, StaysAfterAnErrorUntilItIsClosed) {
    Begin([](ScriptedHandheld& handheld) {
        handheld.Contents = {{std::string(kPda) + "A.csv", kThreeReadings}};
        handheld.FailAt =
            10;  // the deletion, after three operations to find, five to copy, two to look again
    });
    auto* const button = Find<QPushButton>("cmdCancel", shown_);
    EXPECT_TRUE(QTest::qWaitFor([button] { return button->text() == QStringLiteral("Close"); }));
    EXPECT_EQ(Cell(0, 0), "A.csv");
    EXPECT_EQ(Cell(0, 1), "Yes");
    EXPECT_EQ(Cell(0, 2), "No");
    EXPECT_EQ(Cell(0, 3), "Input/output error");
    button->click();
    EXPECT_TRUE(Over());
    EXPECT_THAT(Caption(), HasSubstr("File:A.csv"));
}

TEST_F(HandheldWindow, CancelInEveryPhaseOpensNothing) {
    for (const int operation : {-1, 0, 4, 8}) {
        User.OnEvents = [this, operation] {
            if (handheld_->Operations != operation || !shown_->isVisible()) return;
            Find<QPushButton>("cmdCancel", shown_)->click();
            EXPECT_FALSE(shown_->isVisible());
        };
        Begin([](ScriptedHandheld& handheld) {
            handheld.Contents = {{std::string(kPda) + "A.csv", kThreeReadings}};
        });
        // before the run: Escape
        if (operation < 0) QTest::keyClick(shown_, Qt::Key_Escape);
        EXPECT_TRUE(Over()) << operation;
        EXPECT_THAT(Caption(), HasSubstr("no data loaded")) << operation;
        EXPECT_THAT(User.Shown, IsEmpty());
    }
}

TEST_F(HandheldWindow, MissingSoftwareIsToldUntilNotWanted) {
    OwnStore.Values["HandheldAddress"] = "rapi";
    for (const bool wanted : {true, false}) {
        for (const int button : {0, 1}) {
            Store.Values["NeverWarn"] = wanted ? "NO" : "YES";
            int notices = 0;
            QTimer answer;
            QObject::connect(&answer, &QTimer::timeout, [&] {
                QWidget* const notice = QApplication::activeModalWidget();
                if (notice == nullptr) return;
                ++notices;
                Find<QPushButton>(button == 0 ? "cmdNoWarn_0" : "cmdNoWarn_1", notice)->click();
            });
            answer.start(10);
            Start();
            EXPECT_EQ(notices, wanted ? 1 : 0);
            EXPECT_EQ(Store.Values["NeverWarn"], wanted && button == 0 ? "NO" : "YES");
        }
    }
}

TEST_F(HandheldWindow, TheAddressIsChosenInTheOptions) {
    Start().Handheld().Override({true, ""});
    Find<TabControl>("SSTab1")->setCurrentIndex(3);
    auto* const box = Find<QComboBox>("cmbHandheldAddress");
    const auto type = [box](const char* text) {
        box->lineEdit()->setText(QString::fromLatin1(text));
        QTest::keyClick(box->lineEdit(), Qt::Key_Return);
    };
    type("dir:/media/card");
    EXPECT_EQ(OwnStore.Values["HandheldAddress"], "dir:/media/card");
    type("usb:1");
    EXPECT_EQ(OwnStore.Values["HandheldAddress"], "dir:/media/card");
    EXPECT_EQ(box->currentText(), QStringLiteral("dir:/media/card"));
    EXPECT_THAT(User.Notices, ElementsAre(HasSubstr("usb:1 is no address")));
    Choose.Answers = {QStringLiteral("/mnt/pda")};
    Find<QPushButton>("cmdBrowseHandheld")->click();
    EXPECT_EQ(Choose.Asked.at(0).Start, QStringLiteral("/media/card"));
    EXPECT_EQ(OwnStore.Values["HandheldAddress"], "dir:/mnt/pda");
}

}  // namespace
}  // namespace brask
