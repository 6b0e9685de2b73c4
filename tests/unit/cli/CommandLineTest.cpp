#include <gtest/gtest.h>

#include <array>

#include "cli/CommandLine.h"

namespace brask {
namespace {

ExitStatus Nothing(Shell&, const CommandLine&) { return ExitStatus::kDone; }

constexpr auto kOptions = std::to_array<OptionRow>({
    {"start", OptionKind::kCount, "N", TextRow("test", "")},
    {"layout", OptionKind::kChoice, "days|weeks", TextRow("test", "")},
    {"o", OptionKind::kText, "OUT", TextRow("test", "")},
    {"exact", OptionKind::kSwitch, "", TextRow("test", "")},
});
const auto kCommands = std::to_array<CommandRow>({
    {"show", "FILE", TextRow("test", ""), kOptions, 1, 2, Nothing},
    {"help", "[COMMAND]", TextRow("test", ""), {}, 0, 1, Nothing},
});

// What was understood, or the reason why not, on one line.
std::string Understood(const std::vector<std::string>& words) {
    const auto parsed = CommandLine::Parse(kCommands, words, EnglishTexts());
    if (!parsed.Ok()) return parsed.Why().Reason;
    const CommandLine& line = parsed.Value();
    std::string text = line.Command() == nullptr ? "-" : line.Command()->Name;
    for (const std::string& argument : line.Arguments()) text += " [" + argument + "]";
    if (const auto value = line.Value("settings")) text += " settings=" + *value;
    if (const auto order = line.Choice("date-order")) text += " order=" + std::to_string(*order);
    if (const auto unit = line.Fahrenheit()) text += *unit ? " F" : " C";
    if (const auto start = line.Count("start")) text += " start=" + std::to_string(*start);
    if (const auto layout = line.Choice("layout")) text += " layout=" + std::to_string(*layout);
    if (const auto out = line.Value("o")) text += " o=" + *out;
    for (const char* name : {"json", "exact", "help"}) {
        if (line.Has(name)) text += std::string(" ") + name;
    }
    return text;
}

TEST(CommandLineTest, UnderstandsWordsInEveryOrder) {
    const std::pair<std::vector<std::string>, const char*> cases[] = {
        {{"show", "f"}, "show [f]"},
        {{"--json", "show", "f", "--settings", "s"}, "show [f] settings=s json"},
        {{"--settings=a=b", "show", "f", "--settings="}, "option --settings: the value is empty"},
        {{"show", "--settings", "--json", "f"}, "show [f] settings=--json"},
        {{"show", "f", "--date-order=ymd", "--start", "007"}, "show [f] order=2 start=7"},
        {{"show", "-ox.csv", "f", "--layout", "days"}, "show [f] layout=0 o=x.csv"},
        {{"show", "-o", "-", "-", "--exact"}, "show [-] o=- exact"},
        {{"show", "f", "--fahrenheit", "--celsius"}, "show [f] C"},
        {{"show", "-5", "--", "--json"}, "show [-5] [--json]"},
        {{"show", "--help"}, "show help"},
        {{"--help"}, "- help"},

        {{}, "no command given; \"brask help\" lists them"},
        {{"Show", "f"}, "unknown command \"Show\"; \"brask help\" lists the commands"},
        {{"show"}, "an argument is missing: brask show FILE"},
        {{"show", "a", "b", "c"}, "\"c\" is one argument too many: brask show FILE"},
        {{"--exact", "show", "f"}, "unknown option --exact"},
        {{"show", "f", "-json"}, "show has no option -json"},
        {{"show", "f", "--json=yes"}, "option --json takes no value"},
        {{"show", "f", "-o"}, "option -o needs a value: OUT"},
        {{"show", "f", "--start", "-1"}, "option --start: \"-1\" is no whole number from 0 on"},
        {{"show", "f", "--start", "9223372036854775808"},
         "option --start: \"9223372036854775808\" is no whole number from 0 on"},
        {{"show", "f", "--layout", "day"}, "option --layout: \"day\" is none of days|weeks"},
        {{"show", "f", "--date-order="}, "option --date-order: \"\" is none of mdy|dmy|ymd"}};
    for (const auto& [words, expected] : cases) EXPECT_EQ(Understood(words), expected);
}

}  // namespace
}  // namespace brask
