#include "session/LogNames.h"

#include <cstdio>

namespace steward {

namespace {

std::string FormatName(const std::string& folder, const LocalDate& date, int n)
{
    char name[64];
    std::snprintf(name, sizeof name, "/Thornmere Log %d-%02d-%02d (%d).Txt", date.Month, date.Day,
                  date.Year, n);
    return folder + name;
}

} // namespace

std::string DatedLogName(const std::string& folder, const LocalDate& date, const FileProbe& files)
{
    int n = 1;
    for (; n < LAST_LOG_NUMBER; ++n) {
        std::string name = FormatName(folder, date, n);
        if (!files.Exists(name.c_str()))
            return name;
    }
    return FormatName(folder, date, n);
}

} // namespace steward
