// The unit that temperatures are shown in. Files always hold °C.
#pragma once

#include <string>

namespace brask {

struct DataSet;

// One object for the whole run. A load takes a copy of it: the unit does not change while a file is
// read.
class TemperatureUnit {
  public:
    explicit TemperatureUnit(bool fahrenheit = false) : fahrenheit_(fahrenheit) {}

    bool Fahrenheit() const { return fahrenheit_; }
    // "°C" or "°F", UTF-8.
    std::string Label() const { return fahrenheit_ ? "°F" : "°C"; }
    // The value in this unit of a temperature in °C.
    double ToDisplayTemperature(double celsius) const {
        return fahrenheit_ ? 9.0 / 5.0 * celsius + 32.0 : celsius;
    }
    // Puts the unit in force and converts every loaded temperature in place, from the other unit.
    // Not guarded against the unit already in force: call it when the user's choice has changed.
    void SwitchTo(bool fahrenheit, DataSet& data);

  private:
    bool fahrenheit_;
};

}  // namespace brask
