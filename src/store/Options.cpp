#include "platform/base/Text.h"
#include "platform/ui/MenuBar.h"
#include "shell/App.h"

#include <vector>

namespace {

struct Option {
    QString code;
    bool App::*flag;
    // What the menu item of a column says while the column shows; null for an option that has no item.
    MenuItem& (App::*item)() const;
    const char* caption;
};

std::vector<Option> Options(const App& app) {
    return {
        {app.OptionCode_ViewRatings, &App::Option_ViewRatings, &App::View_RatingsColumn, "Hide Ratings Column"},
        {app.OptionCode_ViewGlass, &App::Option_ViewGlass, &App::View_GlassColumn, "Hide Glass Column"},
        {app.OptionCode_ViewDrinkType, &App::Option_ViewDrinkType, &App::View_DrinkTypeColumn,
         "Hide Drink Type Column"},
        {app.OptionCode_CheckForAppUpdates, &App::Option_CheckForAppUpdates, nullptr, ""},
        {app.OptionCode_ShareRatings, &App::Option_ShareRatings, nullptr, ""},
    };
}

} // namespace

void App::DecodeOptions() {
    for (const Option& option : Options(*this)) {
        if (InStr(UserOptions, option.code) == 0) {
            continue;
        }
        this->*option.flag = true;
        if (option.item != nullptr) {
            (this->*option.item)().SetText(QString::fromLatin1(option.caption));
        }
    }
}

// The glass stands before the ratings here. Any order reads back the same.
QString App::EncodeOptions() const {
    QString codes;
    codes += Option_ViewGlass ? OptionCode_ViewGlass : QString();
    codes += Option_ViewRatings ? OptionCode_ViewRatings : QString();
    codes += Option_ViewDrinkType ? OptionCode_ViewDrinkType : QString();
    codes += Option_CheckForAppUpdates ? OptionCode_CheckForAppUpdates : QString();
    codes += Option_ShareRatings ? OptionCode_ShareRatings : QString();
    return codes;
}
