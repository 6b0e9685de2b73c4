#include "cli/K42Server.h"

#include <algorithm>
#include <optional>
#include <string>
#include <utility>

#include "cli/K42Texts.h"
#include "platform/Utf8.h"
#include "platform/simulated/InfraredFrames.h"

namespace brask {
namespace {

// More at a time wait until one of these is through: a flood of connections must not use up the
// system's.
constexpr std::size_t kMostSessions = 100;
constexpr std::size_t kReceiveSize = 65536;
// Bytes made ready ahead of what the system takes; more would only lie in memory.
constexpr std::size_t kSendAhead = 65536;

}  // namespace

struct K42Server::Session {
    Session(int number, std::unique_ptr<TcpStream> stream, SimulatedConnection::Needs needs)
        : Number(number), Stream(std::move(stream)), Instrument(std::move(needs)) {}

    int Number;  // as the log calls it
    std::unique_ptr<TcpStream> Stream;
    SimulatedConnection Instrument;
    InfraredFrameDecoder Decoder;
    std::string Outgoing;
};

K42Server::K42Server(Needs needs) : needs_(needs) {}
K42Server::~K42Server() = default;

ExitStatus K42Server::Run(bool once) {
    while (!needs_.Stop.Requested()) {
        if (!AcceptNext()) return ExitStatus::kFailed;
        // All waits of a round together stay short, so that nobody waits for another's silence.
        const int wait = kLongestTcpWait / static_cast<int>(sessions_.size() + 1);
        std::optional<Outcome> over;
        std::erase_if(sessions_, [&](const std::unique_ptr<Session>& session) {
            const Outcome outcome = Serve(*session, wait);
            if (outcome == Outcome::kGoesOn) return false;
            if (session->Instrument.IsSession()) over = outcome;
            return true;
        });
        if (once && over) {
            return *over == Outcome::kClosed ? ExitStatus::kDone : ExitStatus::kFailed;
        }
    }
    Note(0, needs_.Words.Find(k42_texts::kStopped));
    return ExitStatus::kDone;
}

bool K42Server::AcceptNext() {
    if (sessions_.size() >= kMostSessions) return true;
    auto accepted = needs_.Listener.Accept(sessions_.empty() ? kLongestTcpWait : 0);
    if (!accepted.Ok()) {
        Note(0, needs_.Words.Fill(k42_texts::kBroken, {accepted.Why().Reason}));
        return false;
    }
    if (accepted.Value() == nullptr) return true;
    const int number = ++count_;
    Note(number, needs_.Words.Find(k42_texts::kOpened));
    sessions_.push_back(std::make_unique<Session>(
        number, std::move(accepted.Value()),
        SimulatedConnection::Needs{
            needs_.Instrument, needs_.Time, needs_.Words,
            [this, number](const std::string& line) { Note(number, line); }}));
    return true;
}

K42Server::Outcome K42Server::Serve(Session& session, int wait) {
    const auto sent = SendDue(session);
    if (!sent.Ok()) return Broken(session, sent.Why());
    if (sent.Value() && session.Instrument.HangsUp()) {
        Note(session.Number, needs_.Words.Find(k42_texts::kClosed));
        return Outcome::kClosed;
    }
    const auto due = session.Instrument.NextDue();
    if (sent.Value() && due) wait = static_cast<int>(std::min<std::int64_t>(*due, wait));
    const auto received = session.Stream->Receive(kReceiveSize, wait);
    if (!received.Ok()) return Broken(session, received.Why());
    return Handle(session, received.Value());
}

Result<bool> K42Server::SendDue(Session& session) {
    for (;;) {
        while (session.Outgoing.size() < kSendAhead) {
            const auto frame = session.Instrument.NextFrame();
            if (!frame) break;
            session.Outgoing += *frame;
        }
        if (session.Outgoing.empty()) return true;
        const auto sent = session.Stream->Send(session.Outgoing, 0);
        if (!sent.Ok()) return sent.Why();
        if (sent.Value() == 0) return false;
        session.Outgoing.erase(0, sent.Value());
    }
}

K42Server::Outcome K42Server::Handle(Session& session, const TcpBytes& received) {
    session.Decoder.Append(received.Bytes);
    for (;;) {
        const auto frame = session.Decoder.Next();
        if (!frame.Ok()) return Broken(session, frame.Why());
        if (!frame.Value()) break;
        const Status taken = session.Instrument.Take(*frame.Value());
        if (!taken.Ok()) return Broken(session, taken.Why());
    }
    if (!received.Closed) return Outcome::kGoesOn;
    Note(session.Number, needs_.Words.Find(session.Decoder.Partial() ? k42_texts::kClosedWithin
                                                                     : k42_texts::kClosed));
    return session.Decoder.Partial() ? Outcome::kBroken : Outcome::kClosed;
}

K42Server::Outcome K42Server::Broken(const Session& session, const Error& error) {
    Note(session.Number, needs_.Words.Fill(k42_texts::kBroken, {error.Reason}));
    return Outcome::kBroken;
}

void K42Server::Note(int number, const std::string& line) {
    std::string text = number == 0 ? line : "#" + std::to_string(number) + " " + line;
    // a line end within a command must not make two lines of it
    std::replace(text.begin(), text.end(), '\n', ' ');
    std::fprintf(needs_.Log, "%s\n", PrintableText(text).c_str());
    std::fflush(needs_.Log);
}

}  // namespace brask
