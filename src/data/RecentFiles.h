// The ten data files opened last, newest first, kept between runs as the lines of one setting.
#pragma once

#include <string>
#include <vector>

#include "data/Settings.h"

namespace brask {

class RecentFiles {
  public:
    static constexpr std::size_t kMost = 10;

    explicit RecentFiles(Settings& settings) : settings_(settings) {}

    // Full paths as they were opened; the files may be gone since.
    std::vector<std::string> List() const;
    // Puts a path at the top; it is listed once.
    void Add(const std::string& path);
    // A path that is not listed changes nothing.
    void Remove(const std::string& path);
    void Clear() { Store({}); }

  private:
    void Store(const std::vector<std::string>& paths);

    Settings& settings_;
};

}  // namespace brask
