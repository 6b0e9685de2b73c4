// Fixed paths that depend on where the program lies.
#pragma once

#include <string>

namespace brask {

// The help file: below "HtmlHelp" when the program lies in a directory called "Talvex K42 PC" (any
// letter case), beside the program otherwise.
std::string HelpFilePath(const std::string& programDirectory, char separator);

// How the database beside the program would be opened. Kept since other tools of the house ask for
// it; the program stores no data in a database.
std::string ConnectionText(const std::string& programDirectory, char separator);

}  // namespace brask
