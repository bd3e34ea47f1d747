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

using Texts = std::vector<std::string>;

struct QueueCase {
    const char* name;
    bool speakOn;
    bool available;
    // Each step says its text; a null step reports the end of the text being spoken.
    std::vector<const char*> steps;
    Texts spoken;
    std::size_t waiting;
};

TEST(SpeechQueueTest, SaysOneTextAtATimeInOrder)
{
    const std::string colored = On(10) + "Bo says, \"hi\"" + Off(10) + "\a";
    const std::string tooLong(400, 'x');
    const std::string lastBlank = tooLong.substr(0, 254) + " y",
                      joined = tooLong.substr(0, 254) + "y";
    const QueueCase cases[] = {
        {"texts wait their turn", true, true, {"a", "b", "c", nullptr}, {"a", "b"}, 1},
        {"an end with nothing waiting", true, true, {"a", nullptr, nullptr, "b"}, {"a", "b"}, 0},
        {"line ends and blanks fold", true, true, {"\r\n[Mo]:  \"Hi\"\r\n"}, {"[Mo]: \"Hi\""}, 0},
        {"colour codes and bells go", true, true, {colored.c_str()}, {"Bo says, \"hi\""}, 0},
        {"blank text says nothing", true, true, {"\r\n \t", "a"}, {"a"}, 0},
        {"a long text is cut", true, true, {tooLong.c_str()}, {tooLong.substr(0, 255)}, 0},
        {"no room for the blank", true, true, {lastBlank.c_str()}, {joined}, 0},
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
        for (const char* step : c.steps)
            step ? queue.Say(step) : queue.Spoken();
        EXPECT_EQ(voice.spoken, c.spoken);
        EXPECT_EQ(queue.Waiting(), c.waiting);
    }
}

// The pipeline with a voice whose texts all end when the test says so.
class SpeakingPipelineTest : public PipelineTest {
  protected:
    SpeakingPipelineTest() { stewardOptions.Set(SPEAK, 1); }
    void Drain()
    {
        while (speech.Speaking())
            speech.Spoken();
    }

    RecordingVoice voice;
    StewardOptions stewardOptions;
    SpeechQueue speech{voice, stewardOptions};
    LinePipeline speaking{{options, sessionLog, highlights, sounds, windows, queue, script, panel,
                           words, clock, nullptr, &speech}};
};

TEST_F(SpeakingPipelineTest, ThoughtsArrivalsAndLowHitPointsAreSaidInTheirOrder)
{
    windows.ThoughtWindow = Thought();
    const std::string record = StatusLine(">00030064"); // hit points 3 of 100
    const char* lines[] = {
        "You pick up Mara's thoughts, \"Hello\"\r\n",
        "Bo says, \"Nothing to hear.\"\r\n",
        " ** Tam just arrived in the world.\r\n",
        " ** Current hit points: 20 of 100\r\n",
        " ** Current hit points: 15 of 100\r\n",
        "Kel thinks to you, \"Psst\"\r\n",
        " ** Tam has left the world unexpectedly.\r\n",
        " ** You are fully healed.\r\n",
        record.c_str(),
    };
    for (const char* line : lines)
        speaking.ProcessGameLine(line);
    Drain();
    EXPECT_EQ(voice.spoken, (Texts{"[Mara]: \"Hello\"", "Tam arrived at 5:30 pm.",
                                   "Hit points 20 of 100", "[Kel (Private)]: \"Psst\"",
                                   "Tam disco'd at 5:30 pm.", "Hit points 3 of 100"}));
}

TEST_F(SpeakingPipelineTest, AFloodOfThoughtsKeepsTheQueueBoundedAndCountsWhatItDrops)
{
    constexpr int FLOOD = 1000;
    for (int i = 0; i < FLOOD; ++i) {
        speaking.ProcessGameLine(
            ("You pick up Mara's thoughts, \"" + std::to_string(i) + "\"\r\n").c_str());
        ASSERT_LE(speech.Waiting(), SPEECH_QUEUE_SLOTS);
    }
    EXPECT_EQ(speech.Dropped(), FLOOD - 1 - SPEECH_QUEUE_SLOTS);
    Drain();
    ASSERT_EQ(voice.spoken.size(), SPEECH_QUEUE_SLOTS + 1);
    EXPECT_EQ(voice.spoken[1], "[Mara]: \"" + std::to_string(FLOOD - SPEECH_QUEUE_SLOTS) + "\"");
    EXPECT_EQ(voice.spoken.back(), "[Mara]: \"" + std::to_string(FLOOD - 1) + "\"");
}

} // namespace
} // namespace steward::testing
