// Texts of k42sim.
#pragma once

#include "platform/Texts.h"

namespace brask::k42_texts {

// wrong usage and failures, behind "k42sim: "
inline constexpr auto kMissing =
    TextRow("cli", "option %1 is missing: k42sim --listen HOST:PORT --file DATAFILE");
inline constexpr auto kNotAnAddress = TextRow("cli", "option --listen: \"%1\" is no HOST:PORT");
// %1 the option, %2 what was given.
inline constexpr auto kOutOfRange = TextRow("cli", "option %1: %2 is not from %3 to %4");
inline constexpr auto kTooSmall = TextRow("cli", "option %1: %2 is less than %3");
inline constexpr auto kTooLong = TextRow("cli", "option %1: the text has more than %2 bytes");
inline constexpr auto kBothAnswers =
    TextRow("cli", "--clear-answer and --no-clear-answer exclude each other");
inline constexpr auto kCannotPlay = TextRow("cli", "cannot play %1: %2");
inline constexpr auto kCannotListen = TextRow("cli", "cannot listen on %1: %2");
inline constexpr auto kNoMemory = TextRow("cli", "k42sim: not enough memory");

// what it tells on standard output
inline constexpr auto kListening = TextRow("cli", "listening on %1");
inline constexpr auto kOpened = TextRow("cli", "open");
inline constexpr auto kClosed = TextRow("cli", "closed");
inline constexpr auto kClosedWithin = TextRow("cli", "closed by the other side within a frame");
inline constexpr auto kBroken = TextRow("cli", "broken: %1");
inline constexpr auto kStopped = TextRow("cli", "stopped");

// help
inline constexpr auto kVersionLine = TextRow("cli", "k42sim %1");
inline constexpr auto kHelpHead =
    TextRow("cli",
            "k42sim: a simulated Talvex© K42, to try brask and brasklite without an instrument\n\n"
            "Usage: k42sim --listen HOST:PORT --file DATAFILE [OPTION...]\n\nOptions:\n");
inline constexpr auto kHelpFoot =
    TextRow("cli",
            "\nThe first line of output is \"listening on HOST:PORT\"; programs reach the\n"
            "instrument with --instrument tcp:HOST:PORT. It ends with Ctrl+C.\n"
            "Exit status: 0 done; 1 failed; 2 wrong usage.\n");

}  // namespace brask::k42_texts
