// Writes one JSON document piece by piece, so that the longest list needs no memory. The caller
// sees to the order: a value for every key, an end for every beginning.
#pragma once

#include <cstdint>
#include <span>
#include <string>
#include <string_view>

#include "cli/OutputBuffer.h"

namespace brask {

class JsonWriter {
  public:
    explicit JsonWriter(OutputBuffer& out) : out_(out) {}

    void BeginObject() { Begin("{"); }
    void EndObject() { End("}"); }
    void BeginArray() { Begin("["); }
    void EndArray() { End("]"); }
    // The next call must write its value.
    void Key(std::string_view key);

    // UTF-8; bytes that are none become U+FFFD. Control characters are escaped; nothing else is
    // changed.
    void String(std::string_view text);
    // Reads back as exactly this number; null for infinities and NaN.
    void Number(double value);
    void Integer(std::int64_t value);
    // For what has no value: a failed command's document keeps all its keys.
    void Null() { Value("null"); }

    // A key with its value.
    void Member(std::string_view key, std::string_view text);
    void Member(std::string_view key, double value);
    void IntegerMember(std::string_view key, std::int64_t value);
    void BoolMember(std::string_view key, bool value);
    void NullMember(std::string_view key);
    void Member(std::string_view key, std::span<const std::string> texts);
    void Member(std::string_view key, std::span<const double> values);

  private:
    void Separate();
    void Begin(std::string_view bracket);
    void End(std::string_view bracket);
    void Value(std::string_view text);

    OutputBuffer& out_;
    bool afterValue_ = false;  // a comma is due before the next key or value
};

}  // namespace brask
