// SHA-256 check sums: whether two files hold the same bytes, and whether a kept one still does.
#pragma once

#include <array>
#include <cstddef>
#include <cstdint>
#include <string>
#include <string_view>

#include "platform/Files.h"

namespace brask {

class Sha256 {
  public:
    // Adds bytes in the order of the content, in pieces of any length.
    void Add(std::string_view bytes);
    // The sum of all that was added, as 64 lower-case hexadecimal digits. The object itself does
    // not change: more may be added.
    std::string Hex() const;

  private:
    static constexpr std::size_t kBlock = 64;

    void TakeBlock(const char* block);

    std::array<std::uint32_t, 8> state_ = {0x6a09e667, 0xbb67ae85, 0x3c6ef372, 0xa54ff53a,
                                           0x510e527f, 0x9b05688c, 0x1f83d9ab, 0x5be0cd19};
    std::array<char, kBlock> pending_ = {};  // what does not fill a block yet
    std::uint64_t length_ = 0;               // bytes added
};

// The sum of a whole file, read in blocks.
Result<std::string> Sha256OfFile(Files& files, const std::string& path);

}  // namespace brask
