#include "cli/CommandLine.h"

#include <algorithm>
#include <array>
#include <charconv>

#include "cli/CliTexts.h"

namespace brask {
namespace {

using namespace cli_texts;
using enum OptionKind;

// Every command takes all of these, also those that have no use for one: a script can then set them
// once for all its calls.
constexpr auto kCommon = std::to_array<OptionRow>({
    {"settings", kText, "FILE",
     TextRow("cli", "keep settings in this INI file instead of the user's own store")},
    {"date-order", kChoice, "mdy|dmy|ymd",
     TextRow("cli", "order of day, month and year in dates, instead of the locale's")},
    {"fahrenheit", kSwitch, "", TextRow("cli", "show temperatures in °F")},
    {"celsius", kSwitch, "", TextRow("cli", "show temperatures in °C")},
    {"root", kText, "DIR",
     TextRow("cli", "base directory of the data directories, instead of the resolved one")},
    {"json", kSwitch, "", TextRow("cli", "print the result as one JSON document")},
    {"yes", kSwitch, "", TextRow("cli", "answer questions with yes")},
    {"quiet", kSwitch, "", TextRow("cli", "show no progress")},
    {"help", kSwitch, "", TextRow("cli", "describe the command")},
    {"version", kSwitch, "", TextRow("cli", "print the version")},
});

const OptionRow* FindOption(std::span<const OptionRow> rows, std::string_view name) {
    const auto found = std::find_if(rows.begin(), rows.end(),
                                    [name](const OptionRow& row) { return row.Name == name; });
    return found == rows.end() ? nullptr : &*found;
}

// A word that begins with a dash and is neither "-" alone nor a negative number.
bool LooksLikeOption(std::string_view word) {
    if (word.size() < 2 || word[0] != '-') return false;
    // "-5" and "-.5" are values; no option begins with a digit
    return word[1] != '.' && (word[1] < '0' || word[1] > '9');
}

std::optional<std::int64_t> CountOf(std::string_view text) {
    std::int64_t count = 0;
    const auto [stop, error] = std::from_chars(text.data(), text.data() + text.size(), count);
    // from_chars takes a minus, also that of "-0"
    const bool whole = error == std::errc() && stop == text.data() + text.size();
    return whole && text[0] != '-' ? std::optional(count) : std::nullopt;
}

// Whole words only: a script must not come to depend on abbreviations that a later word makes
// ambiguous.
std::optional<int> ChoiceOf(std::string_view choices, std::string_view word) {
    for (int index = 0;; ++index) {
        const auto end = choices.find('|');
        if (choices.substr(0, end) == word) return index;
        if (end == std::string_view::npos) return std::nullopt;
        choices.remove_prefix(end + 1);
    }
}

std::string Quoted(std::string_view word) { return "\"" + std::string(word) + "\""; }

}  // namespace

std::span<const OptionRow> CommonOptions() { return kCommon; }

std::string OptionText(std::string_view name) {
    return (name.size() == 1 ? "-" : "--") + std::string(name);
}

// Takes the words one after another; the first that does not fit ends it. A class of its own, so
// that the finished CommandLine has nothing of the reading in it.
class CommandLineReader {
  public:
    CommandLineReader(std::span<const CommandRow> commands, std::span<const std::string> words,
                      const Texts& texts)
        : commands_(commands), common_(kCommon), words_(words), texts_(texts) {}
    CommandLineReader(const CommandRow& program, std::span<const std::string> words,
                      const Texts& texts)
        : words_(words), texts_(texts) {
        line_.command_ = &program;
    }

    Result<CommandLine> Read() {
        bool optionsEnded = false;
        while (next_ < words_.size()) {
            const std::string& word = words_[next_++];
            // Behind it a file whose name begins with a dash can be named.
            if (!optionsEnded && word == "--") {
                optionsEnded = true;
                continue;
            }
            const bool option = !optionsEnded && LooksLikeOption(word);
            if (Status taken = option ? TakeOption(word) : TakeWord(word); !taken.Ok()) {
                return taken.Why();
            }
        }
        // Before the arguments are counted: who asks for help need not know them.
        if (line_.Has("help") || line_.Has("version")) return std::move(line_);
        if (Status complete = CheckArguments(); !complete.Ok()) return complete.Why();
        return std::move(line_);
    }

  private:
    Error Wrong(const TextRow& row, std::initializer_list<std::string_view> arguments) const {
        return {0, texts_.Fill(row, arguments)};
    }

    Status TakeWord(const std::string& word) {
        // The first word that is no option is the command, whatever options stand in front.
        if (line_.command_ != nullptr) {
            line_.arguments_.push_back(word);
            return {};
        }
        const auto found =
            std::find_if(commands_.begin(), commands_.end(),
                         [&word](const CommandRow& row) { return row.Name == word; });
        if (found == commands_.end()) return Wrong(kUnknownCommand, {Quoted(word)});
        line_.command_ = &*found;
        return {};
    }

