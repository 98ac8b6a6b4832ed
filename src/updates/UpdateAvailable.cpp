#include "updates/UpdateAvailable.h"

#include "platform/ui/Picture.h"
#include "platform/ui/ShowURL.h"
#include "shell/App.h"

namespace {

const WindowProperties properties = {
    .name = "UpdateAvailable",
    .title = QStringLiteral("Pourbook Update Available"),
    .width = 300,
    .height = 350,
    .kind = WindowKind::Floating,
    .backColor = Color{0xFFFFFF},
};

constexpr StaticTextLook noticeLook = {.textSize = 12, .alignment = TextAlignment::Centre, .multiLine = true};

} // namespace

UpdateAvailable::UpdateAvailable() : Window(properties) {
    // The picture begins above the window, so that its name stands above the text.
    PlaceAll(*this, {
                        {Canvas1, nullptr, {"Canvas1", "", {0, -50, 300, 300}}},
                        {GetUpdate, nullptr, {"GetUpdate", "", {47, 310, 115, 20}}},
                        {Close, nullptr, {"Close", "", {174, 310, 80, 20}}},
                        {StaticText1, nullptr, {"StaticText1", "", {20, 240, 260, 32}}},
                    });
    Canvas1.SetBackdrop(NamedPicture(QStringLiteral("About")));
    GetUpdate.SetCaption(QStringLiteral("Get Update"));
    GetUpdate.SetDefault(true);
    GetUpdate.Action = [this] { GetUpdate_Action(); };
    Close.SetCaption(QStringLiteral("Close"));
    Close.Action = [this] { Close_Action(); };
    StaticText1.SetLook(noticeLook);
    StaticText1.SetText(QStringLiteral("A software update is now available at %1.").arg(App::Instance().VendorSite));
    SetMenuBar(App::Instance().ApplicationMenuBar());
}

void UpdateAvailable::GetUpdate_Action() {
    Window::Close();
    ShowURL(QStringLiteral("http://") + App::Instance().VendorSite + QStringLiteral("/download.html"));
}

void UpdateAvailable::Close_Action() {
    Window::Close();
}
