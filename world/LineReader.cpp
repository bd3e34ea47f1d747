#include "LineReader.h"

namespace {

bool IsLineEnd(char c)
{
    return c == '\n' || c == '\r';
}

bool IsPrintable(char c)
{
    return c >= 0x20 && c < 0x7F;
}

} // namespace

void LineReader::Feed(const char* bytes, qsizetype count, const LineSink& sink)
{
    for (qsizetype i = 0; i < count; ++i) {
        const char c = bytes[i];
        if (IsLineEnd(c)) {
            const bool secondOfPair = lastEnd != 0 && lastEnd != c;
            lastEnd = secondOfPair ? 0 : c;
            if (!secondOfPair) {
                sink(line);
                line.clear();
            }
            continue;
        }
        lastEnd = 0;
        if (IsPrintable(c) && line.size() < MaxLineLength)
            line.append(c);
    }
}
