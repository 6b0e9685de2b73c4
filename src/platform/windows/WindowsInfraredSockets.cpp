#include "platform/windows/WindowsInfraredSockets.h"

#include <winsock2.h>

#include <algorithm>
#include <utility>

#include "platform/InfraredBlocks.h"

namespace brask {
namespace {

constexpr int kInfraredFamily = 26;
constexpr int kInfraredLevel = 255;  // of socket options
constexpr int kEnumerateDevices = 16;
// what Winsock takes an infrared address for, two bytes more than it uses
constexpr std::size_t kAddressLength = 33;

// Winsock's texts come from the system's table of messages, which the number leads to.
Error NumberedError(int number) { return {number, "Winsock error " + std::to_string(number)}; }
Error LastError() { return NumberedError(::WSAGetLastError()); }

class WinsockInfraredSocket final : public InfraredSocket {
  public:
    explicit WinsockInfraredSocket(SOCKET socket) : socket_(socket) {}
    ~WinsockInfraredSocket() override {
        if (socket_ != INVALID_SOCKET) ::closesocket(socket_);
    }
    WinsockInfraredSocket(const WinsockInfraredSocket&) = delete;
    WinsockInfraredSocket& operator=(const WinsockInfraredSocket&) = delete;

    Result<bool> ListDevices(InfraredDeviceList& devices) override {
        devices.fill('\0');
        int length = static_cast<int>(devices.size());
        // Winsock itself looks around here, about a second where somebody is in range; there is no
        // way to break that off.
        if (::getsockopt(socket_, kInfraredLevel, kEnumerateDevices, devices.data(), &length) ==
            0) {
            return true;
        }
        // a socket that does not wait reports nobody in range in this way
        if (::WSAGetLastError() == WSAEWOULDBLOCK) return true;
        return LastError();
    }

    Result<bool> Connect(const InfraredAddress& address) override {
        // Started once; the later calls only look how it came out.
        if (!connecting_) {
            std::array<char, kAddressLength> bytes{};
            std::copy(address.begin(), address.end(), bytes.begin());
            connecting_ = true;
            if (::connect(socket_, reinterpret_cast<const sockaddr*>(bytes.data()),
                          static_cast<int>(bytes.size())) == 0) {
                return true;
            }
            if (::WSAGetLastError() != WSAEWOULDBLOCK) return LastError();
        }
        // A connection that fails shows among the exceptions only.
        fd_set writable = OnlyThis();
        fd_set failed = OnlyThis();
        timeval wait{0, kInfraredWait * 1000};
        const int ready = ::select(0, nullptr, &writable, &failed, &wait);
        if (ready == SOCKET_ERROR) return LastError();
        if (ready == 0) return false;
        int error = 0;
        int length = sizeof error;
        ::getsockopt(socket_, SOL_SOCKET, SO_ERROR, reinterpret_cast<char*>(&error), &length);
        if (error != 0) return NumberedError(error);
        if (FD_ISSET(socket_, &failed) != 0) return NumberedError(WSAECONNREFUSED);
        return true;
    }

    Result<std::size_t> Send(std::string_view bytes) override { return Send(bytes, 0); }
    Result<std::size_t> SendUrgent(std::string_view bytes) override { return Send(bytes, MSG_OOB); }
    bool Writable() override {
        fd_set writable = OnlyThis();
        timeval wait{0, 0};
        return ::select(0, nullptr, &writable, nullptr, &wait) > 0;
    }

    Result<ReceivedBlock> Receive() override {
        ReceivedBlock block;
        fd_set readable = OnlyThis();
        timeval wait{0, kInfraredWait * 1000};
        if (::select(0, &readable, nullptr, nullptr, &wait) == 0) return block;
        std::string bytes(kLongestInfraredBlock, '\0');
        const int length = ::recv(socket_, bytes.data(), static_cast<int>(bytes.size()), 0);
        if (length == SOCKET_ERROR) {
            const bool busy = ::WSAGetLastError() == WSAEWOULDBLOCK;
            return busy ? Result<ReceivedBlock>(block) : LastError();
        }
        block.Closed = length == 0;
        bytes.resize(static_cast<std::size_t>(length));
        // then more of the same block may wait
        const bool full = bytes.size() == kLongestInfraredBlock;
        block.Bytes = blocks_.Next(std::move(bytes), full);
        return block;
    }

    Status Close() override {
        const SOCKET socket = std::exchange(socket_, INVALID_SOCKET);
        if (socket == INVALID_SOCKET || ::closesocket(socket) == 0) return {};
        return LastError();
    }

  private:
    fd_set OnlyThis() const {
        fd_set set;
        FD_ZERO(&set);
        FD_SET(socket_, &set);
        return set;
    }

    Result<std::size_t> Send(std::string_view bytes, int flags) {
        const int sent = ::send(socket_, bytes.data(), static_cast<int>(bytes.size()), flags);
        if (sent == SOCKET_ERROR) return LastError();
        // the rest would arrive as a command of its own, with a first byte that is no control byte
        if (static_cast<std::size_t>(sent) < bytes.size()) return NumberedError(WSAENOBUFS);
        return bytes.size();
    }

    SOCKET socket_;
    bool connecting_ = false;
    InfraredBlocks blocks_;
};

}  // namespace

Status WindowsInfraredSockets::Start() {
    constexpr WORD kVersion = 257;
    WSADATA data{};
    // the one call of Winsock whose error is its result
    const int error = ::WSAStartup(kVersion, &data);
    return error == 0 ? Status() : NumberedError(error);
}

void WindowsInfraredSockets::Stop() { ::WSACleanup(); }

Result<std::unique_ptr<InfraredSocket>> WindowsInfraredSockets::Open() {
    const SOCKET socket = ::socket(kInfraredFamily, SOCK_STREAM, 0);
    if (socket == INVALID_SOCKET) return LastError();
    std::unique_ptr<InfraredSocket> open = std::make_unique<WinsockInfraredSocket>(socket);
    // No waiting within Winsock, since the loop around it has a user to answer.
    u_long on = 1;
    if (::ioctlsocket(socket, static_cast<long>(FIONBIO), &on) != 0) return LastError();
    return open;
}

}  // namespace brask
