// Texts of the data floor.
#pragma once

#include "platform/Texts.h"

namespace brask::data_texts {

inline constexpr auto kProgramTitle = TextRow("data", "VEK Talvex© K42   Brask Lite");

inline constexpr auto kNoDataWasRead = TextRow("data", "No data was read");
// %1 is the date as it was rewritten, %2 as it stands in the file.
inline constexpr auto kInvalidDate = TextRow("data", "Date of %1 [Input as %2] is invalid");
inline constexpr auto kInvalidGas = TextRow("data", "Gas PPM %1 is invalid");
inline constexpr auto kInvalidTemperature = TextRow("data", "Temperature of %1 is invalid");
inline constexpr auto kOriginalLine = TextRow("data", "Original Line=%1");
inline constexpr auto kIgnoringLine = TextRow("data", "Ignoring this line of data");
// %1 is a path, %2 the system's reason.
inline constexpr auto kCannotRead = TextRow("data", "Cannot read %1: %2");
inline constexpr auto kCannotWrite = TextRow("data", "Cannot write %1: %2");
inline constexpr auto kLineTooLong =
    TextRow("data", "%1, line %2: longer than 1 MiB, dropped to its end");
inline constexpr auto kLoneLineFeeds =
    TextRow("data", "%1 has no CR LF line ends: nothing in it could be told apart as a line");
inline constexpr auto kTempDirectory =
    TextRow("data", "%1 was not read: it lies in a directory called temp");

inline constexpr auto kNoDataToSave = TextRow("data", "There is no data to save");

inline constexpr auto kCannotCreateDirectory = TextRow("data", "Cannot Create Directory %1");
inline constexpr auto kDriveLetterElsewhere =
    TextRow("data", "The data directory %1 names a drive; %2 is used instead");
inline constexpr auto kRenameFailureTitle = TextRow("data", "File Rename Failure");
// %1 the source, %2 the destination, %3 the reason, %4 the directory to copy it to by hand.
inline constexpr auto kRenameFailure =
    TextRow("data",
            "Could Not Rename File \r\n%1\r\n To \r\n%2\r\nError:\r\n%3\r\n"
            "Please manually copy the file to the %4 Directory");

inline constexpr auto kSettingNotSaved =
    TextRow("data", "The setting %1 could not be saved to %2: %3");
inline constexpr auto kCursorNotMapped =
    TextRow("data", "Cursor Type Not Mapped SetCursorType(%1)");

inline constexpr auto kNoVersion = TextRow("data", "Error Getting Version Information");
inline constexpr auto kVersionTitle = TextRow("data", "Windows Version Not Supported");
inline constexpr auto kVersionWarning =
    TextRow("data",
            "The minimum Supported Windows Version is\r\nWindows 98 Second Edition\r\n"
            "Windows %1 is not supported\r\nand not all features may work\r\n"
            "Reported Windows Build: %2.%3(%4)");

}  // namespace brask::data_texts
