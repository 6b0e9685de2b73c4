// The bytes of data files are single-byte text (Windows-1252); screens and terminals get UTF-8.
#pragma once

#include <string>
#include <string_view>

namespace brask {

// Every byte has a character, so it never fails.
std::string Windows1252ToUtf8(std::string_view bytes);

}  // namespace brask
