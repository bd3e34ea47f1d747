#include "WorldHarness.h"

#include "StatusRecord.h"

#include <QRandomGenerator>

#include <gtest/gtest.h>

#include <functional>

namespace {

// Mara logs in; a bad and a taken name are refused; Corwin comes, is heard, seen and leaves by
// quit, and Ysolde leaves by a drop.
TEST(WorldLogin, NamesRoomsSpeechAndDepartures)
{
    TestWorld world;
    ASSERT_NE(world.port, 0);
    TestClient mara(world.port);
    EXPECT_FALSE(mara.ReadUntil("By what name are you known? ").isEmpty());
    mara.Send("mara");
    const QByteArray room = mara.ReadUntil(">");
    EXPECT_TRUE(room.contains("Well met, Mara."));
    EXPECT_TRUE(room.contains("[Thornmere, Market Square]"));
    EXPECT_TRUE(room.contains("Obvious exits: north, east, south, west, southeast.\r\n>"));
    TestClient corwin(world.port);
    corwin.ReadUntil("known? ");
    corwin.Send("x");
    EXPECT_FALSE(corwin.ReadUntil("two to sixteen letters").isEmpty());
    corwin.Send("MARA");
    EXPECT_FALSE(corwin.ReadUntil("already walks these streets").isEmpty());
    corwin.Send("Corwin");
    corwin.ReadUntil("Obvious exits:");
    mara.ReadUntil(" ** Corwin just arrived in the world.\r\n>");

    const std::pair<const char*, QByteArray> cases[] = {
        {"say Good morning", "\x1b"
                             "100Corwin says, \"Good morning\"\x1b"
                             "000\r\n"},
        {"ask Where is the inn?", "Corwin asks, \"Where is the inn?\""},
        {"yell Fire!", "Corwin yells, \"Fire!\""},
        {"shout Hello", "Corwin shouts, \"Hello\""},
        {"whisper mara a secret", "Corwin whispers, \"a secret\""},
        {"think The bread smells good",
         "You pick up Corwin's thoughts, \"The bread smells good\"\r\n"},
        {"contact Mara meet me at the quay", "Corwin thinks to you, \"meet me at the quay\"\r\n"},
        {"link all quiet", "You pick up Corwin's Psycian link, \"all quiet\"\r\n"},
    };
    for (const auto& [command, heard] : cases) {
        corwin.Send(command);
        EXPECT_FALSE(mara.ReadUntil(heard).isEmpty()) << command;
    }
    mara.Send("look");
    EXPECT_FALSE(mara.ReadUntil("Also here: Corwin.").isEmpty());
    mara.Send("world");
    EXPECT_FALSE(mara.ReadUntil("Mara, Corwin").isEmpty());

    corwin.Send("quit");
    EXPECT_TRUE(corwin.ReadUntilClosed().contains("Fare well, Corwin."));
    EXPECT_FALSE(mara.ReadUntil(" ** Corwin has left the world.\r\n").isEmpty());

    TestClient ysolde(world.port);
    ysolde.Login("Ysolde");
    mara.ReadUntil(" ** Ysolde just arrived in the world.");
    ysolde.Close();
    EXPECT_FALSE(mara.ReadUntil(" ** Ysolde has left the world unexpectedly.\r\n").isEmpty());
}

// Every prompt becomes a full record on its own line, which follows posture, weapon and shield
// and, after an attack, the round time; the health lines and rest use the vitals phrases.
// Whatever ends an answer or a notice, no line of a bare ">" comes before a record.
TEST(StatusMode, EveryPromptBecomesARecordThatFollowsTheBodyAndTheFight)
{
    TestWorld world;
    TestClient mara{world.port};
    mara.Login("Mara");
    mara.Send("Set Steward On");
    const auto nextRecord = [&] {
        mara.ReadUntil("\x1b\x1b");
        return "\x1b\x1b" + mara.ReadUntil("\x1b\r\n");
    };
    const QByteArray record = nextRecord();
    ASSERT_GE(record.size(), 70);
    EXPECT_EQ(record.at(2), '>');
    EXPECT_EQ(record.mid(3, 8), "00640064");
    mara.Send("look");
    const QByteArray answer = mara.ReadUntil("\x1b\x1b");
    EXPECT_TRUE(answer.endsWith("Obvious exits: north, east, south, west, southeast.\r\n\x1b\x1b"));
    EXPECT_FALSE(answer.contains("\r\n>"));
    mara.ReadUntil("\x1b\r\n");
    const std::pair<const char*, const char*> steps[] = {
        {"ready saber", "010"}, {"ready shield", "011"}, {"sit", "111"},
        {"lie", "211"},         {"stand", "011"},        {"unready saber", "001"},
    };
    for (const auto& [command, flags] : steps) {
        mara.Send(command);
        EXPECT_EQ(nextRecord().mid(61, 3), flags) << command;
    }
    mara.Send("health");
    const QByteArray health = mara.ReadUntil("\x1b\x1b");
    EXPECT_TRUE(health.contains(" ** Current hit points: 100 of 100\r\n"));
    EXPECT_TRUE(health.contains(" ** Current fatigue: 60 of 60\r\n"));
    mara.ReadUntil("\x1b\r\n");
    mara.Send("rest");
    const QByteArray rest = mara.ReadUntil("\x1b\x1b");
    EXPECT_TRUE(rest.contains(" ** You are fully healed.\r\n"));
    EXPECT_TRUE(rest.contains(" ** You are fully rested.\r\n"));
    mara.ReadUntil("\x1b\r\n");

    TestClient corwin{world.port};
    const std::pair<const char*, std::function<void()>> cases[] = {
        {"an empty line", [&] { mara.Send(""); }},
        {"an unknown command", [&] { mara.Send("xyzzy"); }},
        {"another player's arrival", [&] { corwin.Login("Corwin"); }},
        {"another player's speech", [&] { corwin.Send("say Hello there"); }},
        {"a move", [&] { mara.Send("n"); }},
        {"a move back", [&] { mara.Send("s"); }},
    };
    for (const auto& [what, act] : cases) {
        act();
        const QByteArray told = mara.ReadUntil("\x1b\x1b");
        ASSERT_FALSE(told.isEmpty()) << what;
        mara.ReadUntil("\x1b\r\n");
        EXPECT_FALSE(told.startsWith(">\r\n") || told.contains("\n>\r\n") ||
                     told.endsWith(">\x1b\x1b"))
            << what << ": " << told.constData();
    }

    mara.Send("ready saber");
    nextRecord();
    mara.Send("w");
    nextRecord();
    mara.Send("d");
    EXPECT_TRUE(mara.ReadUntil("\x1b\x1b").contains("[Thornmere, Old Cellar]"));
    mara.ReadUntil("\x1b\r\n");
    mara.Send("attack rat");
    const QByteArray fight = mara.ReadUntil("\x1b\x1b");
    EXPECT_TRUE(fight.contains("\r\n[3 sec. delay]\r\n")) << fight.constData();
    EXPECT_GT(
        ("\x1b\x1b" + mara.ReadUntil("\x1b\r\n")).mid(StatusRoundTimeOffset, 2).toInt(nullptr, 16),
        1);
    mara.Send("attack rat");
    EXPECT_TRUE(mara.ReadUntil("\x1b\x1b").contains("...wait "));
}

TEST(WorldInput, SurvivesGarbageAndStillAnswers)
{
    TestWorld world;
    TestClient mara(world.port);
    mara.Login("Mara");
    QByteArray garbage(65536, '\0');
    QRandomGenerator random(7);
    for (char& c : garbage)
        c = char(random.bounded(256));
    mara.SendRaw(garbage);
    mara.SendRaw(QByteArray(4096, '\0'));
    mara.SendRaw(QByteArray(100 * 1024, 'z') + "\n\r");
    mara.Send("say still here");
    EXPECT_FALSE(mara.ReadUntil("You say, \"still here\"").isEmpty());
    TestClient stranger(world.port);
    stranger.SendRaw(garbage);
    TestClient corwin(world.port);
    corwin.Login("Corwin");
    corwin.Send("say still here");
    EXPECT_FALSE(corwin.ReadUntil("You say, \"still here\"").isEmpty());
}

} // namespace
