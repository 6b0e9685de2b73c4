// UTF-8 as it has to be before it meets a terminal or a document: whatever bytes a file's header, a
// path or an argument brought along.
#pragma once

#include <cstddef>
#include <string>
#include <string_view>

namespace brask {

// What stands for bytes that are no text (U+FFFD).
inline constexpr std::string_view kReplacementCharacter = "\xEF\xBF\xBD";

// The bytes that the first character takes; 0 when the text begins with none that is valid. 1 to 4
// for a valid one. Overlong forms and surrogates are not valid: they are a way to smuggle
// characters past a check.
std::size_t FirstCharacterLength(std::string_view text);

// The number of characters; invalid bytes count one each. Good enough for lining up columns of a
// table.
std::size_t CharacterCount(std::string_view text);

// The text with control characters (but tabs and line feeds) and invalid bytes replaced, so that a
// hostile file cannot give orders to the terminal that it is shown on.
std::string PrintableText(std::string_view text);

}  // namespace brask
