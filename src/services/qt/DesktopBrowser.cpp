#include "services/qt/DesktopBrowser.h"

#include <QDesktopServices>
#include <QUrl>

namespace steward {

bool DesktopBrowser::Open(const char* address)
{
    // The address is escaped already; TolerantMode would escape its "%" a second time.
    return QDesktopServices::openUrl(QUrl(QString::fromLatin1(address), QUrl::StrictMode));
}

} // namespace steward
