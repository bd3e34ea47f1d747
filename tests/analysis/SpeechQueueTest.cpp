#include "PipelineFixture.h"

#include "analysis/SpeechQueue.h"
#include "config/StewardOptions.h"

namespace steward::testing {
namespace {

// Records what it is asked to say; the test reports the end of each text.
class RecordingVoice : public SpeechEngine {
  public:
    bool Available() override { return available; }
    void Speak(const char* text) override { spoken.emplace_back(text); }
    bool available = true;
    std::vector<std::string> spoken;
};

// Reports the end of every text until the queue is empty.
void Drain(SpeechQueue& queue)
{
    while (queue.Speaking())
        queue.Spoken();
}

struct QueueCase {
    const char* name;
    bool speakOn;
    bool available;
    // Each step says its text; a null step reports the end of the text being spoken.
    std::vector<const char*> steps;
    std::vector<std::string> spoken;
    std::size_t waiting;
};

TEST(SpeechQueueTest, SaysOneTextAtATimeInOrder)
{
    const std::string colored = On(10) + "Bo says, \"hi\"" + Off(10);
    const std::string tooLong(400, 'x');
    const QueueCase cases[] = {
        {"idle voice speaks at once", true, true, {"a"}, {"a"}, 0},
        {"texts wait their turn", true, true, {"a", "b", "c"}, {"a"}, 2},
        {"each end starts the next",
         true,
         true,
         {"a", "b", "c", nullptr, nullptr},
         {"a", "b", "c"},
         0},
        {"an end with nothing waiting", true, true, {"a", nullptr, nullptr, "b"}, {"a", "b"}, 0},
        {"line ends and blanks fold",
         true,
         true,
         {"\r\n[Mara]:  \"Hi\"\r\n"},
         {"[Mara]: \"Hi\""},
         0},
        {"colour codes and bells go", true, true, {colored.c_str(), "\aX"}, {"Bo says, \"hi\""}, 1},
        {"blank text says nothing", true, true, {"\r\n \t"}, {}, 0},
        {"a long text is cut",
         true,
         true,
         {tooLong.c_str()},
         {tooLong.substr(0, UTTERANCE_SIZE - 1)},
         0},
        {"Speak off", false, true, {"a", nullptr, "b"}, {}, 0},
        {"no voice", true, false, {"a", nullptr, "b"}, {}, 0},
    };
    for (const QueueCase& c : cases) {
        SCOPED_TRACE(c.name);
        RecordingVoice voice;
        voice.available = c.available;
        StewardOptions options;
        options.Set(SPEAK, c.speakOn);
        SpeechQueue queue(voice, options);
        for (const char* step : c.steps) {
            if (step)
                queue.Say(step);
            else
                queue.Spoken();
        }
        EXPECT_EQ(voice.spoken, c.spoken);
        EXPECT_EQ(queue.Waiting(), c.waiting);
    }
}

struct HpCase {
    std::int32_t threshold;
    // Value and maximum after each change.
    std::vector<std::pair<std::int32_t, std::int32_t>> changes;
    std::vector<std::string> spoken;
};

TEST(SpeechQueueTest, SaysAFallOfTheHitPointsBelowTheThresholdOnce)
{
    const HpCase cases[] = {
        {25, {{100, 100}, {25, 100}, {24, 100}, {10, 100}}, {"Hit points 24 of 100"}},
        {25, {{5, 40}, {12, 40}, {9, 40}}, {"Hit points 5 of 40", "Hit points 9 of 40"}},
        {50, {{1, 3}, {1, 3}}, {"Hit points 1 of 3"}},
        {100, {{99, 100}}, {"Hit points 99 of 100"}},
        {0, {{0, 100}}, {}},
        {25, {{0, 0}, {-5, 0}}, {}},
    };
    for (const HpCase& c : cases) {
        SCOPED_TRACE(c.threshold);
        RecordingVoice voice;
        StewardOptions options;
        options.Set(SPEAK, 1);
        options.Set(SPEAK_HP_BELOW, c.threshold);
        SpeechQueue queue(voice, options);
        for (const auto& [value, maximum] : c.changes)
            queue.WatchHp(value, maximum);
        Drain(queue);
        EXPECT_EQ(voice.spoken, c.spoken);
    }
}

// The pipeline with a voice: what is said, and in which order.
class SpeakingPipelineTest : public PipelineTest {
  protected:
    SpeakingPipelineTest() { stewardOptions.Set(SPEAK, 1); }

    RecordingVoice voice;
    StewardOptions stewardOptions;
    SpeechQueue speech{voice, stewardOptions};
    LinePipeline speaking{{options, sessionLog, highlights, sounds, windows, queue, script, panel,
                           words, clock, nullptr, &speech}};
};

TEST_F(SpeakingPipelineTest, ThoughtsArrivalsAndLowHitPointsAreSaidInTheirOrder)
{
    windows.ThoughtWindow = Thought();
    // A status record with the hit points at 3 of 100.
    std::string record = "\x1B\x1B>00030064";
    record.resize(67, '0');
    record += "\x1B\r\n";
    const char* lines[] = {
        "You pick up Mara's thoughts, \"Hello\"\r\n",
        "Bo says, \"Nothing to hear.\"\r\n",
        " ** Tam just arrived in the world.\r\n",
        " ** Current hit points: 20 of 100\r\n",
        "Kel thinks to you, \"Psst\"\r\n",
        " ** Tam has left the world unexpectedly.\r\n",
        " ** You are fully healed.\r\n",
        record.c_str(),
    };
    for (const char* line : lines)
        speaking.ProcessGameLine(line);
    Drain(speech);
    const std::vector<std::string> said = {
        "[Mara]: \"Hello\"",         "Tam arrived at 5:30 pm.", "Hit points 20 of 100",
        "[Kel (Private)]: \"Psst\"", "Tam disco'd at 5:30 pm.", "Hit points 3 of 100",
    };
    EXPECT_EQ(voice.spoken, said);
}

TEST_F(SpeakingPipelineTest, AnArrivalThatShowsNowhereIsNotSaid)
{
    options.OnlyListedArrivals = 1;
    speaking.ProcessGameLine(" ** Tam just arrived in the world.\r\n");
    EXPECT_TRUE(voice.spoken.empty());
}

TEST_F(SpeakingPipelineTest, AFloodOfThoughtsKeepsTheQueueBoundedAndCountsWhatItDrops)
{
    constexpr int FLOOD = 1000;
    char line[64];
    for (int i = 0; i < FLOOD; ++i) {
        std::snprintf(line, sizeof line, "You pick up Mara's thoughts, \"%d\"\r\n", i);
        speaking.ProcessGameLine(line);
        ASSERT_LE(speech.Waiting(), SPEECH_QUEUE_SLOTS);
    }
    EXPECT_EQ(speech.Dropped(), FLOOD - 1 - SPEECH_QUEUE_SLOTS);
    Drain(speech);
    ASSERT_EQ(voice.spoken.size(), SPEECH_QUEUE_SLOTS + 1);
    EXPECT_EQ(voice.spoken.front(), "[Mara]: \"0\"");
    EXPECT_EQ(voice.spoken[1], "[Mara]: \"" + std::to_string(FLOOD - SPEECH_QUEUE_SLOTS) + "\"");
    EXPECT_EQ(voice.spoken.back(), "[Mara]: \"" + std::to_string(FLOOD - 1) + "\"");
}

} // namespace
} // namespace steward::testing
