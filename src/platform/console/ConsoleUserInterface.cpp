#include "platform/console/ConsoleUserInterface.h"

namespace brask {
namespace {

constexpr std::int64_t kProgressInterval = 200;  // milliseconds

// Messages quote bytes of files; a terminal would obey control characters among them. In UTF-8 the
// second set of them is a 0xC2 and one more byte.
bool IsControl(char before, char c) {
    const auto byte = static_cast<unsigned char>(c);
    if (byte < 0x20) return c != '\n' && c != '\t';
    return byte == 0x7F || (before == '\xC2' && byte >= 0x80 && byte < 0xA0);
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
    nextProgress_ = clock_.SteadyMilliseconds() + kProgressInterval;
}

void ConsoleUserInterface::SetProgressCount(std::int64_t count) {
    if (!options_.Progress || clock_.SteadyMilliseconds() < nextProgress_) return;
    nextProgress_ = clock_.SteadyMilliseconds() + kProgressInterval;
    std::fprintf(out_, "\r%lld Results", static_cast<long long>(count));
    std::fflush(out_);
    progressShown_ = true;
}

void ConsoleUserInterface::EndProgress() { ClearProgress(); }

void ConsoleUserInterface::ShowNotice(const std::string& text) { WriteLines(text); }

void ConsoleUserInterface::ClearProgress() {
    if (progressShown_) std::fputs("\r\033[K", out_);
    progressShown_ = false;
}

void ConsoleUserInterface::WriteLines(const std::string& text) {
    ClearProgress();
    char before = '\0';
    for (const char c : text) {
        if (c != '\r') std::fputc(IsControl(before, c) ? '?' : c, out_);
        before = c;
    }
    std::fputc('\n', out_);
}

}  // namespace brask
