#include "cli/InstrumentRun.h"

#include "data/WindowsVersion.h"

namespace brask {

InstrumentRun::InstrumentRun(Shell& shell, const CommandLine& line)
    : shell_(shell),
      session_(shell, line),
      directories_(shell.System.Disk(), shell.User, shell.Words),
      recovery_(shell.System.Disk(), shell.System.Time(), directories_),
      expander_(shell.System.Disk()) {
    if (const auto root = line.Value("root")) {
        directories_.OverrideBase(shell.System.Disk().Absolute(*root));
    }
    const auto version = shell.System.Information().Version();
    directories_.ResolveDataDirectories(
        session_.Options(), version ? ClassifyWindows(*version) : WindowsKind::kNotClassified);
}

LinkSystem InstrumentRun::System() const {
    return {shell_.User, shell_.Words, shell_.System.Disk(), shell_.System.Information(),
            shell_.System.Time()};
}

LinkData InstrumentRun::Data() {
    return {collect_, directories_, session_.Options(), session_.Log(), expander_, recovery_};
}

}  // namespace brask
