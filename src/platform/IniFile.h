// The text of a settings file: UTF-8, LF line ends, one Key=Value a line below a [Section] line.
// In keys and values "%", CR, LF and blanks at the ends are percent-encoded ("%25", "%0D", ...);
// in keys "=" too, and "[", ";" and "#" in front. All else stands as it is. Lines that begin with
// ";" or "#" and empty lines are comments. Keys are case-sensitive; the last of two equal ones
// counts. Sections and keys that the program does not know are kept, in their order.
//
//     [Brask Lite]
//     ; where readings go
//     UserSpecDir=/home/ann/gas data
#pragma once

#include <optional>
#include <string>
#include <string_view>
#include <vector>

#include "platform/Result.h"

namespace brask {

class IniFile {
  public:
    // Reads a file's content; the error says which line is no settings line and why. Blanks around
    // keys and values count for nothing, and CR LF is read too, since people edit the file by hand
    // on any system. Comments and unknown sections come back in Text() unchanged.
    static Result<IniFile> Parse(std::string_view content);

    // The value of a key, decoded; nothing when the key does not exist. An empty value is a value:
    // it is not the same as a missing key.
    std::optional<std::string> Get(const std::string& section, const std::string& key) const;
    // Changes a key where it stands, or adds it at the end of its section. A missing section is
    // added at the end of the file. Only memory changes; writing is up to the caller.
    void Set(const std::string& section, const std::string& key, const std::string& value);
    // The content to write. Parse of this text gives the same sections, keys and values again.
    std::string Text() const;

  private:
    // The file is kept as lines rather than as a map, so that what a person wrote into it
    // (comments, order, settings of a newer version) survives every save.
    struct Line {
        std::string Section;  // the section that it stands in
        std::string Key;      // decoded; empty for comments and section lines
        std::string Value;    // decoded; the whole line for comments and section lines
        bool IsSetting = false;
    };

    std::vector<Line> lines_;
};

}  // namespace brask
