#include "config/StewardOptions.h"

#include "config/IniFile.h"

#include <algorithm>
#include <charconv>

namespace steward {

namespace {

constexpr bool RowsInOptionOrder()
{
    for (int i = 0; i < STEWARD_OPTION_COUNT; ++i)
        if (StewardOptionTable[i].Option != i)
            return false;
    return true;
}
static_assert(RowsInOptionOrder(), "the rows are looked up by their option");

} // namespace

StewardOptions::StewardOptions()
{
    for (const StewardOptionRow& row : StewardOptionTable)
        values_[row.Option] = row.Default;
}

StewardOptions StewardOptions::Load(const std::string& mainIni)
{
    StewardOptions options;
    const IniFile ini = IniFile::Load(mainIni);
    for (const StewardOptionRow& row : StewardOptionTable) {
        const std::optional<std::string> text = ini.Get(STEWARD_SECTION, row.Key);
        if (!text)
            continue;
        std::int32_t value = 0;
        const char* end = text->data() + text->size();
        const auto [stop, error] = std::from_chars(text->data(), end, value);
        if (error == std::errc() && stop == end && value >= row.Minimum && value <= row.Maximum)
            options.values_[row.Option] = value;
    }
    return options;
}

bool StewardOptions::Save(const std::string& mainIni) const
{
    IniFile ini = IniFile::Load(mainIni);
    for (const StewardOptionRow& row : StewardOptionTable)
        ini.Set(STEWARD_SECTION, row.Key, std::to_string(values_[row.Option]));
    return ini.Save(mainIni);
}

void StewardOptions::Set(StewardOption option, std::int32_t value)
{
    const StewardOptionRow& row = StewardOptionTable[option];
    values_[option] = std::clamp(value, row.Minimum, row.Maximum);
}

} // namespace steward
