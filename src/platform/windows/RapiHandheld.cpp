#include "platform/windows/RapiHandheld.h"

#include <utility>

#include "platform/HandheldAddress.h"
#include "platform/windows/WindowsText.h"

namespace brask {
namespace {

using windows::ToUtf8;
using windows::ToWide;

// What the library's functions take and give, as its interface lays it down.
struct CeFindData {
    DWORD Attributes;
    FILETIME Created;
    FILETIME Accessed;
    FILETIME Written;
    DWORD SizeHigh;
    DWORD SizeLow;
    DWORD ObjectId;
    WCHAR Name[MAX_PATH];
};

constexpr DWORD kWaitMilliseconds = 100;
constexpr DWORD kAnyInput = 239;  // keys, mouse, timers, painting, posted messages
constexpr DWORD kNoSize = 0xFFFFFFFF;
// folders, between two files
constexpr int kMostPassedOver = 10000;

// The handheld fills the record; nothing says that it ends the name.
std::string NameOf(const CeFindData& found) {
    std::size_t length = 0;
    while (length < MAX_PATH && found.Name[length] != L'\0') ++length;
    return ToUtf8({found.Name, length});
}

// A file of the folder that was searched; a name with a "\\" in it would lead elsewhere.
bool IsFile(const CeFindData& found) {
    return (found.Attributes & FILE_ATTRIBUTE_DIRECTORY) == 0 &&
           NameOf(found).find('\\') == std::string::npos;
}

}  // namespace

struct RapiHandheld::InitRecord {
    DWORD Size = sizeof(InitRecord);
    HANDLE Started = nullptr;  // signalled when the handheld answers
    HRESULT Outcome = S_OK;
};

struct RapiHandheld::Library {
    // where the library lives: 32-bit Windows
    static_assert(sizeof(void*) != 4 || sizeof(InitRecord) == 12);
    // never from the folder that a shell happens to stand in
    HMODULE Module = LoadLibraryExW(
        L"rapi.dll", nullptr, LOAD_LIBRARY_SEARCH_APPLICATION_DIR | LOAD_LIBRARY_SEARCH_SYSTEM32);
    HRESULT(WINAPI* Init)(InitRecord*) = nullptr;
    HRESULT(WINAPI* Uninit)() = nullptr;
    HANDLE(WINAPI* FindFirstFile)(LPCWSTR, CeFindData*) = nullptr;
    BOOL(WINAPI* FindNextFile)(HANDLE, CeFindData*) = nullptr;
    BOOL(WINAPI* FindClose)(HANDLE) = nullptr;
    HANDLE(WINAPI* CreateFile)
    (LPCWSTR, DWORD, DWORD, LPSECURITY_ATTRIBUTES, DWORD, DWORD, HANDLE) = nullptr;
    BOOL(WINAPI* ReadFile)(HANDLE, LPVOID, DWORD, LPDWORD, LPOVERLAPPED) = nullptr;
    DWORD(WINAPI* GetFileSize)(HANDLE, LPDWORD) = nullptr;
    BOOL(WINAPI* CloseHandle)(HANDLE) = nullptr;
    BOOL(WINAPI* DeleteFile)(LPCWSTR) = nullptr;
    BOOL(WINAPI* MoveFile)(LPCWSTR, LPCWSTR) = nullptr;
    BOOL(WINAPI* CreateDirectory)(LPCWSTR, LPSECURITY_ATTRIBUTES) = nullptr;
    DWORD(WINAPI* GetLastError)() = nullptr;
    bool Complete = false;

    Library() {
        Complete = Module != nullptr && Load(Init, "CeRapiInitEx") &&
                   Load(Uninit, "CeRapiUninit") && Load(FindFirstFile, "CeFindFirstFile") &&
                   Load(FindNextFile, "CeFindNextFile") && Load(FindClose, "CeFindClose") &&
                   Load(CreateFile, "CeCreateFile") && Load(ReadFile, "CeReadFile") &&
                   Load(GetFileSize, "CeGetFileSize") && Load(CloseHandle, "CeCloseHandle") &&
                   Load(DeleteFile, "CeDeleteFile") && Load(MoveFile, "CeMoveFile") &&
                   Load(CreateDirectory, "CeCreateDirectory") &&
                   Load(GetLastError, "CeGetLastError");
    }
    ~Library() {
        if (Module != nullptr) FreeLibrary(Module);
    }
    Library(const Library&) = delete;
    Library& operator=(const Library&) = delete;

    template <class Function>
    bool Load(Function& function, const char* name) const {
        // the address of a function has no type of its own until it is told one
        function =
            reinterpret_cast<Function>(reinterpret_cast<void (*)()>(GetProcAddress(Module, name)));
        return function != nullptr;
    }
};

class RapiHandheld::File final : public HandheldFile {
  public:
    File(std::shared_ptr<const Library> library, HANDLE handle)
        : library_(std::move(library)), handle_(handle) {}
    ~File() override {
        if (handle_ != INVALID_HANDLE_VALUE) library_->CloseHandle(handle_);
    }
    File(const File&) = delete;
    File& operator=(const File&) = delete;

