// The command that collects readings from the handheld, the choice of the handheld, and the notice
// about the software that the link needs.
#pragma once

#include <QWidget>
#include <functional>
#include <memory>
#include <optional>

#include "app/Commands.h"
#include "app/Document.h"
#include "app/ui/ProgramOptionsPage.h"
#include "data/CollectSession.h"
#include "data/Session.h"
#include "handheld/CollectionRetrieval.h"
#include "handheld/RetrievalParts.h"
#include "platform/HandheldAddress.h"
#include "platform/System.h"
#include "platform/qt/Choosers.h"

namespace brask {

// What the command works on; all of it belongs to the main window or to main.
struct HandheldCommandParts {
    Document& Shown;
    Commands& Registry;
    Choosers& Choose;
};

class HandheldCommand {
  public:
    // Registers the command. Windows open over the window that it is given.
    HandheldCommand(const System& system, const Session& session, const HandheldCommandParts& parts,
                    QWidget& window);
    ~HandheldCommand();
    HandheldCommand(const HandheldCommand&) = delete;
    HandheldCommand& operator=(const HandheldCommand&) = delete;

    // Takes this handheld instead of the stored one, until another is chosen or the program ends.
    void Override(HandheldAddress address) { overridden_ = std::move(address); }
    // Makes the link to an address in another way than by MakeHandheldAccess.
    using Maker = std::function<std::unique_ptr<HandheldAccess>(const HandheldAddress&)>;
    void ReachWith(Maker make) { make_ = std::move(make); }
    // Lets the page choose the handheld. A choice is stored at once.
    void Serve(ProgramOptionsPage& page);
    // At start-up: the notice about the missing software, unless it is not wanted.
    void WarnOfMissingSoftware();

  private:
    struct Running;

    // A stored text that is no address counts as no handheld.
    HandheldAddress Address() const;
    RetrievalParts PartsOf(Running& run) const;
    void mnuReadPDAFile_Click();
    void Run();
    void Ended();
    // What became of files beyond being copied and deleted, in one line; empty when nothing did.
    std::string NoteOf(const std::vector<RetrievalRow>& rows) const;
    void AddressChosen(ProgramOptionsPage& page, const QString& text);
    void cmdBrowseHandheld_Click(ProgramOptionsPage& page);

    System system_;
    Session session_;
    HandheldCommandParts parts_;
    QWidget& window_;
    CollectSession collected_;
    std::optional<HandheldAddress> overridden_;
    Maker make_;
    std::unique_ptr<Running> running_;
};

}  // namespace brask
