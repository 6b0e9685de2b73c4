#include "StartProgram.h"

#include <windows.h>

#include "platform/windows/WindowsHandle.h"
#include "platform/windows/WindowsPrograms.h"
#include "platform/windows/WindowsText.h"

namespace brask {
namespace {

using windows::Handle;

// A file that the started program may use.
Handle Inherited(const std::string& path, DWORD access, DWORD creation) {
    SECURITY_ATTRIBUTES inherit{sizeof inherit, nullptr, TRUE};
    return Handle(CreateFileW(windows::NativePath(path).c_str(), access,
                              FILE_SHARE_READ | FILE_SHARE_WRITE, &inherit, creation,
                              FILE_ATTRIBUTE_NORMAL, nullptr));
}

}  // namespace

int RunToEnd(const std::string& program, const std::vector<std::string>& words,
             const ProgramStreams& streams) {
    const std::string file = BRASK_BIN "/" + program + ".exe";
    std::wstring line = windows::CommandLineOf(file, words);
    const Handle in = Inherited("NUL", GENERIC_READ, OPEN_EXISTING);
    const Handle out = Inherited(streams.Out, GENERIC_WRITE, CREATE_ALWAYS);
    const Handle error = Inherited(streams.Error, GENERIC_WRITE, CREATE_ALWAYS);
    STARTUPINFOW start{};
    start.cb = sizeof start;
    start.dwFlags = STARTF_USESTDHANDLES;
    start.hStdInput = in.Get();
    start.hStdOutput = out.Get();
    start.hStdError = error.Get();
    PROCESS_INFORMATION started{};
    if (CreateProcessW(windows::NativePath(file).c_str(), line.data(), nullptr, nullptr, TRUE, 0,
                       nullptr, nullptr, &start, &started) == 0) {
        return -1;
    }
    const Handle process(started.hProcess);
    const Handle thread(started.hThread);
    WaitForSingleObject(process.Get(), INFINITE);
    DWORD status = 0;
    GetExitCodeProcess(process.Get(), &status);
    return static_cast<int>(status);
}

// The user's folders and settings are the system's business; tests that use them clean up.
void LiveIn(const std::string&) {}

}  // namespace brask
