#include "connection/qt/QtGameSocket.h"
#include "config/Settings.h"
#include "support/RunLoopUntil.h"

#include <QHostAddress>
#include <QTcpServer>
#include <QTcpSocket>
#include <QTest>

#include <gtest/gtest.h>

#include <memory>
#include <string>
#include <vector>

namespace steward {
namespace {

class RecordingListener : public SocketListener {
  public:
    std::size_t BlockSize() const override { return blockSize; }
    void ReceiveBlock(const char* bytes, std::size_t length) override
    {
        blocks.emplace_back(bytes, length);
        received += length;
    }
    void ConnectionClosed() override { ++closed; }

    std::string All() const
    {
        std::string all;
        for (const std::string& b : blocks)
            all += b;
        return all;
    }

    std::size_t blockSize = 1024;
    std::vector<std::string> blocks;
    int closed = 0;
    std::size_t received = 0;
};

class QtGameSocketTest : public ::testing::Test {
  protected:
    void SetUp() override { ASSERT_TRUE(server.listen(QHostAddress::LocalHost, 0)); }

    bool OpenAndAccept()
    {
        if (!socket.Open("127.0.0.1", server.serverPort(), 5000))
            return false;
        if (!server.waitForNewConnection(5000))
            return false;
        peer.reset(server.nextPendingConnection());
        return peer != nullptr;
    }

    QTcpServer server;
    std::unique_ptr<QTcpSocket> peer;
    RecordingListener listener;
    QtGameSocket socket{listener};
};

// Each turn reads one block no larger than asked, and the drop comes after the last bytes.
TEST_F(QtGameSocketTest, ReadsOneBlockPerTurnNoLargerThanAskedAndTheDropComesLast)
{
    ASSERT_TRUE(OpenAndAccept());
    listener.blockSize = 256;
    const std::string sent(1000, 'a');
    peer->write(sent.data(), static_cast<qint64>(sent.size()));
    peer->flush();
    ASSERT_TRUE(QTest::qWaitFor([&] { return listener.All().size() == sent.size(); }, 5000));
    for (const std::string& block : listener.blocks)
        EXPECT_LE(block.size(), 256u);
    EXPECT_GE(listener.blocks.size(), 4u);

    listener.blockSize = 16;
    const std::string last(100, 'z');
    peer->write(last.data(), static_cast<qint64>(last.size()));
    peer->flush();
    peer->disconnectFromHost();
    ASSERT_TRUE(QTest::qWaitFor([&] { return listener.closed == 1; }, 5000));
    EXPECT_EQ(listener.All(), sent + last);
    socket.Write("x", 1);
    QTest::qWait(20);
    EXPECT_EQ(listener.closed, 1);
}

// The program's own close is no drop and sends what was queued; a closed port fails.
TEST_F(QtGameSocketTest, OwnCloseIsNoDropAndAClosedPortFails)
{
    ASSERT_TRUE(OpenAndAccept());
    socket.Write("quit\n\r", 6);
    socket.Close();
    socket.Close();
    QByteArray got;
    ASSERT_TRUE(QTest::qWaitFor(
        [&] {
            got += peer->readAll();
            return got.size() >= 6;
        },
        5000));
    EXPECT_EQ(got, QByteArray("quit\n\r"));
    QTest::qWait(20);
    EXPECT_EQ(listener.closed, 0);

    // Bytes of a closed connection that were read ahead never reach the next one.
    ASSERT_TRUE(OpenAndAccept());
    listener.blockSize = 16;
    peer->write(QByteArray(3000, 'o'));
    ASSERT_TRUE(QTest::qWaitFor([&] { return listener.received > 0; }, 5000));
    socket.Close();
    ASSERT_TRUE(OpenAndAccept());
    const std::size_t before = listener.received;
    peer->write("fresh");
    ASSERT_TRUE(QTest::qWaitFor([&] { return listener.received >= before + 5; }, 5000));
    QTest::qWait(20);
    EXPECT_EQ(listener.All().substr(before), "fresh");
    // A drop with nothing left to read is told at once.
    peer->disconnectFromHost();
    ASSERT_TRUE(QTest::qWaitFor([&] { return listener.closed == 1; }, 5000));

    const quint16 port = server.serverPort();
    server.close();
    RecordingListener other;
    QtGameSocket closed{other};
    EXPECT_FALSE(closed.Open("127.0.0.1", port, 5000));
}

// A stream many times longer than the socket reads ahead arrives whole without anything else
// turning the loop, whatever the block size, also one that fills the read-ahead exactly.
TEST(QtGameSocketFlood, AStreamLongerThanTheReadAheadArrivesWhole)
{
    constexpr qint64 Total = 64 * RECEIVE_CHUNK_MAX * 16;
    for (std::size_t blockSize :
         {std::size_t(1024), std::size_t(RECEIVE_CHUNK_MAX), std::size_t(1000), std::size_t(64)}) {
        QTcpServer server;
        ASSERT_TRUE(server.listen(QHostAddress::LocalHost, 0));
        RecordingListener listener;
        listener.blockSize = blockSize;
        QtGameSocket socket{listener};
        ASSERT_TRUE(socket.Open("127.0.0.1", server.serverPort(), 5000));
        ASSERT_TRUE(server.waitForNewConnection(5000));
        std::unique_ptr<QTcpSocket> peer(server.nextPendingConnection());
        QByteArray stream(Total, '\0');
        for (qint64 i = 0; i < Total; ++i)
            stream[i] = static_cast<char>(i % 251);
        peer->write(stream);
        EXPECT_TRUE(steward::testing::RunLoopUntil(
            [&] { return listener.received == static_cast<std::size_t>(Total); }, 10000))
            << "block " << blockSize << ": " << listener.received << " of " << Total;
        EXPECT_TRUE(listener.All() == stream.toStdString()) << "block " << blockSize;
    }
}

} // namespace
} // namespace steward
