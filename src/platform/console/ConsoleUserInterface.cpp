#include "platform/console/ConsoleUserInterface.h"

#include <algorithm>

#include "platform/Utf8.h"

namespace brask {
namespace {

// Five bars a second: smooth to the eye, and few enough for a slow remote terminal. The first comes
// after one interval, so that short work shows none.
constexpr std::int64_t kProgressInterval = 200;  // milliseconds

// "[######..............]  30 %  ", nothing while the end is unknown.
std::string ProgressBar(std::int64_t count, std::int64_t expected) {
    constexpr std::int64_t kWidth = 20;
    if (expected <= 0) return "";
    // an estimate may fall short; the work is not done before it says so
    const std::int64_t percent = std::min<std::int64_t>(count * 100 / expected, 99);
    const auto done = static_cast<std::size_t>(percent * kWidth / 100);
    return "[" + std::string(done, '#') + std::string(kWidth - done, '.') + "] " +
           std::to_string(percent) + " %  ";
}

}  // namespace

ConsoleUserInterface::ConsoleUserInterface(std::FILE* out, const Clock& clock,
                                           ConsoleOptions options)
    : out_(out), clock_(clock), options_(options) {}

void ConsoleUserInterface::ShowMessage(const Message& message) {
    messages_.push_back(message.Text);
    WriteLines(message.Text);
}

bool ConsoleUserInterface::ShowRepeatedMessage(const Message& message) {
    ShowMessage(message);
    return true;
}

bool ConsoleUserInterface::AskYesNo(const Message& question) {
    ShowMessage(question);
    return options_.Yes;
}

bool ConsoleUserInterface::AskRetry(const Message& message) {
    ShowMessage(message);
    return options_.Yes;
}

void ConsoleUserInterface::BeginProgress(ProgressMode) {
    expected_ = 0;
    nextProgress_ = clock_.SteadyMilliseconds() + kProgressInterval;
}

void ConsoleUserInterface::SetProgressCount(std::int64_t count) {
    if (!options_.Progress || clock_.SteadyMilliseconds() < nextProgress_) return;
    nextProgress_ = clock_.SteadyMilliseconds() + kProgressInterval;
    const std::string bar = "\r" + ProgressBar(count, expected_) + std::to_string(count);
    std::fputs(bar.c_str(), out_);
    std::fflush(out_);
    progressShown_ = true;
}

void ConsoleUserInterface::EndProgress() { ClearProgress(); }

void ConsoleUserInterface::ShowNotice(const std::string& text) { WriteLines(text); }

void ConsoleUserInterface::ClearProgress() {
    // back to the first column and erase the rest: a message must not stand behind half a bar
    if (progressShown_) std::fputs("\r\033[K", out_);
    progressShown_ = false;
}

void ConsoleUserInterface::WriteLines(const std::string& text) {
    ClearProgress();
    std::string lines = text;
    // messages join their lines by CR LF, as message boxes want it
    lines.erase(std::remove(lines.begin(), lines.end(), '\r'), lines.end());
    lines = PrintableText(lines) + "\n";
    std::fwrite(lines.data(), 1, lines.size(), out_);
}

}  // namespace brask
