#include "WorldHarness.h"

#include <QCoreApplication>
#include <QDeadlineTimer>
#include <QEventLoop>

namespace {

int argc = 1;
char name[] = "test_world";
char* argv[] = {name, nullptr};
QCoreApplication application(argc, argv);

// Only a safety net for a broken server; a passing test never waits this long.
constexpr int SafetyLimitMs = 10000;

} // namespace

WorldOptions TestWorld::QuietOptions()
{
    WorldOptions options;
    options.port = 0;
    options.quiet = true;
    return options;
}

TestWorld::TestWorld(WorldOptions options) : server(std::make_unique<Server>(options))
{
    QString error;
    if (server->Start(error))
        port = server->Port();
}

TestClient::TestClient(quint16 port)
{
    socket.connectToHost(QHostAddress::LocalHost, port);
    QDeadlineTimer limit(SafetyLimitMs);
    while (socket.state() != QAbstractSocket::ConnectedState && !limit.hasExpired() &&
           socket.state() != QAbstractSocket::UnconnectedState)
        QCoreApplication::processEvents(QEventLoop::WaitForMoreEvents, 50);
}

void TestClient::Send(const QByteArray& line)
{
    SendRaw(line + "\n\r");
}

void TestClient::SendRaw(const QByteArray& bytes)
{
    socket.write(bytes);
    socket.flush();
}

bool TestClient::Pump()
{
    QCoreApplication::processEvents(QEventLoop::WaitForMoreEvents, 50);
    received += socket.readAll();
    return socket.state() == QAbstractSocket::ConnectedState || socket.bytesAvailable() > 0;
}

QByteArray TestClient::ReadUntil(const QByteArray& needle)
{
    QDeadlineTimer limit(SafetyLimitMs);
    qsizetype found = received.indexOf(needle, readPosition);
    while (found < 0 && !limit.hasExpired() && Pump())
        found = received.indexOf(needle, readPosition);
    if (found < 0)
        found = received.indexOf(needle, readPosition);
    if (found < 0)
        return {};
    const QByteArray text = received.mid(readPosition, found + needle.size() - readPosition);
    readPosition = found + needle.size();
    return text;
}

QByteArray TestClient::ReadUntilClosed()
{
    QDeadlineTimer limit(SafetyLimitMs);
    while (!limit.hasExpired() && Pump()) {
    }
    received += socket.readAll();
    const QByteArray text = received.mid(readPosition);
    readPosition = received.size();
    return text;
}

void TestClient::Login(const QByteArray& name)
{
    ReadUntil("By what name are you known? ");
    Send(name);
    ReadUntil("Obvious exits:");
    ReadUntil(">");
}
