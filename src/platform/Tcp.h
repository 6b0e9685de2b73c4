// Connections over TCP, as the simulated instrument and the programs that try it need them. Nothing
// here waits longer than kLongestTcpWait, so that a loop around it can answer its user.
#pragma once

#include <cstddef>
#include <cstdint>
#include <memory>
#include <optional>
#include <string>
#include <string_view>

#include "platform/Result.h"

namespace brask {

// Milliseconds; longer waits that are asked for are cut to it.
inline constexpr int kLongestTcpWait = 50;

struct TcpAddress {
    std::string Host;  // a name or a number; an IPv6 number without its brackets
    std::uint16_t Port = 0;
};

// HOST:PORT, with an IPv6 number in brackets: [::1]:4711. Nothing when the host is missing or the
// port is no number from 0 to 65535.
std::optional<TcpAddress> ParseTcpAddress(std::string_view text);
// The same the other way.
std::string TcpAddressText(const TcpAddress& address);

struct TcpBytes {
    std::string Bytes;    // empty when nothing came within the wait
    bool Closed = false;  // the other side has closed and everything it sent was read
};

// One connection; destroying it closes it. Errors carry the system's number; after one only Close
// makes sense. All waits are in milliseconds.
class TcpStream {
  public:
    virtual ~TcpStream() = default;

    // Whether the connection stands; false while it is still being made. An error means that it
    // will never stand. Sending and receiving on a connection that does not stand yet do nothing.
    virtual Result<bool> Connected(int wait) = 0;
    // Hands bytes over for sending; how many were taken, from the first on. Fewer than given, or
    // none, when the other side does not read; the rest is the caller's to send again. No signal
    // is raised when the other side is gone.
    virtual Result<std::size_t> Send(std::string_view bytes, int wait) = 0;
    // At most `most` bytes, as soon as any are there.
    virtual Result<TcpBytes> Receive(std::size_t most, int wait) = 0;
    // Whether Send would take at least one byte now.
    virtual bool Writable() const = 0;
    // What was taken for sending still goes out. A second call does nothing.
    virtual Status Close() = 0;
};

// Waits for others to connect; destroying it stops that, connections made go on.
class TcpListener {
  public:
    virtual ~TcpListener() = default;

    // The port that the system chose when 0 was asked for, else the one asked for.
    virtual std::uint16_t Port() const = 0;
    // The next connection; null when nobody came within the wait.
    virtual Result<std::unique_ptr<TcpStream>> Accept(int wait) = 0;
};

class Tcp {
  public:
    virtual ~Tcp() = default;

    // Starts connecting and returns at once; TcpStream::Connected tells when it stands. Of several
    // addresses of a name each is tried. Looking a name up is the one thing that may take the
    // system longer than kLongestTcpWait; numbers and "localhost" do not.
    virtual Result<std::unique_ptr<TcpStream>> Connect(const TcpAddress& address) = 0;
    // Listens on the host's first address that can be listened on; port 0 lets the system choose.
    virtual Result<std::unique_ptr<TcpListener>> Listen(const TcpAddress& address) = 0;
};

}  // namespace brask
