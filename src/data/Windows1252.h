// The bytes of data files are single-byte text (Windows-1252); screens and terminals get UTF-8.
#pragma once

#include <string>
#include <string_view>

namespace brask {

std::string Windows1252ToUtf8(std::string_view bytes);

}  // namespace brask
