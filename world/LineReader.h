#pragma once

#include <QByteArray>

#include <functional>

// Splits a player's byte stream into command lines. A line ends at LF or CR; the second byte of
// an LF CR or CR LF pair is absorbed, so every client convention gives one line per Enter.
// Control and non-ASCII bytes are dropped, and a line is cut at MaxLineLength.
class LineReader {
  public:
    static constexpr int MaxLineLength = 512;
    using LineSink = std::function<void(const QByteArray&)>;

    void Feed(const char* bytes, qsizetype count, const LineSink& sink);

  private:
    QByteArray line;
    char lastEnd = 0;
};
