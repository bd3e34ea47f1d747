#include "connection/DecoderFixture.h"

namespace steward {
namespace {

using testing::Lines;

struct Case {
    const char* name;
    Lines blocks;
    Lines held;    // delivered with HoldPartialLines on
    Lines notHeld; // delivered with HoldPartialLines off
};

std::string Bytes(const char* text, std::size_t length)
{
    return {text, length};
}

// Cuts a stream into blocks as a socket delivering 1024 bytes a read would.
Lines Cut(const std::string& stream)
{
    Lines blocks;
    for (std::size_t at = 0; at < stream.size(); at += 1024)
        blocks.push_back(stream.substr(at, 1024));
    return blocks;
}

using LineAssemblyTest = testing::DecoderTest;

const std::string A1024(1024, 'a');
const std::string A4096(4096, 'a');
const std::string A4097(4097, 'a');

const Case CASES[] = {
    {"several lines in one block",
     {"a\r\nb\r\nc\r\n"},
     {"a\r\n", "b\r\n", "c\r\n"},
     {"a\r\n", "b\r\n", "c\r\n"}},
    {"line cut by a block end",
     {"You se", "e a tree.\n"},
     {"You see a tree.\n"},
     {"You se", "e a tree.\n"}},
    {"prompt without line end", {">"}, {}, {">"}},
    {"LF ends a line, CR stays in the text",
     {"a\n\rb\r\n"},
     {"a\n", "\rb\r\n"},
     {"a\n", "\rb\r\n"}},
    {"bare CR ends nothing", {"a\rb\n"}, {"a\rb\n"}, {"a\rb\n"}},
    {"empty lines", {"\n\n"}, {"\n", "\n"}, {"\n", "\n"}},
    {"NUL drops the rest of the block", {Bytes("ab\ncd\0ef\ngh\n", 13)}, {"ab\n"}, {"ab\n", "cd"}},
    {"NUL first drops the whole block", {Bytes("\0ab\n", 4), "c\n"}, {"c\n"}, {"c\n"}},
    {"held bytes join the next block",
     {Bytes("ab\ncd\0x\n", 8), "ef\n"},
     {"ab\n", "cdef\n"},
     {"ab\n", "cd", "ef\n"}},
    {"empty block", {""}, {}, {}},
    {"4096 bytes and LF make one line",
     Cut(A4096 + "\nb\n"),
     {A4096 + "\n", "b\n"},
     {A1024, A1024, A1024, A1024, "\n", "b\n"}},
    {"4097 bytes make one line", Cut(A4097), {A4097}, {A1024, A1024, A1024, A1024, "a"}},
    {"byte 4098 starts a new line",
     Cut(A4097 + "b\n"),
     {A4097, "b\n"},
     {A1024, A1024, A1024, A1024, "ab\n"}},
    {"LF behind 4097 bytes is a line of its own",
     Cut(A4097 + "\n"),
     {A4097, "\n"},
     {A1024, A1024, A1024, A1024, "a\n"}},
    {"long line is cut again and again",
     Cut(std::string(8194, 'a') + "\n"),
     {A4097, A4097, "\n"},
     {A1024, A1024, A1024, A1024, A1024, A1024, A1024, A1024, "aa\n"}},
};

TEST_F(LineAssemblyTest, LinesEndAtLineFeedTheLimitOrTheBlockUnlessHeld)
{
    for (const Case& c : CASES) {
        for (const bool hold : {true, false}) {
            testing::RecordingSink fresh;
            StreamDecoder local{fresh, dump, settings};
            local.SetHoldPartialLines(hold);
            for (const std::string& block : c.blocks)
                local.HandleSocketEvent(block.data(), block.size());
            EXPECT_EQ(fresh.lines, hold ? c.held : c.notHeld)
                << c.name << (hold ? " (held)" : " (not held)");
        }
    }
}

// Hold can be switched on between blocks; an overlong read is taken as several blocks; the read
// size stays within the receive buffer.
TEST_F(LineAssemblyTest, HoldSwitchAndReadSizes)
{
    EXPECT_EQ(Receive({"Obvious exits: north\r\n>"}, false),
              (Lines{"Obvious exits: north\r\n", ">"}));
    EXPECT_EQ(Receive({"You g", "o north.\r\n"}, true), Lines{"You go north.\r\n"});
    EXPECT_EQ(Receive({std::string(RECEIVE_CHUNK_MAX + 10, 'a')}, false),
              (Lines{std::string(RECEIVE_CHUNK_MAX, 'a'), std::string(10, 'a')}));
    const std::pair<std::int32_t, std::size_t> sizes[] = {{1024, 1024}, {256, 256}, {2048, 2048},
                                                          {5000, 2048}, {100, 256}, {-1, 256}};
    for (const auto& [asked, used] : sizes) {
        settings.ReceiveChunkSize = asked;
        EXPECT_EQ(decoder.ReceiveChunkSize(), used) << asked;
    }
}

} // namespace
} // namespace steward
