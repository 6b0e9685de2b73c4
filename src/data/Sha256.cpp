#include "data/Sha256.h"

#include <algorithm>
#include <bit>
#include <cstring>

namespace brask {
namespace {

// The first 32 bits of the fractions of the cube roots of the first 64 primes (FIPS 180-4, 4.2.2).
constexpr std::array<std::uint32_t, 64> kRoundConstants = {
    0x428a2f98, 0x71374491, 0xb5c0fbcf, 0xe9b5dba5, 0x3956c25b, 0x59f111f1, 0x923f82a4, 0xab1c5ed5,
    0xd807aa98, 0x12835b01, 0x243185be, 0x550c7dc3, 0x72be5d74, 0x80deb1fe, 0x9bdc06a7, 0xc19bf174,
    0xe49b69c1, 0xefbe4786, 0x0fc19dc6, 0x240ca1cc, 0x2de92c6f, 0x4a7484aa, 0x5cb0a9dc, 0x76f988da,
    0x983e5152, 0xa831c66d, 0xb00327c8, 0xbf597fc7, 0xc6e00bf3, 0xd5a79147, 0x06ca6351, 0x14292967,
    0x27b70a85, 0x2e1b2138, 0x4d2c6dfc, 0x53380d13, 0x650a7354, 0x766a0abb, 0x81c2c92e, 0x92722c85,
    0xa2bfe8a1, 0xa81a664b, 0xc24b8b70, 0xc76c51a3, 0xd192e819, 0xd6990624, 0xf40e3585, 0x106aa070,
    0x19a4c116, 0x1e376c08, 0x2748774c, 0x34b0bcb5, 0x391c0cb3, 0x4ed8aa4a, 0x5b9cca4f, 0x682e6ff3,
    0x748f82ee, 0x78a5636f, 0x84c87814, 0x8cc70208, 0x90befffa, 0xa4506ceb, 0xbef9a3f7, 0xc67178f2};

// The message schedule of one block: its 16 words, big-endian, and 48 made of them.
std::array<std::uint32_t, 64> Schedule(const char* block) {
    std::array<std::uint32_t, 64> words = {};
    for (std::size_t i = 0; i < 64; ++i) {
        const std::uint32_t byte = static_cast<unsigned char>(block[i]);
        words[i / 4] |= byte << (24 - 8 * (i % 4));
    }
    for (std::size_t t = 16; t < words.size(); ++t) {
        const std::uint32_t a = words[t - 15];
        const std::uint32_t b = words[t - 2];
        words[t] = words[t - 16] + words[t - 7] + (std::rotr(a, 7) ^ std::rotr(a, 18) ^ (a >> 3)) +
                   (std::rotr(b, 17) ^ std::rotr(b, 19) ^ (b >> 10));
    }
    return words;
}

}  // namespace

void Sha256::Add(std::string_view bytes) {
    while (!bytes.empty()) {
        const std::size_t held = length_ % kBlock;
        const std::size_t taken = std::min(bytes.size(), kBlock - held);
        std::memcpy(pending_.data() + held, bytes.data(), taken);
        length_ += taken;
        bytes.remove_prefix(taken);
        if (held + taken == kBlock) TakeBlock(pending_.data());
    }
}

void Sha256::TakeBlock(const char* block) {
    const auto words = Schedule(block);
    auto s = state_;  // a to h
    for (std::size_t t = 0; t < words.size(); ++t) {
        const std::uint32_t choice = (s[4] & s[5]) ^ (~s[4] & s[6]);
        const std::uint32_t majority = (s[0] & s[1]) ^ (s[0] & s[2]) ^ (s[1] & s[2]);
        const std::uint32_t first =
            s[7] + (std::rotr(s[4], 6) ^ std::rotr(s[4], 11) ^ std::rotr(s[4], 25)) + choice +
            kRoundConstants[t] + words[t];
        const std::uint32_t second =
            (std::rotr(s[0], 2) ^ std::rotr(s[0], 13) ^ std::rotr(s[0], 22)) + majority;
        s = {first + second, s[0], s[1], s[2], s[3] + first, s[4], s[5], s[6]};
    }
    for (std::size_t i = 0; i < s.size(); ++i) state_[i] += s[i];
}

std::string Sha256::Hex() const {
    Sha256 padded = *this;
    // a one bit, zeros up to 8 bytes before the end of a block, the length in bits
    const std::size_t held = length_ % kBlock;
    std::string end((held < 56 ? 56 : 56 + kBlock) - held, '\0');
    end[0] = '\x80';
    for (int shift = 56; shift >= 0; shift -= 8) {
        end += static_cast<char>(length_ * 8 >> shift & 0xFFU);
    }
    padded.Add(end);
    constexpr std::string_view kDigits = "0123456789abcdef";
    std::string hex;
    for (const std::uint32_t word : padded.state_) {
        for (int shift = 28; shift >= 0; shift -= 4) hex += kDigits[word >> shift & 0xFU];
    }
    return hex;
}

Result<std::string> Sha256OfFile(Files& files, const std::string& path) {
    auto opened = files.Open(path);
    if (!opened.Ok()) return opened.Why();
    Sha256 sum;
    std::string block(std::size_t{64} * 1024, '\0');
    for (;;) {
        const auto read = opened.Value()->Read(block);
        if (!read.Ok()) return read.Why();
        if (read.Value() == 0) return sum.Hex();
        sum.Add({block.data(), read.Value()});
    }
}

}  // namespace brask
