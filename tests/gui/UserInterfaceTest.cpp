// The message boxes, file filters and the progress window as a user meets them.
#include <QCheckBox>
#include <QMessageBox>
#include <QPushButton>

#include "WindowFixture.h"
#include "app/AppTexts.h"
#include "app/ui/frmBuildingGraph.h"
#include "platform/qt/QtChoosers.h"
#include "platform/qt/QtUserInterface.h"

namespace brask {
namespace {

class Boxes : public testing::Test {
  protected:
    EnglishTexts texts_;
    QtUserInterface user_{texts_, app_texts::kNoMoreMessages};
};

TEST_F(Boxes, MessageIsShownAsPlainTextWithOneButton) {
    NextModal<QMessageBox> answer([&](QMessageBox& box) {
        EXPECT_EQ(box.windowTitle(), QStringLiteral("Title"));
        EXPECT_EQ(box.text(), QStringLiteral("<b>one</b>\ntwo"));
        EXPECT_EQ(box.textFormat(), Qt::PlainText);
        EXPECT_EQ(box.buttons().size(), 1);
        box.button(QMessageBox::Ok)->click();
    });
    user_.ShowMessage({"Title", "<b>one</b>\r\ntwo"});
    EXPECT_TRUE(answer.Met);
}

TEST_F(Boxes, RepeatedMessagesCanBeSwitchedOff) {
    for (const bool check : {false, true}) {
        NextModal<QMessageBox> answer([check](QMessageBox& box) {
            EXPECT_FALSE(box.checkBox()->isChecked()) << "unchecked each time";
            box.checkBox()->setChecked(check);
            box.button(QMessageBox::Ok)->click();
        });
        EXPECT_EQ(user_.ShowRepeatedMessage({"Title", "bad line"}), !check);
    }
}

TEST_F(Boxes, QuestionsReturnTheChosenAnswer) {
    const std::pair<QMessageBox::StandardButton, bool> cases[] = {{QMessageBox::Yes, true},
                                                                  {QMessageBox::No, false},
                                                                  {QMessageBox::Retry, true},
                                                                  {QMessageBox::Cancel, false}};
    const Message message{"Title", "Text"};
    for (const auto& one : cases) {
        NextModal<QMessageBox> answer([&](QMessageBox& box) { box.button(one.first)->click(); });
        const bool yesNo = one.first == QMessageBox::Yes || one.first == QMessageBox::No;
        EXPECT_EQ(yesNo ? user_.AskYesNo(message) : user_.AskRetry(message), one.second);
    }
}

TEST_F(Boxes, ProgressCanBeCancelledOnlyWhileReadingAndStartsAnew) {
    frmBuildingGraph progress(texts_, nullptr);
    user_.SetViews(nullptr, &progress, nullptr);
    auto* cancel = progress.findChild<QPushButton*>(QStringLiteral("cmdCancel"));
    user_.BeginProgress(ProgressMode::kReadingFile);
    EXPECT_TRUE(progress.isVisible());
    EXPECT_FALSE(user_.ProgressCancelled());
    cancel->click();
    EXPECT_TRUE(user_.ProgressCancelled());
    EXPECT_TRUE(progress.isVisible()) << "it closes when the work has stopped";
    user_.EndProgress();
    user_.BeginProgress(ProgressMode::kFillingGrid);
    EXPECT_FALSE(user_.ProgressCancelled());
    EXPECT_EQ(progress.windowTitle(), QStringLiteral("Filling Data Grid"));
    EXPECT_FALSE(cancel->isVisible());
    progress.close();
    EXPECT_FALSE(user_.ProgressCancelled());
}

TEST(QtFilter, MatchesExtensionsInAnyLetterCase) {
    EXPECT_EQ(QtFilter(QStringLiteral("All Files|*.*|Pictures|*.bmp;*.png")),
              QStringLiteral("All Files (*);;Pictures (*.bmp *.BMP *.png *.PNG)"));
}

TEST(WithoutMnemonics, KeepsTheAmpersandThatIsMeant) {
    EXPECT_EQ(WithoutMnemonics(QStringLiteral("&Horizontal && Vertical")),
              QStringLiteral("Horizontal & Vertical"));
}

}  // namespace
}  // namespace brask
