#include "platform/posix/PosixInfraredSockets.h"

#include <poll.h>
#include <sys/socket.h>

#include "platform/InfraredBlocks.h"
#include "platform/posix/KernelInfrared.h"
#include "platform/posix/PosixHandle.h"

namespace brask {
namespace {

using posix::Handle;
using posix::LastError;

bool OnlyBusy(int error) { return error == EAGAIN || error == EWOULDBLOCK || error == EINTR; }

class KernelInfraredSocket final : public InfraredSocket {
  public:
    explicit KernelInfraredSocket(Handle socket) : socket_(std::move(socket)) {}

    Result<bool> ListDevices(InfraredDeviceList& devices) override {
        devices.fill('\0');
        posix::KernelDeviceList list{};
        socklen_t length = list.size();
        if (::getsockopt(socket_.Get(), posix::kInfraredLevel, posix::kEnumerateDevices,
                         list.data(), &length) == 0) {
            devices = posix::DevicesFromKernel(list, length);
        } else if (errno != EAGAIN) {
            // this kernel reports an empty list as "try again"
            return LastError();
        }
        return true;
    }

    Result<bool> Connect(const InfraredAddress& address) override {
        // Started once; the later calls only look how it came out.
        if (!connecting_) {
            const posix::KernelAddress kernel = posix::AddressForKernel(address);
            connecting_ = true;
            if (::connect(socket_.Get(), reinterpret_cast<const sockaddr*>(kernel.data()),
                          kernel.size()) == 0) {
                return true;
            }
            if (errno != EINPROGRESS && errno != EINTR) return LastError();
        }
        if (!WaitFor(POLLOUT, kInfraredWait)) return false;
        int error = 0;
        socklen_t length = sizeof error;
        ::getsockopt(socket_.Get(), SOL_SOCKET, SO_ERROR, &error, &length);
        if (error == 0) return true;
        errno = error;
        return LastError();
    }

    Result<std::size_t> Send(std::string_view bytes) override { return Send(bytes, 0); }
    Result<std::size_t> SendUrgent(std::string_view bytes) override { return Send(bytes, MSG_OOB); }
    bool Writable() override { return WaitFor(POLLOUT, 0); }

    Result<ReceivedBlock> Receive() override {
        ReceivedBlock block;
        if (!WaitFor(POLLIN, kInfraredWait)) return block;
        std::string bytes(kLongestInfraredBlock, '\0');
        const ssize_t length = ::recv(socket_.Get(), bytes.data(), bytes.size(), 0);
        if (length < 0) return OnlyBusy(errno) ? Result<ReceivedBlock>(block) : LastError();
        block.Closed = length == 0;
        bytes.resize(static_cast<std::size_t>(length));
        // then more of the same block may wait
        const bool full = bytes.size() == kLongestInfraredBlock;
        block.Bytes = blocks_.Next(std::move(bytes), full);
        return block;
    }

    Status Close() override { return socket_.Close() ? Status() : LastError(); }

  private:
    // Also true for trouble, which the next call then reports.
    bool WaitFor(short events, int wait) const {
        pollfd one{socket_.Get(), events, 0};
        return ::poll(&one, 1, wait) > 0;
    }

    Result<std::size_t> Send(std::string_view bytes, int flags) {
        const ssize_t sent =
            ::send(socket_.Get(), bytes.data(), bytes.size(), flags | MSG_NOSIGNAL);
        if (sent < 0) return LastError();
        if (static_cast<std::size_t>(sent) < bytes.size()) {
            // the rest would arrive as a command of its own, with a first byte that is no control
            // byte
            errno = ENOBUFS;
            return LastError();
        }
        return bytes.size();
    }

    Handle socket_;
    bool connecting_ = false;
    InfraredBlocks blocks_;
};

}  // namespace

Result<std::unique_ptr<InfraredSocket>> PosixInfraredSockets::Open() {
    // The probe: kernels that have dropped infrared do not know the family. No waiting, since the
    // loop around it has a user to answer.
    Handle socket(::socket(posix::kInfraredFamily, SOCK_STREAM | SOCK_NONBLOCK | SOCK_CLOEXEC, 0));
    if (!socket.Open()) return LastError();
    std::unique_ptr<InfraredSocket> open =
        std::make_unique<KernelInfraredSocket>(std::move(socket));
    return open;
}

}  // namespace brask
