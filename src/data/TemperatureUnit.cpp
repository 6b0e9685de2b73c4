#include "data/TemperatureUnit.h"

#include "data/DataSet.h"

namespace brask {

void TemperatureUnit::SwitchTo(bool fahrenheit, DataSet& data) {
    // In place, since curves share the array; a conversion there and back may change a last digit.
    fahrenheit_ = fahrenheit;
    for (std::int32_t i = 0; i < data.ReadingCount; ++i) {
        double& temperature = data.Temperature[static_cast<std::size_t>(i)];
        temperature =
            fahrenheit ? 9.0 / 5.0 * temperature + 32.0 : (temperature - 32.0) * 5.0 / 9.0;
    }
}

}  // namespace brask
