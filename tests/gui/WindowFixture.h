// The main window on fakes: a disk in memory, a scripted user, a settings store in memory.
#pragma once

#include <gtest/gtest.h>

#include <QApplication>
#include <QTimer>
#include <memory>

#include "app/ui/frmBraskLite.h"
#include "platform/qt/QtText.h"
#include "platform/qt/ScriptedChoosers.h"
#include "platform/simulated/FixedSystemInformation.h"
#include "platform/simulated/FixedUserLocale.h"
#include "platform/simulated/ManualClock.h"
#include "platform/simulated/MemoryFiles.h"
#include "platform/simulated/MemorySettingsStore.h"
#include "platform/simulated/ScriptedUserInterface.h"

namespace brask {

// Works in the next modal window as soon as it is there.
template <class Window>
class NextModal {
  public:
    explicit NextModal(std::function<void(Window&)> work) {
        QObject::connect(&timer_, &QTimer::timeout, [this, work = std::move(work)] {
            auto* const window = qobject_cast<Window*>(QApplication::activeModalWidget());
            if (window == nullptr) return;
            timer_.stop();
            Met = true;
            work(*window);
        });
        timer_.start(1);
    }
    bool Met = false;

  private:
    QTimer timer_;
};

class WindowFixture : public testing::Test {
  protected:
    // Three readings on two days, one line of each kind that is no reading.
    static constexpr const char* kThreeReadings =
        "INSTRUMENT: K42\r\nSERIAL NUMBER: 7\r\nDATE: JAN-01-2003\r\nGAS: CO\r\n"
        "JAN-01-2003 00:05:12,    0.1,  26.1\r\n"
        "JAN-01-2003 12:00:00,    9.5,  10.0\r\n"
        "JAN-02-2003 06:00:00,    4.0,  20.0\r\n"
        "END DATA:      3\r\n";
    static constexpr const char* kBadLines =
        "XXX-01-2003 00:05:12,    0.1,  26.1\r\n"
        "JAN-01-2003 00:05:12,    abc,  26.1\r\n";

    WindowFixture() {
        Disk.Contents["/data/three.csv"] = kThreeReadings;
        Disk.Contents["/data/bad.csv"] = kBadLines;
    }

    // Starts the window with the settings as they are in Store.
    frmBraskLite& Start() {
        window_ = std::make_unique<frmBraskLite>(
            System{User, texts_, Disk, locale_, information_, Clock},
            Session{Data, loader_, Unit, LongDateOrder::kMonthDayYear, directories_, Options, log_},
            Plotting{Plot, builder_, Actions, Navigation, Selection, Period}, Choose);
        window_->FormLoad();
        window_->show();
        return *window_;
    }
    frmBraskLite& Window() { return *window_; }
    void StartWith(const char* path) {
        Start();
        Open(path);
    }
    void Open(const char* path) { Window().OpenFile(QString::fromLatin1(path)); }

    // A control or menu item of the main window, or of another one, by its object name.
    template <class T>
    T* Find(const char* name, const QObject* in = nullptr) {
        const QObject* const window = in == nullptr ? window_.get() : in;
        T* found = window->findChild<T*>(QString::fromLatin1(name));
        EXPECT_NE(found, nullptr) << name;
        return found;
    }
    QAction* Item(const char* name) { return Find<QAction>(name); }
    std::string Caption() { return FromQt(Window().windowTitle()); }

    ScriptedUserInterface User;
    ScriptedChoosers Choose;
    MemoryFiles Disk;
    MemorySettingsStore Store;
    MemorySettingsStore OwnStore;
    ManualClock Clock;
    DataSet Data;
    TemperatureUnit Unit;
    Chart Plot;

  private:
    EnglishTexts texts_;
    FixedUserLocale locale_;
    FixedSystemInformation information_;
    DiagnosticLog log_{Disk, Clock};

  protected:
    Settings Options{Store, OwnStore, locale_, [](const auto&, const auto&) {}};

  private:
    DataDirectories directories_{Disk, User, texts_};
    DataFileLoader loader_{Data, User, texts_, Disk, log_};
    PlotBuilder builder_{Plot, Data, locale_, texts_};

  protected:
    ChartActions Actions{Plot, texts_};
    PlotNavigation Navigation{{Plot, Actions, Options, User, texts_}};
    PointSelection Selection{{Plot, builder_, Data, Unit, locale_, texts_}};
    DisplayPeriod Period{LongDateOrder::kMonthDayYear, texts_};

  private:
    std::unique_ptr<frmBraskLite> window_;
};

}  // namespace brask
