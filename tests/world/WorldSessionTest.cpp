#include "WorldHarness.h"

#include "StatusRecord.h"

#include <QRandomGenerator>

#include <gtest/gtest.h>

#include <functional>

namespace {

TEST(WorldLogin, AsksForANameShowsTheFirstRoomAndRefusesBadAndTakenNames)
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
    TestClient other(world.port);
    other.ReadUntil("known? ");
    other.Send("x");
    EXPECT_FALSE(other.ReadUntil("two to sixteen letters").isEmpty());
    other.Send("MARA");
    EXPECT_FALSE(other.ReadUntil("already walks these streets").isEmpty());
}

class TwoPlayers : public ::testing::Test {
  protected:
    void SetUp() override
    {
        mara.Login("Mara");
        corwin.Login("Corwin");
        mara.ReadUntil(" ** Corwin just arrived in the world.\r\n>");
    }

    TestWorld world;
    TestClient mara{world.port};
    TestClient corwin{world.port};
};

TEST_F(TwoPlayers, HearEachOtherSeeEachOtherAndSeeADepartureByQuitOrDrop)
{
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

class StatusMode : public ::testing::Test {
  protected:
    void SetUp() override
    {
        mara.Login("Mara");
        mara.Send("Set Steward On");
    }

    // The next status record the player receives.
    QByteArray NextRecord()
    {
        mara.ReadUntil("\x1b\x1b");
        return "\x1b\x1b" + mara.ReadUntil("\x1b\r\n");
    }

    TestWorld world;
    TestClient mara{world.port};
};

// Every prompt becomes a full record on its own line, which follows posture, weapon and shield;
// the health lines and rest use the vitals phrases.
TEST_F(StatusMode, EveryPromptBecomesARecordThatFollowsTheBody)
{
    const QByteArray record = NextRecord();
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
        EXPECT_EQ(NextRecord().mid(61, 3), flags) << command;
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
}

TEST_F(StatusMode, AttackGivesADelayLineAndRoundTimeInTheRecord)
{
    NextRecord();
    mara.Send("ready saber");
    NextRecord();
    mara.Send("down");
    mara.Send("w");
    NextRecord();
    NextRecord();
    mara.Send("d");
    EXPECT_TRUE(mara.ReadUntil("\x1b\x1b").contains("[Thornmere, Old Cellar]"));
    mara.ReadUntil("\x1b\r\n");
    mara.Send("attack rat");
    const QByteArray fight = mara.ReadUntil("\x1b\x1b");
    EXPECT_TRUE(fight.contains("\r\n[3 sec. delay]\r\n")) << fight.constData();
    const QByteArray record = "\x1b\x1b" + mara.ReadUntil("\x1b\r\n");
    EXPECT_GT(record.mid(StatusRoundTimeOffset, 2).toInt(nullptr, 16), 1);
    mara.Send("attack rat");
    EXPECT_TRUE(mara.ReadUntil("\x1b\x1b").contains("...wait "));
}

// The record carries the prompt: whatever ends an answer or a notice, no line of a bare ">"
// comes before it.
TEST_F(StatusMode, NoBarePromptLineComesBeforeARecord)
{
    NextRecord();
    TestClient corwin{world.port};
    const std::pair<const char*, std::function<void()>> cases[] = {
        {"a command", [&] { mara.Send("look"); }},
        {"an empty line", [&] { mara.Send(""); }},
        {"an unknown command", [&] { mara.Send("xyzzy"); }},
        {"another player's arrival", [&] { corwin.Login("Corwin"); }},
        {"another player's speech", [&] { corwin.Send("say Hello there"); }},
        {"a move", [&] { mara.Send("n"); }},
    };
    for (const auto& [what, act] : cases) {
        act();
        const QByteArray answer = mara.ReadUntil("\x1b\x1b");
        ASSERT_FALSE(answer.isEmpty()) << what;
        mara.ReadUntil("\x1b\r\n");
        EXPECT_FALSE(answer.startsWith(">\r\n") || answer.contains("\n>\r\n") ||
                     answer.endsWith(">\x1b\x1b"))
            << what << ": " << answer.constData();
    }
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
