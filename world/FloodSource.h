#pragma once

#include <QByteArray>
#include <QRandomGenerator>

// Makes game text that looks like a busy evening in town: narration, coloured speech, exit
// lists, status records, thoughts and arrivals, in whole lines, from a seeded generator.
class FloodSource {
  public:
    static constexpr char EndLine[] = "FLOOD-END\r\n";

    FloodSource(qint64 totalBytes, quint32 seed);

    // Up to about `wanted` further bytes; the last chunk ends with the end line, then empty.
    QByteArray Next(qint64 wanted);
    bool Done() const { return done; }
    // Bytes and line ends handed out so far.
    qint64 SentBytes() const { return sentBytes; }
    qint64 SentLines() const { return sentLines; }

  private:
    QByteArray Line();

    QRandomGenerator random;
    qint64 remaining;
    bool done = false;
    qint64 sentBytes = 0;
    qint64 sentLines = 0;
};
