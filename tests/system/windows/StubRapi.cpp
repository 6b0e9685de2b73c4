// A remote-access library whose handheld is the directory that HANDHELD_ROOT names.
#include <windows.h>

#include <algorithm>
#include <cwchar>
#include <string>

namespace {

// The form that the library's users know; the system's own has two fields more.
struct CeFindData {
    DWORD Attributes;
    FILETIME Times[3];
    DWORD SizeHigh;
    DWORD SizeLow;
    DWORD ObjectId;
    WCHAR Name[MAX_PATH];
};

std::wstring OnDisk(LPCWSTR path) {
    wchar_t root[MAX_PATH] = L"";
    GetEnvironmentVariableW(L"HANDHELD_ROOT", root, MAX_PATH);
    return std::wstring(root) + path;
}

void Hand(const WIN32_FIND_DATAW& found, CeFindData* to) {
    *to = {};
    to->Attributes = found.dwFileAttributes;
    std::copy_n(found.cFileName, std::wcslen(found.cFileName), to->Name);
}

}  // namespace

extern "C" {

struct RapiInit {
    DWORD Size;
    HANDLE Started;
    HRESULT Outcome;
};

__declspec(dllexport) HRESULT WINAPI CeRapiInitEx(RapiInit* init) {
    init->Started = CreateEventW(nullptr, TRUE, TRUE, nullptr);
    init->Outcome = S_OK;
    return S_OK;
}
__declspec(dllexport) HRESULT WINAPI CeRapiUninit() { return S_OK; }
__declspec(dllexport) HANDLE WINAPI CeFindFirstFile(LPCWSTR pattern, CeFindData* data) {
    WIN32_FIND_DATAW found{};
    const HANDLE search = FindFirstFileW(OnDisk(pattern).c_str(), &found);
    if (search != INVALID_HANDLE_VALUE) Hand(found, data);
    // the handheld's word for both
    const DWORD error = GetLastError();
    if (error == ERROR_FILE_NOT_FOUND || error == ERROR_PATH_NOT_FOUND) {
        SetLastError(ERROR_NO_MORE_FILES);
    }
    return search;
}
__declspec(dllexport) BOOL WINAPI CeFindNextFile(HANDLE search, CeFindData* data) {
    WIN32_FIND_DATAW found{};
    const BOOL more = FindNextFileW(search, &found);
    if (more != 0) Hand(found, data);
    return more;
}
__declspec(dllexport) BOOL WINAPI CeFindClose(HANDLE search) { return FindClose(search); }
__declspec(dllexport) HANDLE WINAPI
    CeCreateFile(LPCWSTR path, DWORD access, DWORD share, LPSECURITY_ATTRIBUTES security,
                 DWORD creation, DWORD flags, HANDLE like) {
    return CreateFileW(OnDisk(path).c_str(), access, share, security, creation, flags, like);
}
__declspec(dllexport) BOOL WINAPI
    CeReadFile(HANDLE file, LPVOID buffer, DWORD length, LPDWORD count, LPOVERLAPPED) {
    return ReadFile(file, buffer, length, count, nullptr);
}
__declspec(dllexport) DWORD WINAPI CeGetFileSize(HANDLE file, LPDWORD high) {
    return GetFileSize(file, high);
}
__declspec(dllexport) BOOL WINAPI CeCloseHandle(HANDLE handle) { return CloseHandle(handle); }
__declspec(dllexport) BOOL WINAPI CeDeleteFile(LPCWSTR path) {
    return DeleteFileW(OnDisk(path).c_str());
}
__declspec(dllexport) BOOL WINAPI CeMoveFile(LPCWSTR from, LPCWSTR to) {
    return MoveFileW(OnDisk(from).c_str(), OnDisk(to).c_str());
}
__declspec(dllexport) BOOL WINAPI CeCreateDirectory(LPCWSTR path, LPSECURITY_ATTRIBUTES security) {
    return CreateDirectoryW(OnDisk(path).c_str(), security);
}
__declspec(dllexport) DWORD WINAPI CeGetLastError() { return GetLastError(); }

}  // extern "C"
