#include "WorldHarness.h"

#include "FloodSource.h"

#include <QFile>
#include <QProcess>
#include <QTemporaryDir>

#include <gtest/gtest.h>

namespace {

QByteArray ReplayText()
{
    QByteArray text;
    for (int i = 0; i < 50; ++i)
        text += "Line " + QByteArray::number(i) + " of the replay\r\n";
    return text + "\x1b\x1b>tail";
}

class WorldModes : public ::testing::Test {
  protected:
    QTemporaryDir dir;
};

TEST_F(WorldModes, ReplaySendsTheFileBytesToEachConnection)
{
    QFile file(dir.filePath("replay.bin"));
    ASSERT_TRUE(file.open(QIODevice::WriteOnly));
    file.write(ReplayText());
    file.close();
    for (int block : {0, 7}) {
        WorldOptions options = TestWorld::QuietOptions();
        options.replayFile = file.fileName();
        options.replayBlock = block;
        options.replayPauseMs = 1;
        TestWorld world(options);
        TestClient first(world.port);
        TestClient second(world.port);
        EXPECT_EQ(first.ReadUntil(">tail"), ReplayText()) << "block " << block;
        EXPECT_EQ(second.ReadUntil(">tail"), ReplayText()) << "block " << block;
    }
}

TEST_F(WorldModes, RecordKeepsEveryByteAClientSends)
{
    WorldOptions options = TestWorld::QuietOptions();
    options.recordFile = dir.filePath("record.bin");
    TestWorld world(options);
    TestClient mara(world.port);
    mara.Login("Mara");
    const QByteArray odd("say \x01\xfe\0!", 8);
    mara.SendRaw(odd + "\n\r");
    mara.Send("quit");
    mara.ReadUntilClosed();
    QFile file(options.recordFile);
    ASSERT_TRUE(file.open(QIODevice::ReadOnly));
    EXPECT_EQ(file.readAll(), "Mara\n\r" + odd + "\n\rquit\n\r");
}

TEST_F(WorldModes, FloodSendsTheWantedAmountOfGameTextThenItsEndLine)
{
    constexpr qint64 Wanted = 300000;
    WorldOptions options = TestWorld::QuietOptions();
    options.floodBytes = Wanted;
    TestWorld world(options);
    TestClient reader(world.port);
    const QByteArray flood = reader.ReadUntil("FLOOD-END\r\n");
    ASSERT_EQ(flood.size(), Wanted + qstrlen(FloodSource::EndLine));
    for (const char* kind : {"Obvious exits:", " says, \"", "\x1b\x1b>", "'s thoughts, \"",
                             " just arrived in the world."})
        EXPECT_TRUE(flood.contains(kind)) << kind;
}

TEST(WorldProgram, PortZeroPrintsTheChosenPortAndServesPlayersHelpAndBadOptionsEndAtOnce)
{
    QProcess program;
    program.start(WORLD_BINARY, {"--port", "0", "--quiet"});
    ASSERT_TRUE(program.waitForStarted());
    ASSERT_TRUE(program.waitForReadyRead());
    const quint16 port = quint16(program.readLine().trimmed().toUInt());
    ASSERT_NE(port, 0);
    {
        TestClient mara(port);
        mara.Login("Mara");
        mara.Send("quit");
        EXPECT_TRUE(mara.ReadUntilClosed().contains("Fare well, Mara."));
    }
    program.terminate();
    program.waitForFinished();
    const QByteArray log = program.readAllStandardError();
    EXPECT_TRUE(log.contains("name Mara: quit")) << log.constData();

    program.start(WORLD_BINARY, {"--port", "seventy"});
    ASSERT_TRUE(program.waitForFinished());
    EXPECT_NE(program.exitCode(), 0);
    program.start(WORLD_BINARY, {"--help"});
    ASSERT_TRUE(program.waitForFinished());
    EXPECT_EQ(program.exitCode(), 0);
    EXPECT_TRUE(program.readAllStandardOutput().contains("--replay"));
}

// The stamped events of the world's standard output, without their times, which must not fall.
QList<QByteArray> Events(const QByteArray& output)
{
    QList<QByteArray> events;
    long long previous = 0;
    const QList<QByteArray> lines = output.split('\n');
    for (qsizetype i = 0; i < lines.size(); ++i) {
        const qsizetype blank = lines[i].indexOf(' ');
        if (blank < 0)
            continue;
        const long long time = lines[i].left(blank).toLongLong();
        EXPECT_GE(time, previous) << lines[i].constData();
        previous = time;
        events << lines[i].mid(blank + 1);
    }
    return events;
}

TEST(WorldFlood, WaitsForItsTriggerLineAndStampsItsEndsAndTheLinesIn)
{
    QProcess program;
    program.start(WORLD_BINARY, {"--port", "0", "--listen", "127.0.0.1", "--flood", "5000",
                                 "--flood-on", "go", "--stamp"});
    ASSERT_TRUE(program.waitForStarted());
    ASSERT_TRUE(program.waitForReadyRead());
    const quint16 port = quint16(program.readLine().trimmed().toUInt());
    ASSERT_NE(port, 0);
    QByteArray flood;
    {
        TestClient player(port);
        player.Send("hello");
        player.Send("go");
        flood = player.ReadUntil("FLOOD-END\r\n");
        player.Send("go");
        player.Send("bye");
    }
    QByteArray output;
    while (!output.contains("line bye") && program.waitForReadyRead(5000))
        output += program.readAllStandardOutput();
    program.terminate();
    program.waitForFinished();
    const QByteArray last =
        "last " + QByteArray::number(flood.size()) + ' ' + QByteArray::number(flood.count('\n'));
    EXPECT_EQ(flood.size(), 5000 + 11);
    EXPECT_EQ(Events(output),
              (QList<QByteArray>{"line hello", "line go", "first", last, "line go", "line bye"}));
}

} // namespace
