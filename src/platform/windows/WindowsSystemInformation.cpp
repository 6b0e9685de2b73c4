#include "platform/windows/WindowsSystemInformation.h"

#include <windows.h>

#include "platform/windows/WindowsHandle.h"
#include "platform/windows/WindowsRegistry.h"
#include "platform/windows/WindowsText.h"

namespace brask {

std::optional<VersionRecord> WindowsSystemInformation::Version() const {
    OSVERSIONINFOW version{};
    version.dwOSVersionInfoSize = sizeof version;
    if (GetVersionExW(&version) == 0) return std::nullopt;
    return VersionRecord{
        static_cast<int>(version.dwMajorVersion), static_cast<int>(version.dwMinorVersion),
        static_cast<int>(version.dwBuildNumber), static_cast<int>(version.dwPlatformId),
        windows::ToUtf8(version.szCSDVersion)};
}

std::string WindowsSystemInformation::ErrorText(int number) const {
    return windows::SystemMessage(static_cast<DWORD>(number));
}

std::string WindowsSystemInformation::RegistryText(const std::string& key,
                                                   const std::string& value) const {
    return windows::ReadRegistryText(HKEY_LOCAL_MACHINE, key, value).value_or("");
}

std::string WindowsSystemInformation::UserName() const {
    // as long as a name may be (UNLEN), and the NUL
    wchar_t name[257] = L"";
    DWORD length = 257;
    return GetUserNameW(name, &length) != 0 ? windows::ToUtf8(name) : "";
}

std::string WindowsSystemInformation::ProgramDirectory() const {
    // as long as a path can be here
    std::wstring program(32768, L'\0');
    program.resize(GetModuleFileNameW(nullptr, program.data(), static_cast<DWORD>(program.size())));
    const auto last = program.find_last_of(L'\\');
    return last == std::wstring::npos ? "." : windows::ToUtf8(program.substr(0, last));
}

}  // namespace brask
