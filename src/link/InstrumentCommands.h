// The two commands that the instrument understands, and how it marks the end of its answer.
#pragma once

#include <string>
#include <string_view>

#include "platform/CivilTime.h"

namespace brask {

inline constexpr std::string_view kClearCommand = "[CLEAR]";
inline constexpr std::string_view kClearAnswer = "[OK]";

// "[OUTPUT JAN-05-2004 13:07:42": asks for all readings and tells the computer's time, its seconds
// rounded down to an even number, without a closing bracket.
std::string OutputCommand(const CivilDateTime& now);

// Watches a stream for the line that ends it: "END DATA:" in any letter case with a CR behind it,
// both within the last 60 characters, fillers left out. Blocks may be cut anywhere.
class EndOfData {
  public:
    static constexpr std::size_t kTailLength = 60;

    void Add(std::string_view block);
    bool Met() const { return met_; }
    // Whether the line feed has come, too. Without it the last line would be no line, and a good
    // transfer would be rejected.
    bool LineFeedCame() const { return lineFeedCame_; }

  private:
    std::string tail_;
    bool met_ = false;
    bool lineFeedCame_ = false;
};

}  // namespace brask
