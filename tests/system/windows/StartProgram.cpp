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

// Null when the program cannot be started; its standard input is empty.
Handle Start(const std::string& program, const std::vector<std::string>& words, const Handle& out,
             const Handle& error) {
    const std::string file = BRASK_BIN "/" + program + ".exe";
    std::wstring line = windows::CommandLineOf(file, words);
    const Handle in = Inherited("NUL", GENERIC_READ, OPEN_EXISTING);
    STARTUPINFOW streams{};
    streams.cb = sizeof streams;
    streams.dwFlags = STARTF_USESTDHANDLES;
    streams.hStdInput = in.Get();
    streams.hStdOutput = out.Get();
    streams.hStdError = error.Get();
    PROCESS_INFORMATION started{};
    // a group of its own, so that an interrupt reaches it alone
    if (CreateProcessW(windows::NativePath(file).c_str(), line.data(), nullptr, nullptr, TRUE,
                       CREATE_NEW_PROCESS_GROUP, nullptr, nullptr, &streams, &started) == 0) {
        return Handle();
    }
    CloseHandle(started.hThread);
    return Handle(started.hProcess);
}

int StatusOf(const Handle& process) {
    DWORD status = 0;
    WaitForSingleObject(process.Get(), INFINITE);
    return GetExitCodeProcess(process.Get(), &status) != 0 ? static_cast<int>(status) : -1;
}

class Child final : public RunningProgram {
  public:
    Child(Handle process, Handle output)
        : process_(std::move(process)), output_(std::move(output)) {}
    ~Child() override { TerminateProcess(process_.Get(), 1); }
    Child(const Child&) = delete;
    Child& operator=(const Child&) = delete;

    std::string ReadLine() override {
        std::string line;
        char c = 0;
        DWORD count = 0;
        while (ReadFile(output_.Get(), &c, 1, &count, nullptr) != 0 && count == 1 && c != '\n') {
            line += c;
        }
        return line;
    }
    bool Interrupt() const override {
        return GenerateConsoleCtrlEvent(CTRL_BREAK_EVENT, GetProcessId(process_.Get())) != 0;
    }
    int ExitStatus() override { return StatusOf(process_); }

  private:
    Handle process_;
    Handle output_;
};

}  // namespace

int RunToEnd(const std::string& program, const std::vector<std::string>& words,
             const ProgramStreams& streams) {
    const Handle out = Inherited(streams.Out, GENERIC_WRITE, CREATE_ALWAYS);
    const Handle error = Inherited(streams.Error, GENERIC_WRITE, CREATE_ALWAYS);
    const Handle process = Start(program, words, out, error);
    return process.Open() ? StatusOf(process) : -1;
}

std::unique_ptr<RunningProgram> StartProgram(const std::string& program,
                                             const std::vector<std::string>& words) {
    SECURITY_ATTRIBUTES inherit{sizeof inherit, nullptr, TRUE};
    HANDLE ours = nullptr;
    HANDLE its = nullptr;
    CreatePipe(&ours, &its, &inherit, 0);
    Handle output(ours);
    // what the program would inherit of our end would keep the pipe open
    SetHandleInformation(ours, HANDLE_FLAG_INHERIT, 0);
    const Handle out(its);
    const Handle error = Inherited("NUL", GENERIC_WRITE, OPEN_EXISTING);
    return std::make_unique<Child>(Start(program, words, out, error), std::move(output));
}

// Folders and settings are the system's, so the traces of the test before are removed; but only
// under Wine, where they are nobody's.
void LiveIn(const std::string& home) {
    if (GetProcAddress(GetModuleHandleW(L"ntdll.dll"), "wine_get_version") == nullptr) return;
    RegDeleteTreeW(HKEY_CURRENT_USER, L"Software\\VEK");
    DeleteFileW(windows::ToWide(LogPath(home)).c_str());
}

std::string LogPath(const std::string&) { return "C:\\VEKLog.Txt"; }

int RefusedConnection() { return WSAECONNREFUSED; }

}  // namespace brask
