#include "data/RecentFiles.h"

namespace brask {
namespace {

std::string Key(std::size_t index) { return "RecentFile" + std::to_string(index + 1); }

}  // namespace

std::vector<std::string> RecentFiles::List() const {
    std::vector<std::string> paths;
    for (std::size_t i = 0; i < kMost; ++i) {
        std::string path = settings_.Get(Key(i));
        if (!path.empty()) paths.push_back(std::move(path));
    }
    return paths;
}

void RecentFiles::Add(const std::string& path) {
    std::vector<std::string> paths = List();
    std::erase(paths, path);
    paths.insert(paths.begin(), path);
    Store(paths);
}

void RecentFiles::Remove(const std::string& path) {
    std::vector<std::string> paths = List();
    std::erase(paths, path);
    Store(paths);
}

void RecentFiles::Store(const std::vector<std::string>& paths) {
    for (std::size_t i = 0; i < kMost; ++i) {
        const std::string path = i < paths.size() ? paths[i] : "";
        // each save replaces a file on disk; what has not changed need not be saved
        if (settings_.Get(Key(i)) != path) settings_.Save(Key(i), path);
    }
}

}  // namespace brask