    const OptionRow* RowOf(std::string_view name) const {
        // Only common options may stand in front of the command: which others it has is not known
        // before.
        if (const OptionRow* row = FindOption(common_, name)) return row;
        return line_.command_ == nullptr ? nullptr : FindOption(line_.command_->Options, name);
    }

    Status TakeOption(std::string_view word) {
        const bool isLong = word[1] == '-';
        const auto equals = isLong ? word.find('=') : std::string_view::npos;
        const std::string name(isLong ? word.substr(2, equals - 2) : word.substr(1, 1));
        const OptionRow* row = RowOf(name);
        // "--o" and a long name behind a single dash are refused, rather than taken for something
        // close.
        if (row == nullptr || isLong != (name.size() > 1)) {
            // without its value, which is not what is wrong
            const std::string shown(word.substr(0, equals));
            if (line_.command_ == nullptr) return Wrong(kUnknownOption, {shown});
            return Wrong(kOptionNotOfCommand, {line_.command_->Name, shown});
        }
        std::optional<std::string_view> value;
        if (equals != std::string_view::npos) value = word.substr(equals + 1);
        if (!isLong && word.size() > 2) value = word.substr(2);
        return row->Kind == kSwitch ? TakeSwitch(*row, value) : TakeValue(*row, value);
    }

    Status TakeSwitch(const OptionRow& row, std::optional<std::string_view> value) {
        const std::string_view name = row.Name;
        if (value) return Wrong(kOptionTakesNoValue, {OptionText(name)});
        // Two switches of one choice: the last one given wins, as with two equal options.
        if (name == "fahrenheit" || name == "celsius") line_.fahrenheit_ = name == "fahrenheit";
        line_.options_.insert_or_assign(row.Name, CommandLine::GivenOption{&row, ""});
        return {};
    }

    Status TakeValue(const OptionRow& row, std::optional<std::string_view> value) {
        const std::string option = OptionText(row.Name);
        if (!value && next_ == words_.size()) return Wrong(kOptionNeedsValue, {option, row.Value});
        // The next word is the value whatever it looks like, so that "-o -x" can name a file.
        const std::string given(value ? *value : words_[next_++]);
        // An empty value is nearly always a script's unset variable; going on would use the user's
        // own store or write to an odd place.
        if (row.Kind == kText && given.empty()) return Wrong(kEmptyValue, {option});
        // Checked while reading, so that a command only meets values that make sense.
        if (row.Kind == kCount && !CountOf(given)) {
            return Wrong(kNotACount, {option, Quoted(given)});
        }
        if (row.Kind == kChoice && !ChoiceOf(row.Value, given)) {
            return Wrong(kNotAChoice, {option, Quoted(given), row.Value});
        }
        line_.options_.insert_or_assign(row.Name, CommandLine::GivenOption{&row, given});
        return {};
    }

    std::string UseOf(const CommandRow& command) const {
        const bool whole = commands_.empty();
        return (whole ? "" : "brask ") + std::string(command.Name) + " " + command.Arguments;
    }

    Status CheckArguments() const {
        const CommandRow* command = line_.command_;
        if (command == nullptr) return Wrong(kNoCommand, {});
        const auto& arguments = line_.arguments_;
        if (arguments.size() < command->LeastArguments) {
            return Wrong(kTooFewArguments, {UseOf(*command)});
        }
        if (arguments.size() > command->MostArguments) {
            const std::string tooMany = Quoted(arguments[command->MostArguments]);
            return Wrong(kTooManyArguments, {tooMany, UseOf(*command)});
        }
        return {};
    }

    std::span<const CommandRow> commands_;
    std::span<const OptionRow> common_;
    std::span<const std::string> words_;
    const Texts& texts_;
    std::size_t next_ = 0;
    CommandLine line_;
};

Result<CommandLine> CommandLine::Parse(std::span<const CommandRow> commands,
                                       std::span<const std::string> words, const Texts& texts) {
    return CommandLineReader(commands, words, texts).Read();
}

Result<CommandLine> CommandLine::ParseProgram(const CommandRow& program,
                                              std::span<const std::string> words,
                                              const Texts& texts) {
    return CommandLineReader(program, words, texts).Read();
}

std::optional<std::string> CommandLine::Value(std::string_view name) const {
    const auto found = options_.find(name);
    return found == options_.end() ? std::nullopt : std::optional(found->second.Value);
}

std::optional<std::int64_t> CommandLine::Count(std::string_view name) const {
    const auto value = Value(name);
    return value ? CountOf(*value) : std::nullopt;
}

std::optional<int> CommandLine::Choice(std::string_view name) const {
    const auto found = options_.find(name);
    if (found == options_.end()) return std::nullopt;
    return ChoiceOf(found->second.Row->Value, found->second.Value);
}

}  // namespace brask
