#include "data/WindowsVersion.h"

#include <string>

#include "data/DataTexts.h"
#include "data/Settings.h"

namespace brask {
namespace {

using namespace data_texts;

// The service pack comes in a fixed buffer; only its text up to the first NUL counts.
std::string ServicePackText(const VersionRecord& version) { return version.ServicePack.c_str(); }

// The name by which a system too old is called in the warning; empty when it is new enough.
std::string UnsupportedName(const VersionRecord& version) {
    if (version.Platform != 1 || version.Major != 4) return "";
    if (version.Minor < 10) return "95";
    // that release says "A" (or " A ") where others name a service pack
    const bool secondEdition = ServicePackText(version).find_first_of("Aa") != std::string::npos;
    return version.Minor == 10 && !secondEdition ? "98 (not second edition)" : "";
}

}  // namespace

WindowsKind ClassifyWindows(const VersionRecord& version) {
    if (version.Platform == 0) return WindowsKind::kWin32s;
    if (version.Platform == 1) return WindowsKind::kWindows9x;
    if (version.Platform != 2) return WindowsKind::kNotClassified;
    if (version.Major == 4) return WindowsKind::kNt4;
    if (version.Major != 5) return WindowsKind::kNotClassified;
    return version.Build < 2196 ? WindowsKind::kNt5Early : WindowsKind::kNt5;
}

WindowsKind CheckWindowsVersion(const SystemInformation& system, UserInterface& user,
                                const Texts& texts, Settings& settings) {
    const auto version = system.Version();
    if (!version) {
        user.ShowMessage({texts.Find(kProgramTitle), texts.Find(kNoVersion)});
        return WindowsKind::kNotClassified;
    }
    const std::string name = UnsupportedName(*version);
    // Only an exact NO lets it be shown again: somebody who edits the file to anything else wants
    // quiet.
    if (!name.empty() && !settings.IsNotNo("WarnedVers")) {
        user.ShowMessage({texts.Find(kVersionTitle),
                          texts.Fill(kVersionWarning,
                                     {name, std::to_string(version->Major),
                                      std::to_string(version->Minor), ServicePackText(*version)})});
        settings.Save("WarnedVers", "YES");
    }
    return ClassifyWindows(*version);
}

}  // namespace brask
