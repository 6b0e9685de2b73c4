#include "cli/JsonWriter.h"

#include <cmath>
#include <cstdio>

#include "platform/Utf8.h"

namespace brask {
namespace {

// How a character stands within a string; the character itself for most.
std::string_view Escaped(std::string_view character, std::span<char, 8> buffer) {
    const auto code = static_cast<unsigned char>(character[0]);
    if (character.size() == 1 && (code == '"' || code == '\\')) {
        return code == '"' ? "\\\"" : "\\\\";
    }
    // U+007F and all above may stand as they are.
    if (code >= 0x20) return character;
    if (code == '\n') return "\\n";
    if (code == '\r') return "\\r";
    if (code == '\t') return "\\t";
    std::snprintf(buffer.data(), buffer.size(), "\\u%04x", code);
    return buffer.data();
}

// How many bytes at the start stand for themselves: nearly always all.
std::size_t PlainLength(std::string_view text) {
    std::size_t length = 0;
    while (length < text.size() && text[length] >= 0x20 && text[length] < 0x7F &&
           text[length] != '"' && text[length] != '\\') {
        ++length;
    }
    return length;
}

}  // namespace

void JsonWriter::Separate() {
    if (afterValue_) out_.Write(",");
}

void JsonWriter::Begin(std::string_view bracket) {
    Separate();
    out_.Write(bracket);
    afterValue_ = false;
}

void JsonWriter::End(std::string_view bracket) {
    out_.Write(bracket);
    afterValue_ = true;
}

void JsonWriter::Value(std::string_view text) {
    Separate();
    out_.Write(text);
    afterValue_ = true;
}

void JsonWriter::Key(std::string_view key) {
    String(key);
    // no comma between a key and its value
    out_.Write(":");
    afterValue_ = false;
}

void JsonWriter::String(std::string_view text) {
    Separate();
    out_.Write("\"");
    for (;;) {
        // Runs of plain characters go out in one piece: a long list is made of little else.
        const std::size_t plain = PlainLength(text);
        out_.Write(text.substr(0, plain));
        text.remove_prefix(plain);
        if (text.empty()) break;
        const std::size_t length = FirstCharacterLength(text);
        char buffer[8];
        out_.Write(length == 0 ? kReplacementCharacter : Escaped(text.substr(0, length), buffer));
        text.remove_prefix(length == 0 ? 1 : length);
    }
    out_.Write("\"");
    afterValue_ = true;
}

void JsonWriter::Number(double value) {
    // JSON has no number for them; a temperature can overflow in °F.
    if (!std::isfinite(value)) {
        Null();
        return;
    }
    Separate();
    out_.WriteNumber(value);
    afterValue_ = true;
}

void JsonWriter::Integer(std::int64_t value) {
    Separate();
    out_.WriteInteger(value);
    afterValue_ = true;
}

void JsonWriter::Member(std::string_view key, std::string_view text) {
    Key(key);
    String(text);
}

void JsonWriter::Member(std::string_view key, double value) {
    Key(key);
    Number(value);
}

void JsonWriter::IntegerMember(std::string_view key, std::int64_t value) {
    Key(key);
    Integer(value);
}

void JsonWriter::BoolMember(std::string_view key, bool value) {
    Key(key);
    Value(value ? "true" : "false");
}

void JsonWriter::NullMember(std::string_view key) {
    Key(key);
    Null();
}

void JsonWriter::Member(std::string_view key, std::span<const std::string> texts) {
    Key(key);
    BeginArray();
    for (const std::string& text : texts) String(text);
    EndArray();
}

void JsonWriter::Member(std::string_view key, std::span<const double> values) {
    Key(key);
    BeginArray();
    for (const double value : values) Number(value);
    EndArray();
}

}  // namespace brask
