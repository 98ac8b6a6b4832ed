#include "help/Help.h"
#include "platform/ui/Picture.h"
#include "shell/App.h"

// Where the controls of the help window stand and how they look, in creation order.

namespace {

const WindowProperties properties = {
    .name = "Help",
    .title = QStringLiteral("Tipplewise Pourbook Help"),
    .width = 707,
    .height = 351,
    .kind = WindowKind::Floating,
    .backColor = Color{0xFFFFFF},
};

constexpr ShapeLook bullet = {Color{0xFFFFFF}, Color{0x8A8A8A}, 1, 0};
constexpr StaticTextLook plain = {.textSize = 10};
constexpr StaticTextLook wrapped = {.textSize = 10, .multiLine = true};
constexpr StaticTextLook underlined = {.textSize = 10, .underline = true};
constexpr StaticTextLook caption = {.textFont = "Arial", .textSize = 13, .bold = true};

struct DressedText {
    StaticText& text;
    const char* words = "";
    StaticTextLook look;
};

} // namespace

Help::Help() : Window(properties) {
    PlaceControls();
    DressControls();
    BindEvents();
    SetMenuBar(App::Instance().ApplicationMenuBar());
}

void Help::PlaceControls() {
    PlaceAll(*this, {
                        {Canvas1, nullptr, {"Canvas1", "", {3, 32, 300, 300}}},
                        {Topics, nullptr, {"Topics", "Help topics", {307, 47, 390, 295}}},
                        {TopicCaption, nullptr, {"TopicCaption", "", {307, 22, 380, 20}}},
                        {Oval2, &Topics, {"Oval2", "", {330, 101, 8, 8}}},
                        {Oval1, &Topics, {"Oval1", "", {330, 66, 8, 8}}},
                        {Oval3, &Topics, {"Oval3", "", {330, 137, 8, 8}}},
                        {Oval4, &Topics, {"Oval4", "", {330, 173, 8, 8}}},
                        {Oval5, &Topics, {"Oval5", "", {330, 209, 8, 8}}},
                        {Intro, &Topics, {"Intro", "", {345, 60, 216, 20}}},
                        {FindDrink, &Topics, {"FindDrink", "", {345, 95, 132, 20}}},
                        {MatchDrinks, &Topics, {"MatchDrinks", "", {345, 134, 342, 28}}},
                        {InBarPanel, &Topics, {"InBarPanel", "", {345, 167, 227, 20}}},
                        {DrinkRatings, &Topics, {"DrinkRatings", "", {345, 203, 99, 20}}},
                        {HelpInfo, nullptr, {"HelpInfo", "Help", {-82, 47, 390, 295}}},
                        {HelpText, &HelpInfo, {"HelpText", "", {-68, 86, 363, 239}}},
                        {Back, &HelpInfo, {"Back", "", {189, 54, 106, 20}}},
                        {CopyPrint, &Topics, {"CopyPrint", "", {345, 239, 139, 20}}},
                        {Oval7, &Topics, {"Oval7", "", {330, 245, 8, 8}}},
                        {DrinkLists, &Topics, {"DrinkLists", "", {345, 275, 139, 20}}},
                        {Oval8, &Topics, {"Oval8", "", {330, 281, 8, 8}}},
                    });
}

void Help::DressControls() {
    Canvas1.SetBackdrop(NamedPicture(QStringLiteral("About")));
    for (Oval* oval : {&Oval1, &Oval2, &Oval3, &Oval4, &Oval5, &Oval7, &Oval8}) {
        oval->SetLook(bullet);
    }
    const DressedText texts[] = {
        {TopicCaption, "Select a help topic from the list below", caption},
        {Intro, "Introduction to the Tipplewise Pourbook", plain},
        {FindDrink, "How to find a drink recipe", plain},
        {MatchDrinks, "How to find the recipes you can make with the ingredients that are in your home", wrapped},
        {InBarPanel, "How to use the 'Ingredients In Your Bar' panel", plain},
        {DrinkRatings, "About drink ratings", plain},
        {HelpText, "Help topic coming soon", wrapped},
        {Back, "Return to help topics", underlined},
        {CopyPrint, "Copy, paste or print recipes", plain},
        {DrinkLists, "How to use drinklists", plain},
    };
    for (const DressedText& row : texts) {
        row.text.SetLook(row.look);
        row.text.SetText(QString::fromLatin1(row.words));
    }
}
