#include "plot/ScaleEntry.h"

#include <charconv>
#include <functional>

#include "data/DateTime.h"
#include "data/NumberText.h"
#include "plot/PlotTexts.h"

namespace brask {

using namespace plot_texts;

namespace {

using Parser = std::function<std::optional<double>(const std::string&)>;

// The message about the row; empty when `range` could be set from it.
std::string ReadRow(const ScaleRow& row, const Parser& parse, const TextRow& unreadable,
                    const Texts& texts, AxisRange& range) {
    if (!row.Checked) return {};
    for (const std::string& text : {row.From, row.To}) {
        if (!parse(text)) return texts.Fill(unreadable, {text});
    }
    const AxisRange typed{*parse(row.From), *parse(row.To)};
    if (!IsShowable(typed)) return texts.Find(kRangeNotInOrder);
    range = typed;
    return {};
}

}  // namespace

ScaleReading ReadScaleEntry(const ScaleEntry& entry, const ViewRecord& shown,
                            const UserLocale& locale, LongDateOrder order, const Texts& texts) {
    // also dates that no display period can have: the axis of an old file begins before 2000
    const Parser date = [order](const std::string& text) { return ParseDateTime(text, order); };
    const Parser number = [&locale](const std::string& text) {
        return ParseNumber(text, locale.DecimalSign());
    };
    ViewRecord view = shown;
    std::string message = ReadRow(entry.Dates, date, kNotADate, texts, view.X);
    if (message.empty()) message = ReadRow(entry.Gas, number, kNotANumber, texts, view.Y);
    if (message.empty()) message = ReadRow(entry.Temperature, number, kNotANumber, texts, view.Y1);
    if (!message.empty()) return {std::nullopt, message};
    return {view, {}};
}

std::string ScaleDateText(double serial) { return FormatReadingTime(serial); }

std::string ScaleNumberText(double value, const UserLocale& locale) {
    constexpr int kDigits = 6;
    char text[32];
    const auto result = std::to_chars(text, text + sizeof text, value == 0 ? 0 : value,
                                      std::chars_format::general, kDigits);
    std::string shown(text, result.ptr);
    const auto sign = shown.find('.');
    if (sign != std::string::npos) shown[sign] = locale.DecimalSign();
    return shown;
}

}  // namespace brask
