// The window program: makes the objects once, hands them in, runs the event loop.
#include <QApplication>
#include <QCommandLineParser>
#include <QTimer>
#include <cstdio>
#include <exception>
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

// What the words after the program's name say.
struct WindowArguments {
    QString File;
    QString Settings;
    QString Root;
    std::optional<LongDateOrder> DateOrder;
    std::optional<InstrumentAddress> Instrument;
    bool Download = false;
    std::optional<HandheldAddress> Handheld;
};

std::optional<LongDateOrder> DateOrderNamed(const QString& name) {
    if (name == QStringLiteral("mdy")) return LongDateOrder::kMonthDayYear;
    if (name == QStringLiteral("dmy")) return LongDateOrder::kDayMonthYear;
    if (name == QStringLiteral("ymd")) return LongDateOrder::kYearMonthDay;
    return std::nullopt;
}

// What the words say; a one-line reason when they are wrong. Ends the program for --help and
// --version.
Result<WindowArguments> ParseArguments(const QStringList& words, const Texts& texts) {
    QCommandLineParser parser;
    parser.setApplicationDescription(ToQt(texts, app_texts::kUsageAbout));
    const QCommandLineOption help = parser.addHelpOption();
    const QCommandLineOption version = parser.addVersionOption();
    parser.addPositionalArgument(QStringLiteral("FILE"), ToQt(texts, app_texts::kUsageFile),
                                 QStringLiteral("[FILE]"));
    const QCommandLineOption settings(
        QStringLiteral("settings"), ToQt(texts, app_texts::kUsageSettings), QStringLiteral("FILE"));
    const QCommandLineOption root(QStringLiteral("root"), ToQt(texts, app_texts::kUsageRoot),
                                  QStringLiteral("DIR"));
    const QCommandLineOption order(QStringLiteral("date-order"),
                                   ToQt(texts, app_texts::kUsageOrder), QStringLiteral("ORDER"));
    const QCommandLineOption instrument(QStringLiteral("instrument"),
                                        ToQt(texts, app_texts::kUsageInstrument),
                                        QStringLiteral("ADDRESS"));
    const QCommandLineOption download(QStringLiteral("download"),
                                      ToQt(texts, app_texts::kUsageDownload));
    const QCommandLineOption handheld(QStringLiteral("handheld"),
                                      ToQt(texts, app_texts::kUsageHandheld),
                                      QStringLiteral("ADDRESS"));
    parser.addOptions({settings, root, order, instrument, download, handheld});
    if (!parser.parse(words)) return Error{0, FromQt(parser.errorText())};
    // only after unknown words were refused
    if (parser.isSet(help)) parser.showHelp();
    if (parser.isSet(version)) parser.showVersion();
    const auto named = DateOrderNamed(parser.value(order));
    if (parser.isSet(order) && !named) return Error{0, texts.Find(app_texts::kUsageBadOrder)};
    const auto link = ParseInstrumentAddress(FromQt(parser.value(instrument)));
    if (parser.isSet(instrument) && !link) {
        return Error{0, texts.Find(app_texts::kUsageBadInstrument)};
    }
    std::optional<HandheldAddress> folder;
    if (parser.isSet(handheld)) {
        folder = ParseHandheldAddress(FromQt(parser.value(handheld)));
        if (!folder) return Error{0, texts.Find(app_texts::kUsageBadHandheld)};
    }
    if (parser.positionalArguments().size() > 1)
        return Error{0, texts.Find(app_texts::kUsageOneFile)};
    return WindowArguments{parser.positionalArguments().value(0),
                           parser.value(settings),
                           parser.value(root),
                           named,
                           link,
                           parser.isSet(download),
                           folder};
}

// Before there is an application for the windows: --help needs no display.
Result<WindowArguments> ParseArguments(int argc, char** argv, const Texts& texts) {
    const QCoreApplication words(argc, argv);
    QCoreApplication::setApplicationVersion(ToQt(std::string(ProgramVersion())));
    return ParseArguments(QCoreApplication::arguments(), texts);
}

