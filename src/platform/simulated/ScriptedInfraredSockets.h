// Infrared sockets that do what a test tells them, on the test's clock.
#pragma once

#include <deque>
#include <functional>
#include <optional>
#include <vector>

#include "platform/InfraredSockets.h"
#include "platform/simulated/ManualClock.h"

namespace brask {

class ScriptedInfraredSockets final : public InfraredSockets {
  public:
    explicit ScriptedInfraredSockets(ManualClock& clock) : clock_(clock) {}

    // What one receive does; neither bytes nor the rest: it waits in vain.
    struct Arrival {
        std::string Bytes;
        bool Closed = false;
        int Error = 0;
    };

    // What these operations fail with; 0 for none. Numbers of the system's.
    int StartError = 0;
    int OpenError = 0;
    int ListError = 0;
    int SendError = 0;
    int CloseError = 0;
    // What each connect in turn fails with, 0 for none; when used up, connecting works.
    std::deque<int> ConnectErrors;
    // How often listing and connecting say that they are not done yet; -1 for ever.
    int ListWaits = 0;
    int ConnectWaits = 0;
    // What Writable says.
    bool CanWrite = true;
    InfraredDeviceList Devices{};
    // Taken in turn by receives; when used up they wait in vain.
    std::deque<Arrival> Arrivals;
    // Runs at every send; where an instrument is played that answers.
    std::function<void(const std::string& bytes)> OnSend = [](const std::string&) {};

    // What happened.
    std::vector<std::string> Sent;       // control bytes included
    std::vector<std::int64_t> Attempts;  // when each socket was opened
    std::vector<InfraredAddress> ConnectedTo;
    // What is left open; 0 and false after a download that has cleaned up.
    int OpenSockets = 0;
    bool Started = false;

    Status Start() override {
        if (StartError != 0) return Error{StartError, ""};
        Started = true;
        return {};
    }
    void Stop() override { Started = false; }
    Result<std::unique_ptr<InfraredSocket>> Open() override {
        Attempts.push_back(clock_.Milliseconds);
        if (OpenError != 0) return Error{OpenError, ""};
        std::unique_ptr<InfraredSocket> socket = std::make_unique<Socket>(*this);
        return socket;
    }
    void Rest() override { clock_.Milliseconds += kInfraredWait; }

  private:
    // Plays the script; any number of them may exist in turn.
    class Socket final : public InfraredSocket {
      public:
        explicit Socket(ScriptedInfraredSockets& script) : script_(script) {
            ++script_.OpenSockets;
        }
        ~Socket() override { --script_.OpenSockets; }
        Socket(const Socket&) = delete;
        Socket& operator=(const Socket&) = delete;

        Result<bool> ListDevices(InfraredDeviceList& devices) override {
            if (script_.Waits(script_.ListWaits)) return false;
            if (script_.ListError != 0) return Error{script_.ListError, ""};
            devices = script_.Devices;
            return true;
        }
        Result<bool> Connect(const InfraredAddress& address) override {
            if (script_.Waits(script_.ConnectWaits)) return false;
            int error = 0;
            if (!script_.ConnectErrors.empty()) {
                error = script_.ConnectErrors.front();
                script_.ConnectErrors.pop_front();
            }
            if (error != 0) return Error{error, ""};
            script_.ConnectedTo.push_back(address);
            return true;
        }
        Result<std::size_t> Send(std::string_view bytes) override {
            if (script_.SendError != 0) return Error{script_.SendError, ""};
            script_.Sent.emplace_back(bytes);
            script_.OnSend(script_.Sent.back());
            return bytes.size();
        }
        Result<std::size_t> SendUrgent(std::string_view bytes) override { return Send(bytes); }
        bool Writable() override { return script_.CanWrite; }
        Result<ReceivedBlock> Receive() override {
            if (script_.Arrivals.empty()) {
                script_.Rest();
                return ReceivedBlock();
            }
            Arrival next = std::move(script_.Arrivals.front());
            // a closed link stays closed
            if (!next.Closed) script_.Arrivals.pop_front();
            if (next.Error != 0) return Error{next.Error, ""};
            if (next.Bytes.empty() && !next.Closed) script_.Rest();
            return ReceivedBlock{std::move(next.Bytes), next.Closed};
        }
        Status Close() override {
            return script_.CloseError == 0 ? Status() : Error{script_.CloseError, ""};
        }

      private:
        ScriptedInfraredSockets& script_;
    };

    bool Waits(int& left) {
        if (left == 0) return false;
        if (left > 0) --left;
        Rest();
        return true;
    }

    ManualClock& clock_;
};

}  // namespace brask
