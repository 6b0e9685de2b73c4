#include "platform/windows/WindowsText.h"

#include <windows.h>

namespace brask::windows {
namespace {

// Names made beside a file, such as its temporary sibling, must fit in, too.
constexpr std::size_t kLongestPlainPath = MAX_PATH - 32;

}  // namespace

std::wstring ToWide(std::string_view utf8) {
    const int bytes = static_cast<int>(utf8.size());
    const int length = MultiByteToWideChar(CP_UTF8, 0, utf8.data(), bytes, nullptr, 0);
    std::wstring wide(static_cast<std::size_t>(length), L'\0');
    MultiByteToWideChar(CP_UTF8, 0, utf8.data(), bytes, wide.data(), length);
    return wide;
}

std::string ToUtf8(std::wstring_view wide) {
    const int characters = static_cast<int>(wide.size());
    const int length =
        WideCharToMultiByte(CP_UTF8, 0, wide.data(), characters, nullptr, 0, nullptr, nullptr);
    std::string utf8(static_cast<std::size_t>(length), '\0');
    WideCharToMultiByte(CP_UTF8, 0, wide.data(), characters, utf8.data(), length, nullptr, nullptr);
    return utf8;
}

std::wstring NativePath(std::string_view path) {
    const std::wstring typed = ToWide(path);
    // the call also turns "/" into "\", which the long form needs
    std::wstring full(GetFullPathNameW(typed.c_str(), 0, nullptr, nullptr), L'\0');
    if (full.empty()) return L"";
    full.resize(
        GetFullPathNameW(typed.c_str(), static_cast<DWORD>(full.size()), full.data(), nullptr));
    const bool prefixed = full.starts_with(L"\\\\?\\") || NamesDevice(full);
    // The plain form is kept where it works: not every network drive knows the long one.
    if (prefixed || full.size() <= kLongestPlainPath) return full;
    return full.starts_with(L"\\\\") ? L"\\\\?\\UNC" + full.substr(1) : L"\\\\?\\" + full;
}

bool NamesDevice(std::wstring_view nativePath) { return nativePath.starts_with(L"\\\\.\\"); }

}  // namespace brask::windows
