#include "config/Settings.h"
#include "connection/qt/QtGameSocket.h"
#include "support/RunLoopUntil.h"

#include <QHostAddress>
#include <QTcpServer>
#include <QTcpSocket>

#include <gtest/gtest.h>

#include <memory>

namespace steward {
namespace {

class CountingListener : public SocketListener {
  public:
    std::size_t BlockSize() const override { return blockSize; }
    void ReceiveBlock(const char*, std::size_t length) override { received += length; }
    void ConnectionClosed() override {}
    std::size_t blockSize = 0;
    std::size_t received = 0;
};

using steward::testing::RunLoopUntil;

// A stream many times longer than the socket reads ahead arrives whole without anything else
// turning the loop, whatever the block size, also one that fills the read-ahead exactly.
TEST(QtGameSocketFlood, AStreamLongerThanTheReadAheadArrivesWhole)
{
    constexpr qint64 Total = 64 * RECEIVE_CHUNK_MAX * 16;
    for (std::size_t blockSize :
         {std::size_t(1024), std::size_t(RECEIVE_CHUNK_MAX), std::size_t(1000), std::size_t(64)}) {
        QTcpServer server;
        ASSERT_TRUE(server.listen(QHostAddress::LocalHost, 0));
        CountingListener listener;
        listener.blockSize = blockSize;
        QtGameSocket socket{listener};
        ASSERT_TRUE(socket.Open("127.0.0.1", server.serverPort(), 5000));
        ASSERT_TRUE(server.waitForNewConnection(5000));
        std::unique_ptr<QTcpSocket> peer(server.nextPendingConnection());
        peer->write(QByteArray(Total, 'a'));
        EXPECT_TRUE(RunLoopUntil(
            [&] { return listener.received == static_cast<std::size_t>(Total); }, 10000))
            << "block " << blockSize << ": " << listener.received << " of " << Total;
    }
}

} // namespace
} // namespace steward
