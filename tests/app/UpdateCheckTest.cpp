#include "LoopbackServer.h"
#include "PourbookFixture.h"
#include "updates/Preferences.h"

#include <QApplication>
#include <QCheckBox>
#include <QRadioButton>
#include <QTabBar>
#include <QTest>

namespace {

QString DaysAgo(int days) {
    return QDate::currentDate().addDays(-days).toString("yyyy-M-d");
}

QWidget* OpenWindow(const char* name) {
    for (QWidget* window : QApplication::topLevelWidgets()) {
        if (window->objectName() == name && window->isVisible()) {
            return window;
        }
    }
    return nullptr;
}

} // namespace

class UpdateCheckTest : public PourbookTest {};

TEST_F(UpdateCheckTest, ADueCheckShowsTheNoticeForANewerVersionAndStoresTheDay) {
    const struct {
        QString setup;
        QByteArray page;
        bool asks, tells;
    } cases[] = {
        {"AppWidth = NULL", "9.9.9\n", true, true},
        {"AppWidth = 750, LastUpdateCheck = NULL", "1.0.0\n", true, false},
        {"LastUpdateCheck = '" + DaysAgo(6) + "'", "0.9.9\n", true, false},
        {"LastUpdateCheck = '2009-3-7'", "<b>999</b>", true, false},
        {"LastUpdateCheck = '2009-3-7', UserOptions = 'V01'", "9.9.9\n", false, false},
        {"LastUpdateCheck = '" + DaysAgo(4) + "', UserOptions = 'V04'", "9.9.9\n", false, false},
    };
    GivenUserFile();
    Execute("UPDATE Setup SET UserOptions = 'V04'");
    for (const auto& row : cases) {
        Execute("UPDATE Setup SET " + row.setup);
        const QString stored = Value("SELECT LastUpdateCheck FROM Setup");
        const LoopbackServer server({"HTTP/1.0 200 OK\r\n\r\n" + row.page});
        GivenVendorSite(server.Site());
        Start();
        EXPECT_EQ(server.Requests().size(), row.asks ? 1 : 0) << row.setup;
        EXPECT_EQ(OpenWindow("UpdateAvailable") != nullptr, row.tells) << row.setup;
        EXPECT_EQ(Value("SELECT LastUpdateCheck FROM Setup"), row.asks ? DaysAgo(0) : stored) << row.setup;
    }
}

TEST_F(UpdateCheckTest, PreferencesChangeTheOptionsWhenTheyClose) {
    Start();
    for (const bool before : {true, false}) {
        Choose("Edit_Preferences");
        QWidget* window = OpenWindow("Preferences");
        ASSERT_TRUE(QTest::qWaitForWindowActive(window));
        EXPECT_EQ(window->findChild<QCheckBox*>()->isChecked(), before);
        window->findChild<QCheckBox*>()->click();
        // The keyboard alone reaches the other page.
        window->findChild<QTabBar*>()->setFocus();
        QTest::keyClick(window->windowHandle(), Qt::Key_Right);
        auto* other = window->findChild<QRadioButton*>(before ? "ShareDrinks_No" : "ShareDrinks_Yes");
        EXPECT_FALSE(other->isChecked());
        QTest::mouseClick(window->windowHandle(), Qt::LeftButton, {}, other->mapTo(window, QPoint(8, 10)));
        EXPECT_EQ(Program().Option_CheckForAppUpdates, before);
        window->close();
        EXPECT_EQ(Program().Option_CheckForAppUpdates, !before);
        EXPECT_EQ(Program().Option_ShareRatings, !before);
    }
}
