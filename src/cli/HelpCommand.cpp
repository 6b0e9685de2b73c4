#include "cli/HelpCommand.h"

#include <algorithm>
#include <string>

#include "cli/CliTexts.h"
#include "cli/Shell.h"
#include "platform/Version.h"

namespace brask {
namespace {

using namespace cli_texts;

std::string Padded(std::string text, std::size_t width) {
    text.append(text.size() < width ? width - text.size() : 0, ' ');
    return text + "  ";
}

std::string OptionUse(const OptionRow& row) {
    const std::string option = OptionText(row.Name);
    return row.Kind == OptionKind::kSwitch ? option : option + " " + row.Value;
}

std::string AllCommands(const Shell& shell) {
    constexpr std::size_t kWidth = 10;
    std::string help = shell.Words.Find(kHelpHead);
    for (const CommandRow& row : shell.Commands) {
        help += "  " + Padded(row.Name, kWidth) + shell.Words.Find(row.Summary) + "\n";
    }
    help += shell.Words.Find(kHelpCommonOptions) + OptionLines(CommonOptions(), shell.Words);
    return help + shell.Words.Find(kHelpStatus);
}

std::string OneCommand(const Shell& shell, const CommandRow& row) {
    std::string help =
        shell.Words.Fill(kHelpUsage, {row.Name, row.Arguments, shell.Words.Find(row.Summary)});
    if (!row.Options.empty()) {
        help += shell.Words.Find(kHelpOptions) + OptionLines(row.Options, shell.Words);
    }
    return help + shell.Words.Find(kHelpCommonOptions) + OptionLines(CommonOptions(), shell.Words);
}

void Print(Shell& shell, const CommandLine& line, std::string_view key, const std::string& text) {
    if (!line.Has("json")) {
        shell.Out.Write(text);
        return;
    }
    JsonWriter json(shell.Out);
    json.BeginObject();
    json.Member(key, text);
    EndDocument(shell, json);
}

}  // namespace

std::string OptionLines(std::span<const OptionRow> rows, const Texts& texts) {
    // wide enough for all but the longest, which pushes its own line aside
    constexpr std::size_t kWidth = 26;
    std::string lines;
    for (const OptionRow& row : rows) {
        lines += "  " + Padded(OptionUse(row), kWidth) + texts.Find(row.Meaning) + "\n";
    }
    return lines;
}

ExitStatus RunHelp(Shell& shell, const CommandLine& line) {
    // "brask list --help" speaks of list; in "brask help list" the command is help itself.
    const CommandRow* subject = line.Command();
    if (!line.Has("help")) subject = nullptr;
    if (!line.Arguments().empty() && subject == nullptr) {
        const std::string& name = line.Arguments()[0];
        const auto found =
            std::find_if(shell.Commands.begin(), shell.Commands.end(),
                         [&name](const CommandRow& row) { return row.Name == name; });
        if (found == shell.Commands.end()) {
            return WrongUsage(shell.Words.Fill(kUnknownCommand, {"\"" + name + "\""}));
        }
        subject = &*found;
    }
    Print(shell, line, "help",
          subject == nullptr ? AllCommands(shell) : OneCommand(shell, *subject));
    return ExitStatus::kDone;
}

ExitStatus RunVersion(Shell& shell, const CommandLine& line) {
    const std::string version(ProgramVersion());
    Print(shell, line, "version",
          // the bare number saves a script from cutting the line
          line.Has("json") ? version : shell.Words.Fill(kVersionLine, {version}) + "\n");
    return ExitStatus::kDone;
}

}  // namespace brask
