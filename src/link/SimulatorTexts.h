// Texts of the simulated instrument: why it cannot play a file, and what it tells while it plays.
#pragma once

#include "platform/Texts.h"

namespace brask::simulator_texts {

// why a file cannot be played; %1 is the number of a line
inline constexpr auto kNotCarried =
    TextRow("simulator", "line %1 holds a byte 0 or above 127, which the link cannot carry");
inline constexpr auto kBeforeInstrument =
    TextRow("simulator", "line %1 has text in front of INSTRUMENT:, which every receiver drops");
// %1 is the number asked for, %2 how many there are.
inline constexpr auto kNoSuchLine =
    TextRow("simulator", "there is no data line %1 to drop; the file has %2");
inline constexpr auto kNoSuchByte =
    TextRow("simulator", "there is no byte %1 to corrupt; the stream has %2, counted from 0");

// what happens on the link
inline constexpr auto kAskedForDevices = TextRow("simulator", "asked who is in range: %1 devices");
inline constexpr auto kConnected = TextRow("simulator", "connected to %1");
inline constexpr auto kRefused = TextRow("simulator", "connect to %1 refused with error %2");
inline constexpr auto kCommand = TextRow("simulator", "command %1");
inline constexpr auto kUnknownCommand = TextRow("simulator", "command %1 (not known, no answer)");
inline constexpr auto kNotConnected = TextRow("simulator", "command %1 (not connected, no answer)");
inline constexpr auto kSending = TextRow("simulator", "sending %1 bytes, %2 data lines");
inline constexpr auto kSent = TextRow("simulator", "sent %1 bytes");
inline constexpr auto kCleared = TextRow("simulator", "answered %1, the data is cleared");
inline constexpr auto kNotCleared = TextRow("simulator", "answered %1, the data is kept");
inline constexpr auto kNoClearAnswer = TextRow("simulator", "no answer, the data is kept");
inline constexpr auto kSilent = TextRow("simulator", "silent after %1 bytes");
inline constexpr auto kCut = TextRow("simulator", "link cut after %1 bytes");

// what ends a connection; %1 is a length
inline constexpr auto kBadAddress = TextRow("simulator", "a connect frame of %1 bytes");

}  // namespace brask::simulator_texts
