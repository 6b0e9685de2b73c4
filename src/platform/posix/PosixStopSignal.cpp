#include "platform/posix/PosixStopSignal.h"

#include <sys/signalfd.h>

namespace brask {

// A descriptor rather than a handler: a handler could only reach a global.
PosixStopSignal::PosixStopSignal() {
    sigset_t wanted;
    sigemptyset(&wanted);
    for (const int signal : {SIGINT, SIGTERM, SIGHUP}) sigaddset(&wanted, signal);
    sigemptyset(&before_);
    signals_ = posix::Handle(::signalfd(-1, &wanted, SFD_NONBLOCK | SFD_CLOEXEC));
    // A blocked signal that nobody can read would make the program unstoppable.
    if (signals_.Open()) pthread_sigmask(SIG_BLOCK, &wanted, &before_);
}

PosixStopSignal::~PosixStopSignal() {
    if (!signals_.Open()) return;
    // What is still pending has been answered; let through, it would end the program by force.
    (void)Requested();
    pthread_sigmask(SIG_SETMASK, &before_, nullptr);
}

bool PosixStopSignal::Requested() {
    signalfd_siginfo one{};
    while (signals_.Open() && ::read(signals_.Get(), &one, sizeof one) == sizeof one) {
        requested_ = true;
    }
    return requested_;
}

}  // namespace brask
