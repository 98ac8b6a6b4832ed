#include "help/AboutApp.h"

#include "help/VersionText.h"
#include "shell/App.h"
#include "shell/WindowPlacement.h"

namespace {

const WindowProperties properties = {
    .name = "AboutApp",
    .title = QStringLiteral("About Tipplewise Pourbook"),
    .width = 300,
    .height = 300,
    .kind = WindowKind::Floating,
    .minimizeable = false,
    .backdrop = "About",
};

} // namespace

AboutApp::AboutApp() : Window(properties) {
    PlaceAll(*this, {
                        {Version, nullptr, {"Version", "", {20, 260, 260, 20}}},
                        {StaticText2, nullptr, {"StaticText2", "", {0, 280, 300, 20}}},
                    });
    Version.SetLook({.textSize = 9, .bold = true, .alignment = TextAlignment::Centre});
    Version.SetText(QStringLiteral("Version #.#"));
    StaticText2.SetLook({.textColor = Color{0x626262}, .textSize = 9, .alignment = TextAlignment::Centre});
    StaticText2.SetText(QStringLiteral("A cocktail guide for the liquor cabinet at home"));
    OpenEvent = [this] { Event_Open(); };
    SetMenuBar(App::Instance().ApplicationMenuBar());
}

void AboutApp::Event_Open() {
    const App& app = App::Instance();
    Version.SetText(VersionText(
        {app.MajorVersion(), app.MinorVersion(), app.BugVersion(), app.StageCode(), app.NonReleaseVersion()}));
}

// NOLINTNEXTLINE(bugprone-reserved-identifier): the handler of a menu item, see App.h
bool App::_Help_About_Action() {
    auto& window = AboutApp::Instance();
    PlaceUnderMainWindow(window);
    window.Show();
    return false;
}
