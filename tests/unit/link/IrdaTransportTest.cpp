#include <tuple>

#include "LinkFixture.h"
#include "link/DeviceList.h"
#include "link/IrdaTransport.h"

namespace brask {
namespace {

struct Transport {
    Download Parts;
    bool Going = true;
    IrdaTransport Irda{{Parts.Link, Parts.User, Parts.Words, Parts.Information, Parts.Clock,
                        [this] { return Going; }}};

    std::vector<std::string> Titles() const {
        std::vector<std::string> titles;
        for (const Message& message : Parts.User.Shown) titles.push_back(message.Title);
        return titles;
    }
};

TEST(IrdaTransport, ConnectsToTheFirstDevice) {
    Transport transport;
    EXPECT_EQ(transport.Irda.ConnectInstrument(), ConnectOutcome::kConnected);
    EXPECT_EQ(transport.Irda.StatusText(), "Connected to VEK TK42");
    InfraredAddress expected{};
    const std::string bytes = std::string("\x1A\0", 2) + "\x11\x22\x33\x44" + "IrDA:IrCOMM";
    std::copy(bytes.begin(), bytes.end(), expected.begin());
    EXPECT_EQ(transport.Parts.Link.ConnectedTo, std::vector{expected});
    EXPECT_TRUE(transport.Parts.Sent("[OUTPUT MAR-05-2004 13:30:00"));
}

TEST(IrdaTransport, DeviceNames) {
    const std::pair<std::string, bool> cases[] = {{"VEK TK42", true},
                                                  {"  vek tk42   ", true},
                                                  {"Generic IrDA", true},
                                                  {std::string("VEK TK42\0junk", 13), true},
                                                  {"generic IrDA", false},
                                                  {" Generic IrDA", false},
                                                  {"VEK TK421", false},
                                                  {"\tVEK TK42", false},
                                                  {"", false},
                                                  {"VEK TK42 and 22 or more", false}};
    for (const auto& [name, accepted] : cases) {
        EXPECT_EQ(FindInstrument(DeviceNamed(name)).Accepted, accepted) << name;
    }
    // The second device is read 26 bytes behind the first, where systems write 30: its name begins
    // with its identifier.
    InfraredDeviceList two = DeviceNamed("TELEPHONE", 2);
    const std::string second = "    VEK TK42";
    std::copy(second.begin(), second.end(), two.begin() + 34);
    EXPECT_EQ(FindInstrument(two).Name, second);
    EXPECT_TRUE(FindInstrument(two).Accepted);
    EXPECT_EQ(ServiceAddress(two)[2], '\x11');
    two.fill('\xFF');
    EXPECT_FALSE(FindInstrument(two).Accepted);
}

TEST(IrdaTransport, FailuresAreTold) {
    using Link = ScriptedInfraredSockets;
    const std::string system = FixedSystemInformation().ErrorText(5);
    const auto dialog = [&system](const std::string& operation) {
        return "Error Description:" + system + "\r\n[" + operation + "]\r\n(Cancel Ends Program)";
    };
    // what fails, what is done; the title, the text, whether the library counts as failed
    using Case = std::tuple<int Link::*, void (*)(Transport&), std::string, std::string, bool>;
    const Case cases[] = {
        {&Link::StartError, [](Transport& t) { EXPECT_FALSE(t.Irda.StartSockets()); },
         "WSAStartup Error", dialog("WSAStartup"), true},
        {&Link::OpenError,
         [](Transport& t) { EXPECT_EQ(t.Irda.ConnectInstrument(), ConnectOutcome::kNotSupported); },
         "IRDA Sockets Not Supported",
         "The IRDA Dongle or the Built-In IRDA Device on this PC\r\n"
         "does not support IRDA Sockets. Please remove the IRDA device from\r\n"
         "your system drivers (use control-panel) and try re-installing the\r\n"
         "drivers and the IRDA dongle",
         false},
        {&Link::ListError,
         [](Transport& t) { EXPECT_EQ(t.Irda.ConnectInstrument(), ConnectOutcome::kNothing); },
         "GetSockOpt Error", dialog("GetSockOpt"), true},
        {&Link::SendError,
         [](Transport& t) { EXPECT_EQ(t.Irda.ConnectInstrument(), ConnectOutcome::kConnected); },
         "SendData Error", system, true},
        {&Link::CloseError,
         [](Transport& t) {
             t.Irda.ConnectInstrument();
             t.Irda.CloseInstrument();
             t.Irda.CloseInstrument();
         },
         "CloseSocket Error", dialog("CloseSocket"), false}};
    for (const auto& [fault, act, title, text, libraryFailed] : cases) {
        Transport transport;
        transport.Parts.Link.*fault = 5;
        transport.Parts.User.Answers = {true};
        act(transport);
        EXPECT_EQ(transport.Titles(), std::vector{title});
        EXPECT_EQ(transport.Parts.User.ShownTexts(), std::vector{text});
        EXPECT_EQ(transport.Irda.LibraryFailed(), libraryFailed) << title;
        EXPECT_FALSE(transport.Parts.User.Ended());
    }
    Transport cancelled;
    cancelled.Parts.Link.ListError = 5;
    cancelled.Irda.ConnectInstrument();
    EXPECT_TRUE(cancelled.Parts.User.Ended());
    EXPECT_EQ(cancelled.Parts.Link.OpenSockets, 0);
}

TEST(IrdaTransport, AnEndlessWaitEndsWithTheSession) {
    for (int ScriptedInfraredSockets::*wait :
         {&ScriptedInfraredSockets::ListWaits, &ScriptedInfraredSockets::ConnectWaits}) {
        Transport transport;
        transport.Parts.Link.*wait = -1;
        transport.Going = false;
        EXPECT_EQ(transport.Irda.ConnectInstrument(), ConnectOutcome::kNothing);
        EXPECT_EQ(transport.Parts.Link.OpenSockets, 0);
    }
}

TEST(IrdaTransport, UrgentTextsAndOneByteReceives) {
    Transport transport;
    EXPECT_EQ(transport.Irda.SendUrgent("x"), -1);  // no socket
    transport.Irda.ConnectInstrument();
    EXPECT_EQ(transport.Irda.SendUrgent("abc"), 3);
    EXPECT_EQ(transport.Irda.SendUrgent(""), -1);
    EXPECT_EQ(transport.Parts.Link.Sent.back(), std::string("\0abc", 4));
    transport.Parts.Link.CanWrite = false;
    EXPECT_EQ(transport.Irda.SendUrgent("abc"), -1);
    transport.Parts.Link.CanWrite = true;
    transport.Parts.Link.SendError = 5;
    EXPECT_EQ(transport.Irda.SendUrgent("abc"), -1);
    EXPECT_EQ(transport.Titles(), std::vector<std::string>{"Send Error"});

    Transport receiving;
    receiving.Irda.ConnectInstrument();
    receiving.Parts.Link.Arrivals = {{std::string(1, '\0')}, {std::string("\0A\xFF\0B", 5)}};
    EXPECT_EQ(receiving.Irda.ReceiveText().Text, "");
    EXPECT_EQ(receiving.Irda.ReceiveText().Text, std::string("A\xFF\0B", 4));
}

}  // namespace
}  // namespace brask
