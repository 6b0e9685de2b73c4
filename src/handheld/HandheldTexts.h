// Texts of the retrieval from the handheld.
#pragma once

#include "platform/Texts.h"

namespace brask::handheld_texts {

// What stands above the grid while the run goes on.
inline constexpr auto kConnected = TextRow("handheld", "Connected to PocketPC");
inline constexpr auto kFinding = TextRow("handheld", "Finding Data Files on PocketPC");
inline constexpr auto kFound = TextRow("handheld", "%1 Data Files Found on PocketPC");
inline constexpr auto kCopying = TextRow("handheld", "Copying %1 to PC");
inline constexpr auto kDeleting = TextRow("handheld", "Deleting File %1 from PocketPC");
// the last line of a run with errors
inline constexpr auto kNotAllWell =
    TextRow("handheld", "Not everything went well. The last column says what, and where data is.");

// Messages. %1 is a path on the handheld, %2 the reason.
inline constexpr auto kUnableToConnect = TextRow("handheld", "Unable to connect to PocketPC");
inline constexpr auto kNoFiles = TextRow("handheld", "No Data Files Found on this PocketPC");
inline constexpr auto kUnableToOpen =
    TextRow("handheld", "Unable to open WinCE file%1\r\nError: %2");
inline constexpr auto kReadError = TextRow("handheld", "Error !!! Reading WinCE file. %1");
inline constexpr auto kCloseFailed = TextRow("handheld", "Failed To Close Handle on PocketPC");
// The report of a link that cannot even be begun; what a user would look for stands in the log.
inline constexpr auto kTypeMismatch = TextRow("handheld", "Type mismatch");
inline constexpr auto kOperation = TextRow("handheld", "Get Data From PocketPC");
inline constexpr auto kInitialiseFailed =
    TextRow("handheld", "The remote-access library cannot be initialised: %1");

// What to do when nothing is connected.
inline constexpr auto kNoFolderChosen =
    TextRow("handheld",
            "No handheld is set up. Choose the folder that it appears in under Program Options, "
            "Handheld.");
inline constexpr auto kFolderMissing =
    TextRow("handheld",
            "There is no folder %1. Connect the handheld or insert its card, or choose another "
            "folder under Program Options, Handheld.");
inline constexpr auto kRemoteMissing =
    TextRow("handheld", "Connect the handheld and start its synchronization program.");

// Where bytes are that have no complete copy among the data files. %1 is what the file was called
// on the handheld, %2 where it is now.
inline constexpr auto kKeptOnPc = TextRow("handheld", "%1 was kept as %2");
inline constexpr auto kKeptOnHandheld = TextRow("handheld", "%1 was moved to %2 on the PocketPC");
inline constexpr auto kNotKept = TextRow("handheld", "%1 could not be kept: %2");
// %1 is the name of a data file of the PC whose place another one of that name has taken.
inline constexpr auto kReplacedKept = TextRow("handheld", "An older %1 was kept as %2");
// %1 is the full path.
inline constexpr auto kSameFile =
    TextRow("handheld", "It was left alone: it is the same file as %1 on this computer");
// A notice; %1 is the full path.
inline constexpr auto kDataFileSaved = TextRow("handheld", "Data file saved: %1");
// %1 is a folder of the handheld.
inline constexpr auto kCannotList = TextRow("handheld", "Cannot list %1 on the PocketPC: %2");
inline constexpr auto kTooMany = TextRow("handheld", "it names more than %1 files");
inline constexpr auto kShortCopy = TextRow("handheld", "it ended too early");
inline constexpr auto kEndless = TextRow("handheld", "it goes on beyond its end");
inline constexpr auto kRunStopped = TextRow("handheld", "stopped");

// The grid.
inline constexpr auto kColumnName = TextRow("handheld", "File Name");
inline constexpr auto kColumnDownloaded = TextRow("handheld", "Downloaded?");
inline constexpr auto kColumnDeleted = TextRow("handheld", "Deleted On PocketPC?");
inline constexpr auto kColumnStatus = TextRow("handheld", "Status (If Error)");
inline constexpr auto kYes = TextRow("handheld", "Yes");
inline constexpr auto kNo = TextRow("handheld", "No");

// The dialogs.
inline constexpr auto kTitle = TextRow("handheld", "Get Data From PocketPC");
inline constexpr auto kWaiting = TextRow("handheld", "Waiting for Connection to PocketPC");
inline constexpr auto kCancel = TextRow("handheld", "Cancel");
inline constexpr auto kClose = TextRow("handheld", "Close");

// The synchronization software.
inline constexpr auto kIsSyncInstalled =
    TextRow("handheld", "Is ActiveSync (Or other PocketPC Sync Software) Installed?");
inline constexpr auto kInstallSync =
    TextRow("handheld", "Please install a Synchronization Program before accessing a PocketPC");
inline constexpr auto kNoticeTitle = TextRow("handheld", "PocketPC");
inline constexpr auto kSyncNotice =
    TextRow("handheld",
            "Readings are fetched from a PocketPC through its synchronization program, and none "
            "was found on this computer.\n\nInstall one before you connect the PocketPC.");
inline constexpr auto kOk = TextRow("handheld", "OK");
inline constexpr auto kDoNotWarn = TextRow("handheld", "Do Not Warn Again");

}  // namespace brask::handheld_texts
