#include <tuple>

#include "LinkFixture.h"
#include "link/DeviceList.h"
#include "link/IrdaTransport.h"

namespace brask {
namespace {

struct Transport {
    Download Parts;
    IrdaTransport Irda{
        {Parts.Link, Parts.User, Parts.Words, Parts.Information, Parts.Clock, [] { return true; }}};
};

TEST(IrdaTransport, ConnectsToTheFirstDevice) {
    Transport transport;
    EXPECT_EQ(transport.Irda.ConnectInstrument(), ConnectOutcome::kConnected);
    EXPECT_EQ(transport.Irda.StatusText(), "Connected to VEK TK42");
    ASSERT_EQ(transport.Parts.Link.ConnectedTo.size(), 1U);
    EXPECT_EQ(std::string(transport.Parts.Link.ConnectedTo[0].data(), 18),
              std::string("\x1A\0\x11\x22\x33\x44IrDA:IrCOMM\0", 18));
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
    // what fails; the title, what the connect comes to, whether the library counts as failed
    using Case = std::tuple<int Link::*, std::string, ConnectOutcome, bool>;
    const Case cases[] = {
        {&Link::StartError, "WSAStartup Error", ConnectOutcome::kConnected, true},
        {&Link::OpenError, "IRDA Sockets Not Supported", ConnectOutcome::kNotSupported, false},
        {&Link::ListError, "GetSockOpt Error", ConnectOutcome::kNothing, true},
        {&Link::SendError, "SendData Error", ConnectOutcome::kConnected, true},
        {&Link::CloseError, "CloseSocket Error", ConnectOutcome::kConnected, false}};
    for (const auto& [fault, title, outcome, libraryFailed] : cases) {
        for (const bool retry : {true, false}) {
            Transport transport;
            transport.Parts.Link.*fault = 5;
            transport.Parts.User.Answers = {retry};
            EXPECT_EQ(transport.Irda.StartSockets(), fault != &Link::StartError);
            EXPECT_EQ(transport.Irda.ConnectInstrument(), outcome);
            transport.Irda.CloseInstrument();
            transport.Irda.CloseInstrument();
            ASSERT_EQ(transport.Parts.User.Shown.size(), 1U) << title;
            const Message& shown = transport.Parts.User.Shown[0];
            EXPECT_EQ(shown.Title, title);
            const bool dialog = title.ends_with(" Error") && title != "SendData Error";
            const std::string operation = title.substr(0, title.find(' '));
            const std::string text = dialog ? "Error Description:" + system + "\r\n[" + operation +
                                                  "]\r\n(Cancel Ends Program)"
                                            : system;
            EXPECT_TRUE(shown.Text == text || fault == &Link::OpenError) << shown.Text;
            EXPECT_EQ(transport.Irda.LibraryFailed(), libraryFailed) << title;
            EXPECT_EQ(transport.Parts.User.Ended(), dialog && !retry);
            if (transport.Parts.User.Ended()) {
                EXPECT_EQ(transport.Irda.StartSockets(), fault != &Link::StartError);
                EXPECT_EQ(transport.Parts.User.Shown.size(), 1U) << "nobody reads it";
            }
            EXPECT_EQ(transport.Parts.Link.OpenSockets, 0);
        }
    }
}

TEST(IrdaTransport, UrgentTextsAndOneByteReceives) {
    Transport transport;
    EXPECT_EQ(transport.Irda.SendUrgent("x"), -1);  // no socket
    transport.Irda.ConnectInstrument();
    transport.Parts.Link.Arrivals = {{std::string(1, '\0')}, {std::string("\0A\xFF\0B", 5)}};
    EXPECT_EQ(transport.Irda.ReceiveText().Text, "");
    EXPECT_EQ(transport.Irda.ReceiveText().Text, std::string("A\xFF\0B", 4));
    EXPECT_EQ(transport.Irda.SendUrgent("abc"), 3);
    EXPECT_EQ(transport.Irda.SendUrgent(""), -1);
    EXPECT_EQ(transport.Parts.Link.Sent.back(), std::string("\0abc", 4));
    transport.Parts.Link.CanWrite = false;
    EXPECT_EQ(transport.Irda.SendUrgent("abc"), -1);
    transport.Parts.Link.CanWrite = true;
    transport.Parts.Link.SendError = 5;
    EXPECT_EQ(transport.Irda.SendUrgent("abc"), -1);
    EXPECT_EQ(transport.Parts.User.Shown.at(0).Title, "Send Error");
}

}  // namespace
}  // namespace brask
