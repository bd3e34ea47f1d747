#include "session/CommandTable.h"

#include "base/FrameCommand.h"

#include <array>

namespace steward {

namespace {

constexpr std::array<FixedTextCommand, 19> FIXED_TEXTS = {{
    {40006, "info"},          {40007, "info crimes"},
    {40008, "inv"},           {40009, "info languages"},
    {40010, "info magick"},   {40011, "info martialarts"},
    {40012, "info money"},    {40013, "info psionics"},
    {40014, "info religion"}, {40015, "info runespells"},
    {40016, "skills"},        {40017, "spells"},
    {40018, "info vis"},      {40019, "full"},
    {40020, "brief"},         {40021, "superbrief"},
    {40022, "time"},          {40023, "weather"},
    {40024, "world"},
}};

} // namespace

const char* FindFixedText(int command)
{
    for (const FixedTextCommand& entry : FIXED_TEXTS)
        if (entry.Command == command)
            return entry.Text;
    return nullptr;
}

} // namespace steward
