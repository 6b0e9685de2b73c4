#include "platform/windows/WindowsFolders.h"

#include <windows.h>
// after windows.h, which it builds on
#include <shlobj.h>

#include "platform/windows/WindowsText.h"

namespace brask::windows {
namespace {

std::string SystemFolder(int number) {
    wchar_t path[MAX_PATH] = L"";
    if (SHGetFolderPathW(nullptr, number, nullptr, SHGFP_TYPE_CURRENT, path) != S_OK) return "";
    std::string folder = ToUtf8(path);
    // a folder moved to the root of a drive comes as "D:\"
    while (!folder.empty() && folder.back() == '\\') folder.pop_back();
    return folder;
}

}  // namespace

std::string KnownFolderPath(KnownFolder folder) {
    switch (folder) {
        case KnownFolder::kUserDocuments:
            return SystemFolder(CSIDL_PERSONAL);
        case KnownFolder::kSharedDocuments:
            return SystemFolder(CSIDL_COMMON_DOCUMENTS);
        case KnownFolder::kDocumentsMissing:
            return "c:\\program files";
        case KnownFolder::kSettings:
            return SystemFolder(CSIDL_APPDATA);
        case KnownFolder::kState:
            return SystemFolder(CSIDL_LOCAL_APPDATA);
        // where support has always asked users to look
        case KnownFolder::kLog:
            return "C:";
    }
    return "";
}

}  // namespace brask::windows
