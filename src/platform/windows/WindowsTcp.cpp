#include "platform/windows/WindowsTcp.h"

#include <winsock2.h>
#include <ws2tcpip.h>

#include <algorithm>
#include <climits>
#include <cstring>
#include <deque>
#include <utility>

#include "platform/windows/WindowsHandle.h"

namespace brask {
namespace {

Error ErrorOf(int number) { return windows::ErrorOf(static_cast<DWORD>(number)); }

Error LastError() { return ErrorOf(::WSAGetLastError()); }

// Owns a socket; INVALID_SOCKET stands for none.
class SocketHandle {
  public:
    explicit SocketHandle(SOCKET socket = INVALID_SOCKET) : socket_(socket) {}
    ~SocketHandle() { Close(); }
    SocketHandle(SocketHandle&& other) noexcept
        : socket_(std::exchange(other.socket_, INVALID_SOCKET)) {}
    SocketHandle& operator=(SocketHandle&& other) noexcept {
        if (this != &other) {
            Close();
            socket_ = std::exchange(other.socket_, INVALID_SOCKET);
        }
        return *this;
    }
    SocketHandle(const SocketHandle&) = delete;
    SocketHandle& operator=(const SocketHandle&) = delete;

    bool Open() const { return socket_ != INVALID_SOCKET; }
    SOCKET Get() const { return socket_; }
    bool Close() {
        const SOCKET socket = std::exchange(socket_, INVALID_SOCKET);
        return socket == INVALID_SOCKET || ::closesocket(socket) == 0;
    }

  private:
    SOCKET socket_;
};

// One form that a name has, as the system writes it.
struct SocketAddress {
    int Family = 0;
    sockaddr_storage Storage{};
    int Length = 0;

    const sockaddr* Get() const { return reinterpret_cast<const sockaddr*>(&Storage); }
};

Result<std::deque<SocketAddress>> LookUp(const TcpAddress& address, int flags) {
    addrinfo hints{};
    hints.ai_socktype = SOCK_STREAM;
    hints.ai_flags = flags;
    addrinfo* found = nullptr;
    const std::string port = std::to_string(address.Port);
    const int code = ::getaddrinfo(address.Host.c_str(), port.c_str(), &hints, &found);
    if (code != 0) return ErrorOf(code);
    std::deque<SocketAddress> addresses;
    for (const addrinfo* one = found; one != nullptr; one = one->ai_next) {
        SocketAddress entry;
        entry.Family = one->ai_family;
        entry.Length = static_cast<int>(one->ai_addrlen);
        std::memcpy(&entry.Storage, one->ai_addr, one->ai_addrlen);
        addresses.push_back(entry);
    }
    ::freeaddrinfo(found);
    return addresses;
}

void MakeNonBlocking(const SocketHandle& socket) {
    u_long on = 1;
    ::ioctlsocket(socket.Get(), static_cast<long>(FIONBIO), &on);
}

SocketHandle NewSocket(int family) {
    SocketHandle socket(::socket(family, SOCK_STREAM, IPPROTO_TCP));
    if (socket.Open()) MakeNonBlocking(socket);
    return socket;
}

enum class Wanted { kRead, kWrite };

// select, not WSAPoll: on older systems the latter does not report a refused connection.
bool WaitFor(const SocketHandle& socket, Wanted wanted, int wait) {
    fd_set one;
    fd_set trouble;
    FD_ZERO(&one);
    FD_ZERO(&trouble);
    FD_SET(socket.Get(), &one);
    FD_SET(socket.Get(), &trouble);
    timeval limit{0, std::clamp(wait, 0, kLongestTcpWait) * 1000};
    return ::select(0, wanted == Wanted::kRead ? &one : nullptr,
                    wanted == Wanted::kWrite ? &one : nullptr, &trouble, &limit) > 0;
}

class WindowsTcpStream final : public TcpStream {
  public:
    // A connection that somebody else made.
    explicit WindowsTcpStream(SocketHandle socket) : socket_(std::move(socket)), connected_(true) {
        SendAtOnce();
    }
    // One to be made to the first of these addresses that answers.
    explicit WindowsTcpStream(std::deque<SocketAddress> addresses)
        : untried_(std::move(addresses)) {}

    Result<bool> Connected(int wait) override {
        while (!connected_) {
            if (!socket_.Open() && !TryNext()) return lastError_;
            if (!WaitFor(socket_, Wanted::kWrite, wait)) return false;
            int error = 0;
            int length = sizeof error;
            ::getsockopt(socket_.Get(), SOL_SOCKET, SO_ERROR, reinterpret_cast<char*>(&error),
                         &length);
            if (error == 0) {
                connected_ = true;
                SendAtOnce();
            } else {
                Refused(error);
            }
        }
        return true;
    }

    Result<std::size_t> Send(std::string_view bytes, int wait) override {
        if (!connected_ || !WaitFor(socket_, Wanted::kWrite, wait)) return std::size_t{0};
        const int length = static_cast<int>(std::min<std::size_t>(bytes.size(), INT_MAX));
        const int sent = ::send(socket_.Get(), bytes.data(), length, 0);
        if (sent >= 0) return static_cast<std::size_t>(sent);
        if (::WSAGetLastError() == WSAEWOULDBLOCK) return std::size_t{0};
        return LastError();
    }

