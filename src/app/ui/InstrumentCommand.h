// The command that downloads readings from the instrument, and the choices that concern it.
#pragma once

#include <QString>
#include <QWidget>
#include <functional>
#include <memory>
#include <optional>
#include <string>

#include "app/Commands.h"
#include "app/Document.h"
#include "app/ui/ProgramOptionsPage.h"
#include "data/CollectSession.h"
#include "data/ReceivedFileExpander.h"
#include "data/RecoveryFolder.h"
#include "data/Session.h"
#include "platform/InfraredSockets.h"
#include "platform/InstrumentAddress.h"
#include "platform/System.h"

namespace brask {

class InstrumentCommand {
  public:
    // Makes the sockets that lead to an address; never null.
    using LinkMaker = std::function<std::unique_ptr<InfraredSockets>(const InstrumentAddress&)>;

    // Windows open over the window that it is given; all must outlive the object.
    InstrumentCommand(const System& system, const Session& session, Document& shown,
                      Commands& registry, QWidget& window);
    ~InstrumentCommand();
    InstrumentCommand(const InstrumentCommand&) = delete;
    InstrumentCommand& operator=(const InstrumentCommand&) = delete;

    // Gives the command its links; until then it is disabled.
    void UseLinks(LinkMaker links);
    // Takes this instrument instead of the stored one, until the program ends.
    void Override(const InstrumentAddress& address) { overridden_ = address; }
    // Lets the page store what concerns downloads, as soon as it is chosen.
    void Serve(ProgramOptionsPage& page);

  private:
    struct Running;

    // Shows the window; the run begins by it. A stored address that leads nowhere is told instead.
    void mnuReadDataFromTalvexK42_Click();
    void Run();
    // The window has closed: opens what was received.
    void Ended();
    void OpenReceived();
    void AddressChosen(ProgramOptionsPage& page, const QString& text);

    System system_;
    Session session_;
    Document& shown_;
    Commands& registry_;
    QWidget& window_;
    LinkMaker links_;
    std::optional<InstrumentAddress> overridden_;
    CollectSession collected_;
    std::string warning_;  // of the last download; empty for none
    RecoveryFolder recovery_;
    // one for all downloads: a stream may repeat the line that the one before ended with
    ReceivedFileExpander expander_;
    std::unique_ptr<Running> running_;
};

}  // namespace brask
