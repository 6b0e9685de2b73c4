// Where a handheld keeps its collections. A collection is a file "NAME.csv" and, perhaps, a
// companion "NAME.col".
#pragma once

#include <array>
#include <string>

#include "platform/AsciiText.h"

namespace brask {

// In the order in which they are searched, each with its "\" at the end.
inline constexpr std::array<const char*, 2> kCollectionFolders = {"\\TalvexPDA\\collections\\",
                                                                  "\\TalvexPPC\\collections\\"};
// Beside them: files that nobody could read are moved here instead of being deleted.
inline constexpr const char* kKeptFolder = "\\VEK kept";

// The path of the companion of a data file; the path itself when it does not end in ".csv".
inline std::string CompanionOf(const std::string& path) {
    constexpr std::size_t kEnding = 4;
    const bool data =
        path.size() >= kEnding && SameIgnoringCase(path.substr(path.size() - kEnding), ".csv");
    return data ? path.substr(0, path.size() - kEnding) + ".col" : path;
}

}  // namespace brask
