// Between the program's UTF-8 and the system's wide characters.
#pragma once

#include <string>
#include <string_view>

namespace brask::windows {

// Never fails: what is no UTF-8 becomes U+FFFD, so that such a name is simply not found.
std::wstring ToWide(std::string_view utf8);

// Never fails: half a surrogate pair, which file names may hold, becomes U+FFFD.
std::string ToUtf8(std::wstring_view wide);

// An absolute path in the form that the system's calls take. Such a path may be longer than 260
// characters: it then begins with "\\?\". Empty for the empty path, which no call accepts.
std::wstring NativePath(std::string_view path);

// Whether the native path names a device, such as NUL or COM1, which are found in every directory.
bool NamesDevice(std::wstring_view nativePath);

}  // namespace brask::windows
