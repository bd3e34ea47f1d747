#include "session/qt/SignalPipe.h"

#include <QSocketNotifier>

#include <csignal>
#include <fcntl.h>
#include <sys/socket.h>
#include <unistd.h>

namespace steward {

namespace {

int pipeEnds[2] = {-1, -1};

void WriteSignal(int)
{
    const char byte = 1;
    [[maybe_unused]] ssize_t written = ::write(pipeEnds[0], &byte, 1);
}

} // namespace

SignalPipe::SignalPipe(std::function<void()> onSignal, QObject* parent)
    : QObject(parent), onSignal_(std::move(onSignal))
{
    if (::socketpair(AF_UNIX, SOCK_STREAM, 0, pipeEnds) != 0)
        return;
    ::fcntl(pipeEnds[0], F_SETFL, O_NONBLOCK);
    notifier_ = new QSocketNotifier(pipeEnds[1], QSocketNotifier::Read, this);
    connect(notifier_, &QSocketNotifier::activated, this, &SignalPipe::Drain);
    struct sigaction action = {};
    action.sa_handler = WriteSignal;
    sigemptyset(&action.sa_mask);
    action.sa_flags = SA_RESTART;
    sigaction(SIGTERM, &action, nullptr);
    sigaction(SIGINT, &action, nullptr);
}

SignalPipe::~SignalPipe()
{
    if (!notifier_)
        return;
    std::signal(SIGTERM, SIG_DFL);
    std::signal(SIGINT, SIG_DFL);
    ::close(pipeEnds[0]);
    ::close(pipeEnds[1]);
    pipeEnds[0] = pipeEnds[1] = -1;
}

void SignalPipe::Drain()
{
    char bytes[16];
    [[maybe_unused]] ssize_t n = ::read(pipeEnds[1], bytes, sizeof bytes);
    if (onSignal_)
        onSignal_();
}

} // namespace steward
