#include "platform/windows/WindowsRegistry.h"

#include "platform/windows/WindowsHandle.h"
#include "platform/windows/WindowsText.h"

namespace brask {
namespace windows {
namespace {

// Closes itself.
class RegistryKey {
  public:
    explicit RegistryKey(HKEY key) : key_(key) {}
    ~RegistryKey() { RegCloseKey(key_); }
    RegistryKey(const RegistryKey&) = delete;
    RegistryKey& operator=(const RegistryKey&) = delete;

    HKEY Get() const { return key_; }

  private:
    HKEY key_;
};

}  // namespace

std::optional<std::string> ReadRegistryText(HKEY root, const std::string& key,
                                            const std::string& value) {
    HKEY opened = nullptr;
    if (RegOpenKeyExW(root, ToWide(key).c_str(), 0, KEY_QUERY_VALUE, &opened) != ERROR_SUCCESS) {
        return std::nullopt;
    }
    const RegistryKey owned(opened);
    const std::wstring name = ToWide(value);
    DWORD kind = REG_NONE;
    DWORD bytes = 0;
    if (RegQueryValueExW(opened, name.c_str(), nullptr, &kind, nullptr, &bytes) != ERROR_SUCCESS ||
        kind != REG_SZ) {
        return std::nullopt;
    }
    std::wstring text(bytes / sizeof(wchar_t), L'\0');
    // what grew between the two questions fails here and counts as unreadable
    if (RegQueryValueExW(opened, name.c_str(), nullptr, &kind, reinterpret_cast<BYTE*>(text.data()),
                         &bytes) != ERROR_SUCCESS) {
        return std::nullopt;
    }
    // some programs store the NUL with the text, some do not
    return ToUtf8(text.c_str());
}

Status WriteRegistryText(HKEY root, const std::string& key, const std::string& value,
                         const std::string& text) {
    HKEY opened = nullptr;
    const LSTATUS made = RegCreateKeyExW(root, ToWide(key).c_str(), 0, nullptr, 0, KEY_SET_VALUE,
                                         nullptr, &opened, nullptr);
    if (made != ERROR_SUCCESS) return ErrorOf(static_cast<DWORD>(made));
    const RegistryKey owned(opened);
    const std::wstring wide = ToWide(text);
    const auto bytes = static_cast<DWORD>((wide.size() + 1) * sizeof(wchar_t));
    LSTATUS stored = RegSetValueExW(opened, ToWide(value).c_str(), 0, REG_SZ,
                                    reinterpret_cast<const BYTE*>(wide.c_str()), bytes);
    // without it the system writes the registry some seconds later
    if (stored == ERROR_SUCCESS) stored = RegFlushKey(opened);
    return stored == ERROR_SUCCESS ? Status() : ErrorOf(static_cast<DWORD>(stored));
}

}  // namespace windows

namespace {

std::string KeyOf(const std::string& section) { return "Software\\VEK\\" + section; }

class RegistrySettingsStore final : public SettingsStore {
  public:
    explicit RegistrySettingsStore(std::string key) : key_(std::move(key)) {}

    std::string Get(const std::string& key, const std::string& defaultValue) const override {
        return windows::ReadRegistryText(HKEY_CURRENT_USER, key_, key).value_or(defaultValue);
    }
    Status Save(const std::string& key, const std::string& value) override {
        return windows::WriteRegistryText(HKEY_CURRENT_USER, key_, key, value);
    }

  private:
    std::string key_;
};

}  // namespace

std::unique_ptr<SettingsStore> WindowsUserStores::Open(const std::string& section) {
    return std::make_unique<RegistrySettingsStore>(KeyOf(section));
}

std::string WindowsUserStores::Place(const std::string& section) const {
    return "HKEY_CURRENT_USER\\" + KeyOf(section);
}

}  // namespace brask
