// The lines of a text file in the way data files have them: a line ends at CR or CR LF, a lone LF
// is no line end, the last line needs none.
#pragma once

#include <cstddef>
#include <string_view>
#include <vector>

#include "platform/Files.h"

namespace brask {

class TextLines {
  public:
    // A longer line is left out, so that no file can fill the memory.
    static constexpr std::size_t kLongestLine = 1 << 20;

    // The file must outlive this object.
    explicit TextLines(InputFile& file) : file_(file), buffer_(kFirstSize) {}

    // The next line without its end; valid until the next call. False at the end of the file, or
    // where it could not be read further.
    bool Next(std::string_view& line);
    // Why the file could not be read to its end.
    const Status& Outcome() const { return outcome_; }

  private:
    static constexpr std::size_t kFirstSize = std::size_t{256} * 1024;

    bool Fill();
    bool LastLine(std::string_view& line);

    InputFile& file_;
    std::vector<char> buffer_;
    std::size_t begin_ = 0;  // what is not handed out yet
    std::size_t end_ = 0;
    bool afterCarriageReturn_ = false;
    bool dropping_ = false;  // within a line that is too long
    bool ended_ = false;
    Status outcome_;
};

}  // namespace brask
