#include "connection/PacketDump.h"

#include <QDir>
#include <QFile>
#include <QProcess>
#include <QProcessEnvironment>
#include <QTemporaryDir>
#include <QTest>
#include <gtest/gtest.h>

namespace steward::test {
namespace {

constexpr int WAIT_MS = 15000;

// The real program on the command line, in a data folder of its own.
class ReplayProcessTest : public ::testing::Test {
  protected:
    void Start(const QStringList& arguments)
    {
        ASSERT_TRUE(home.isValid());
        QDir().mkpath(home.filePath(QStringLiteral("ThornmereSteward")));
        QFile ini(home.filePath(QStringLiteral("ThornmereSteward/Thornmere.Ini")));
        // The version notes were shown before, so that no editor is asked for.
        if (!ini.exists() && ini.open(QIODevice::WriteOnly))
            ini.write("[Version Info]\nVersion=68000000\n");
        ini.close();
        QProcessEnvironment environment = QProcessEnvironment::systemEnvironment();
        environment.insert(QStringLiteral("XDG_DATA_HOME"), home.path());
        environment.insert(QStringLiteral("QT_QPA_PLATFORM"), QStringLiteral("offscreen"));
        client.setProcessEnvironment(environment);
        client.start(QStringLiteral(CLIENT_BINARY), arguments);
    }

    void TearDown() override
    {
        if (client.state() == QProcess::NotRunning)
            return;
        client.kill();
        client.waitForFinished(WAIT_MS);
    }

    QString Path(const char* name) const { return home.filePath(QString::fromLatin1(name)); }

    QTemporaryDir home;
    QProcess client;
};

TEST_F(ReplayProcessTest, ReplayOptionsThatDoNotGoTogetherEndAtOnce)
{
    const struct {
        QStringList arguments;
        const char* told;
    } cases[] = {
        {{"--speed", "2"}, "--speed goes with --replay"},
        {{"--replay", "x.dump", "--speed", "fast"}, "--speed: give a number of 0 or more"},
        {{"--replay", "x.dump", "--speed", "-1"}, "--speed: give a number of 0 or more"},
        {{"--replay", "x.dump", "/H127.0.0.1/P34283"}, "give no connection string with it"},
    };
    for (const auto& c : cases) {
        Start(c.arguments);
        ASSERT_TRUE(client.waitForFinished(WAIT_MS)) << c.told;
        EXPECT_EQ(client.exitCode(), 2) << c.told;
        EXPECT_TRUE(client.readAllStandardError().contains(c.told)) << c.told;
    }
}

TEST_F(ReplayProcessTest, ADumpReplayedWithADumpOpenIsDumpedAsItWas)
{
    const std::string recorded = Path("recorded.dump").toStdString();
    {
        PacketDump dump;
        ASSERT_TRUE(dump.OpenNew(recorded.c_str()));
        for (const char* block : {"\r\nWelcome to Thornmere!\r\n\r\nBy what name are you known? ",
                                  "Well met, Tester.\r\n\x1B"
                                  "1ab[Thornmere, Market Square]\x1B"
                                  "0ab\r\nObvious exits: north.\r\n",
                                  ">"})
            DumpPacket(dump, block);
    }
    Start({"--trace", "--packet-dump", Path("again.dump"), "--replay",
           QString::fromStdString(recorded), "--speed", "0"});
    QByteArray trace;
    EXPECT_TRUE(QTest::qWaitFor(
        [&] {
            trace += client.readAllStandardError();
            return trace.contains("ended after 3 blocks");
        },
        WAIT_MS))
        << trace.toStdString();
    client.terminate();
    ASSERT_TRUE(client.waitForFinished(WAIT_MS));
    QFile again(Path("again.dump"));
    QFile original(QString::fromStdString(recorded));
    ASSERT_TRUE(again.open(QIODevice::ReadOnly) && original.open(QIODevice::ReadOnly));
    EXPECT_EQ(again.readAll(), original.readAll());
}

} // namespace
} // namespace steward::test
