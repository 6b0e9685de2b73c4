// The data objects of one run of the program, filled once by main.
#pragma once

#include "data/DataDirectories.h"
#include "data/DataFileLoader.h"
#include "data/DataSet.h"
#include "data/DiagnosticLog.h"
#include "data/Settings.h"
#include "data/TemperatureUnit.h"
#include "platform/UserLocale.h"

namespace brask {

// Only main and the main window take the whole; everybody else takes the single objects they use.
// References: main keeps the objects alive for as long as the window stands.
struct Session {
    DataSet& Data;
    DataFileLoader& Loader;
    TemperatureUnit& Unit;
    LongDateOrder DateOrder;
    DataDirectories& Directories;
    Settings& Options;
    DiagnosticLog& Log;
};

}  // namespace brask
