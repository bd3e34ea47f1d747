#pragma once

#include "base/ByteText.h"
#include "config/ConfigFiles.h"
#include "config/StewardOptions.h"
#include "session/qt/Client.h"
#include "session/qt/FrameWindow.h"
#include "support/RecordingDesktop.h"
#include "terminal/AnsiWindow.h"
#include "terminal/TextBuffer.h"

#include <QApplication>
#include <QFile>
#include <QProcess>
#include <QTemporaryDir>
#include <QTest>
#include <gtest/gtest.h>

#include <memory>
#include <string>
#include <vector>

namespace steward::test {

constexpr int WAIT_MS = 10000;

// The practice world as a separate process on a free port of 127.0.0.1, recording every byte
// that its clients send.
class WorldProcess {
  public:
    explicit WorldProcess(const QString& recordFile, const QStringList& more = {})
    {
        process.start(
            QStringLiteral(WORLD_BINARY),
            QStringList{"--port", "0", "--quiet", "--listen", "127.0.0.1", "--record", recordFile} +
                more);
        if (!process.waitForStarted(WAIT_MS))
            return;
        if (QTest::qWaitFor([this] { return process.canReadLine(); }, WAIT_MS))
            port = process.readLine().trimmed().toInt();
    }
    ~WorldProcess() { Stop(); }

    void Stop()
    {
        if (process.state() == QProcess::NotRunning)
            return;
        process.kill();
        process.waitForFinished(WAIT_MS);
    }

    QProcess process;
    int port = 0;
};

inline QByteArray ReadAll(const QString& path)
{
    QFile file(path);
    return file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray();
}

// Each test gets its own practice world and data folder, and drives real clients against them.
class ClientHarness : public ::testing::Test {
  protected:
    void SetUp() override
    {
        ASSERT_TRUE(folder.isValid());
        world = std::make_unique<WorldProcess>(folder.filePath("sent.bin"));
        ASSERT_GT(world->port, 0);
    }

    std::unique_ptr<Client> MakeClient(const std::string& connection,
                                       const std::string& packetDump = {})
    {
        ClientOptions options;
        options.Files = MakeConfigFiles(folder.path().toStdString());
        options.ConnectionString = connection;
        options.PacketDumpPath = packetDump;
        return std::make_unique<Client>(std::move(options), desktop);
    }

    // Starts a client and logs in as Tester, up to the first status record.
    std::unique_ptr<Client> LoggedInClient()
    {
        auto client = MakeClient(Address());
        if (!client->Start() || !WaitForGameText(*client, "By what name are you known?"))
            return nullptr;
        Type(*client, "Tester");
        if (!QTest::qWaitFor([&] { return client->State().Panel.Hp.GetMax() > 0; }, WAIT_MS))
            return nullptr;
        return client;
    }

    std::string Address() const { return "/H127.0.0.1/P" + std::to_string(world->port); }
    std::string File(const char* name) const { return folder.filePath(name).toStdString(); }

    void WriteFile(const char* name, const QByteArray& bytes) const
    {
        QFile file(folder.filePath(name));
        ASSERT_TRUE(file.open(QIODevice::WriteOnly));
        file.write(bytes);
    }

    void TurnOn(StewardOption option, std::int32_t value) const
    {
        const std::string ini = MakeConfigFiles(folder.path().toStdString()).MainIni;
        StewardOptions options = StewardOptions::Load(ini);
        options.Set(option, value);
        ASSERT_TRUE(options.Save(ini));
    }

    static std::string GameText(Client& client)
    {
        AnsiWindow* game = client.State().Windows.GameWindow;
        if (!game)
            return {};
        std::vector<char> text(60000);
        game->GetText(text.data(), static_cast<std::uint16_t>(text.size()));
        return text.data();
    }

    // Every byte that a window holds, colour codes included.
    static std::string WindowBytes(AnsiWindow* window)
    {
        if (!window)
            return {};
        TextBuffer& live = window->GetLiveBuffer();
        std::string bytes;
        for (auto at = live.GetHeadPos(); at != live.GetWritePos(); at = live.Next(at))
            bytes.push_back(static_cast<char>(live.ByteAt(at)));
        return bytes;
    }

    static bool WaitForBytes(AnsiWindow* window, const std::string& needle)
    {
        return QTest::qWaitFor(
            [&] { return WindowBytes(window).find(needle) != std::string::npos; }, WAIT_MS);
    }

    // The last bytes of the Game window, however much text it holds.
    static std::string GameTail(Client& client, int count)
    {
        TextBuffer& live = client.State().Windows.GameWindow->GetLiveBuffer();
        std::string tail;
        auto at = live.GetWritePos();
        for (int i = 0; i < count && at != live.GetHeadPos(); ++i) {
            at = live.Prev(at);
            tail.insert(tail.begin(), static_cast<char>(live.ByteAt(at)));
        }
        return tail;
    }

    static bool WaitForGameText(Client& client, const std::string& needle)
    {
        return QTest::qWaitFor([&] { return GameText(client).find(needle) != std::string::npos; },
                               WAIT_MS);
    }

    QByteArray Sent() const { return ReadAll(folder.filePath("sent.bin")); }

    bool WaitForSent(const QByteArray& needle) const
    {
        return QTest::qWaitFor([&] { return Sent().contains(needle); }, WAIT_MS);
    }

    // After a second connection the world asks the name again, and once it is given the client
    // asks for the status records a second time.
    void ExpectStatusRecordsAskedAgain(Client& client)
    {
        ASSERT_TRUE(QTest::qWaitFor([&] { return Sent().count("Tester\n\r") == 1; }, WAIT_MS));
        Type(client, "Tester");
        EXPECT_TRUE(
            QTest::qWaitFor([&] { return Sent().count("Set Steward On\n\r") == 2; }, WAIT_MS))
            << Sent().toStdString();
    }

    static void Type(Client& client, const char* text)
    {
        FrameWindow& frame = client.Frame();
        QApplication::setActiveWindow(&frame);
        QWidget* line = frame.CommandLine();
        line->setFocus();
        QTest::keyClicks(line, QString::fromLatin1(text));
        QTest::keyClick(line, Qt::Key_Return);
    }

    QTemporaryDir folder;
    std::unique_ptr<WorldProcess> world;
    RecordingDesktop desktop;
};

} // namespace steward::test
