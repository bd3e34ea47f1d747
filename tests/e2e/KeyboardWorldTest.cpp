#include "Server.h"
#include "WorldOptions.h"
#include "commands/KeyboardDoubles.h"
#include "commands/qt/CommandLine.h"
#include "commands/qt/KeyFilterQt.h"
#include "commands/qt/MacroSheet.h"
#include "connection/Connection.h"
#include "connection/GameLineSink.h"
#include "connection/GameSocket.h"
#include "connection/StreamDecoder.h"
#include "connection/qt/QtGameSocket.h"

#include <QApplication>
#include <QFile>
#include <QLineEdit>
#include <QMainWindow>
#include <QTabWidget>
#include <QTemporaryDir>
#include <QTest>
#include <gtest/gtest.h>

#include <cstring>
#include <memory>
#include <string>

namespace steward::test {
namespace {

// The received stream is decoded and dropped: these tests read what the world was sent.
class IgnoredLines : public GameLineSink {
  public:
    void ProcessGameLine(const char*) override {}
};

class DecodingListener : public SocketListener {
  public:
    explicit DecodingListener(StreamDecoder& decoder) : decoder_(decoder) {}
    std::size_t BlockSize() const override { return 1024; }
    void ReceiveBlock(const char* bytes, std::size_t length) override
    {
        decoder_.HandleSocketEvent(bytes, length);
    }
    void ConnectionClosed() override {}

  private:
    StreamDecoder& decoder_;
};

// The road's far end as the frame builds it: SendLine of the real connection.
class ConnectionSink : public CommandSink {
  public:
    explicit ConnectionSink(Connection& connection) : connection_(connection) {}
    void EchoCommand(const char*) override {}
    void SetEchoPending() override {}
    void SendLine(const char* text) override { connection_.SendLine(text); }
    void RecordCommand(const char*) override {}

  private:
    Connection& connection_;
};

// The practice world in this process, recording every byte a client sends, and the keyboard
// of a client connected to it.
class KeyboardWorldTest : public ::testing::Test {
  protected:
    void SetUp() override
    {
        ASSERT_TRUE(folder.isValid());
        WorldOptions options;
        options.port = 0;
        options.quiet = true;
        options.recordFile = folder.filePath("sent.bin");
        server = std::make_unique<Server>(options);
        QString error;
        ASSERT_TRUE(server->Start(error)) << error.toStdString();
        std::string address = "/H127.0.0.1/P" + std::to_string(server->Port());
        ASSERT_EQ(connection.ConnectToGame(address.c_str()), CONNECT_OK);

        window.setCentralWidget(line);
        SetDefaultMacros(keyboard.Macros, false);
        qApp->installEventFilter(&qtFilter);
        window.show();
        QApplication::setActiveWindow(&window);
        line->setFocus();
        ASSERT_TRUE(QTest::qWaitForWindowActive(&window));
    }
    void TearDown() override
    {
        qApp->removeEventFilter(&qtFilter);
        connection.ShutdownConnection();
    }

    void Click(Qt::Key key, Qt::KeyboardModifiers modifiers = Qt::NoModifier)
    {
        QTest::keyClick(line, key, modifiers);
        ServeEnterKeys(queue, keyboard.Sender);
    }
    QByteArray Recorded() const
    {
        QFile file(folder.filePath("sent.bin"));
        return file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray();
    }
    // Waits until the world has recorded the bytes.
    bool WorldReceived(const QByteArray& bytes)
    {
        return QTest::qWaitFor([&] { return Recorded().contains(bytes); }, 5000);
    }

    QTemporaryDir folder;
    std::unique_ptr<Server> server;
    IgnoredLines lines;
    PacketDump dump;
    Settings settings;
    StreamDecoder decoder{lines, dump, settings};
    DecodingListener listener{decoder};
    QtGameSocket socket{listener};
    Connection connection{socket, decoder};
    ConnectionSink sink{connection};
    RecordingQueue queue;
    RecordingHost host;
    QMainWindow window;
    CommandLine* line = new CommandLine(&window); // owned by the window
    Keyboard keyboard{*line, sink, queue, host, settings};
    KeyFilterQt qtFilter{keyboard.Filter, *line};
};

TEST_F(KeyboardWorldTest, KeypadEightWalksNorth)
{
    QTest::keyClicks(line, "half typed");
    Click(Qt::Key_8, Qt::KeypadModifier);
    EXPECT_TRUE(WorldReceived(QByteArray("n\n\r")));
    EXPECT_FALSE(Recorded().contains("half"));
}

TEST_F(KeyboardWorldTest, AMacroWithItsOwnEnterSends)
{
    keyboard.Macros.SetMacro(KEY_ALT, 'K', "kick @rat\\r");
    Click(Qt::Key_K, Qt::AltModifier);
    EXPECT_TRUE(WorldReceived(QByteArray("kick rat\n\r")));
}

TEST_F(KeyboardWorldTest, AMacroWrittenInTheSheetSendsAndSurvivesARestart)
{
    {
        MacroSheet sheet(keyboard.Macros, &window);
        sheet.Tabs()->setCurrentIndex(1);
        static_cast<LetterPage*>(sheet.Page(1))->Edit('J' - 'A')->setText("say sheet macro\\r");
        sheet.accept();
    }
    const QByteArray path = folder.filePath("Default.Macros").toLocal8Bit();
    ASSERT_TRUE(keyboard.Macros.SaveMacros(path.constData()));
    keyboard.Macros.LoadMacros("");
    keyboard.Macros.LoadMacros(path.constData());
    Click(Qt::Key_J, Qt::ControlModifier);
    EXPECT_TRUE(WorldReceived(QByteArray("say sheet macro\n\r")));
}

TEST_F(KeyboardWorldTest, NameColonMessageGoesOutAsAContact)
{
    QTest::keyClicks(line, "bob:hello");
    Click(Qt::Key_Return);
    EXPECT_TRUE(WorldReceived(QByteArray("contact bob hello\n\r")));
}

TEST_F(KeyboardWorldTest, ADraggedMoveIsSentAsDragWhileTheHistoryKeepsTheMove)
{
    settings.MinCommandLength = 0;
    std::strcpy(keyboard.State.DragTarget, "bob");
    QTest::keyClicks(line, "n");
    Click(Qt::Key_Return);
    EXPECT_TRUE(WorldReceived(QByteArray("drag bob n\n\r")));
    EXPECT_STREQ(keyboard.History.EntryAt(0), "n");
}

} // namespace
} // namespace steward::test
