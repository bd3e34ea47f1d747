#include "session/LogNames.h"

#include <cstdio>

namespace steward {

namespace {

bool FormatName(const char* folder, const LocalDate& date, int n, char (&out)[PATH_SIZE])
{
    int length = std::snprintf(out, PATH_SIZE, "%s/%s %d-%02d-%02d (%d).Txt", folder,
                               "Thornmere Log", date.Month, date.Day, date.Year, n);
    return length > 0 && static_cast<std::size_t>(length) < PATH_SIZE;
}

} // namespace

bool DatedLogName(const char* folder, const LocalDate& date, const FileProbe& files,
                  char (&out)[PATH_SIZE])
{
    int n = 1;
    for (; n < LAST_LOG_NUMBER; ++n) {
        if (!FormatName(folder, date, n, out))
            return false;
        if (!files.Exists(out))
            return true;
    }
    return FormatName(folder, date, n, out);
}

} // namespace steward
