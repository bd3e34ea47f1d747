#include "WorldHarness.h"

#include <QProcess>

#include <gtest/gtest.h>

namespace {

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
