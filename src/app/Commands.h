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

class Commands {
  public:
    Commands(UserInterface& user, const Texts& texts) : user_(user), texts_(texts) {}

    // Gives a command its work. Without it the command exists on the menus but is disabled.
    void Register(const std::string& name, std::function<void()> work);
    bool Registered(const std::string& name) const { return work_.contains(name); }

    // Runs a command that is enabled; anything else is ignored.
    void Run(const std::string& name);
    // Does any work that the user has called for. What goes unexpectedly wrong in it is shown in
    // the error dialog under the operation's name, and goes no further.
    void Guard(const std::string& operation, const std::function<void()>& work);
    // Runs the command behind a toolbar button. A key that no button has is told to the user.
    void ToolbarButtonClick(const std::string& key);

    // Registered, its need met, not withheld, and not disturbing long work that is under way.
    bool Enabled(const std::string& name) const;

    void SetHasReadings(bool hasReadings);
    bool HasReadings() const { return hasReadings_; }
    // While long work runs only leaving the program is possible.
    void SetBusy(bool busy);
    bool Busy() const { return busy_; }
    // Withholds a command for a reason of its own, such as an empty zoom stack.
    void SetAllowed(const std::string& name, bool allowed);

    // Called after every change of what is enabled.
    void OnChange(std::function<void()> listener) { changed_ = std::move(listener); }

  private:
    UserInterface& user_;
    const Texts& texts_;
    std::map<std::string, std::function<void()>> work_;
    std::set<std::string> withheld_;
    std::function<void()> changed_ = [] {};
    bool hasReadings_ = false;
    bool busy_ = false;
};

}  // namespace brask
