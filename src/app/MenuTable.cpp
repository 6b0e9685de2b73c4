#include "app/MenuTable.h"

#include <algorithm>
#include <array>

namespace brask {
namespace {

using enum MenuKind;
using enum CommandNeed;

// a table reads best a row a line
// clang-format off
// A submenu's row comes before the rows of its items, since the menus are built from top to bottom.
// Captions are given in full with their letters; one letter is used once in each menu.
const auto kRows = std::to_array<MenuRow>({
    {"", "mnuFile", TextRow("menu", "&File"), "", kSubmenu, kNothing},
    {"mnuFile", "mnuOpen", TextRow("menu", "&Open Data File On PC…"), "Ctrl+O", kItem, kNothing},
    {"mnuFile", "mnuRecentFiles", TextRow("menu", "&Recent Files"), "", kSubmenu, kNothing},
    {"mnuFile", "", TextRow("menu", ""), "", kSeparator, kNothing},
    {"mnuFile", "mnuReadDataFromTalvexK42", TextRow("menu", "Get &Data From Talvex© K42"), "Ctrl+D", kItem, kNothing},
    {"mnuFile", "mnuReadPDAFile", TextRow("menu", "Get Data From Poc&ketPC"), "", kItem, kNothing},
    {"mnuFile", "mnuMergeFiles", TextRow("menu", "&Merge Data Files…"), "", kItem, kNothing},
    {"mnuFile", "", TextRow("menu", ""), "", kSeparator, kNothing},
    {"mnuFile", "mnuFileViewData", TextRow("menu", "&View Data"), "", kItem, kReadings},
    {"mnuFile", "mnuViewHeaders", TextRow("menu", "View &Headers"), "", kItem, kReadings},
    {"mnuFile", "", TextRow("menu", ""), "", kSeparator, kNothing},
    // enabled without readings: the command then says that there is nothing to save
    {"mnuFile", "mnuSaveDataFile", TextRow("menu", "&Save Data…"), "Ctrl+S", kItem, kNothing},
    {"mnuFile", "mnuExportReadings", TextRow("menu", "&Export Readings…"), "", kItem, kReadings},
    {"mnuFile", "mnuSavePlotAs", TextRow("menu", "Save P&lot…"), "Ctrl+Shift+S", kItem, kReadings},
    {"mnuFile", "mnuExportPlot", TextRow("menu", "Expor&t Plot…"), "", kItem, kReadings},
    {"mnuFile", "", TextRow("menu", ""), "", kSeparator, kNothing},
    {"mnuFile", "mnuPrinterSetup", TextRow("menu", "Printer Set&up…"), "", kItem, kNothing},
    {"mnuFile", "mnuPrintPreview", TextRow("menu", "Print Previe&w…"), "", kItem, kReadings},
    {"mnuFile", "mnuPrint", TextRow("menu", "&Print Plot…"), "Ctrl+P", kItem, kReadings},
    {"mnuFile", "mnuPrintReadings", TextRow("menu", "Print Readin&gs…"), "", kItem, kReadings},
    {"mnuFile", "", TextRow("menu", ""), "", kSeparator, kNothing},
    {"mnuFile", "mnuExit", TextRow("menu", "E&xit"), "Ctrl+Q", kItem, kNothing},
    {"", "mnuEdit", TextRow("menu", "&Edit"), "", kSubmenu, kNothing},
    {"mnuEdit", "mnuUndo", TextRow("menu", "&Undo"), "Ctrl+Z", kItem, kReadings},
    {"mnuEdit", "mnuRedo", TextRow("menu", "&Redo"), "Ctrl+Shift+Z", kItem, kReadings},
    {"mnuEdit", "", TextRow("menu", ""), "", kSeparator, kNothing},
    {"mnuEdit", "mnuCopyPlot", TextRow("menu", "Copy &Plot"), "Ctrl+Shift+C", kItem, kReadings},
    {"mnuEdit", "mnuCopyReadings", TextRow("menu", "&Copy Readings"), "Ctrl+C", kItem, kReadings},
    {"mnuEdit", "", TextRow("menu", ""), "", kSeparator, kNothing},
    {"mnuEdit", "mnuFindPoint", TextRow("menu", "&Find Point…"), "Ctrl+F", kItem, kReadings},
    {"", "mnuView", TextRow("menu", "&View"), "", kSubmenu, kNothing},
    {"mnuView", "mnuGraphType", TextRow("menu", "&Graph Type"), "", kSubmenu, kNothing},
    // an option like any other: it can be chosen before there is a file
    {"mnuGraphType", "mnuGraphType_0", TextRow("menu", "&Continuous Graph"), "", kRadio, kNothing},
    {"mnuGraphType", "mnuGraphType_1", TextRow("menu", "Overlap &Days"), "", kRadio, kNothing},
    {"mnuGraphType", "mnuGraphType_2", TextRow("menu", "Overlap &Weeks"), "", kRadio, kNothing},
    {"mnuView", "mnuDisplayPeriod", TextRow("menu", "&Display Period"), "", kSubmenu, kNothing},
    {"mnuDisplayPeriod", "mnuDisplayPeriod_0", TextRow("menu", "Display &All Data"), "", kRadio, kReadings},
    // no radio mark: it leads to the page where the period is set
    {"mnuDisplayPeriod", "mnuDisplayPeriod_1", TextRow("menu", "&Set Display Period…"), "", kItem, kReadings},
    {"mnuView", "", TextRow("menu", ""), "", kSeparator, kNothing},
    {"mnuView", "mnuZoomIn", TextRow("menu", "Zoom &In"), "Ctrl++", kItem, kReadings},
    {"mnuView", "mnuCanZoomOut", TextRow("menu", "Zoom &Out"), "Ctrl+-", kItem, kReadings},
    {"mnuView", "mnuRestoreOriginalGraphScale", TextRow("menu", "&Restore Original Scale"), "Ctrl+0", kItem, kReadings},
    {"mnuView", "mnuChangeYScale", TextRow("menu", "Change &Scales…"), "", kItem, kReadings},
    {"mnuView", "", TextRow("menu", ""), "", kSeparator, kNothing},
    {"mnuView", "mnuMoveView", TextRow("menu", "&Move View"), "", kSubmenu, kNothing},
    {"mnuMoveView", "mnuMoveViewAreaUp", TextRow("menu", "&Up"), "", kItem, kReadings},
    {"mnuMoveView", "mnuMoveViewAreaDown", TextRow("menu", "&Down"), "", kItem, kReadings},
    {"mnuMoveView", "mnuMoveViewAreaLeft", TextRow("menu", "&Left"), "", kItem, kReadings},
    {"mnuMoveView", "mnuMoveViewAreaRight", TextRow("menu", "&Right"), "", kItem, kReadings},
    {"mnuMoveView", "", TextRow("menu", ""), "", kSeparator, kNothing},
    {"mnuMoveView", "mnuMoveViewingAreaUpFast", TextRow("menu", "U&p Fast"), "", kItem, kReadings},
    {"mnuMoveView", "mnuMoveViewingAreaDownFast", TextRow("menu", "D&own Fast"), "", kItem, kReadings},
    {"mnuMoveView", "mnuMoveViewingAreaLeftFast", TextRow("menu", "L&eft Fast"), "", kItem, kReadings},
    {"mnuMoveView", "mnuMoveViewingAreaRightFast", TextRow("menu", "R&ight Fast"), "", kItem, kReadings},
    {"mnuView", "", TextRow("menu", ""), "", kSeparator, kNothing},
    {"mnuView", "mnuSwitchActiveYAxis", TextRow("menu", "Set Active &Y Axis To Temperature"), "", kItem, kReadings},
    {"mnuView", "mnuCenterDot", TextRow("menu", "&Center Selected Point In Graph"), "", kItem, kReadings},
    {"mnuView", "mnuMarkDataPoints", TextRow("menu", "Mark Data &Points"), "", kCheck, kNothing},
    {"mnuView", "", TextRow("menu", ""), "", kSeparator, kNothing},
    {"mnuView", "mnuRefresh", TextRow("menu", "R&e-Plot"), "F5", kItem, kNothing},
    {"", "mnuUpperLimits", TextRow("menu", "&Upper Limits"), "", kSubmenu, kNothing},
    // the two blanks are wanted: users and their help know the caption so
    {"mnuUpperLimits", "mnuUseToleranceCurves", TextRow("menu", "Upper  Limits &Displayed"), "", kCheck, kNothing},
    {"mnuUpperLimits", "mnuMarkOutOfToleranceInRed", TextRow("menu", "&Mark Out Of Limits with a Wider Line"), "", kCheck, kNothing},
    {"mnuUpperLimits", "", TextRow("menu", ""), "", kSeparator, kNothing},
    {"mnuUpperLimits", "mnuSetTolerance", TextRow("menu", "&Set Upper Limit"), "", kItem, kNothing},
    {"", "mnuTextAndComments", TextRow("menu", "&Comments and Bitmaps"), "", kSubmenu, kNothing},
    {"mnuTextAndComments", "mnuAddTextToPlot", TextRow("menu", "Add to &Plot"), "", kItem, kReadings},
    {"mnuTextAndComments", "mnuAddTextToDataPoint", TextRow("menu", "Add to &Data Point"), "", kItem, kReadings},
    // always enabled, as users know it
    {"mnuTextAndComments", "mnuRemoveTextComment", TextRow("menu", "&Remove Comment or Bitmap"), "", kItem, kNothing},
    {"mnuTextAndComments", "", TextRow("menu", ""), "", kSeparator, kNothing},
    {"mnuTextAndComments", "mnuAnnotateGraph", TextRow("menu", "&Annotate Graph…"), "", kItem, kReadings},
    {"", "mnuOptions", TextRow("menu", "&Options"), "", kSubmenu, kNothing},
    {"mnuOptions", "mnuGraphOptions", TextRow("menu", "&Graph Options"), "", kItem, kNothing},
    {"mnuOptions", "mnuProgramOptions", TextRow("menu", "&Program Options"), "", kItem, kNothing},
    {"", "mnuHelp", TextRow("menu", "&Help"), "", kSubmenu, kNothing},
    {"mnuHelp", "mnuHelpContents", TextRow("menu", "&Contents"), "", kItem, kNothing},
    {"mnuHelp", "mnuIndex", TextRow("menu", "&Index"), "", kItem, kNothing},
    {"mnuHelp", "mnuHelpsearch", TextRow("menu", "&Search"), "", kItem, kNothing},
    {"mnuHelp", "mnuWhatsThis", TextRow("menu", "&What's This?"), "Shift+F1", kItem, kNothing},
    {"mnuHelp", "", TextRow("menu", ""), "", kSeparator, kNothing},
    {"mnuHelp", "mnuAbout", TextRow("menu", "&About…"), "", kItem, kNothing},
});
// clang-format on

}  // namespace

std::span<const MenuRow> MenuRows() { return kRows; }

const MenuRow* FindMenuRow(std::string_view name) {
    const auto found = std::find_if(kRows.begin(), kRows.end(),
                                    [name](const MenuRow& row) { return row.Name == name; });
    return name.empty() || found == kRows.end() ? nullptr : &*found;
}

}  // namespace brask
