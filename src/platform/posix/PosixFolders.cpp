#include "platform/posix/PosixFolders.h"

#include <pwd.h>
#include <unistd.h>

#include <fstream>

namespace brask::posix {
namespace {

std::string WithoutSlash(std::string path) {
    while (path.size() > 1 && path.back() == '/') path.pop_back();
    return path;
}

std::string Home(const Environment& environment) {
    if (std::string home = environment("HOME"); !home.empty()) return WithoutSlash(home);
    // what is started as a service may run without HOME
    const passwd* entry = getpwuid(getuid());
    return entry != nullptr && entry->pw_dir != nullptr ? WithoutSlash(entry->pw_dir) : "";
}

// Relative values are to be ignored. They would name another folder from every working directory.
std::string BaseDirectory(const Environment& environment, const char* name, const char* below) {
    const std::string value = environment(name);
    if (!value.empty() && value[0] == '/') return WithoutSlash(value);
    const std::string home = Home(environment);
    return home.empty() ? "" : home + below;
}

// A line of user-dirs.dirs: XDG_DOCUMENTS_DIR="$HOME/Papers" or an absolute path.
std::string Documents(const Environment& environment) {
    const std::string home = Home(environment);
    if (home.empty()) return "";
    std::ifstream list(BaseDirectory(environment, "XDG_CONFIG_HOME", "/.config") +
                       "/user-dirs.dirs");
    const std::string key = "XDG_DOCUMENTS_DIR=\"";
    for (std::string line; std::getline(list, line);) {
        const auto end = line.find_last_of('"');
        if (line.rfind(key, 0) != 0 || end < key.size()) continue;
        const std::string value = line.substr(key.size(), end - key.size());
        // The file is written for a shell, but "$HOME" in front is the only expansion that it may
        // hold.
        if (value.rfind("$HOME", 0) == 0) return WithoutSlash(home + value.substr(5));
        if (!value.empty() && value[0] == '/') return WithoutSlash(value);
    }
    return home + "/Documents";
}

}  // namespace

std::string XdgFolder(KnownFolder folder, const Environment& environment) {
    switch (folder) {
        case KnownFolder::kUserDocuments:
        // There is no documents folder of all users here.
        case KnownFolder::kSharedDocuments:
            return Documents(environment);
        case KnownFolder::kDocumentsMissing:
            return WithoutSlash(std::string(P_tmpdir));
        case KnownFolder::kSettings:
            return BaseDirectory(environment, "XDG_CONFIG_HOME", "/.config");
        case KnownFolder::kState:
            return BaseDirectory(environment, "XDG_STATE_HOME", "/.local/state");
        case KnownFolder::kLog: {
            const std::string state = XdgFolder(KnownFolder::kState, environment);
            return state.empty() ? "" : state + "/VEK";
        }
    }
    return "";
}

}  // namespace brask::posix
