// Numbers as texts, the same on every machine: "." is the decimal sign unless told otherwise.
#pragma once

#include <optional>
#include <string>
#include <string_view>

namespace brask {

// The number test: optional sign, digits with "." or the given decimal sign, optional exponent,
// blanks around. Nothing for any other text (hexadecimal, inf, nan) and for what overflows.
// For example "-1.5e3"; "1,5" only where "," is the decimal sign, while "." always is one.
std::optional<double> ParseNumber(std::string_view text, char decimalSign = '.');

// The number that a text begins with (blanks in front are ignored); 0 when it begins with none:
// "12 ppm" is 12. For settings, where an odd value must still mean something.
double LeadingNumber(std::string_view text);

// The shortest text that reads back as exactly this number: "0.1", "1e+30".
std::string FormatNumber(double value);

// As people write it: at most 15 significant digits, so that 79.16 computed from 26.2 is "79.16",
// and an exponent only for very large and very small numbers.
std::string FormatPlainNumber(double value);

// One decimal, rounded half away from zero, as the grid shows values ("##0.0"): "26.1".
std::string FormatTenths(double value);

}  // namespace brask
