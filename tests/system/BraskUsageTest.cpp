#include <algorithm>
#include <sstream>

#include "ProgramRunner.h"

namespace brask {
namespace {

class BraskUsage : public ProgramTest {};

TEST_F(BraskUsage, WrongUsageIsOneLineAndStatusTwo) {
    using Case = std::pair<std::vector<std::string>, const char*>;
    const Case cases[] = {{{}, "no command given"},
                          {{"two\nlines"}, "unknown command \"two lines\""},
                          {{"plot", "a", "-o", "a.jpg"}, "neither .bmp nor .png"},
                          {{"expand", "a"}, "-o is missing"},
                          {{"settings", "reset", "a", "b"}, "settings get KEY"}};
    for (const auto& [arguments, reason] : cases) {
        const Finished finished = Run(arguments);
        const std::string words = testing::PrintToString(arguments);
        EXPECT_EQ(finished.Status, 2) << words;
        EXPECT_EQ(finished.Error.rfind("brask: ", 0), 0U) << finished.Error;
        EXPECT_NE(finished.Error.find(reason), std::string::npos) << finished.Error;
        EXPECT_EQ(std::count(finished.Error.begin(), finished.Error.end(), '\n'), 1) << words;
    }
    EXPECT_EQ(Listing(), "");
}

// The words that begin lines of a help text: its commands and options.
std::vector<std::string> Listed(const std::string& help) {
    std::vector<std::string> words;
    std::istringstream lines(help);
    for (std::string line; std::getline(lines, line);) {
        if (line.rfind("  ", 0) == 0) words.push_back(line.substr(2, line.find(' ', 2) - 2));
    }
    return words;
}

TEST_F(BraskUsage, HelpManualAndCompletionNameTheSameThings) {
    const std::string manual = Read(BRASK_SHARE "/man/brask.1");
    const std::string completion = Read(BRASK_SHARE "/bash-completion/brask");
    const std::vector<std::string> words = Listed(Run({"help"}).Out);
    ASSERT_GE(words.size(), 17U);
    for (const std::string& word : words) {
        std::vector<std::string> names{word};
        if (word[0] != '-') {
            EXPECT_NE(manual.find(".Cm " + word), std::string::npos) << word;
            const std::string help = Run({word, "--help"}).Out;
            EXPECT_NE(help, "") << word;
            EXPECT_EQ(Run({"help", word}).Out, help);
            names = Listed(help);
        }
        for (const std::string& name : names) {
            // in the manual's language a dash of an option is the macro's
            const bool inManual = manual.find("Fl " + name.substr(1)) != std::string::npos ||
                                  manual.find(", " + name.substr(1)) != std::string::npos ||
                                  word == name;
            EXPECT_TRUE(inManual) << word << " " << name;
            EXPECT_NE(completion.find(name), std::string::npos) << word << " " << name;
        }
    }
    EXPECT_EQ(Run({"--version"}).Out, Run({"info", "--version"}).Out);
}

TEST_F(BraskUsage, TheSimulatorsHelpManualAndCompletionNameTheSameOptions) {
    ASSERT_EQ(RunToEnd("k42sim", {"--help"}, {At("help"), At("err")}), 0);
    const std::vector<std::string> options = Listed(Read("help"));
    EXPECT_GE(options.size(), 19U);
    for (const std::string& name : options) {
        const std::string manual = Read(BRASK_SHARE "/man/k42sim.1");
        EXPECT_NE(manual.find("Fl " + name.substr(1)), std::string::npos) << name;
        const std::string completion = Read(BRASK_SHARE "/bash-completion/k42sim");
        EXPECT_NE(completion.find(name), std::string::npos) << name;
    }
}

}  // namespace
}  // namespace brask
