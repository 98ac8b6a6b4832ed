#include "updates/Preferences.h"

#include "shell/App.h"
#include "shell/WindowPlacement.h"

namespace {

const WindowProperties properties = {
    .name = "Preferences",
    .title = QStringLiteral("Preferences"),
    .width = 462,
    .height = 265,
    .kind = WindowKind::Floating,
    .minimizeable = false,
};

constexpr StaticTextLook explanation = {.textSize = 10, .multiLine = true};

} // namespace

Preferences::Preferences() : Window(properties) {
    PlaceControls();
    DressControls();
    OpenEvent = [this] { Event_Open(); };
    CloseEvent = [this] { Event_Close(); };
    SetMenuBar(App::Instance().ApplicationMenuBar());
}

void Preferences::PlaceControls() {
    PlaceAll(*this, {{TabPanel1, nullptr, {"TabPanel1", "Kinds of preferences", {9, 14, 444, 237}}}});
    TabPanel1.AddTab(QStringLiteral("General"));
    PlaceAll(*this, {{CheckForAppUpdates, &TabPanel1, {"CheckForAppUpdates", "", {41, 71, 322, 20}}}});
    TabPanel1.AddTab(QStringLiteral("Community"));
    PlaceAll(
        *this,
        {
            {ShareDrinks_Yes, &TabPanel1, {"ShareDrinks_Yes", "Yes, share your drink ratings", {153, 190, 54, 20}}},
            {ShareDrinks_No, &TabPanel1, {"ShareDrinks_No", "No, do not share your drink ratings", {256, 190, 54, 20}}},
            {StaticText1, &TabPanel1, {"StaticText1", "", {91, 139, 280, 20}}},
            {StaticText2, &TabPanel1, {"StaticText2", "", {31, 68, 411, 31}}},
        });
}

void Preferences::DressControls() {
    CheckForAppUpdates.SetCaption(QStringLiteral("Automatically check for application updates"));
    ShareDrinks_Yes.SetCaption(QStringLiteral("Yes"));
    ShareDrinks_No.SetCaption(QStringLiteral("No"));
    StaticText1.SetText(QStringLiteral("Would you like to share your drink ratings?"));
    StaticText2.SetLook(explanation);
    StaticText2.SetText(QStringLiteral("Future versions can share your ratings with %1, and help you find the drinks "
                                       "that other people like. Nothing is sent today.")
                            .arg(App::Instance().VendorSite));
}

void Preferences::Event_Open() {
    const App& app = App::Instance();
    CheckForAppUpdates.SetValue(app.Option_CheckForAppUpdates);
    ShareDrinks_Yes.SetValue(app.Option_ShareRatings);
    ShareDrinks_No.SetValue(!app.Option_ShareRatings);
}

void Preferences::Event_Close() {
    App& app = App::Instance();
    app.Option_CheckForAppUpdates = CheckForAppUpdates.Value();
    app.Option_ShareRatings = ShareDrinks_Yes.Value();
}

// NOLINTNEXTLINE(bugprone-reserved-identifier): the name of the handler, see App.h
bool App::_Edit_Preferences_Action() {
    auto& window = Preferences::Instance();
    PlaceUnderMainWindow(window);
    window.Show();
    return false;
}
