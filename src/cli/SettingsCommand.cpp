#include "cli/SettingsCommand.h"

#include <algorithm>
#include <array>
#include <string>
#include <vector>

#include "cli/CliTexts.h"
#include "cli/CommandSession.h"
#include "cli/Shell.h"
#include "data/SettingsTable.h"
#include "platform/Utf8.h"

namespace brask {
namespace {

using ShownSetting = std::array<std::string, 5>;
// in the order of ShownSetting; also the keys of the document
constexpr std::array<const char*, 5> kColumns = {"key", "value", "default", "form", "meaning"};

ShownSetting Show(const Settings& settings, const Texts& texts, const std::string& key) {
    // what a colour entry has, which stands in neither table
    SettingForm form = SettingForm::kColour;
    TextRow meaning = cli_texts::kPlotLineColor;
    for (const auto rows : {KnownSettings(), OwnSettings()}) {
        for (const SettingRow& row : rows) {
            if (row.Key != key) continue;
            form = row.Form;
            meaning = row.Meaning;
        }
    }
    return {key, settings.Get(key), settings.Default(key), std::string(FormName(form)),
            texts.Find(meaning)};
}

void WriteDocument(Shell& shell, const std::vector<ShownSetting>& settings) {
    JsonWriter json(shell.Out);
    json.BeginObject();
    json.Key("settings");
    json.BeginArray();
    for (const ShownSetting& setting : settings) {
        json.BeginObject();
        for (std::size_t i = 0; i < setting.size(); ++i) json.Member(kColumns[i], setting[i]);
        json.EndObject();
    }
    json.EndArray();
    EndDocument(shell, json);
}

void WriteTable(OutputBuffer& out, const std::vector<ShownSetting>& settings) {
    // a path may be long; it pushes its own line aside, not the whole table
    constexpr std::size_t kWidest = 28;
    std::array<std::size_t, 5> widths{};
    for (const ShownSetting& setting : settings) {
        for (std::size_t i = 0; i < widths.size(); ++i) {
            widths[i] = std::min(kWidest, std::max(widths[i], CharacterCount(setting[i])));
        }
    }
    for (const ShownSetting& setting : settings) {
        // the last column needs no blanks behind it
        for (std::size_t i = 0; i + 1 < setting.size(); ++i) {
            std::string text = PrintableText(setting[i]);
            // the recent files are several lines in one value
            std::replace(text.begin(), text.end(), '\n', ' ');
            const std::size_t used = CharacterCount(text);
            out.Write(text + std::string(used < widths[i] ? widths[i] - used + 2 : 2, ' '));
        }
        out.Write(setting.back() + "\n");
    }
}

// What the words behind "settings" call for.
struct Request {
    enum class Action { kList, kGet, kSet } What = Action::kList;
    std::string Key;
    std::string Value;
};

std::optional<Request> RequestOf(const std::vector<std::string>& words) {
    using enum Request::Action;
    if (words[0] == "list" && words.size() == 1) return Request{kList, "", ""};
    if (words[0] == "get" && words.size() == 2) return Request{kGet, words[1], ""};
    if (words[0] == "set" && words.size() == 3) return Request{kSet, words[1], words[2]};
    return std::nullopt;
}

}  // namespace

ExitStatus RunSettings(Shell& shell, const CommandLine& line) {
    using enum Request::Action;
    const auto request = RequestOf(line.Arguments());
    if (!request) return WrongUsage(shell.Words.Find(cli_texts::kBadSettingsUse));
    CommandSession session(shell, line);
    Settings& settings = session.Options();

    std::vector<std::string> keys{request->Key};
    if (request->What == kList) keys = settings.Keys();
    // Keys that the program does not know are kept in the file but not written: a slip in a key
    // would otherwise look like a success.
    const bool known = request->What == kList || Settings::IsKnown(request->Key);
    if (!known) {
        ShowFailure(shell, shell.Words.Fill(cli_texts::kUnknownSetting, {request->Key}));
        keys.clear();
    } else if (request->What == kSet) {
        // Stored as typed, also what is no value of its form: reading copes with anything.
        settings.Save(request->Key, request->Value);
    }

    std::vector<ShownSetting> shown;
    shown.reserve(keys.size());
    for (const std::string& key : keys) shown.push_back(Show(settings, shell.Words, key));
    if (line.Has("json")) {
        WriteDocument(shell, shown);
    } else if (known && request->What == kGet) {
        // bare, for a script to take as it is
        shell.Out.Write(settings.Get(request->Key) + "\n");
    } else if (known && request->What == kList) {
        WriteTable(shell.Out, shown);
    }
    return known && session.AllSettingsSaved() ? ExitStatus::kDone : ExitStatus::kFailed;
}

}  // namespace brask
