#include "platform/Utf8.h"

namespace brask {
namespace {

unsigned Byte(std::string_view text, std::size_t at) {
    return at < text.size() ? static_cast<unsigned char>(text[at]) : 0;
}

// Whether a character is one of the two blocks of control characters or DEL.
bool IsControl(std::string_view character) {
    const unsigned first = Byte(character, 0);
    if (character.size() == 1) return first < 0x20 || first == 0x7F;
    // U+0080 to U+009F, some of which terminals obey like an escape sequence
    return first == 0xC2 && Byte(character, 1) < 0xA0;
}

}  // namespace

std::size_t FirstCharacterLength(std::string_view text) {
    const unsigned first = Byte(text, 0);
    if (text.empty() || first < 0x80) return text.empty() ? 0 : 1;
    if (first < 0xC2 || first > 0xF4) return 0;
    const std::size_t length = first < 0xE0 ? 2 : first < 0xF0 ? 3 : 4;
    // the second byte's bounds shut out overlong forms, surrogates and what lies beyond U+10FFFF
    const unsigned least = first == 0xE0 ? 0xA0 : first == 0xF0 ? 0x90 : 0x80;
    const unsigned most = first == 0xED ? 0x9F : first == 0xF4 ? 0x8F : 0xBF;
    if (Byte(text, 1) < least || Byte(text, 1) > most) return 0;
    for (std::size_t i = 2; i < length; ++i) {
        if ((Byte(text, i) & 0xC0) != 0x80) return 0;
    }
    return length;
}

std::size_t CharacterCount(std::string_view text) {
    std::size_t count = 0;
    for (; !text.empty(); ++count) {
        const std::size_t length = FirstCharacterLength(text);
        // each bad byte counts, as PrintableText replaces each by one character
        text.remove_prefix(length == 0 ? 1 : length);
    }
    return count;
}

std::string PrintableText(std::string_view text) {
    std::string printable;
    printable.reserve(text.size());
    while (!text.empty()) {
        const std::size_t length = FirstCharacterLength(text);
        const std::string_view character = text.substr(0, length == 0 ? 1 : length);
        const bool layout = character == "\n" || character == "\t";
        // a carriage return is bad, too: it would let a text overwrite the line that it stands on
        const bool bad = length == 0 || (IsControl(character) && !layout);
        printable += bad ? kReplacementCharacter : character;
        text.remove_prefix(character.size());
    }
    return printable;
}

}  // namespace brask
