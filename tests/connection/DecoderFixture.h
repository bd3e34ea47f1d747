#pragma once

#include "config/Settings.h"
#include "connection/PacketDump.h"
#include "connection/StreamDecoder.h"

#include "connection/GameLineSink.h"

#include <gtest/gtest.h>

#include <string>
#include <vector>

namespace steward::testing {

using Lines = std::vector<std::string>;

// Keeps each line as later stages see it: up to its first NUL.
class RecordingSink : public GameLineSink {
  public:
    void ProcessGameLine(const char* line) override { lines.emplace_back(line); }
    Lines lines;
};

// A decoder with default settings and no open dump, handing its lines to a recording sink.
class DecoderTest : public ::testing::Test {
  protected:
    // The lines that these blocks make, one read each.
    Lines Receive(const Lines& blocks, bool hold)
    {
        decoder.SetHoldPartialLines(hold);
        sink.lines.clear();
        for (const std::string& block : blocks)
            decoder.HandleSocketEvent(block.data(), block.size());
        return sink.lines;
    }

    RecordingSink sink;
    PacketDump dump;
    Settings settings;
    StreamDecoder decoder{sink, dump, settings};
};

} // namespace steward::testing
