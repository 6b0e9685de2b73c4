#include "data/DataSet.h"

#include <algorithm>

namespace brask {

void DataSet::Recreate(std::size_t expected) {
    constexpr std::size_t kSlots = static_cast<std::size_t>(kFirstHighestSlot) + 1;
    for (std::vector<double>* values : {&ReadingTime, &GasPpm, &Temperature}) {
        // Frees the old array before the new one is set aside: both together may not fit.
        *values = std::vector<double>();
        values->reserve(std::max(expected, kSlots));
        values->resize(kSlots);
    }
    ReadingCount = 0;
}

void DataSet::Grow() {
    // Some hundred spare slots at a time, so that most readings find theirs.
    const auto slots = static_cast<std::size_t>(ReadingCount) + 501;
    for (std::vector<double>* values : {&ReadingTime, &GasPpm, &Temperature}) {
        // resize() alone would take exactly what is asked for and move everything each time
        if (slots > values->capacity()) values->reserve(std::max(slots, 2 * values->capacity()));
        values->resize(slots);
    }
}

}  // namespace brask
