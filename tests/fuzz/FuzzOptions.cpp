// The text of the user's options, from a file that anyone may have written.
#include "Fuzz.h"
#include "shell/App.h"
#include "shell/MenuBar1.h"

#include <array>

namespace {

std::array<bool*, 5> Flags(App& app) {
    return {&app.Option_ViewRatings, &app.Option_ViewGlass, &app.Option_ViewDrinkType, &app.Option_CheckForAppUpdates,
            &app.Option_ShareRatings};
}

std::array<bool, 5> Decoded(App& app, const QString& text) {
    std::array<bool, 5> values{};
    for (bool* flag : Flags(app)) {
        *flag = false;
    }
    app.UserOptions = text;
    app.DecodeOptions();
    for (std::size_t place = 0; place < values.size(); ++place) {
        values[place] = *Flags(app)[place];
    }
    return values;
}

struct Program {
    int count = 1;
    char name[5] = "fuzz";
    char* arguments[2] = {name, nullptr};
    Runtime runtime{count, arguments};
    App app;
    MenuBar1 menuBar;
};

} // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    static Program program;
    App& app = program.app;
    app.SetMenuBar(program.menuBar);

    const QString text = TextOf(data, size);
    const std::array<bool, 5> values = Decoded(app, text);
    const QString codes[] = {app.OptionCode_ViewRatings, app.OptionCode_ViewGlass, app.OptionCode_ViewDrinkType,
                             app.OptionCode_CheckForAppUpdates, app.OptionCode_ShareRatings};
    for (std::size_t place = 0; place < values.size(); ++place) {
        Expect(values[place] == text.toUpper().contains(codes[place]), "a code that is there is on");
    }
    Expect(Decoded(app, app.EncodeOptions()) == values, "what is stored reads back the same");
    return 0;
}
