#include "platform/posix/PosixTcp.h"

#include <netdb.h>
#include <netinet/tcp.h>
#include <poll.h>
#include <sys/socket.h>

#include <algorithm>
#include <deque>

#include "platform/posix/PosixHandle.h"

namespace brask {
namespace {

using posix::Handle;
using posix::LastError;

// One form that a name has, as the system writes it.
struct SocketAddress {
    int Family = 0;
    sockaddr_storage Storage{};
    socklen_t Length = 0;

    const sockaddr* Get() const { return reinterpret_cast<const sockaddr*>(&Storage); }
};

Error LookUpError(int code) {
    if (code == EAI_SYSTEM) return LastError();
    return {EHOSTUNREACH, ::gai_strerror(code)};
}

Result<std::deque<SocketAddress>> LookUp(const TcpAddress& address, int flags) {
    addrinfo hints{};
    hints.ai_socktype = SOCK_STREAM;
    hints.ai_flags = flags | AI_NUMERICSERV;
    addrinfo* found = nullptr;
    const std::string port = std::to_string(address.Port);
    const int code = ::getaddrinfo(address.Host.c_str(), port.c_str(), &hints, &found);
    if (code != 0) return LookUpError(code);
    std::deque<SocketAddress> addresses;
    for (const addrinfo* one = found; one != nullptr; one = one->ai_next) {
        SocketAddress entry;
        entry.Family = one->ai_family;
        entry.Length = one->ai_addrlen;
        std::memcpy(&entry.Storage, one->ai_addr, one->ai_addrlen);
        addresses.push_back(entry);
    }
    ::freeaddrinfo(found);
    return addresses;
}

Handle NewSocket(int family) {
    return Handle(::socket(family, SOCK_STREAM | SOCK_NONBLOCK | SOCK_CLOEXEC, 0));
}

// Whether one of the events came. Also true for trouble, which the next call then reports; false
// when a signal cut the wait short.
bool WaitFor(int descriptor, short events, int wait) {
    pollfd one{descriptor, events, 0};
    return ::poll(&one, 1, std::clamp(wait, 0, kLongestTcpWait)) > 0;
}

bool OnlyBusy(int error) { return error == EAGAIN || error == EWOULDBLOCK || error == EINTR; }

class PosixTcpStream final : public TcpStream {
  public:
    // A connection that somebody else made.
    explicit PosixTcpStream(Handle socket) : socket_(std::move(socket)), connected_(true) {
        SendAtOnce();
    }
    // One to be made to the first of these addresses that answers.
    explicit PosixTcpStream(std::deque<SocketAddress> addresses) : untried_(std::move(addresses)) {}

    Result<bool> Connected(int wait) override {
        while (!connected_) {
            if (!socket_.Open() && !TryNext()) return lastError_;
            if (!WaitFor(socket_.Get(), POLLOUT, wait)) return false;
            int error = 0;
            socklen_t length = sizeof error;
            ::getsockopt(socket_.Get(), SOL_SOCKET, SO_ERROR, &error, &length);
            if (error == 0) {
                connected_ = true;
                SendAtOnce();
            } else {
                errno = error;
                Refused();
            }
        }
        return true;
    }

    Result<std::size_t> Send(std::string_view bytes, int wait) override {
        if (!connected_ || !WaitFor(socket_.Get(), POLLOUT, wait)) return std::size_t{0};
        const ssize_t sent = ::send(socket_.Get(), bytes.data(), bytes.size(), MSG_NOSIGNAL);
        if (sent >= 0) return static_cast<std::size_t>(sent);
        if (OnlyBusy(errno)) return std::size_t{0};
        return LastError();
    }

    Result<TcpBytes> Receive(std::size_t most, int wait) override {
        TcpBytes got;
        if (!connected_ || most == 0 || !WaitFor(socket_.Get(), POLLIN, wait)) return got;
        got.Bytes.resize(most);
        const ssize_t length = ::recv(socket_.Get(), got.Bytes.data(), most, 0);
        const int error = length < 0 ? errno : 0;
        got.Bytes.resize(length > 0 ? static_cast<std::size_t>(length) : 0);
        got.Closed = length == 0;
        if (error == 0 || OnlyBusy(error)) return got;
        errno = error;
        return LastError();
    }

