#include "platform/qt/QtUserInterface.h"

#include <QApplication>
#include <QCheckBox>
#include <QMessageBox>

#include "platform/qt/QtText.h"

namespace brask {
namespace {

constexpr qint64 kPumpInterval = 10;  // milliseconds

// Rich text would swallow what looks like a tag in a file's line.
void Fill(QMessageBox& box, const Message& message) {
    box.setWindowTitle(ToQt(message.Title));
    box.setTextFormat(Qt::PlainText);
    // lines end with CR LF, and Qt breaks them at the LF alone
    box.setText(ToQt(message.Text).remove(QLatin1Char('\r')));
}

}  // namespace

QtUserInterface::QtUserInterface(const Texts& texts, const TextRow& noMoreMessages)
    : texts_(texts), noMoreMessages_(noMoreMessages) {
    sinceEvents_.start();
}

void QtUserInterface::SetViews(QWidget* window, ProgressView* progress, NoticeView* notices) {
    window_ = window;
    progress_ = progress;
    notices_ = notices;
}

QWidget* QtUserInterface::Parent() const {
    // a box over the main window would lie behind an open dialog, and neither could be answered
    QWidget* modal = QApplication::activeModalWidget();
    return modal != nullptr ? modal : window_.data();
}

void QtUserInterface::ShowMessage(const Message& message) {
    QMessageBox box(QMessageBox::Information, {}, {}, QMessageBox::Ok, Parent());
    Fill(box, message);
    box.exec();
}

bool QtUserInterface::ShowRepeatedMessage(const Message& message) {
    QMessageBox box(QMessageBox::Warning, {}, {}, QMessageBox::Ok, Parent());
    Fill(box, message);
    // unchecked in every new box: one answer never silences by mistake
    auto* noMore = new QCheckBox(ToQt(texts_, noMoreMessages_), &box);
    box.setCheckBox(noMore);
    box.exec();
    return !noMore->isChecked();
}

bool QtUserInterface::AskYesNo(const Message& question) {
    QMessageBox box(QMessageBox::Question, {}, {}, QMessageBox::Yes | QMessageBox::No, Parent());
    Fill(box, question);
    return box.exec() == QMessageBox::Yes;
}

bool QtUserInterface::AskRetry(const Message& message) {
    QMessageBox box(QMessageBox::Critical, {}, {}, QMessageBox::Retry | QMessageBox::Cancel,
                    Parent());
    Fill(box, message);
    return box.exec() == QMessageBox::Retry;
}

void QtUserInterface::BeginProgress(ProgressMode mode) {
    if (progress_ == nullptr) return;
    progress_->Begin(mode);
    // the window is there before the work begins: once to map it, once to paint it
    QApplication::processEvents();
    QApplication::processEvents();
    // events have just run
    sinceEvents_.restart();
}

void QtUserInterface::SetProgressCount(std::int64_t count) {
    if (progress_ != nullptr) progress_->SetCount(count);
}

bool QtUserInterface::ProgressCancelled() const {
    return progress_ != nullptr && progress_->Cancelled();
}

void QtUserInterface::EndProgress() {
    if (progress_ != nullptr) progress_->End();
}

void QtUserInterface::ShowNotice(const std::string& text) {
    if (notices_ != nullptr) notices_->ShowNotice(ToQt(text));
}

void QtUserInterface::Beep() { QApplication::beep(); }

void QtUserInterface::SetWaitCursor(bool waiting) {
    if (waiting) {
        QApplication::setOverrideCursor(Qt::WaitCursor);
    } else {
        QApplication::restoreOverrideCursor();
    }
}

void QtUserInterface::LetEventsRun() {
    // work asks before every line; running events each time would take longer than the work
    if (sinceEvents_.elapsed() < kPumpInterval) return;
    QApplication::processEvents();
    sinceEvents_.restart();
}

void QtUserInterface::EndProgram() {
    if (ended_) return;
    // first of all: closing the main window asks for the end once more
    ended_ = true;
    QApplication::closeAllWindows();
    // a window that does not count as closed must not keep the loop alive
    QApplication::quit();
}

}  // namespace brask
