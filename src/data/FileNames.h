// Names of files made of what an instrument or a handheld sends, which may be anything.
#pragma once

#include <string>
#include <string_view>

namespace brask {

// The text (UTF-8) as a name in a folder: characters that part a path or that a file system
// refuses, control characters and bytes that are no text become "_", and so do blanks and full
// stops at its ends and the first character of a device's name ("CON", "LPT1"), which would make
// Windows open the device. `ending`, which stands as given, follows; the text is cut between two
// characters so that both together have at most 255 bytes. Never empty, never "." or "..": whatever
// the text, a folder and this name make a path in that folder.
std::string SafeFileName(std::string_view text, std::string_view ending);

// The same for a name that brings its own ending: letters and digits behind its last full stop, up
// to 15 of them, stay when the name must be cut.
std::string SafeFileName(std::string_view name);

}  // namespace brask
