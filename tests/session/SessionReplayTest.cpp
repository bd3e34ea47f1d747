#include "session/SessionReplay.h"
#include "support/TempFolder.h"

#include <gtest/gtest.h>

#include <string>
#include <vector>

namespace steward {
namespace {

using testing::TempFolder;

class RecordingListener : public SocketListener {
  public:
    std::size_t BlockSize() const override { return 5; }
    void ReceiveBlock(const char* bytes, std::size_t length) override
    {
        received.append(bytes, length);
    }
    void ConnectionClosed() override {}
    std::string received;
};

// The file plays once, block by block, then stays played out; a byte of its name that a window
// would not show as it stands reads "?".
TEST(SessionReplay, PlaysTheFileOnceAndShowsItsNameInPrintableCharacters)
{
    TempFolder folder;
    const std::string path = folder.File("odd\x7F\x1B name");
    testing::WriteBytes(path, "Welcome, Tester!");
    RecordingListener link;
    std::vector<std::string> said;
    SessionReplay replay(link, [&said](const char* text) { said.emplace_back(text); });
    ASSERT_TRUE(replay.Open(path.c_str()));
    while (replay.PlayNextBlock()) {
    }
    EXPECT_FALSE(replay.PlayNextBlock());
    EXPECT_EQ(link.received, "Welcome, Tester!");
    ASSERT_EQ(said.size(), 2u);
    EXPECT_NE(said[0].find(folder.File("odd?? name")), std::string::npos) << said[0];
    EXPECT_EQ(said[1], "\r\n\r\n*** End of the replay: 4 blocks, 16 bytes.\r\n\r\n");
}

} // namespace
} // namespace steward
