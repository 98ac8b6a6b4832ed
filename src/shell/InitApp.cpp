#include "platform/base/Date.h"
#include "platform/base/Text.h"
#include "platform/files/FolderItem.h"
#include "platform/ui/MenuBar.h"
#include "platform/ui/MsgBox.h"
#include "shell/App.h"
#include "shell/MainWindow.h"

namespace {

constexpr int currentDBVersion = 2;

// The row of a user who has never closed the main window has no width.
bool IsFirstRun(const RecordSet& setup) {
    return setup.Field("AppWidth").IsNull();
}

// Connects and reads the user's settings. Without them there is no start.
RecordSet OpenSetup(App& app, REALSQLDatabase& db) {
    if (!app.GetDatabase(db)) {
        Quit(0);
    }
    RecordSet setup = db.SQLSelect(QStringLiteral("SELECT * FROM Setup"));
    if (db.Error()) {
        MsgBox(QStringLiteral("An error occurred getting the user's setup information: ") + db.ErrorMessage());
        db.Close();
        Quit(0);
    }
    return setup;
}

void RestoreWindow(MainWindow& window, const RecordSet& setup) {
    window.SetTop(setup.Field("AppTop").IntegerValue());
    window.SetLeft(setup.Field("AppLeft").IntegerValue());
    window.SetWidth(setup.Field("AppWidth").IntegerValue());
    window.SetHeight(setup.Field("AppHeight").IntegerValue());
}

void PlaceWindowForFirstRun(MainWindow& window) {
    window.SetWidth(750);
    window.SetHeight(600);
    window.SetTop(100);
    window.SetLeft(100);
}

// Long ago, so that a first run always looks for a new version.
void SetToFirstRun(Date& lastCheck) {
    lastCheck.SetYear(2000);
    lastCheck.SetMonth(1);
    lastCheck.SetDay(1);
}

// A little under six days.
bool IsCheckDue(const Date& lastCheck, const Date& now) {
    return 500000.0 < now.TotalSeconds() - lastCheck.TotalSeconds();
}

void Move(Control& control, const Rect& place) {
    control.SetLeft(place.left);
    control.SetTop(place.top);
    control.SetWidth(place.width);
    control.SetHeight(place.height);
}

// The frames of the two lists differ by platform. The list of ingredients reaches down to the tools, which stand at
// the bottom of the window that was just restored.
void PlaceSidePanel(MainWindow& window, bool onMac) {
    Move(window.SideDrinklistsLabel, {0, 50, 224, 27});
    Move(window.SideIngredLabel, {0, 204, 224, 30});
    const int tools = window.SideTools.Top();
    if (onMac) {
        Move(window.DrinkListsList, {-2, 76, 227, 129});
        Move(window.InBarList, {-2, 233, 227, tools - 233 + 1});
    } else {
        Move(window.DrinkListsList, {-1, 81, 202, 118});
        Move(window.InBarList, {-1, 238, 202, tools - 238 - 2});
    }
}

} // namespace

// The order of the steps matters: the options decide on the columns that the fills use, and the side panel is placed
// for the size that the window has been given.
void App::InitApp() {
    Date lastCheck;
    const Date now;
    if constexpr (!InDevelopment) {
        OnMac = Right(Uppercase(ExecutableFile().AbsolutePath()), 3) != QLatin1String("EXE");
        ProvisionDatabase();
    }

    REALSQLDatabase db;
    RecordSet setup = OpenSetup(*this, db);
    if (!InDevelopment && setup.Field("DBVersion").IntegerValue() != currentDBVersion) {
        setup.Close();
        db.Close();
        UpgradeDBtoVersion2();
        setup = OpenSetup(*this, db);
    }

    MainWindow& window = MainWindow::Instance();
    if (IsFirstRun(setup)) {
        UserOptions = OptionCode_ViewRatings + OptionCode_ShareRatings + OptionCode_CheckForAppUpdates;
        PlaceWindowForFirstRun(window);
        SetToFirstRun(lastCheck);
    } else {
        RestoreWindow(window, setup);
        UserOptions = setup.Field("UserOptions").StringValue();
        lastCheck.SetSQLDate(setup.Field("LastUpdateCheck").StringValue());
    }
    db.Close();

    if (!OnMac) {
        Window_Zoom().SetText(QStringLiteral("Maximize"));
    }
    DecodeOptions();

    PlaceSidePanel(window, OnMac);
    window.SetTitle(DrinkAppName);

    // In this order; the first that fails has told the user and stops the rest.
    if (!FillInBarList() || !FillDrinkListsList() || !FillDrinkList()) {
        return;
    }
    if (Option_CheckForAppUpdates && IsCheckDue(lastCheck, now)) {
        CheckForNewVersion();
    }
}
