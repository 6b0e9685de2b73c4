#include "cli/CommandSession.h"

namespace brask {

CommandSession::CommandSession(Shell& shell, const CommandLine& line)
    : disk_(shell.System.Disk()),
      log_(shell.System.Disk(), shell.System.Time()),
      settings_(
          {shell.System.Disk(), shell.System.Stores(), shell.System.Locale(), shell.Words, log_},
          line.Value("settings").value_or(""),
          // A setting that could not be stored is a line in the status bar of a window; a
          // script has to see it as a message and in the exit status.
          [this, &shell](const std::string& text) {
              allSaved_ = false;
              ShowFailure(shell, text);
          }),
      // after settings_, which it asks: members are made in the order of the header
      unit_(line.Fahrenheit().value_or(Options().Number("DisplayTemperatureUnits") != 0)),
      // data files follow the order of the country that their reader lives in
      dateOrder_(shell.System.Locale().DateOrder()),
      loader_(data_, shell.User, shell.Words, shell.System.Disk(), log_) {
    if (const auto order = line.Choice("date-order")) {
        dateOrder_ = static_cast<LongDateOrder>(*order);
    }
    if (!settings_.Damage().empty()) shell.User.ShowNotice(settings_.Damage());
}

bool CommandSession::Load(const std::string& file) {
    // Absolute, for the messages and the log, and for the check of the directories that it lies in.
    data_.CurrentDataFile = disk_.Absolute(file);
    // Readings of a file that broke off are shown, but such a load has not been successful.
    return loader_.LoadDataFile({dateOrder_, unit_}) == LoadOutcome::kRead && !loader_.ReadFailed();
}

}  // namespace brask
