// Standard output in large pieces. The first write that fails is kept, and what comes after it is
// dropped, so that writers need not check every piece.
#pragma once

#include <cstdint>
#include <cstdio>
#include <string>
#include <string_view>

#include "platform/Result.h"

namespace brask {

class OutputBuffer {
  public:
    // Writes to `out`, which must outlive this object.
    explicit OutputBuffer(std::FILE* out);

    // Never fails by itself: Finish tells.
    void Write(std::string_view text) {
        pending_ += text;
        if (pending_.size() >= kPieceSize) Flush();
    }
    // The shortest text that reads back as this number.
    void WriteNumber(double value);
    void WriteInteger(std::int64_t value);
    // Drops what is pending; false when something was written already. For a command that breaks
    // off and has to print another document instead.
    bool Discard() {
        pending_.clear();
        return !begun_;
    }
    // Writes what is pending; whether everything arrived. To be called once, at the end; a full
    // disk or a closed pipe shows here.
    Status Finish();

  private:
    static constexpr std::size_t kPieceSize = 65536;

    void Flush();

    std::FILE* out_;
    std::string pending_;
    bool begun_ = false;
    Status outcome_;
};

}  // namespace brask
