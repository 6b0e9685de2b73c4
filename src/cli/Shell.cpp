#include "cli/Shell.h"

#include <cstdio>
#include <new>
#include <vector>

#include "cli/CliTexts.h"
#include "cli/HelpCommand.h"
#include "data/DataTexts.h"
#include "platform/Utf8.h"

namespace brask {
namespace {

void WriteErrorLine(const std::string& line) {
    std::fprintf(stderr, "%s\n", PrintableText(line).c_str());
}

ExitStatus RunCommand(Shell& shell, const CommandLine& line) {
    // wherever they stand: such a call asks about the program, not for work
    if (line.Has("version")) return RunVersion(shell, line);
    if (line.Has("help")) return RunHelp(shell, line);
    return line.Command()->Run(shell, line);
}

// A script that asked for a document gets one, too, when there is not enough memory.
ExitStatus RunWithinMemory(Shell& shell, const CommandLine& line) {
    try {
        return RunCommand(shell, line);
    } catch (const std::bad_alloc&) {
        // What the command held is free again by now.
        ShowFailure(shell, shell.Words.Find(cli_texts::kNoMemory));
        if (line.Has("json") && shell.Out.Discard()) {
            JsonWriter json(shell.Out);
            json.BeginObject();
            EndDocument(shell, json);
        }
        return ExitStatus::kFailed;
    }
}

ExitStatus RunWords(std::span<const CommandRow> commands, std::span<char* const> arguments) {
    NativeSystem system;
    const std::vector<std::string> words = system.OtherPrograms().CommandWords(arguments);
    const EnglishTexts texts;
    const auto line = CommandLine::Parse(commands, words, texts);
    ConsoleOptions options;
    if (line.Ok()) {
        options.Yes = line.Value().Has("yes");
        // In a log file or a pipe the bar would leave thousands of carriage returns.
        options.Progress =
            !line.Value().Has("quiet") && system.OtherPrograms().ErrorOutputIsTerminal();
    }
    // Messages go to standard error, results alone to standard output, so that results can be piped
    // on.
    ConsoleUserInterface user(stderr, system.Time(), options);
    OutputBuffer out(stdout);
    Shell shell{system, texts, user, out, commands, words};
    // before any output: wrong usage has one line and no document
    if (!line.Ok()) return WrongUsage(line.Why().Reason);
    const ExitStatus status = RunWithinMemory(shell, line.Value());
    // A result that did not arrive whole is a failure, whatever the command says.
    if (const Status written = out.Finish(); !written.Ok()) {
        WriteErrorLine(texts.Fill(cli_texts::kCannotWriteResult, {written.Why().Reason}));
        return ExitStatus::kFailed;
    }
    return status;
}

}  // namespace

ExitStatus WrongUsage(std::string_view reason) {
    std::string line = "brask: " + std::string(reason);
    // a line end in an argument must not make two lines of the reason
    for (char& c : line) c = c == '\n' ? ' ' : c;
    WriteErrorLine(line);
    return ExitStatus::kUsage;
}

std::string OptionMissing(const Shell& shell, const CommandRow& command, std::string_view option) {
    return shell.Words.Fill(cli_texts::kOptionMissing,
                            {OptionText(option), command.Name, command.Arguments});
}

void ShowFailure(Shell& shell, const std::string& text) {
    shell.User.ShowMessage({shell.Words.Find(data_texts::kProgramTitle), text});
}

void EndDocument(Shell& shell, JsonWriter& json) {
    json.Member("messages", shell.User.Messages());
    json.EndObject();
    shell.Out.Write("\n");
}

int RunProgram(std::span<const CommandRow> commands, std::span<char* const> arguments) {
    try {
        return static_cast<int>(RunWords(commands, arguments));
    } catch (const std::bad_alloc&) {
        // the row itself, since looking a text up takes memory
        std::fprintf(stderr, "%s\n", cli_texts::kNoMemory.English);
        return static_cast<int>(ExitStatus::kFailed);
    }
}

}  // namespace brask
