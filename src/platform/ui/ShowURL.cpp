#include "platform/ui/ShowURL.h"

#include <QDesktopServices>
#include <QUrl>

void ShowURL(const QString& url) {
    static_cast<void>(QDesktopServices::openUrl(QUrl(url)));
}