// The chart with its services, made of what the session holds.
struct PlotObjects {
    PlotObjects(const System& system, const Session& session)
        : Builder(Plot, session.Data, system.Locale, system.Words),
          Actions(Plot, system.Words),
          Navigation({Plot, Actions, session.Options, system.User, system.Words}),
          Selection({Plot, Builder, session.Data, session.Unit, system.Locale, system.Words}),
          Period(session.DateOrder, system.Words) {}

    Plotting References() { return {Plot, Builder, Actions, Navigation, Selection, Period}; }

    Chart Plot;
    PlotBuilder Builder;
    ChartActions Actions;
    PlotNavigation Navigation;
    PointSelection Selection;
    DisplayPeriod Period;
};

// From the loaded options to the end of the event loop.
int ShowWindow(frmBraskLite& window, const WindowArguments& line, QtUserInterface& user,
               const std::string& damagedSettings) {
    // before FormLoad, whose messages belong to the window
    user.SetViews(&window, &window.Progress(), &window.Notices());
    if (line.Instrument) window.Instrument().Override(*line.Instrument);
    if (line.Handheld) window.Handheld().Override(*line.Handheld);
    window.FormLoad();
    // a start-up message was answered with leaving; without an event loop yet, quitting has no
    // effect of its own
    if (user.Ended()) return 0;
    if (window.OpensMaximized()) {
        window.showMaximized();
    } else {
        window.show();
    }
    // last of the start-up, so that no other notice covers it
    if (!damagedSettings.empty()) user.ShowNotice(damagedSettings);
    // once the loop runs: the window is seen before a long load begins, and that has ended before
    // the download begins
    QTimer::singleShot(0, &window, [&] {
        if (!line.File.isEmpty()) window.OpenFile(line.File);
        if (line.Download) window.Download();
    });
    return QApplication::exec();
}

int RunWindow(int argc, char** argv) {
    const EnglishTexts texts;
    const auto parsed = ParseArguments(argc, argv, texts);
    if (!parsed.Ok()) {
        std::fprintf(stderr, "brasklite: %s\n", parsed.Why().Reason.c_str());
        return kWrongUsage;
    }
    const WindowArguments& line = parsed.Value();
    // a second application object: the first one only read the words and is gone
    const QApplication application(argc, argv);

    NativeSystem native;
    QtUserInterface user(texts, app_texts::kNoMoreMessages);
    QtChoosers choosers;
    const System system{user,         texts, native.Disk(), native.Locale(), native.Information(),
                        native.Time()};

    // Each object is given what stands above it, so they go in the opposite order, the window
    // first.
    DiagnosticLog log(native.Disk(), native.Time());
    StoredSettings stored({native.Disk(), native.Stores(), native.Locale(), texts, log},
                          FromQt(line.Settings),
                          [&user](const std::string& text) { user.ShowNotice(text); });
    DataSet data;
    TemperatureUnit unit(stored.Options().Number("DisplayTemperatureUnits") != 0);
    DataDirectories directories(native.Disk(), user, texts);
    if (!line.Root.isEmpty()) {
        // made absolute at once: dialogs may change the directory that the program runs in
        directories.OverrideBase(native.Disk().Absolute(FromQt(line.Root)));
    }
    DataFileLoader loader(data, user, texts, native.Disk(), log);
    const Session session{
        data,        loader,           unit, line.DateOrder.value_or(native.Locale().DateOrder()),
        directories, stored.Options(), log};
    PlotObjects plot(system, session);

    frmBraskLite window(system, session, plot.References(), choosers);
    window.Instrument().UseLinks(
        [&native](const InstrumentAddress& address) { return native.LinkTo(address); });
    return ShowWindow(window, line, user, stored.Damage());
}

}  // namespace

int main(int argc, char** argv) {
    try {
        return RunWindow(argc, argv);
    } catch (const std::exception& error) {
        // commands have their own guard; this is for the start and the end
        std::fprintf(stderr, "brasklite: %s\n", error.what());
        return 1;
    }
}
