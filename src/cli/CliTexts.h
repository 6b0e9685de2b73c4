// Texts of the shell programs. What is wrong with a command line is one line behind "brask: ".
#pragma once

#include "platform/Texts.h"

namespace brask::cli_texts {

// wrong usage
inline constexpr auto kNoCommand = TextRow("cli", "no command given; \"brask help\" lists them");
inline constexpr auto kUnknownCommand =
    TextRow("cli", "unknown command %1; \"brask help\" lists the commands");
inline constexpr auto kUnknownOption = TextRow("cli", "unknown option %1");
inline constexpr auto kOptionNotOfCommand = TextRow("cli", "%1 has no option %2");
inline constexpr auto kOptionNeedsValue = TextRow("cli", "option %1 needs a value: %2");
inline constexpr auto kOptionTakesNoValue = TextRow("cli", "option %1 takes no value");
inline constexpr auto kNotAChoice = TextRow("cli", "option %1: %2 is none of %3");
inline constexpr auto kNotACount = TextRow("cli", "option %1: %2 is no whole number from 0 on");
inline constexpr auto kEmptyValue = TextRow("cli", "option %1: the value is empty");
inline constexpr auto kTooFewArguments = TextRow("cli", "an argument is missing: %1");
inline constexpr auto kTooManyArguments = TextRow("cli", "%1 is one argument too many: %2");
inline constexpr auto kOptionMissing = TextRow("cli", "option %1 is missing: brask %2 %3");
inline constexpr auto kBadSettingsUse =
    TextRow("cli", "say \"settings list\", \"settings get KEY\" or \"settings set KEY VALUE\"");
inline constexpr auto kNotAPicture =
    TextRow("cli", "the name %1 says neither .bmp nor .png, so no picture format is known");
// %2 is the longest side, %3 the most pixels in all.
inline constexpr auto kNotASize =
    TextRow("cli", "option --size: %1 is no WIDTHxHEIGHT from 1x1 to %2x%2 of at most %3 pixels");
inline constexpr auto kBadHandheld =
    TextRow("cli", "option --handheld: %1 is neither rapi nor dir:PATH");
inline constexpr auto kHalfAPeriod = TextRow("cli", "--from and --to belong together");
// %3 says what is wanted: one of the next two.
inline constexpr auto kNotATime = TextRow("cli", "option %1: %2 is no %3");
inline constexpr auto kDateWanted = TextRow("cli", "date from 1/1/2000 to 12/12/9999");
inline constexpr auto kTimeOfDayWanted = TextRow("cli", "time of day (h:mm)");
inline constexpr auto kPeriodNotInOrder = TextRow("cli", "--from must lie before --to");
inline constexpr auto kNoPeriodInWeeks =
    TextRow("cli", "--from and --to choose dates or times of day; the weeks layout has neither");
inline constexpr auto kClearOrNot = TextRow("cli", "--clear and --no-clear exclude each other");
// %1 is where it was said.
inline constexpr auto kNotALink =
    TextRow("cli", "%1: %2 names no link; say \"irda\" or \"tcp:HOST:PORT\"");

// refusals and failures, shown as messages
inline constexpr auto kNoSuchReading =
    TextRow("cli", "There is no reading %1: %2 holds %3, counted from 0");
inline constexpr auto kCannotExpand = TextRow("cli", "Cannot expand %1 to %2: %3");
inline constexpr auto kNoConnection =
    TextRow("cli", "No connection to the instrument (%1) within %2 seconds");
inline constexpr auto kNotAccepted = TextRow("cli", "Not accepted; the log %1 says why");
inline constexpr auto kUnknownSetting = TextRow("cli", "There is no setting %1");
inline constexpr auto kBadStoredHandheld =
    TextRow("cli", "The stored address of the handheld, %1, is neither rapi nor dir:PATH");
inline constexpr auto kCannotStart = TextRow("cli", "Cannot start %1: %2");
inline constexpr auto kCannotWriteResult = TextRow("cli", "brask: cannot write the result: %1");
inline constexpr auto kNoMemory = TextRow("cli", "brask: not enough memory");

// results
inline constexpr auto kVersionLine = TextRow("cli", "brask %1");
inline constexpr auto kLinesWritten = TextRow("cli", "%1: %2 lines");
inline constexpr auto kDownloaded = TextRow("cli", "%1: %2 bytes received");
inline constexpr auto kDownloadedAndCleared =
    TextRow("cli", "%1: %2 bytes received, instrument cleared");
// %1 is a name; %2 and %3 are one of the next two.
inline constexpr auto kRetrieved =
    TextRow("cli", "%1: downloaded: %2, deleted on the handheld: %3");
inline constexpr auto kYes = TextRow("cli", "yes");
inline constexpr auto kNo = TextRow("cli", "no");
inline constexpr auto kPictureWritten = TextRow("cli", "%1: %2 x %3 pixels");
inline constexpr auto kPlotLineColor =
    TextRow("settings", "colour of a plot line, in the order that lines take them");

// help
inline constexpr auto kHelpHead =
    TextRow("cli",
            "brask: collect, show and keep the readings of a Talvex© K42, without a window\n\n"
            "Usage: brask [OPTION...] COMMAND [ARGUMENT...]\n\nCommands:\n");
inline constexpr auto kHelpUsage = TextRow("cli", "Usage: brask %1 [OPTION...] %2\n\n%3\n");
inline constexpr auto kHelpOptions = TextRow("cli", "\nOptions:\n");
inline constexpr auto kHelpCommonOptions =
    TextRow("cli", "\nOptions of every command, before or behind its name:\n");
inline constexpr auto kHelpStatus =
    TextRow("cli", "\nExit status: 0 done; 1 failed, refused or nothing to show; 2 wrong usage.\n");

}  // namespace brask::cli_texts
