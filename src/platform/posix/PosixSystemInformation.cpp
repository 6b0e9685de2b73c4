#include "platform/posix/PosixSystemInformation.h"

#include <pwd.h>
#include <unistd.h>

#include <cstring>
#include <string_view>

namespace brask {

std::string PosixSystemInformation::ErrorText(int number) const {
    // Never translated, and null for a number without a meaning: strerror has an answer for every
    // number, in the words and letters of whatever locale the drawing library has chosen.
    const char* const text = strerrordesc_np(number);
    return text != nullptr ? text : "";
}

std::string PosixSystemInformation::UserName() const {
    const passwd* entry = getpwuid(getuid());
    return entry != nullptr ? entry->pw_name : std::to_string(getuid());
}

std::string PosixSystemInformation::ProgramDirectory() const {
    // as long as a path can be here (PATH_MAX)
    char path[4096];
    // not the first word of the command line, which the caller is free to choose
    const ssize_t length = readlink("/proc/self/exe", path, sizeof path);
    if (length <= 0) return ".";
    const std::string_view program(path, static_cast<std::size_t>(length));
    return std::string(program.substr(0, program.find_last_of('/')));
}

}  // namespace brask
