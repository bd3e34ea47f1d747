#include "ClientHarness.h"

#include <QDir>
#include <QImage>
#include <QProcessEnvironment>

#include <csignal>
#include <optional>
#include <unistd.h>
#include <utility>
#include <vector>

namespace steward::test {
namespace {

constexpr int PROCESS_WAIT_MS = 15000;

// The real program against the real world, each in its own process; the client keeps its
// files in a data folder of its own, where the version notes were shown before.
class ProcessTest : public ::testing::Test {
  protected:
    void SetUp() override
    {
        ASSERT_TRUE(home.isValid());
        world = std::make_unique<WorldProcess>(Path("sent.bin"));
        ASSERT_GT(world->port, 0);
    }
    void TearDown() override
    {
        for (QProcess* process : {&client, &second, &xvfb}) {
            if (process->state() == QProcess::NotRunning)
                continue;
            process->kill();
            process->waitForFinished(PROCESS_WAIT_MS);
        }
    }

    QString Path(const char* name) const { return home.filePath(QString::fromLatin1(name)); }
    QString DataFile(const char* name) const
    {
        return home.filePath(QStringLiteral("ThornmereSteward/") + QString::fromLatin1(name));
    }

    void StartClient(QProcess& process, QStringList arguments = {},
                     QString program = QStringLiteral(CLIENT_BINARY))
    {
        QDir().mkpath(home.filePath(QStringLiteral("ThornmereSteward")));
        QFile ini(DataFile("Thornmere.Ini"));
        if (!ini.exists() && ini.open(QIODevice::WriteOnly))
            ini.write("[Version Info]\nVersion=68000000\n");
        ini.close();
        QProcessEnvironment environment = QProcessEnvironment::systemEnvironment();
        environment.insert(QStringLiteral("XDG_DATA_HOME"), home.path());
        environment.insert(QStringLiteral("QT_QPA_PLATFORM"),
                           display.isEmpty() ? QStringLiteral("offscreen") : QStringLiteral("xcb"));
        environment.insert(QStringLiteral("DISPLAY"), display);
        process.setProcessEnvironment(environment);
        arguments << QStringLiteral("/H127.0.0.1/P%1").arg(world->port);
        process.start(program, arguments);
    }

    QByteArray Sent() const { return ReadAll(Path("sent.bin")); }

