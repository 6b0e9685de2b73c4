#include "cli/CommandSession.h"

#include "data/DataTexts.h"
#include "platform/PlatformTexts.h"

namespace brask {
namespace {

constexpr const char* kKnownSection = "Brask Lite";
constexpr const char* kOwnSection = "Window";

}  // namespace

std::string UserSettingsPath(const Files& files) {
    const std::string separator(1, files.Separator());
    return files.Folder(KnownFolder::kSettings) + separator + "VEK" + separator + "Brask Lite.ini";
}

CommandSession::CommandSession(Shell& shell, const CommandLine& line)
    : shell_(shell),
      log_(shell.System.Disk(), shell.System.Time()),
      file_(shell.System.Disk(),
            line.Value("settings").value_or(UserSettingsPath(shell.System.Disk()))),
      known_(file_, kKnownSection),
      own_(file_, kOwnSection),
      settings_(
          known_, own_, shell.System.Locale(),
          [this](const std::string& key, const std::string& reason) {
              allSaved_ = false;
              ShowFailure(shell_, shell_.Words.Fill(data_texts::kSettingNotSaved, {key, reason}));
          }),
      unit_(line.Fahrenheit().value_or(settings_.Number("DisplayTemperatureUnits") != 0)),
      dateOrder_(shell.System.Locale().DateOrder()),
      loader_(data_, shell.User, shell.Words, shell.System.Disk(), log_) {
    if (const auto order = line.Choice("date-order")) {
        dateOrder_ = static_cast<LongDateOrder>(*order);
    }
    if (!file_.Damage().empty()) ReportDamage();
}

void CommandSession::ReportDamage() {
    // what could not even be read was left where it is
    const bool setAside = !shell_.System.Disk().Exists(file_.Path());
    const std::string text =
        setAside ? shell_.Words.Fill(platform_texts::kSettingsSetAside,
                                     {file_.Path(), file_.Damage(), file_.Path() + ".bad"})
                 : shell_.Words.Fill(data_texts::kCannotRead, {file_.Path(), file_.Damage()});
    shell_.User.ShowNotice(text);
    log_.WriteLog(text);
}

bool CommandSession::Load(const std::string& file) {
    data_.CurrentDataFile = file;
    return loader_.LoadDataFile({dateOrder_, unit_}) == LoadOutcome::kRead;
}

}  // namespace brask
