#include "data/RecentFiles.h"

#include <string_view>

namespace brask {
namespace {

constexpr const char* kKey = "RecentFiles";

}  // namespace

std::vector<std::string> RecentFiles::List() const {
    std::vector<std::string> paths;
    const std::string stored = settings_.Get(kKey);
    for (std::string_view rest = stored; !rest.empty() && paths.size() < kMost;) {
        const auto end = rest.find('\n');
        // an empty line comes from a settings file edited by hand
        if (end != 0) paths.emplace_back(rest.substr(0, end));
        rest.remove_prefix(end == std::string_view::npos ? rest.size() : end + 1);
    }
    return paths;
}

void RecentFiles::Add(const std::string& path) {
    std::vector<std::string> paths = List();
    std::erase(paths, path);
    paths.insert(paths.begin(), path);
    if (paths.size() > kMost) paths.pop_back();
    Store(paths);
}

void RecentFiles::Remove(const std::string& path) {
    std::vector<std::string> paths = List();
    std::erase(paths, path);
    Store(paths);
}

void RecentFiles::Store(const std::vector<std::string>& paths) {
    std::string joined;
    for (const std::string& path : paths) joined += (joined.empty() ? "" : "\n") + path;
    // each save replaces a file on disk; what has not changed need not be saved
    if (joined != settings_.Get(kKey)) settings_.Save(kKey, joined);
}

}  // namespace brask
