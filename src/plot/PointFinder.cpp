#include "plot/PointFinder.h"

#include "data/DateTime.h"
#include "plot/PlotTexts.h"

namespace brask {

using namespace plot_texts;

std::string PointFinder::Check(const std::string& text) const {
    if (ParseDateTime(text, parts_.DateOrder)) return {};
    return parts_.Words.Fill(kNotADate, {text});
}

std::string PointFinder::Find(const std::string& text) const {
    const auto serial = ParseDateTime(text, parts_.DateOrder);
    if (!serial) return Check(text);
    const ReadingPlaces& places = parts_.Builder.Places();
    const auto reading = places.NearestReading(*serial);
    const auto place = reading ? places.PlaceOf(*reading, parts_.Plot.ActiveAxis) : std::nullopt;
    if (!place) return parts_.Words.Find(kDateNotLocated);
    parts_.Actions.SelectPoint(*place);
    return {};
}

}  // namespace brask
