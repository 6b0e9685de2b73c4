// The window program: makes the objects once, hands them in, runs the event loop.
#include <QApplication>
#include <QCommandLineParser>
#include <QTimer>
#include <optional>

#include "app/AppTexts.h"
#include "app/ui/frmBraskLite.h"
#include "data/StoredSettings.h"
#include "platform/NativeSystem.h"
#include "platform/Version.h"
#include "platform/qt/QtChoosers.h"
#include "platform/qt/QtText.h"
#include "platform/qt/QtUserInterface.h"

namespace {

using namespace brask;

constexpr int kWrongUsage = 2;

struct CommandLine {
    QString File;
    QString Settings;
    QString Root;
    std::optional<LongDateOrder> DateOrder;
};

std::optional<LongDateOrder> DateOrderNamed(const QString& name) {
    if (name == QStringLiteral("mdy")) return LongDateOrder::kMonthDayYear;
    if (name == QStringLiteral("dmy")) return LongDateOrder::kDayMonthYear;
    if (name == QStringLiteral("ymd")) return LongDateOrder::kYearMonthDay;
    return std::nullopt;
}

// Ends the program with a reason when the words are wrong.
CommandLine ParseCommandLine(const QApplication& application) {
    QCommandLineParser parser;
    parser.setApplicationDescription(QStringLiteral("Shows the readings of a gas analyser."));
    parser.addHelpOption();
    parser.addVersionOption();
    parser.addPositionalArgument(QStringLiteral("FILE"), QStringLiteral("data file to open"),
                                 QStringLiteral("[FILE]"));
    const QCommandLineOption settings(
        QStringLiteral("settings"),
        QStringLiteral("keep settings in this INI file instead of the user's own store"),
        QStringLiteral("FILE"));
    const QCommandLineOption root(QStringLiteral("root"),
                                  QStringLiteral("base directory of the data directories"),
                                  QStringLiteral("DIR"));
    const QCommandLineOption order(QStringLiteral("date-order"),
                                   QStringLiteral("override the date order: mdy, dmy or ymd"),
                                   QStringLiteral("ORDER"));
    parser.addOptions({settings, root, order});
    parser.process(application);
    const auto named = DateOrderNamed(parser.value(order));
    if (parser.positionalArguments().size() > 1 || (parser.isSet(order) && !named)) {
        std::fputs("brasklite: at most one FILE; --date-order takes mdy, dmy or ymd\n", stderr);
        std::exit(kWrongUsage);
    }
    return {parser.positionalArguments().value(0), parser.value(settings), parser.value(root),
            named};
}

}  // namespace

int main(int argc, char** argv) {
    QApplication application(argc, argv);
    QApplication::setApplicationName(QStringLiteral("brasklite"));
    QApplication::setApplicationVersion(ToQt(std::string(ProgramVersion())));
    const CommandLine line = ParseCommandLine(application);

    NativeSystem native;
    const EnglishTexts texts;
    QtUserInterface user(texts, app_texts::kNoMoreMessages);
    QtChoosers choosers;
    const System system{user,         texts, native.Disk(), native.Locale(), native.Information(),
                        native.Time()};

    DiagnosticLog log(native.Disk(), native.Time());
    // what goes wrong before the window stands is said when it does
    std::string trouble;
    StoredSettings stored({native.Disk(), native.Locale(), texts, log}, FromQt(line.Settings),
                          [&](const std::string& text) {
                              trouble = text;
                              user.ShowNotice(text);
                          });
    DataSet data;
    TemperatureUnit unit(stored.Options().Number("DisplayTemperatureUnits") != 0);
    DataDirectories directories(native.Disk(), user, texts);
    if (!line.Root.isEmpty()) {
        directories.OverrideBase(native.Disk().Absolute(FromQt(line.Root)));
    }
    DataFileLoader loader(data, user, texts, native.Disk(), log);
    const Session session{
        data,        loader,           unit, line.DateOrder.value_or(native.Locale().DateOrder()),
        directories, stored.Options(), log};
    Chart chart;
    PlotBuilder builder(chart, data, native.Locale(), texts);

    frmBraskLite window(system, session, {chart, builder}, choosers);
    user.SetViews(&window, &window.Progress(), &window.Notices());
    window.FormLoad();
    if (user.Ended()) return 0;
    if (window.OpensMaximized()) {
        window.showMaximized();
    } else {
        window.show();
    }
    if (!trouble.empty()) user.ShowNotice(trouble);
    if (!line.File.isEmpty()) {
        QTimer::singleShot(0, &window, [&] { window.OpenFile(line.File); });
    }
    return QApplication::exec();
}
