#include "shell/App.h"

App::App() {
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
