#include "store/DBUpgrade.h"

namespace {

const WindowProperties properties = {
    .name = "DBUpgrade",
    .title = QStringLiteral("Untitled"),
    .width = 264,
    .height = 82,
    .kind = WindowKind::Dialog,
};

} // namespace

DBUpgrade::DBUpgrade() : Window(properties) {
    PlaceAll(*this, {
                        {StaticText1, nullptr, {"StaticText1", "", {41, 14, 182, 20}}},
                        {Progress, nullptr, {"Progress", "Progress of the upgrade", {20, 46, 224, 20}}},
                    });
    StaticText1.SetLook({.alignment = TextAlignment::Centre});
    StaticText1.SetText(QStringLiteral("Upgrading Drink Database"));
    Progress.SetMaximum(100);
}
