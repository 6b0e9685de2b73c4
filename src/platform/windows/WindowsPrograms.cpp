#include "platform/windows/WindowsPrograms.h"

#include <windows.h>
// after windows.h, which it builds on
#include <shellapi.h>

#include <memory>

#include "platform/windows/WindowsHandle.h"
#include "platform/windows/WindowsText.h"

namespace brask {
namespace {

using windows::Handle;

// As long as a path or a variable can be here.
constexpr DWORD kLongest = 32768;

// Backslashes count double in front of a quotation mark and single everywhere else.
std::wstring Quoted(const std::wstring& word) {
    std::wstring quoted = L"\"";
    std::size_t backslashes = 0;
    for (const wchar_t c : word) {
        if (c == L'"') quoted.append(backslashes + 1, L'\\');
        backslashes = c == L'\\' ? backslashes + 1 : 0;
        quoted += c;
    }
    quoted.append(backslashes, L'\\');
    return quoted + L"\"";
}

// The file to start. A bare name is looked for along the user's path only: the system itself would
// first take whatever lies in the folder that the shell stands in.
std::wstring Locate(const std::string& program) {
    if (program.find_first_of("\\/") != std::string::npos) return windows::NativePath(program);
    std::wstring path(kLongest, L'\0');
    path.resize(GetEnvironmentVariableW(L"PATH", path.data(), kLongest));
    std::wstring found(kLongest, L'\0');
    found.resize(SearchPathW(path.c_str(), windows::ToWide(program).c_str(), L".exe", kLongest,
                             found.data(), nullptr));
    return found;
}

// The keyboard's interrupt goes to both programs, and the other one decides what comes of it.
BOOL WINAPI LeaveToTheOther(DWORD) { return TRUE; }

// A job ends its programs when its last handle is gone, however this process ends.
Handle JobThatEndsWithUs() {
    Handle job(CreateJobObjectW(nullptr, nullptr));
    JOBOBJECT_EXTENDED_LIMIT_INFORMATION limits{};
    limits.BasicLimitInformation.LimitFlags = JOB_OBJECT_LIMIT_KILL_ON_JOB_CLOSE;
    SetInformationJobObject(job.Get(), JobObjectExtendedLimitInformation, &limits, sizeof limits);
    return job;
}

STARTUPINFOW WithOurStreams() {
    STARTUPINFOW start{};
    start.cb = sizeof start;
    start.dwFlags = STARTF_USESTDHANDLES;
    start.hStdInput = GetStdHandle(STD_INPUT_HANDLE);
    start.hStdOutput = GetStdHandle(STD_OUTPUT_HANDLE);
    start.hStdError = GetStdHandle(STD_ERROR_HANDLE);
    return start;
}

}  // namespace

namespace windows {

std::wstring CommandLineOf(const std::string& program, std::span<const std::string> arguments) {
    std::wstring line = Quoted(ToWide(program));
    for (const std::string& word : arguments) line += L" " + Quoted(ToWide(word));
    return line;
}

}  // namespace windows

std::vector<std::string> WindowsPrograms::CommandWords(std::span<char* const>) const {
    // What main is handed has lost the characters that the system's old code page does not have.
    int count = 0;
    const std::unique_ptr<wchar_t*, decltype(&LocalFree)> words(
        CommandLineToArgvW(GetCommandLineW(), &count), LocalFree);
    std::vector<std::string> utf8;
    if (words == nullptr) return utf8;
    for (int i = 1; i < count; ++i) utf8.push_back(windows::ToUtf8(words.get()[i]));
    return utf8;
}

Error WindowsPrograms::Become(const std::string& program, std::span<const std::string> arguments) {
    const std::wstring file = Locate(program);
    if (file.empty()) return windows::ErrorOf(ERROR_FILE_NOT_FOUND);
    std::wstring line = windows::CommandLineOf(program, arguments);
    STARTUPINFOW start = WithOurStreams();
    PROCESS_INFORMATION started{};
    const Handle job = JobThatEndsWithUs();
    SetConsoleCtrlHandler(LeaveToTheOther, TRUE);
    // suspended, so that it is in the job before it can start programs of its own
    if (CreateProcessW(file.c_str(), line.data(), nullptr, nullptr, TRUE, CREATE_SUSPENDED, nullptr,
                       nullptr, &start, &started) == 0) {
        Error error = windows::LastError();
        SetConsoleCtrlHandler(LeaveToTheOther, FALSE);
        return error;
    }
    const Handle process(started.hProcess);
    const Handle thread(started.hThread);
    AssignProcessToJobObject(job.Get(), process.Get());
    ResumeThread(thread.Get());
    WaitForSingleObject(process.Get(), INFINITE);
    DWORD status = 1;
    GetExitCodeProcess(process.Get(), &status);
    ExitProcess(status);
}

bool WindowsPrograms::ErrorOutputIsTerminal() const {
    DWORD mode = 0;
    return GetConsoleMode(GetStdHandle(STD_ERROR_HANDLE), &mode) != 0 &&
           (mode & ENABLE_VIRTUAL_TERMINAL_PROCESSING) != 0;
}

}  // namespace brask
