#include <QDir>
#include <QFile>
#include <QProcess>
#include <QProcessEnvironment>
#include <QTemporaryDir>
#include <QTest>
#include <gtest/gtest.h>

#include <csignal>
#include <unistd.h>

namespace steward::test {
namespace {

constexpr int WAIT_MS = 15000;

// The real program against the real world, each in its own process; the client keeps its
// files in a data folder of its own.
class ClientProcessTest : public ::testing::Test {
  protected:
    void SetUp() override
    {
        ASSERT_TRUE(home.isValid());
        world.start(QStringLiteral(WORLD_BINARY), {"--port", "0", "--quiet", "--listen",
                                                   "127.0.0.1", "--record", Path("sent.bin")});
        ASSERT_TRUE(world.waitForStarted(WAIT_MS));
        ASSERT_TRUE(QTest::qWaitFor([this] { return world.canReadLine(); }, WAIT_MS));
        port = world.readLine().trimmed().toInt();
        ASSERT_GT(port, 0);
    }

    void TearDown() override
    {
        for (QProcess* process : {&client, &second, &world}) {
            if (process->state() == QProcess::NotRunning)
                continue;
            process->kill();
            process->waitForFinished(WAIT_MS);
        }
    }

    QString Path(const char* name) const { return home.filePath(QString::fromLatin1(name)); }
    QString DataFile(const char* name) const
    {
        return home.filePath(QStringLiteral("ThornmereSteward/") + QString::fromLatin1(name));
    }

    // The version notes were shown before, so that no editor is asked for.
    void StartClient(QProcess& process) { StartClient(process, QStringLiteral(CLIENT_BINARY), {}); }

    void StartClient(QProcess& process, const QString& program, QStringList arguments)
    {
        QDir().mkpath(home.filePath(QStringLiteral("ThornmereSteward")));
        QFile ini(DataFile("Thornmere.Ini"));
        if (!ini.exists() && ini.open(QIODevice::WriteOnly))
            ini.write("[Version Info]\nVersion=68000000\n");
        ini.close();
        QProcessEnvironment environment = QProcessEnvironment::systemEnvironment();
        environment.insert(QStringLiteral("XDG_DATA_HOME"), home.path());
        environment.insert(QStringLiteral("QT_QPA_PLATFORM"), QStringLiteral("offscreen"));
        process.setProcessEnvironment(environment);
        arguments << QStringLiteral("/H127.0.0.1/P%1").arg(port);
        process.start(program, arguments);
    }

    QByteArray Sent() const { return Read(home.filePath(QStringLiteral("sent.bin"))); }

    static QByteArray Read(const QString& path)
    {
        QFile file(path);
        return file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray();
    }

    QTemporaryDir home;
    QProcess world;
    QProcess client;
    QProcess second;
    int port = 0;
};

// One client runs while a second start on its folder ends at once; on SIGTERM the first says
// quit and saves. A --character path is refused, a name chooses the profile, and a data folder
// that cannot be written still plays and is left as it was.
TEST_F(ClientProcessTest, OneClientPerFolderTheCharacterOptionAndAReadOnlyFolder)
{
    StartClient(client);
    ASSERT_TRUE(client.waitForStarted(WAIT_MS));
    ASSERT_TRUE(QTest::qWaitFor([&] { return QFile::exists(DataFile("Default.Dat")); }, WAIT_MS));
    StartClient(second);
    ASSERT_TRUE(second.waitForFinished(WAIT_MS));
    EXPECT_EQ(second.exitCode(), 0);
    ASSERT_EQ(client.state(), QProcess::Running);
    QTest::qWait(300);
    ::kill(static_cast<pid_t>(client.processId()), SIGTERM);
    ASSERT_TRUE(client.waitForFinished(WAIT_MS));
    EXPECT_EQ(client.exitStatus(), QProcess::NormalExit);
    EXPECT_EQ(client.exitCode(), 0);
    EXPECT_TRUE(QTest::qWaitFor([&] { return Sent().contains("quit\n\r"); }, WAIT_MS));
    const QByteArray profile = Read(DataFile("Default.Dat"));
    EXPECT_TRUE(profile.contains("Open Windows=")) << profile.toStdString();
    EXPECT_TRUE(profile.contains("MainWindow="));
    const QByteArray ini = Read(DataFile("Thornmere.Ini"));
    EXPECT_TRUE(ini.contains("LastChar=Default"));
    EXPECT_TRUE(ini.contains("Version=68000000"));
    EXPECT_FALSE(ini.contains("[Connection]"));
    EXPECT_TRUE(QFile::exists(DataFile("Version Notes.Txt")));

    StartClient(client, QStringLiteral(CLIENT_BINARY), {"--character", "../Outside"});
    ASSERT_TRUE(client.waitForFinished(WAIT_MS));
    EXPECT_EQ(client.exitCode(), 2);
    EXPECT_TRUE(client.readAllStandardError().contains("--character"));
    EXPECT_FALSE(QFile::exists(Path("Outside.Dat")));
    StartClient(second, QStringLiteral(CLIENT_BINARY), {"--character", "Zed"});
    EXPECT_TRUE(QTest::qWaitFor([&] { return QFile::exists(DataFile("Zed.Dat")); }, WAIT_MS));
    second.terminate();
    ASSERT_TRUE(second.waitForFinished(WAIT_MS));
    EXPECT_TRUE(Read(DataFile("Thornmere.Ini")).contains("LastChar=Zed"));

    const QString folder = home.filePath(QStringLiteral("ThornmereSteward"));
    const QStringList before = QDir(folder).entryList(QDir::Files);
    QFile(folder).setPermissions(QFile::ReadOwner | QFile::ExeOwner);
    const QByteArray sentBefore = Sent();
    // Root writes anywhere, so as root the client runs without that power.
    QStringList arguments;
    QString program = QStringLiteral(CLIENT_BINARY);
    if (::geteuid() == 0) {
        arguments << QStringLiteral("--bounding-set=-dac_override,-dac_read_search,-fowner")
                  << program;
        program = QStringLiteral("setpriv");
    }
    StartClient(client, program, arguments);
    ASSERT_TRUE(client.waitForStarted(WAIT_MS));
    QTest::qWait(1500);
    ASSERT_EQ(client.state(), QProcess::Running);
    client.terminate();
    EXPECT_TRUE(client.waitForFinished(WAIT_MS));
    EXPECT_EQ(client.exitCode(), 0);
    EXPECT_TRUE(Sent().mid(sentBefore.size()).contains("quit\n\r"));
    QFile(folder).setPermissions(QFile::ReadOwner | QFile::WriteOwner | QFile::ExeOwner);
    EXPECT_EQ(QDir(folder).entryList(QDir::Files), before);
}

} // namespace
} // namespace steward::test