    bool Writable() const override { return connected_ && WaitFor(socket_.Get(), POLLOUT, 0); }

    Status Close() override {
        connected_ = false;
        untried_.clear();
        lastError_ = {ENOTCONN, "closed"};
        if (socket_.Close()) return {};
        return LastError();
    }

  private:
    // Starts connecting to the next address that a socket can be made for; false when none is left.
    bool TryNext() {
        while (!untried_.empty()) {
            const SocketAddress address = untried_.front();
            untried_.pop_front();
            socket_ = NewSocket(address.Family);
            if (socket_.Open() && ::connect(socket_.Get(), address.Get(), address.Length) == 0) {
                return true;
            }
            if (socket_.Open() && (errno == EINPROGRESS || errno == EINTR)) return true;
            Refused();
        }
        return false;
    }

    void Refused() {
        lastError_ = LastError();
        socket_.Close();
    }

    // A block of the link is small and is answered; holding it back to join it with others would
    // only slow the link down.
    void SendAtOnce() {
        const int on = 1;
        ::setsockopt(socket_.Get(), IPPROTO_TCP, TCP_NODELAY, &on, sizeof on);
    }

    Handle socket_;
    std::deque<SocketAddress> untried_;
    Error lastError_{ENOTCONN, "no address"};
    bool connected_ = false;
};

std::uint16_t PortOf(int descriptor) {
    sockaddr_storage bound{};
    socklen_t length = sizeof bound;
    char port[8] = "";
    if (::getsockname(descriptor, reinterpret_cast<sockaddr*>(&bound), &length) != 0 ||
        ::getnameinfo(reinterpret_cast<sockaddr*>(&bound), length, nullptr, 0, port, sizeof port,
                      NI_NUMERICSERV) != 0) {
        return 0;
    }
    return static_cast<std::uint16_t>(std::stoi(port));
}

class PosixTcpListener final : public TcpListener {
  public:
    explicit PosixTcpListener(Handle socket) : socket_(std::move(socket)) {}

    std::uint16_t Port() const override { return PortOf(socket_.Get()); }

    Result<std::unique_ptr<TcpStream>> Accept(int wait) override {
        std::unique_ptr<TcpStream> stream;
        if (!WaitFor(socket_.Get(), POLLIN, wait)) return stream;
        Handle socket(::accept4(socket_.Get(), nullptr, nullptr, SOCK_NONBLOCK | SOCK_CLOEXEC));
        if (socket.Open()) {
            stream = std::make_unique<PosixTcpStream>(std::move(socket));
        } else if (!OnlyBusy(errno) && errno != ECONNABORTED) {
            return LastError();
        }
        return stream;
    }

  private:
    Handle socket_;
};

}  // namespace

Result<std::unique_ptr<TcpStream>> PosixTcp::Connect(const TcpAddress& address) {
    auto found = LookUp(address, 0);
    if (!found.Ok()) return found.Why();
    return std::unique_ptr<TcpStream>(std::make_unique<PosixTcpStream>(std::move(found.Value())));
}

Result<std::unique_ptr<TcpListener>> PosixTcp::Listen(const TcpAddress& address) {
    const auto found = LookUp(address, AI_PASSIVE);
    if (!found.Ok()) return found.Why();
    Error error{EADDRNOTAVAIL, "no address"};
    for (const SocketAddress& one : found.Value()) {
        Handle socket = NewSocket(one.Family);
        const int on = 1;
        // A port that was listened on a moment ago may be used again at once.
        if (socket.Open() &&
            ::setsockopt(socket.Get(), SOL_SOCKET, SO_REUSEADDR, &on, sizeof on) == 0 &&
            ::bind(socket.Get(), one.Get(), one.Length) == 0 &&
            ::listen(socket.Get(), SOMAXCONN) == 0) {
            return std::unique_ptr<TcpListener>(
                std::make_unique<PosixTcpListener>(std::move(socket)));
        }
        error = LastError();
    }
    return error;
}

}  // namespace brask
