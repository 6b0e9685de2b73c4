// What was typed behind the program's name, checked against tables of commands and options.
//
// Options are written --name VALUE or --name=VALUE, those of one letter -o VALUE or -oVALUE; the
// last of two equal ones counts. "--" ends them; what looks like a negative number is no option.
#pragma once

#include <cstdint>
#include <map>
#include <optional>
#include <span>
#include <string>
#include <string_view>
#include <vector>

#include "platform/Result.h"
#include "platform/Texts.h"

namespace brask {

class CommandLine;
struct Shell;

// What the process ends with. Failed also means refused, or nothing to show; scripts rely on the
// numbers.
enum class ExitStatus { kDone = 0, kFailed = 1, kUsage = 2 };

// A switch has no value; a count is a whole number from 0 on; a choice is one of the words that
// Value lists, joined by "|".
enum class OptionKind { kSwitch, kText, kCount, kChoice };

struct OptionRow {
    const char* Name;  // without its dashes
    OptionKind Kind;
    const char* Value;  // what help calls the value; empty for a switch
    TextRow Meaning;
};

// One command of a program. Rows are constants: help is printed from the same table that the words
// are checked against, so that the two cannot differ.
struct CommandRow {
    const char* Name;
    // For example "FILE -o PICTURE".
    const char* Arguments;  // as help shows them, required options included
    TextRow Summary;
    std::span<const OptionRow> Options;  // besides the common ones
    // words behind the command's name that are no options
    std::size_t LeastArguments;
    std::size_t MostArguments;
    // Called with a line that was checked against this row; required options it checks itself.
    ExitStatus (*Run)(Shell& shell, const CommandLine& line);
};

// The options of every command, before or behind its name.
std::span<const OptionRow> CommonOptions();

// "--json", "-o".
std::string OptionText(std::string_view name);

// Points into the tables that it was read with, which must outlive it.
class CommandLine {
  public:
    // Reads what stands behind the program's name; the error is a one-line reason. Without any
    // command it succeeds only for --help and --version.
    static Result<CommandLine> Parse(std::span<const CommandRow> commands,
                                     std::span<const std::string> words, const Texts& texts);

    // The same for a program that is one command: its options are those of the row alone, "help"
    // and "version" among them, which make it succeed like above.
    static Result<CommandLine> ParseProgram(const CommandRow& program,
                                            std::span<const std::string> words, const Texts& texts);

    // Null when there is none. Never null in a command's own Run.
    const CommandRow* Command() const { return command_; }
    // As typed, without the command's name.
    const std::vector<std::string>& Arguments() const { return arguments_; }

    // Names are without dashes, here and below. A name that the command has no row for is simply
    // absent.
    bool Has(std::string_view name) const { return options_.find(name) != options_.end(); }
    // The value as typed.
    std::optional<std::string> Value(std::string_view name) const;
    // The value of a count.
    std::optional<std::int64_t> Count(std::string_view name) const;
    // Which word of its list a choice is, from 0.
    std::optional<int> Choice(std::string_view name) const;
    // Of --fahrenheit and --celsius the last one; nothing without either.
    std::optional<bool> Fahrenheit() const { return fahrenheit_; }

  private:
    friend class CommandLineReader;

    // The row is kept, since a choice is read against its list of words.
    struct GivenOption {
        const OptionRow* Row;
        std::string Value;
    };

    const CommandRow* command_ = nullptr;
    std::vector<std::string> arguments_;
    std::map<std::string, GivenOption, std::less<>> options_;
    std::optional<bool> fahrenheit_;
};

}  // namespace brask
