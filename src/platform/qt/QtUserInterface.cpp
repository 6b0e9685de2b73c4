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
    // Messages join their lines by CR LF; a Qt text breaks at LF alone.
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
    // Asked far more often than a screen can follow; pumping each time would slow the work down.
    if (sinceEvents_.elapsed() < kPumpInterval) return;
    QApplication::processEvents();
    sinceEvents_.restart();
}

void QtUserInterface::EndProgram() {
    // closing the windows asks for the end again
    if (ended_) return;
    ended_ = true;
    QApplication::closeAllWindows();
    QApplication::quit();
}

}  // namespace brask