    Result<TcpBytes> Receive(std::size_t most, int wait) override {
        TcpBytes got;
        if (!connected_ || most == 0 || !WaitFor(socket_, Wanted::kRead, wait)) return got;
        got.Bytes.resize(std::min<std::size_t>(most, INT_MAX));
        const int length =
            ::recv(socket_.Get(), got.Bytes.data(), static_cast<int>(got.Bytes.size()), 0);
        const int error = length < 0 ? ::WSAGetLastError() : 0;
        got.Bytes.resize(length > 0 ? static_cast<std::size_t>(length) : 0);
        got.Closed = length == 0;
        if (error == 0 || error == WSAEWOULDBLOCK) return got;
        return ErrorOf(error);
    }

    bool Writable() const override { return connected_ && WaitFor(socket_, Wanted::kWrite, 0); }

    Status Close() override {
        connected_ = false;
        untried_.clear();
        lastError_ = ErrorOf(WSAENOTCONN);
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
            const int error = ::WSAGetLastError();
            if (socket_.Open() && error == WSAEWOULDBLOCK) return true;
            Refused(error);
        }
        return false;
    }

    void Refused(int error) {
        lastError_ = ErrorOf(error);
        socket_.Close();
    }

    // A block of the link is small and is answered; holding it back to join it with others would
    // only slow the link down.
    void SendAtOnce() {
        const BOOL on = TRUE;
        ::setsockopt(socket_.Get(), IPPROTO_TCP, TCP_NODELAY, reinterpret_cast<const char*>(&on),
                     sizeof on);
    }

    SocketHandle socket_;
    std::deque<SocketAddress> untried_;
    Error lastError_{WSAENOTCONN, "no address"};
    bool connected_ = false;
};

class WindowsTcpListener final : public TcpListener {
  public:
    explicit WindowsTcpListener(SocketHandle socket) : socket_(std::move(socket)) {}

    std::uint16_t Port() const override {
        sockaddr_storage bound{};
        int length = sizeof bound;
        char port[8] = "";
        if (::getsockname(socket_.Get(), reinterpret_cast<sockaddr*>(&bound), &length) != 0 ||
            ::getnameinfo(reinterpret_cast<sockaddr*>(&bound), length, nullptr, 0, port,
                          sizeof port, NI_NUMERICSERV) != 0) {
            return 0;
        }
        return static_cast<std::uint16_t>(std::stoi(port));
    }

    Result<std::unique_ptr<TcpStream>> Accept(int wait) override {
        std::unique_ptr<TcpStream> stream;
        if (!WaitFor(socket_, Wanted::kRead, wait)) return stream;
        SocketHandle socket(::accept(socket_.Get(), nullptr, nullptr));
        const int error = socket.Open() ? 0 : ::WSAGetLastError();
        if (socket.Open()) {
            MakeNonBlocking(socket);
            stream = std::make_unique<WindowsTcpStream>(std::move(socket));
        } else if (error != WSAEWOULDBLOCK && error != WSAECONNRESET) {
            return ErrorOf(error);
        }
        return stream;
    }

  private:
    SocketHandle socket_;
};

}  // namespace

WindowsTcp::~WindowsTcp() {
    if (started_) ::WSACleanup();
}

int WindowsTcp::StartLibrary() {
    if (started_) return 0;
    WSADATA data;
    const int error = ::WSAStartup(MAKEWORD(2, 2), &data);
    started_ = error == 0;
    return error;
}

Result<std::unique_ptr<TcpStream>> WindowsTcp::Connect(const TcpAddress& address) {
    if (const int error = StartLibrary(); error != 0) return ErrorOf(error);
    auto found = LookUp(address, 0);
    if (!found.Ok()) return found.Why();
    return std::unique_ptr<TcpStream>(std::make_unique<WindowsTcpStream>(std::move(found.Value())));
}

Result<std::unique_ptr<TcpListener>> WindowsTcp::Listen(const TcpAddress& address) {
    if (const int error = StartLibrary(); error != 0) return ErrorOf(error);
    const auto found = LookUp(address, AI_PASSIVE);
    if (!found.Ok()) return found.Why();
    Error error = ErrorOf(WSAEADDRNOTAVAIL);
    for (const SocketAddress& one : found.Value()) {
        SocketHandle socket = NewSocket(one.Family);
        // Without exclusive use another program could take the port over from under this one.
        const BOOL on = TRUE;
        if (socket.Open() &&
            ::setsockopt(socket.Get(), SOL_SOCKET, SO_EXCLUSIVEADDRUSE,
                         reinterpret_cast<const char*>(&on), sizeof on) == 0 &&
            ::bind(socket.Get(), one.Get(), one.Length) == 0 &&
            ::listen(socket.Get(), SOMAXCONN) == 0) {
            return std::unique_ptr<TcpListener>(
                std::make_unique<WindowsTcpListener>(std::move(socket)));
        }
        error = LastError();
    }
    return error;
}

}  // namespace brask
