#include "app/ProgramPaths.h"

#include "platform/AsciiText.h"

namespace brask {

std::string HelpFilePath(const std::string& programDirectory, char separator) {
    const std::string slash(1, separator);
    // anywhere in the path: installations lie in a folder of that name, or below it
    const bool installed = ContainsIgnoringCase(programDirectory, "talvex k42 pc");
    const std::string folder =
        installed ? slash + "HtmlHelp" + slash + "brasklite" + slash + "htmlhelp" : "";
    return programDirectory + folder + slash + "BraskLite.chm";
}

std::string ConnectionText(const std::string& programDirectory, char separator) {
    return "Provider=Microsoft.Jet.OLEDB.4.0;Data Source=" + programDirectory + separator +
           "BraskLite.mdb;Mode=ReadWrite|Share Deny None;Persist Security Info=False";
}

}  // namespace brask
