// The commands of the main window by the name of their menu item: what they do and whether they
// may run now. Menus, toolbar and keys all come here.
#pragma once

#include <functional>
#include <map>
#include <set>
#include <string>

#include "platform/Texts.h"
#include "platform/UserInterface.h"

namespace brask {

// One exists for the window. It is made before menus and pages; they ask it for the state of every
// command and never keep a state of their own.
class Commands {
  public:
    // Both must outlive the object; they show what went wrong.
    Commands(UserInterface& user, const Texts& texts) : user_(user), texts_(texts) {}

    // Gives a command its work. Without it the command exists on the menus but is disabled.
    // Registering again replaces the work. Works hold references to the window's parts, so nothing
    // may run once those are gone.
    void Register(const std::string& name, std::function<void()> work);
    bool Registered(const std::string& name) const { return work_.contains(name); }

    // Runs a command that is enabled; anything else is ignored.
    // The work may let events run and so come back here; what must not run twice is kept apart by
    // the busy flag.
    void Run(const std::string& name);
    // Does any work that the user has called for. What goes unexpectedly wrong in it is shown in
    // the error dialog under the operation's name, and goes no further.
    // Busy ends with it, so that a failed load leaves no locked window. The operation is a name for
    // the dialog's caption and need not be a command.
    void Guard(const std::string& operation, const std::function<void()>& work);
    // Runs the command behind a toolbar button. A key that no button has is told to the user.
    // Also for keys whose buttons are yet to be made.
    void ToolbarButtonClick(const std::string& key);

    // Registered, its need met, not withheld, and not disturbing long work that is under way.
    bool Enabled(const std::string& name) const;

    // Set after every load, by the document.
    void SetHasReadings(bool hasReadings);
    bool HasReadings() const { return hasReadings_; }
    // While long work runs only leaving the program is possible.
    // Not counted: the one long work at a time sets and clears it.
    void SetBusy(bool busy);
    bool Busy() const { return busy_; }
    // Withholds a command for a reason of its own, such as an empty zoom stack.
    void SetAllowed(const std::string& name, bool allowed);

    // Called after every change of what is enabled.
    // One listener; a new one takes the old one's place. It must not change any state in its turn.
    void OnChange(std::function<void()> listener) { changed_ = std::move(listener); }

  private:
    UserInterface& user_;
    const Texts& texts_;
    std::map<std::string, std::function<void()>> work_;
    // Names that are not allowed now; any other name is.
    std::set<std::string> withheld_;
    std::function<void()> changed_ = [] {};
    bool hasReadings_ = false;
    bool busy_ = false;
};

}  // namespace brask
