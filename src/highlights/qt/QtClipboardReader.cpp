#include "highlights/qt/QtClipboardReader.h"

#include <QClipboard>
#include <QGuiApplication>
#include <QMimeData>

namespace steward {

bool QtClipboardReader::ReadText(std::string& text)
{
    const QMimeData* data = QGuiApplication::clipboard()->mimeData();
    if (!data || !data->hasText())
        return false;
    const QString clip = data->text();
    text.clear();
    text.reserve(static_cast<std::size_t>(clip.size()));
    // Only ASCII passes, so that no clipboard byte can fall in the ColorCode range.
    for (const QChar c : clip)
        text.push_back(c.unicode() < 0x80 ? static_cast<char>(c.unicode()) : '?');
    return true;
}

} // namespace steward
