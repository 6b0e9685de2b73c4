// What the fuzz targets share.
#pragma once

#include <cstddef>
#include <cstdint>
#include <string_view>

namespace brask {

inline std::string_view FuzzText(const std::uint8_t* bytes, std::size_t size) {
    return {reinterpret_cast<const char*>(bytes), size};
}

// Ends the run, with the input kept, when something that must always hold does not.
inline void Require(bool holds) {
    if (!holds) __builtin_trap();
}

}  // namespace brask
