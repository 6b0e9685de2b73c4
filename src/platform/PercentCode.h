// "%" and two hexadecimal digits for a byte that would break the line that it stands in.
#pragma once

#include <string>
#include <string_view>

namespace brask {

// Adds the code of one byte, such as "%0A", with upper-case digits.
void AppendPercentCode(std::string& text, char byte);

// Every code turned back into its byte. A "%" that no two hexadecimal digits follow stands for
// itself: people type it by hand.
std::string PercentDecoded(std::string_view text);

}  // namespace brask
