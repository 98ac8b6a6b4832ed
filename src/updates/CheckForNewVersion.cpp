#include "platform/base/Date.h"
#include "platform/base/Text.h"
#include "platform/ui/MsgBox.h"
#include "shell/App.h"
#include "shell/WindowPlacement.h"
#include "updates/HTTPSocket.h"
#include "updates/UpdateAvailable.h"
#include "updates/VersionNumber.h"

namespace {

constexpr int timeoutSeconds = 5;

QString DateText(const Date& date) {
    const QString dash = QStringLiteral("-");
    return CStr(date.Year()) + dash + CStr(date.Month()) + dash + CStr(date.Day());
}

void ShowUpdateAvailable() {
    auto& window = UpdateAvailable::Instance();
    PlaceUnderMainWindow(window);
    window.Show();
}

// A save that fails is silent: the next start checks again.
void StoreLastUpdateCheck(App& app, const Date& date) {
    REALSQLDatabase db;
    if (app.GetDatabase(db)) {
        db.SQLExecute(QStringLiteral("UPDATE Setup SET LastUpdateCheck = '%1'").arg(DateText(date)));
        db.Close();
    }
}

} // namespace

// Whatever came is the reply: after a failure that is an empty or broken text, which is no newer version.
void App::CheckForNewVersion() {
    const Date now;
    HTTPSocket socket;
    socket.yield = true;
    const QString reply = socket.Get(
        QStringLiteral("http://") + VendorSite + QStringLiteral("/pourbook/pb1_latestversion.txt"), timeoutSeconds);
    if (VersionNumber(MajorVersion(), MinorVersion(), BugVersion()) < VersionNumber(reply)) {
        ShowUpdateAvailable();
    }
    StoreLastUpdateCheck(*this, now);
}

void App::DownloadComplete(const QString& /*url*/, int /*httpStatus*/, const InternetHeaders& /*headers*/,
                           const FolderItem& /*file*/) {
    MsgBox(QStringLiteral("Holy Crap!"));
}
