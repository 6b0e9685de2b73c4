// Texts of the link to the instrument. Users know their wording from manuals, so it stays.
#pragma once

#include "platform/Texts.h"

namespace brask::link_texts {

// the window of the download
inline constexpr auto kDownloadTitle = TextRow("link", "Get Data From Talvex© K42");
inline constexpr auto kElapsed = TextRow("link", "Elapsed time: %1");
// what the moving bar is called for those who hear it
inline constexpr auto kProgressName = TextRow("link", "Progress");
inline constexpr auto kCancel = TextRow("link", "Cancel");

// the labels of the download, in the order of their appearance
inline constexpr auto kWaitingFor = TextRow("link", "Waiting for Talvex© K42");
inline constexpr auto kToConnect = TextRow("link", "to connect over IRDA");
inline constexpr auto kPressAnyKey = TextRow("link", "Press Any Key");
inline constexpr auto kOnTheInstrument = TextRow("link", "On The Talvex© K42");
inline constexpr auto kWinsockConnected = TextRow("link", "Winsock Connected");
inline constexpr auto kDataTransfer = TextRow("link", "Data Transfer:");
inline constexpr auto kReceivedBytes = TextRow("link", "Received %1 Bytes");
inline constexpr auto kClearing = TextRow("link", "Clearing K42 Data");
// %1 is the length in bytes, %2 the bytes a second.
inline constexpr auto kRate = TextRow("link", "%1 (%2 BPS)");

// the connection
inline constexpr auto kConnectedTo = TextRow("link", "Connected to %1");
inline constexpr auto kNotSupportedTitle = TextRow("link", "IRDA Sockets Not Supported");
inline constexpr auto kNotSupported =
    TextRow("link",
            "The IRDA Dongle or the Built-In IRDA Device on this PC\r\n"
            "does not support IRDA Sockets. Please remove the IRDA device from\r\n"
            "your system drivers (use control-panel) and try re-installing the\r\n"
            "drivers and the IRDA dongle");
// %1 is the system's text, %2 its number.
inline constexpr auto kConnectFailure = TextRow("link", "%1\r\nError Number:%2");
inline constexpr auto kConnectUnknownTitle = TextRow("link", "Socket Connect Error");
inline constexpr auto kConnectUnknown =
    TextRow("link", "Socket Connect Error is Unknown\r\nError=%1\r\nConnect to K42 is aborted");
inline constexpr auto kSendFailureTitle = TextRow("link", "SendData Error");
inline constexpr auto kReceiveFailureTitle = TextRow("link", "Receive Data Failure (1)");

// verification
inline constexpr auto kInvalidLength =
    TextRow("link", "Data Line: %1 is invalid (LEN), Transfer Data Again");
inline constexpr auto kWrongCount =
    TextRow("link", "File was not received correctly\r\nReceived %1 lines\r\nExpected %2 Lines");
inline constexpr auto kNoData =
    TextRow("link", "Talvex© K42 Instrument did not have any data in it to download!");
inline constexpr auto kDataFileSaved = TextRow("link", "Data file saved: %1");

// clearing
inline constexpr auto kCleared = TextRow("link", "Talvex© K42 Data Was Cleared");
inline constexpr auto kNotCleared = TextRow("link",
                                            "Talvex© K42 did not clear data\r\n"
                                            "Please clear the data on the Talvex© K42 manually!");
inline constexpr auto kNoClearAnswer = TextRow(
    "link", "Clear Data Acknowledge Not Received!\r\nPlease Clear The Data In The Talvex© K42");
// %1 is a file, %2 the system's reason.
inline constexpr auto kNotClearedUnsafe =
    TextRow("link", "The instrument was not cleared: %1 is not safe on disk: %2");

// for the log, where nothing is shown
inline constexpr auto kLogDownload = TextRow("link", "Download: %1");
inline constexpr auto kLogTooShort =
    TextRow("link", "%1 was rejected: it has %2 bytes, less than any data file");
inline constexpr auto kLogNoEnd = TextRow("link", "%1 was rejected: it has no END DATA: line");
inline constexpr auto kLogRejected = TextRow("link", "%1 was rejected: %2");
inline constexpr auto kLogClosed =
    TextRow("link", "the link was closed before the first byte came");
inline constexpr auto kLogGivenUp = TextRow("link", "given up, no connection in time");
inline constexpr auto kLogCancelled = TextRow("link", "cancelled after %1 bytes");
inline constexpr auto kLogBroken = TextRow("link", "the link broke after %1 bytes: %2");
inline constexpr auto kLogReceived = TextRow("link", "received %1 bytes into %2");
inline constexpr auto kLogAccepted = TextRow("link", "%1 was accepted with %2 data lines");
// %1 is the directory and the system's reason.
inline constexpr auto kNoRawFile =
    TextRow("link", "No file for the received stream could be made in %1");
inline constexpr auto kNoRecoveryCopy =
    TextRow("link", "No copy of the received stream %1 could be kept: %2");
inline constexpr auto kNotReplaced =
    TextRow("link", "%1 was not replaced, since no copy of it could be kept: %2");

}  // namespace brask::link_texts