    Result<std::size_t> Read(std::span<char> buffer) override {
        DWORD count = 0;
        const auto length = static_cast<DWORD>(buffer.size());
        if (library_->ReadFile(handle_, buffer.data(), length, &count, nullptr) == 0) return Why();
        // a count beyond the buffer would be a lie of the other side
        if (count > length) return Error{ERROR_INVALID_DATA, "more bytes than asked for"};
        return static_cast<std::size_t>(count);
    }
    Result<std::uint64_t> Size() override {
        DWORD high = 0;
        const DWORD low = library_->GetFileSize(handle_, &high);
        if (low == kNoSize && library_->GetLastError() != NO_ERROR) return Why();
        return (static_cast<std::uint64_t>(high) << 32U) | low;
    }
    Status Close() override {
        const HANDLE handle = std::exchange(handle_, INVALID_HANDLE_VALUE);
        return library_->CloseHandle(handle) != 0 ? Status() : Status(Why());
    }

  private:
    Error Why() const {
        return {static_cast<int>(library_->GetLastError()), "the handheld refused it"};
    }

    std::shared_ptr<const Library> library_;
    HANDLE handle_;
};

RapiHandheld::RapiHandheld() : library_(std::make_shared<const Library>()) {}

RapiHandheld::~RapiHandheld() {
    EndSearch();
    if (initialised_) library_->Uninit();
}

Error RapiHandheld::LastError() const {
    return {static_cast<int>(library_->GetLastError()), "the handheld refused it"};
}

Status RapiHandheld::Initialise() {
    if (!library_->Complete) return Error{ERROR_MOD_NOT_FOUND, "rapi.dll cannot be loaded"};
    // whatever an earlier run has left
    library_->Uninit();
    init_ = std::make_unique<InitRecord>();
    const HRESULT outcome = library_->Init(init_.get());
    if (FAILED(outcome)) return Error{static_cast<int>(outcome), "the link was refused"};
    started_ = init_->Started;
    initialised_ = true;
    return {};
}

bool RapiHandheld::LinkHasComeUp() {
    // The event stays signalled: waiting for it once more would go on for ever.
    const DWORD handles = started_ != nullptr && !hasComeUp_ ? 1 : 0;
    const DWORD outcome =
        MsgWaitForMultipleObjects(handles, &started_, FALSE, kWaitMilliseconds, kAnyInput);
    hasComeUp_ = hasComeUp_ || (handles == 1 && outcome == WAIT_OBJECT_0);
    return handles == 1 && outcome == WAIT_OBJECT_0;
}

void RapiHandheld::EndSearch() {
    if (search_ != INVALID_HANDLE_VALUE) library_->FindClose(search_);
    search_ = INVALID_HANDLE_VALUE;
}

Result<std::string> RapiHandheld::FindFirst(const std::string& pattern) {
    EndSearch();
    CeFindData found = {};
    search_ = library_->FindFirstFile(ToWide(pattern).c_str(), &found);
    if (search_ == INVALID_HANDLE_VALUE) return LastError();
    if (IsFile(found)) return NameOf(found);
    return FindNext();
}

Result<std::string> RapiHandheld::FindNext() {
    CeFindData found = {};
    int passedOver = 0;
    do {
        if (++passedOver > kMostPassedOver) return Error{0, "the listing does not end"};
        if (search_ == INVALID_HANDLE_VALUE) return Error{ERROR_NO_MORE_FILES, "no more files"};
        if (library_->FindNextFile(search_, &found) == 0) {
            Error error = LastError();
            EndSearch();
            return error;
        }
    } while (!IsFile(found));
    return NameOf(found);
}

Result<std::unique_ptr<HandheldFile>> RapiHandheld::Open(const std::string& path) {
    const HANDLE handle =
        library_->CreateFile(ToWide(path).c_str(), GENERIC_READ, FILE_SHARE_READ, nullptr,
                             OPEN_EXISTING, FILE_ATTRIBUTE_NORMAL, nullptr);
    if (handle == INVALID_HANDLE_VALUE) return LastError();
    std::unique_ptr<HandheldFile> file = std::make_unique<File>(library_, handle);
    return file;
}

Status RapiHandheld::Delete(const std::string& path) {
    return library_->DeleteFile(ToWide(path).c_str()) != 0 ? Status() : Status(LastError());
}

Status RapiHandheld::Move(const std::string& from, const std::string& to) {
    const bool moved = library_->MoveFile(ToWide(from).c_str(), ToWide(to).c_str()) != 0;
    return moved ? Status() : Status(LastError());
}

Status RapiHandheld::MakeFolder(const std::string& path) {
    const bool made = library_->CreateDirectory(ToWide(path).c_str(), nullptr) != 0;
    return made ? Status() : Status(LastError());
}

HandheldAddress DefaultHandheldAddress() { return {true, ""}; }

std::unique_ptr<HandheldAccess> MakeRemoteHandheld() { return std::make_unique<RapiHandheld>(); }

}  // namespace brask
