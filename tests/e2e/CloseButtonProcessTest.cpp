#include <QDir>
#include <QFile>
#include <QImage>
#include <QProcess>
#include <QProcessEnvironment>
#include <QTemporaryDir>
#include <QTest>
#include <gtest/gtest.h>

#include <csignal>
#include <optional>
#include <vector>

namespace steward::test {
namespace {

constexpr int WAIT_MS = 15000;
// Time for the client to draw what a click or a key changed.
constexpr int SETTLE_MS = 300;

// The real program on an X server of its own, driven with the mouse and keys as a player
// drives it: xdotool clicks and types, ImageMagick's import shows what is on the screen.
class CloseButtonProcessTest : public ::testing::Test {
  protected:
    void SetUp() override
    {
        ASSERT_TRUE(home.isValid());
        // -displayfd 1: the server takes a free display and writes its number on its output.
        xvfb.start(QStringLiteral("Xvfb"),
                   {"-displayfd", "1", "-screen", "0", "1024x768x24", "-nolisten", "tcp"});
        ASSERT_TRUE(QTest::qWaitFor([this] { return xvfb.canReadLine(); }, WAIT_MS));
        display = QStringLiteral(":") + QString::fromLatin1(xvfb.readLine().trimmed());
        world.start(QStringLiteral(WORLD_BINARY),
                    {"--port", "0", "--quiet", "--listen", "127.0.0.1"});
        ASSERT_TRUE(QTest::qWaitFor([this] { return world.canReadLine(); }, WAIT_MS));
        const int port = world.readLine().trimmed().toInt();
        ASSERT_GT(port, 0);
        StartClient(port);
    }

    void TearDown() override
    {
        for (QProcess* process : {&client, &world, &xvfb}) {
            if (process->state() == QProcess::NotRunning)
                continue;
            process->kill();
            process->waitForFinished(WAIT_MS);
        }
    }

    // A fresh profile (Auto-arrange on); the version notes were shown before.
    void StartClient(int port)
    {
        const QString folder = home.filePath(QStringLiteral("ThornmereSteward"));
        QDir().mkpath(folder);
        QFile ini(folder + QStringLiteral("/Thornmere.Ini"));
        ASSERT_TRUE(ini.open(QIODevice::WriteOnly));
        ini.write("[Version Info]\nVersion=68000000\n");
        ini.close();
        QProcessEnvironment environment = QProcessEnvironment::systemEnvironment();
        environment.insert(QStringLiteral("XDG_DATA_HOME"), home.path());
        environment.insert(QStringLiteral("QT_QPA_PLATFORM"), QStringLiteral("xcb"));
        environment.insert(QStringLiteral("DISPLAY"), display);
        client.setProcessEnvironment(environment);
        client.setProcessChannelMode(QProcess::ForwardedErrorChannel);
        client.start(QStringLiteral(CLIENT_BINARY), {QStringLiteral("/H127.0.0.1/P%1").arg(port)});
        ASSERT_TRUE(
            QTest::qWaitFor([&] { return QFile::exists(folder + "/Default.Dat"); }, WAIT_MS));
    }

    bool Run(const QString& program, const QStringList& arguments) const
    {
        QProcess tool;
        QProcessEnvironment environment = QProcessEnvironment::systemEnvironment();
        environment.insert(QStringLiteral("DISPLAY"), display);
        tool.setProcessEnvironment(environment);
        tool.start(program, arguments);
        return tool.waitForFinished(WAIT_MS) && tool.exitCode() == 0;
    }

    QImage Screen() const
    {
        const QString path = home.filePath(QStringLiteral("screen.png"));
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

    QTemporaryDir home;
    QProcess xvfb;
    QProcess world;
    QProcess client;
    QString display;
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

TEST_F(CloseButtonProcessTest, TheGameWindowClosesAndOpensTwentyTimesAndTheClientRunsOn)
{
    // Help, Internet, Window: the third title from the right.
    constexpr int WINDOW_MENU_FROM_RIGHT = 3;
    for (int i = 0; i < 20; ++i) {
        std::optional<QPoint> close;
        ASSERT_TRUE(QTest::qWaitFor(
            [&] { return (close = ActiveCloseButton(Screen())).has_value(); }, WAIT_MS))
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
    ASSERT_TRUE(client.waitForFinished(WAIT_MS));
    EXPECT_EQ(client.exitStatus(), QProcess::NormalExit);
    EXPECT_EQ(client.exitCode(), 0);
}

} // namespace
} // namespace steward::test
