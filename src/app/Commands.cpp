#include "app/Commands.h"

#include <exception>

#include "app/AppTexts.h"
#include "app/MenuTable.h"
#include "app/ToolbarTable.h"
#include "data/DataTexts.h"
#include "platform/ProgramError.h"

namespace brask {

void Commands::Register(const std::string& name, std::function<void()> work) {
    work_[name] = std::move(work);
    changed_();
}

void Commands::Run(const std::string& name) {
    if (!Enabled(name)) return;
    // a copy: the work may register commands anew
    const std::function<void()> work = work_.at(name);
    Guard(name, work);
}

void Commands::Guard(const std::string& operation, const std::function<void()>& work) {
    try {
        work();
    } catch (const std::exception& error) {
        // first of all: work that failed half-way must not leave every command but Exit locked, and
        // the dialog lets the user go on
        SetBusy(false);
        ShowProgramError(user_, texts_, {operation, error.what(), "", true});
    }
}

void Commands::ToolbarButtonClick(const std::string& key) {
    // a key with a row runs through Run, so a button that is enabled too early does no harm
    if (const ToolbarRow* row = FindToolbarRow(key)) {
        Run(row->Command);
        return;
    }
    user_.ShowMessage({texts_.Find(data_texts::kProgramTitle),
                       texts_.Fill(app_texts::kButtonNotImplemented, {key})});
}

bool Commands::Enabled(const std::string& name) const {
    if (!Registered(name) || withheld_.contains(name)) return false;
    // leaving must always be possible; the work sees it at its next turn for events
    if (busy_) return name == "mnuExit";
    const MenuRow* row = FindMenuRow(name);
    // commands behind buttons alone have no row; what they need is kept by the button
    return hasReadings_ || row == nullptr || row->Need == CommandNeed::kNothing;
}

void Commands::SetHasReadings(bool hasReadings) {
    hasReadings_ = hasReadings;
    changed_();
}

void Commands::SetBusy(bool busy) {
    busy_ = busy;
    changed_();
}

void Commands::SetAllowed(const std::string& name, bool allowed) {
    // asked at every step of a pan: only a change is worth going through all menus
    if (allowed == !withheld_.contains(name)) return;
    if (allowed) {
        withheld_.erase(name);
    } else {
        withheld_.insert(name);
    }
    changed_();
}

}  // namespace brask