    QTemporaryDir home;
    std::unique_ptr<WorldProcess> world;
    QProcess client;
    QProcess second;
    QProcess xvfb;
    QString display;
};

// One client runs while a second start on its folder ends at once; on SIGTERM the first says
// quit and saves. A --character path is refused, a name chooses the profile, and a data folder
// that cannot be written still plays and is left as it was.
TEST_F(ProcessTest, OneClientPerFolderTheCharacterOptionAndAReadOnlyFolder)
{
    StartClient(client);
    ASSERT_TRUE(client.waitForStarted(PROCESS_WAIT_MS));
    ASSERT_TRUE(
        QTest::qWaitFor([&] { return QFile::exists(DataFile("Default.Dat")); }, PROCESS_WAIT_MS));
    StartClient(second);
    ASSERT_TRUE(second.waitForFinished(PROCESS_WAIT_MS));
    EXPECT_EQ(second.exitCode(), 0);
    ASSERT_EQ(client.state(), QProcess::Running);
    QTest::qWait(300);
    ::kill(static_cast<pid_t>(client.processId()), SIGTERM);
    ASSERT_TRUE(client.waitForFinished(PROCESS_WAIT_MS));
    EXPECT_EQ(client.exitStatus(), QProcess::NormalExit);
    EXPECT_EQ(client.exitCode(), 0);
    EXPECT_TRUE(QTest::qWaitFor([&] { return Sent().contains("quit\n\r"); }, PROCESS_WAIT_MS));
    const QByteArray profile = ReadAll(DataFile("Default.Dat"));
    EXPECT_TRUE(profile.contains("Open Windows=")) << profile.toStdString();
    EXPECT_TRUE(profile.contains("MainWindow="));
    const QByteArray ini = ReadAll(DataFile("Thornmere.Ini"));
    EXPECT_TRUE(ini.contains("LastChar=Default"));
    EXPECT_TRUE(ini.contains("Version=68000000"));
    EXPECT_FALSE(ini.contains("[Connection]"));
    EXPECT_TRUE(QFile::exists(DataFile("Version Notes.Txt")));

    StartClient(client, {"--character", "../Outside"});
    ASSERT_TRUE(client.waitForFinished(PROCESS_WAIT_MS));
    EXPECT_EQ(client.exitCode(), 2);
    EXPECT_TRUE(client.readAllStandardError().contains("--character"));
    EXPECT_FALSE(QFile::exists(Path("Outside.Dat")));
    StartClient(second, {"--character", "Zed"});
    EXPECT_TRUE(
        QTest::qWaitFor([&] { return QFile::exists(DataFile("Zed.Dat")); }, PROCESS_WAIT_MS));
    second.terminate();
    ASSERT_TRUE(second.waitForFinished(PROCESS_WAIT_MS));
    EXPECT_TRUE(ReadAll(DataFile("Thornmere.Ini")).contains("LastChar=Zed"));

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
    StartClient(client, arguments, program);
    ASSERT_TRUE(client.waitForStarted(PROCESS_WAIT_MS));
    QTest::qWait(1500);
    ASSERT_EQ(client.state(), QProcess::Running);
    client.terminate();
    EXPECT_TRUE(client.waitForFinished(PROCESS_WAIT_MS));
    EXPECT_EQ(client.exitCode(), 0);
    EXPECT_TRUE(Sent().mid(sentBefore.size()).contains("quit\n\r"));
    QFile(folder).setPermissions(QFile::ReadOwner | QFile::WriteOwner | QFile::ExeOwner);
    EXPECT_EQ(QDir(folder).entryList(QDir::Files), before);
}

TEST(ReplayCommandLine, ReplayOptionsThatDoNotGoTogetherEndTheProgramAtOnce)
{
    const std::pair<QStringList, const char*> cases[] = {
        {{"--speed", "2"}, "--speed goes with --replay"},
        {{"--replay", "x.dump", "--speed", "fast"}, "--speed: give a number of 0 or more"},
        {{"--replay", "x.dump", "/H127.0.0.1/P34283"}, "give no connection string with it"},
    };
    for (const auto& [arguments, told] : cases) {
        QProcess client;
        client.start(QStringLiteral(CLIENT_BINARY), arguments);
        ASSERT_TRUE(client.waitForFinished(PROCESS_WAIT_MS)) << told;
        EXPECT_EQ(client.exitCode(), 2) << told;
        EXPECT_TRUE(client.readAllStandardError().contains(told)) << told;
    }
}

// Time for the client to draw what a click or a key changed.
constexpr int SETTLE_MS = 300;

// The real program on an X server of its own, driven with the mouse and keys as a player
// drives it: xdotool clicks and types, ImageMagick's import shows what is on the screen.
class CloseButtonTest : public ProcessTest {
  protected:
    void SetUp() override
    {
        ProcessTest::SetUp();
        // -displayfd 1: the server takes a free display and writes its number on its output.
        xvfb.start(QStringLiteral("Xvfb"),
                   {"-displayfd", "1", "-screen", "0", "1024x768x24", "-nolisten", "tcp"});
        ASSERT_TRUE(QTest::qWaitFor([this] { return xvfb.canReadLine(); }, PROCESS_WAIT_MS));
        display = QStringLiteral(":") + QString::fromLatin1(xvfb.readLine().trimmed());
        // A fresh profile: Auto-arrange on.
        client.setProcessChannelMode(QProcess::ForwardedErrorChannel);
        StartClient(client);
        ASSERT_TRUE(QTest::qWaitFor([&] { return QFile::exists(DataFile("Default.Dat")); },
                                    PROCESS_WAIT_MS));
    }

    bool Run(const QString& program, const QStringList& arguments) const
    {
        QProcess tool;
        QProcessEnvironment environment = QProcessEnvironment::systemEnvironment();
        environment.insert(QStringLiteral("DISPLAY"), display);
        tool.setProcessEnvironment(environment);
        tool.start(program, arguments);
        return tool.waitForFinished(PROCESS_WAIT_MS) && tool.exitCode() == 0;
    }

    QImage Screen() const
    {
        const QString path = Path("screen.png");
        if (!Run(QStringLiteral("import"), {"-window", "root", path}))
            return {};
        return QImage(path);
    }

