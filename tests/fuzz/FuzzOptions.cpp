// The text of the user's options, from a file that anyone may have written.
#include "Fuzz.h"
#include "shell/App.h"
#include "shell/MenuBar1.h"

namespace {

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
    const std::pair<QString, bool*> options[] = {
        {app.OptionCode_ViewRatings, &app.Option_ViewRatings},
        {app.OptionCode_ViewGlass, &app.Option_ViewGlass},
        {app.OptionCode_ViewDrinkType, &app.Option_ViewDrinkType},
        {app.OptionCode_CheckForAppUpdates, &app.Option_CheckForAppUpdates},
        {app.OptionCode_ShareRatings, &app.Option_ShareRatings},
    };
    const QString text = TextOf(data, size);
    app.UserOptions = text;
    for (const char* what : {"a code that is there is on", "what is stored reads back the same"}) {
        for (const auto& [code, flag] : options) {
            *flag = false;
        }
        app.DecodeOptions();
        for (const auto& [code, flag] : options) {
            Expect(*flag == text.toUpper().contains(code), what);
        }
        app.UserOptions = app.EncodeOptions();
    }
    return 0;
}
