#include "platform/HandheldAddress.h"

#include "platform/FolderHandheld.h"

namespace brask {

std::optional<HandheldAddress> ParseHandheldAddress(std::string_view text) {
    constexpr std::string_view kFolder = "dir:";
    if (text.empty()) return DefaultHandheldAddress();
    if (text == "rapi") return HandheldAddress{true, ""};
    if (!text.starts_with(kFolder) || text.size() == kFolder.size()) return std::nullopt;
    return HandheldAddress{false, std::string(text.substr(kFolder.size()))};
}

std::unique_ptr<HandheldAccess> MakeHandheldAccess(const HandheldAddress& address, Files& files) {
    if (address.Remote) return MakeRemoteHandheld();
    return std::make_unique<FolderHandheld>(files, address.Folder);
}

}  // namespace brask