    void Click(QPoint at) const
    {
        Run(QStringLiteral("xdotool"),
            {"mousemove", QString::number(at.x()), QString::number(at.y()), "click", "1"});
        QTest::qWait(SETTLE_MS);
    }

    void Key(const char* name) const
    {
        Run(QStringLiteral("xdotool"), {"key", QString::fromLatin1(name)});
        QTest::qWait(SETTLE_MS);
    }
};

bool IsTitleBlue(QRgb pixel)
{
    return qBlue(pixel) > 150 && qBlue(pixel) - qRed(pixel) > 60;
}

// The close button of the active text window: at the right end of the top-most band of rows
// that the active title bar's colour fills for a third of the screen's width.
std::optional<QPoint> ActiveCloseButton(const QImage& screen)
{
    int top = -1;
    int bottom = -1;
    for (int y = 0; y < screen.height(); ++y) {
        int blue = 0;
        for (int x = 0; x < screen.width(); ++x)
            blue += IsTitleBlue(screen.pixel(x, y));
        if (blue > screen.width() / 3) {
            top = top < 0 ? y : top;
            bottom = y;
        } else if (top >= 0) {
            break;
        }
    }
    if (top < 0)
        return std::nullopt;
    const int middle = (top + bottom) / 2;
    int right = 0;
    for (int x = 0; x < screen.width(); ++x)
        if (IsTitleBlue(screen.pixel(x, middle)))
            right = x;
    return QPoint(right - (bottom - top + 1) / 2, middle);
}

// The menu title that is the given one counted from the right of the menu bar: the words
// are runs of dark columns in the bar's top rows. A maximised window's icon at the bar's left
// and its buttons at the right lie outside the searched columns.
std::optional<QPoint> MenuTitleFromRight(const QImage& screen, int fromRight)
{
    constexpr int FIRST_COLUMN = 18;
    constexpr int LAST_COLUMN = 900;
    constexpr int WORD_GAP = 8;
    std::vector<std::pair<int, int>> words;
    int lastDark = -WORD_GAP;
    for (int x = FIRST_COLUMN; x < LAST_COLUMN && x < screen.width(); ++x) {
        bool dark = false;
        for (int y = 2; y < 16; ++y) {
            const QRgb pixel = screen.pixel(x, y);
            dark = dark || (qRed(pixel) < 90 && qGreen(pixel) < 90 && qBlue(pixel) < 90);
        }
        if (!dark)
            continue;
        if (x - lastDark >= WORD_GAP)
            words.emplace_back(x, x);
        words.back().second = x;
        lastDark = x;
    }
    if (static_cast<int>(words.size()) < fromRight)
        return std::nullopt;
    const auto& word = words[words.size() - fromRight];
    return QPoint((word.first + word.second) / 2, 8);
}

TEST_F(CloseButtonTest, TheGameWindowClosesAndOpensTwentyTimesAndTheClientRunsOn)
{
    // Help, Internet, Window: the third title from the right.
    constexpr int WINDOW_MENU_FROM_RIGHT = 3;
    for (int i = 0; i < 20; ++i) {
        std::optional<QPoint> close;
        ASSERT_TRUE(QTest::qWaitFor(
            [&] { return (close = ActiveCloseButton(Screen())).has_value(); }, PROCESS_WAIT_MS))
            << "no active text window in round " << i;
        Click(*close);
        ASSERT_EQ(client.state(), QProcess::Running) << "after the close in round " << i;
        const QImage closed = Screen();
        ASSERT_NE(ActiveCloseButton(closed), close) << "the window stayed in round " << i;
        const std::optional<QPoint> menu = MenuTitleFromRight(closed, WINDOW_MENU_FROM_RIGHT);
        ASSERT_TRUE(menu) << "no Window menu in round " << i;
        Click(*menu);
        // "Open a Game Window" is the first item that is enabled once the window is closed.
        Key("Down");
        Key("Return");
        ASSERT_EQ(client.state(), QProcess::Running) << "after the reopening in round " << i;
    }
    ::kill(static_cast<pid_t>(client.processId()), SIGTERM);
    ASSERT_TRUE(client.waitForFinished(PROCESS_WAIT_MS));
    EXPECT_EQ(client.exitStatus(), QProcess::NormalExit);
    EXPECT_EQ(client.exitCode(), 0);
}

} // namespace
} // namespace steward::test
