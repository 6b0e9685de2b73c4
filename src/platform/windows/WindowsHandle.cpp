#include "platform/windows/WindowsHandle.h"

#include <algorithm>

#include "platform/windows/WindowsText.h"

namespace brask::windows {
namespace {

// Six characters that differ from call to call and from process to process.
std::wstring SixCharacters(unsigned attempt) {
    LARGE_INTEGER ticks{};
    QueryPerformanceCounter(&ticks);
    auto number = static_cast<unsigned long long>(ticks.QuadPart) * 31 +
                  static_cast<unsigned long long>(GetCurrentProcessId()) * 1000003 + attempt;
    std::wstring text;
    for (int i = 0; i < 6; ++i, number /= 36) {
        text += L"0123456789abcdefghijklmnopqrstuvwxyz"[number % 36];
    }
    return text;
}

// What a moment later may be over.
bool IsHeldByAnother(DWORD error) {
    return error == ERROR_SHARING_VIOLATION || error == ERROR_ACCESS_DENIED ||
           error == ERROR_LOCK_VIOLATION;
}

}  // namespace

std::string SystemMessage(DWORD number) {
    constexpr DWORD kFlags = FORMAT_MESSAGE_FROM_SYSTEM | FORMAT_MESSAGE_IGNORE_INSERTS;
    // as long as a message may be
    std::wstring text(32768, L'\0');
    text.resize(FormatMessageW(kFlags, nullptr, number, 0, text.data(),
                               static_cast<DWORD>(text.size()), nullptr));
    while (!text.empty() && (text.back() == L'\n' || text.back() == L'\r')) text.pop_back();
    return ToUtf8(text);
}

Error ErrorOf(DWORD number) {
    std::string reason = SystemMessage(number);
    // a few messages are several lines, and a reason is one
    std::replace(reason.begin(), reason.end(), '\n', ' ');
    reason.erase(std::remove(reason.begin(), reason.end(), '\r'), reason.end());
    while (!reason.empty() && (reason.back() == ' ' || reason.back() == '.')) reason.pop_back();
    if (reason.empty()) reason = "error " + std::to_string(number);
    if (number == ERROR_PATH_NOT_FOUND) number = ERROR_FILE_NOT_FOUND;
    // 27 is what callers know as "too large"; here it is a disk's bad sector
    if (number == ERROR_SECTOR_NOT_FOUND) number = ERROR_READ_FAULT;
    return {static_cast<int>(number), reason};
}

Handle OpenToLook(const std::wstring& path) {
    constexpr DWORD kShareAll = FILE_SHARE_READ | FILE_SHARE_WRITE | FILE_SHARE_DELETE;
    // the flag lets directories be opened, too
    return Handle(CreateFileW(path.c_str(), 0, kShareAll, nullptr, OPEN_EXISTING,
                              FILE_FLAG_BACKUP_SEMANTICS, nullptr));
}

Status WriteAll(HANDLE file, std::string_view bytes) {
    constexpr std::size_t kLongestCall = std::size_t{1} << 30;
    while (!bytes.empty()) {
        DWORD written = 0;
        const auto wanted = static_cast<DWORD>(std::min(bytes.size(), kLongestCall));
        if (WriteFile(file, bytes.data(), wanted, &written, nullptr) == 0) return LastError();
        bytes.remove_prefix(written);
    }
    return {};
}

Result<UniqueFile> CreateUnique(const std::wstring& front) {
    // so many names are taken only when somebody does it on purpose
    constexpr unsigned kAttempts = 100;
    for (unsigned attempt = 0;; ++attempt) {
        std::wstring path = front + SixCharacters(attempt);
        Handle handle(CreateFileW(path.c_str(), GENERIC_WRITE, FILE_SHARE_READ, nullptr, CREATE_NEW,
                                  FILE_ATTRIBUTE_NORMAL, nullptr));
        if (handle.Open()) return UniqueFile{std::move(path), std::move(handle)};
        if (GetLastError() != ERROR_FILE_EXISTS || attempt == kAttempts) return LastError();
    }
}

Status Rename(const std::wstring& source, const std::wstring& target, bool replace) {
    constexpr DWORD kPause = 20;  // milliseconds
    const DWORD flags = MOVEFILE_WRITE_THROUGH | (replace ? MOVEFILE_REPLACE_EXISTING : 0);
    for (DWORD waited = 0;; waited += kPause) {
        if (MoveFileExW(source.c_str(), target.c_str(), flags) != 0) return {};
        const DWORD error = GetLastError();
        if (!IsHeldByAnother(error) || waited >= 1000) return ErrorOf(error);
        Sleep(kPause);
    }
}

}  // namespace brask::windows
