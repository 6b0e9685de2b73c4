// Typed access to the option values of SettingsTable.h. Every change is stored at once. Reading
// never fails; a failing save keeps the old value and is reported quietly, never to the caller.
#pragma once

#include <functional>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

#include "data/ColorValue.h"
#include "platform/SettingsStore.h"
#include "platform/UserLocale.h"

namespace brask {

class Settings {
  public:
    // Told which key could not be saved and why. Called from within Save; must not save settings
    // itself.
    using FailureReport = std::function<void(const std::string& key, const std::string& reason)>;

    // `known` holds the known keys, `own` the program's own.
    Settings(SettingsStore& known, SettingsStore& own, const UserLocale& locale,
             FailureReport report);

    // Whether the key is one of the two tables or a colour entry.
    static bool IsKnown(std::string_view key);
    // The value that counts when none is stored. Empty for an unknown key.
    std::string Default(const std::string& key) const;
    // The stored text as it stands, or the default.
    std::string Get(const std::string& key) const;
    // Stores the text without blanks at its ends.
    void Save(const std::string& key, std::string_view value);
    void SaveFlag(const std::string& key, bool yes) { Save(key, yes ? "YES" : "NO"); }

    // Flags are tested by exact comparison with one word; a value that is neither word falls to
    // the other side, so which word is tested matters.
    bool IsYes(const std::string& key) const { return Get(key) == "YES"; }
    bool IsNotNo(const std::string& key) const { return Get(key) != "NO"; }
    // The leading number of the value, 0 when it begins with none.
    double Number(const std::string& key) const;
    // The value as an index of `count` controls; what names none becomes the nearest. A fraction is
    // cut: 1.9 names the control 1.
    int Index(const std::string& key, int count) const;
    ColorValue Color(const std::string& key) const;

    // Every key in the order of the tables, colour entries behind "NumPlotColorsDefined".
    std::vector<std::string> Keys() const;

    // Set while stored values are pushed into controls: their change handlers must not write back.
    bool Loading() const { return loading_; }
    class LoadingGuard {
      public:
        explicit LoadingGuard(Settings& settings) : settings_(settings) {
            settings_.loading_ = true;
        }
        ~LoadingGuard() { settings_.loading_ = false; }
        LoadingGuard(const LoadingGuard&) = delete;
        LoadingGuard& operator=(const LoadingGuard&) = delete;

      private:
        Settings& settings_;
    };

  private:
    SettingsStore& StoreOf(const std::string& key) const;
    std::string LastDayOfWeek() const;

    SettingsStore& known_;
    SettingsStore& own_;
    const UserLocale& locale_;
    FailureReport report_;
    bool loading_ = false;
};

}  // namespace brask
