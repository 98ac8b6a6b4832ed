#include "shell/App.h"

#include <utility>

namespace {

const QString appName = QStringLiteral("Tipplewise Pourbook");

} // namespace

App::App(QString vendorSite)
    : Application(appName, POURBOOK_VERSION), DrinkAppName(appName), VendorSite(std::move(vendorSite)) {
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
