#include "cli/CommandSession.h"

namespace brask {

CommandSession::CommandSession(Shell& shell, const CommandLine& line)
    : disk_(shell.System.Disk()),
      log_(shell.System.Disk(), shell.System.Time()),
      settings_({shell.System.Disk(), shell.System.Locale(), shell.Words, log_},
                line.Value("settings").value_or(""),
                [this, &shell](const std::string& text) {
                    allSaved_ = false;
                    ShowFailure(shell, text);
                }),
      unit_(line.Fahrenheit().value_or(Options().Number("DisplayTemperatureUnits") != 0)),
      dateOrder_(shell.System.Locale().DateOrder()),
      loader_(data_, shell.User, shell.Words, shell.System.Disk(), log_) {
    if (const auto order = line.Choice("date-order")) {
        dateOrder_ = static_cast<LongDateOrder>(*order);
    }
    if (!settings_.Damage().empty()) shell.User.ShowNotice(settings_.Damage());
}

bool CommandSession::Load(const std::string& file) {
    data_.CurrentDataFile = disk_.Absolute(file);
    return loader_.LoadDataFile({dateOrder_, unit_}) == LoadOutcome::kRead && !loader_.ReadFailed();
}

}  // namespace brask
