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
    // Starts the window, with a handheld that holds a file and is as `prepare` leaves it, and calls
    // the command.
    void Begin(const std::function<void(ScriptedHandheld&)>& prepare = [](ScriptedHandheld&) {}) {
        OwnStore.Values["HandheldAddress"] = "dir:/pda";
        Start().Handheld().ReachWith([this, prepare](const HandheldAddress&) {
            auto handheld = std::make_unique<ScriptedHandheld>();
            handheld->Contents[std::string(kPda) + "A.csv"] = kThreeReadings;
            prepare(*handheld);
            handheld_ = handheld.get();
            return handheld;
        });
        Item("mnuReadPDAFile")->trigger();
        shown_ = Find<frmAccessPDA>("frmAccessPDA");
        EXPECT_TRUE(shown_->isVisible() && Item("mnuExit")->isEnabled());
        EXPECT_FALSE(Item("mnuOpen")->isEnabled());
    }
    // Whether the window is gone and the commands are there again.
    bool Over() {
        return QTest::qWaitFor(
            [this] { return shown_.isNull() && Item("mnuReadPDAFile")->isEnabled(); });
    }

    ScriptedHandheld* handheld_ = nullptr;
    QPointer<frmAccessPDA> shown_;
};

TEST_F(HandheldWindow, OpensTheFirstFileAndClosesByItself) {
    Begin([](ScriptedHandheld& handheld) {
        handheld.Contents[std::string(kPda) + "B.csv"] = kBadLines;
    });
    EXPECT_TRUE(Over());
    EXPECT_THAT(Caption(), HasSubstr("File:A.csv"));
    EXPECT_EQ(Data.Source, DataSource::kHandheld);
    EXPECT_EQ(Data.ReadingCount, 3);
    EXPECT_THAT(User.Shown, IsEmpty());
}

TEST_F(HandheldWindow, StaysAfterAnErrorUntilItIsClosed) {
    Begin([](ScriptedHandheld& handheld) {
        // the deletion, after three operations to find, five to copy and two to look again
        handheld.FailAt = 10;
    });
    auto* const button = Find<QPushButton>("cmdCancel", shown_);
    EXPECT_TRUE(QTest::qWaitFor([button] { return button->text() == QStringLiteral("Close"); }));
    const auto* const grid = Find<QTableWidget>("MSFlexGrid1", shown_);
    QStringList cells;
    for (int column = 0; column < 4; ++column) cells << grid->item(0, column)->text();
    EXPECT_EQ(FromQt(cells.join(QLatin1Char('|'))), "A.csv|Yes|No|Input/output error");
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
        Begin();
        // before the run: Escape
        if (operation < 0) QTest::keyClick(shown_, Qt::Key_Escape);
        EXPECT_TRUE(Over()) << operation;
        EXPECT_THAT(Caption(), HasSubstr("no data loaded")) << operation;
        EXPECT_THAT(User.Shown, IsEmpty());
    }
}

TEST_F(HandheldWindow, MissingSoftwareIsToldUntilNotWanted) {
    OwnStore.Values["HandheldAddress"] = "rapi";
    Store.Values["NeverWarn"] = "NO";
    for (const char* button : {"cmdNoWarn_0", "cmdNoWarn_1", ""}) {
        NextModal<QDialog> answer(
            [&](QDialog& notice) { Find<QPushButton>(button, &notice)->click(); });
        Start();
        EXPECT_EQ(answer.Met, *button != '\0') << "not after the second button";
        EXPECT_EQ(Store.Values["NeverWarn"] == "YES", button != std::string("cmdNoWarn_0"));
    }
}

TEST_F(HandheldWindow, TheAddressIsChosenInTheOptions) {
    Start().Handheld().Override({true, ""});
    auto* const box = Find<QComboBox>("cmbHandheldAddress");
    const auto type = [box](const char* text) {
        box->lineEdit()->setText(QString::fromLatin1(text));
        QTest::keyClick(box->lineEdit(), Qt::Key_Return);
    };
    type("dir:/media/card");
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
