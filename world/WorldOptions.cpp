#include "WorldOptions.h"

#include <QCommandLineParser>

namespace {

bool ReadNumber(const QString& text, qint64 low, qint64 high, qint64& out)
{
    bool ok = false;
    out = text.toLongLong(&ok);
    return ok && out >= low && out <= high;
}

} // namespace

bool ParseWorldOptions(const QStringList& arguments, WorldOptions& options, QString& error)
{
    QCommandLineParser parser;
    parser.addOptions({
        {"port", "Port to listen on; 0 picks a free one and prints it.", "PORT"},
        {"listen", "Address to listen on.", "ADDRESS"},
        {"seed", "Seed of the world's random events.", "N"},
        {"quiet", "No non-player characters."},
        {"replay", "Send each connection the bytes of FILE.", "FILE"},
        {"replay-block", "Replay in blocks of N bytes.", "N"},
        {"replay-pause", "Pause MS milliseconds between replay blocks.", "MS"},
        {"record", "Append every byte a client sends to FILE.", "FILE"},
        {"flood", "Send each connection BYTES of game text, then FLOOD-END.", "BYTES"},
        {"flood-on", "Start a connection's flood when it sends the line TEXT.", "TEXT"},
        {"stamp", "Print monotonic microseconds for the flood's first and last byte and for "
                  "each line a flooded connection sends."},
    });
    parser.addHelpOption();
    if (!parser.parse(arguments)) {
        error = parser.errorText();
        return false;
    }
    if (parser.isSet("help")) {
        options.helpText = parser.helpText();
        return true;
    }
    qint64 number = 0;
    if (parser.isSet("port")) {
        if (!ReadNumber(parser.value("port"), 0, 65535, number))
            return error = "bad --port", false;
        options.port = quint16(number);
    }
    if (parser.isSet("listen") && !options.listenAddress.setAddress(parser.value("listen")))
        return error = "bad --listen address", false;
    if (parser.isSet("seed")) {
        if (!ReadNumber(parser.value("seed"), 0, 0xFFFFFFFFLL, number))
            return error = "bad --seed", false;
        options.seed = quint32(number);
    }
    options.quiet = parser.isSet("quiet");
    options.replayFile = parser.value("replay");
    options.recordFile = parser.value("record");
    if (parser.isSet("replay-block")) {
        if (!ReadNumber(parser.value("replay-block"), 1, 1 << 24, number))
            return error = "bad --replay-block", false;
        options.replayBlock = int(number);
    }
    if (parser.isSet("replay-pause")) {
        if (!ReadNumber(parser.value("replay-pause"), 0, 60000, number))
            return error = "bad --replay-pause", false;
        options.replayPauseMs = int(number);
    }
    if (parser.isSet("flood")) {
        if (!ReadNumber(parser.value("flood"), 0, qint64(1) << 40, number))
            return error = "bad --flood", false;
        options.floodBytes = number;
    }
    options.floodTrigger = parser.value("flood-on");
    options.stamp = parser.isSet("stamp");
    if ((!options.floodTrigger.isEmpty() || options.stamp) && options.floodBytes == 0)
        return error = "--flood-on and --stamp need --flood", false;
    return true;
}
