#include "app/ToolbarTable.h"

#include <array>

namespace brask {
namespace {

// a table reads best a row a line
// clang-format off
const ToolbarRow kSeparator{"", TextRow("toolbar", ""), "", "", ""};
const auto kButtons = std::to_array<ToolbarRow>({
    {"Open", TextRow("toolbar", "Open Data File On PC"), "Open", "mnuOpen", "mnuOpen"},
    {"TalvexK42", TextRow("toolbar", "Get Data From Talvex© K42"), "TalvexK42", "mnuReadDataFromTalvexK42", "mnuReadDataFromTalvexK42"},
    {"PocketPC", TextRow("toolbar", "Get Data From PocketPC"), "PDA", "mnuReadPDAFile", "mnuReadPDAFile"},
    kSeparator,
    {"Save Plot", TextRow("toolbar", "Save Plot"), "DiskGraph", "mnuSavePlotAs", "mnuSavePlotAs"},
    {"Save Data", TextRow("toolbar", "Save Data"), "DiskData", "mnuSaveDataFile", "mnuSaveDataFile"},
    // prints without the printer dialog that the menu item shows first
    {"Print Plot", TextRow("toolbar", "Print Plot"), "Print", "PrintPlotAtOnce", "mnuPrint"},
    kSeparator,
    // follows no menu item: its state stays as it was made
    {"CenterDot", TextRow("toolbar", "Center Selected Point In Graph"), "CenterDot", "mnuCenterDot", ""},
    {"SwitchActiveYAxis", TextRow("toolbar", "Set Active Y Axis"), "SwitchActiveYAxis", "mnuSwitchActiveYAxis", "mnuSwitchActiveYAxis"},
    kSeparator,
    {"Zoom In", TextRow("toolbar", "Zoom In"), "ZoomIn", "mnuZoomIn", "mnuZoomIn"},
    {"Zoom Out", TextRow("toolbar", "Zoom Out"), "ZoomOut", "mnuCanZoomOut", "mnuCanZoomOut"},
    kSeparator,
    {"Move Up", TextRow("toolbar", "Nudge Up"), "UpSmall", "mnuMoveViewAreaUp", "mnuMoveViewAreaUp"},
    {"Move Down", TextRow("toolbar", "Nudge Down"), "DownSmall", "mnuMoveViewAreaDown", "mnuMoveViewAreaDown"},
    {"Move Left", TextRow("toolbar", "Nudge Left"), "LeftSmall", "mnuMoveViewAreaLeft", "mnuMoveViewAreaLeft"},
    {"Move Right", TextRow("toolbar", "Nudge Right"), "RightSmall", "mnuMoveViewAreaRight", "mnuMoveViewAreaRight"},
    kSeparator,
    {"RulerArrow", TextRow("toolbar", "Restore Original Scale"), "RulerArrow", "mnuRestoreOriginalGraphScale", "mnuRestoreOriginalGraphScale"},
    // wanted: it switches the limit display, but is enabled as the wide-line item
    {"Tolerance", TextRow("toolbar", "Show Out of Limit Data Points"), "Tolerance", "mnuUseToleranceCurves", "mnuMarkOutOfToleranceInRed"},
    {"Refresh", TextRow("toolbar", "Re-Plot"), "Refresh", "mnuRefresh", ""},
});
// Known to the dispatcher already: to get its button a row needs a picture and a place above.
const auto kWithoutButton = std::to_array<ToolbarRow>({
    {"Markers", TextRow("toolbar", "Mark Individual Data Points"), "", "mnuMarkDataPoints", "mnuMarkDataPoints"},
    {"UpBig", TextRow("toolbar", "Up Fast"), "", "mnuMoveViewingAreaUpFast", "mnuMoveViewingAreaUpFast"},
    {"DownBig", TextRow("toolbar", "Down Fast"), "", "mnuMoveViewingAreaDownFast", "mnuMoveViewingAreaDownFast"},
    {"LeftBig", TextRow("toolbar", "Left Fast"), "", "mnuMoveViewingAreaLeftFast", "mnuMoveViewingAreaLeftFast"},
    {"RightBig", TextRow("toolbar", "Right Fast"), "", "mnuMoveViewingAreaRightFast", "mnuMoveViewingAreaRightFast"},
});
// clang-format on

}  // namespace

std::span<const ToolbarRow> ToolbarButtons() { return kButtons; }

std::span<const ToolbarRow> ToolbarKeysWithoutButton() { return kWithoutButton; }

const ToolbarRow* FindToolbarRow(std::string_view key) {
    if (key.empty()) return nullptr;
    // exact comparison: keys are the program's own, not typed by anybody
    for (const auto rows : {ToolbarButtons(), ToolbarKeysWithoutButton()}) {
        for (const ToolbarRow& row : rows) {
            if (row.Key == key) return &row;
        }
    }
    return nullptr;
}

}  // namespace brask
