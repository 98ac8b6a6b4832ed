#include "shell/App.h"

namespace {

const QString appName = QStringLiteral("Tipplewise Pourbook");

} // namespace

App::App(const QString& vendorSite)
    : Application(appName, POURBOOK_VERSION), DrinkAppName(appName), VendorSite(vendorSite) {
    Open = [this] { Event_Open(); };
    Activate = [this] { Event_Activate(); };
}

App& App::Instance() {
    return static_cast<App&>(Application::Current());
}

void App::Event_Open() {
    InitApp();
}

void App::Event_Activate() {
    AppLoaded = true;
}
