#include "data/NumberText.h"

#include <algorithm>
#include <charconv>
#include <cmath>

namespace brask {
namespace {

bool IsDigit(char c) { return c >= '0' && c <= '9'; }

// The parts of a text that has the form of a number.
struct NumberForm {
    std::string Text;        // for from_chars: without "+" in front, "." as decimal sign
    std::size_t Length = 0;  // how much of the source it takes
    bool HasDigits = false;
    std::int64_t Magnitude = 0;  // decimal places of the first digit that is not 0, about
};

std::size_t CopyDigits(std::string_view text, std::size_t from, std::string& to) {
    std::size_t end = from;
    while (end < text.size() && IsDigit(text[end])) ++end;
    to += text.substr(from, end - from);
    return end;
}

// The exponent behind the digits; `position` moves behind it when there is a whole one.
std::int64_t ScanExponent(std::string_view text, std::size_t& position, std::string& copy) {
    if (position >= text.size() || (text[position] | 0x20) != 'e') return 0;
    std::size_t at = position + 1;
    const bool negative = at < text.size() && text[at] == '-';
    if (at < text.size() && (text[at] == '-' || text[at] == '+')) ++at;
    std::string digits;
    const std::size_t end = CopyDigits(text, at, digits);
    // "5e" is the number 5 and a letter, so the whole is no number, but its leading number is 5.
    if (digits.empty()) return 0;
    position = end;
    copy += negative ? "e-" + digits : "e" + digits;
    std::int64_t exponent = 0;
    // saturating: far beyond any double, and still far from overflowing
    for (const char c : digits)
        exponent = std::min<std::int64_t>(exponent * 10 + (c - '0'), 1 << 30);
    return negative ? -exponent : exponent;
}

NumberForm ScanNumber(std::string_view text, char decimalSign) {
    NumberForm form;
    std::size_t at = 0;
    if (!text.empty() && (text[0] == '-' || text[0] == '+')) {
        if (text[0] == '-') form.Text = "-";
        at = 1;
    }
    const std::size_t firstDigit = form.Text.size();
    at = CopyDigits(text, at, form.Text);
    const std::size_t whole = form.Text.size() - firstDigit;
    std::size_t fraction = 0;
    if (at < text.size() && (text[at] == '.' || text[at] == decimalSign)) {
        form.Text += '.';
        const std::size_t before = form.Text.size();
        at = CopyDigits(text, at + 1, form.Text);
        fraction = form.Text.size() - before;
    }
    form.HasDigits = whole + fraction > 0;
    const auto significant = form.Text.find_first_of("123456789");
    if (significant != std::string::npos) {
        form.Magnitude =
            static_cast<std::int64_t>(firstDigit + whole) - static_cast<std::int64_t>(significant);
    }
    if (form.HasDigits) form.Magnitude += ScanExponent(text, at, form.Text);
    form.Length = at;
    return form;
}

// Nothing when the number overflows; what underflows is 0.
std::optional<double> ValueOf(const NumberForm& form) {
    double value = 0;
    const char* end = form.Text.data() + form.Text.size();
    const auto [stop, error] = std::from_chars(form.Text.data(), end, value);
    // from_chars does not say on which side a number is out of range; the magnitude does.
    if (error == std::errc::result_out_of_range) {
        return form.Magnitude > 0 ? std::nullopt : std::optional<double>(0.0);
    }
    if (error != std::errc()) return std::nullopt;
    return value;
}

std::string_view SkipBlanks(std::string_view text) {
    text.remove_prefix(std::min(text.find_first_not_of(' '), text.size()));
    return text;
}

}  // namespace

std::optional<double> ParseNumber(std::string_view text, char decimalSign) {
    text = SkipBlanks(text);
    const NumberForm form = ScanNumber(text, decimalSign);
    if (!form.HasDigits || !SkipBlanks(text.substr(form.Length)).empty()) return std::nullopt;
    return ValueOf(form);
}

double LeadingNumber(std::string_view text) {
    const NumberForm form = ScanNumber(SkipBlanks(text), '.');
    return form.HasDigits ? ValueOf(form).value_or(0) : 0;
}

std::string FormatNumber(double value) {
    char text[32];
    const auto result = std::to_chars(text, text + sizeof text, value);
    return {text, result.ptr};
}

std::string FormatPlainNumber(double value) {
    constexpr int kDigits = 15;  // a double keeps all of them
    char text[32];
    // 0 is never negative to a reader
    const auto result = std::to_chars(text, text + sizeof text, value == 0 ? 0 : value,
                                      std::chars_format::general, kDigits);
    return {text, result.ptr};
}

std::string FormatTenths(double value) {
    constexpr double kExactTenths = 1e14;  // beyond, a double has no tenths to round
    double rounded = value;
    if (std::abs(value) < kExactTenths) rounded = std::round(value * 10) / 10;
    if (rounded == 0) rounded = 0;  // never "-0.0"
    char text[400];
    const auto result =
        std::to_chars(text, text + sizeof text, rounded, std::chars_format::fixed, 1);
    return {text, result.ptr};
}

}  // namespace brask
