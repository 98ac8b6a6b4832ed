#pragma once

#include "platform/ui/Color.h"
#include "platform/ui/Control.h"
#include "platform/ui/TextAlignment.h"

#include <QString>

#include <functional>

// The system's mouse cursors.
enum class MouseCursor { Arrow, FingerPointer };

// How a text looks, as a window's layout gives it.
struct StaticTextLook {
    Color textColor = Color{0x000000};
    const char* textFont = "System"; // "System" is the platform's own family
    int textSize = 0;                // logical pixels; 0 is the platform's default
    bool bold = false;
    bool underline = false;
    TextAlignment alignment = TextAlignment::Left;
    bool multiLine =
        false; // breaks lines at blanks; the text then starts at the top, otherwise it stands in the middle
};

// A text that the user reads. Text is plain: nothing in it is markup. Line ends may be of any platform's kind; they
// read back as a single line feed. What does not fit below is not shown, and no line is cut in two.
//
// A text with the finger pointer as its cursor acts as a link: it takes the keyboard focus, and Return and the space
// bar stand for a click on it.
class StaticText : public Control {
public:
    StaticText();

    // A press on the text; x and y are within it. Nothing depends on the result.
    std::function<bool(int x, int y)> MouseDown;

    void SetLook(const StaticTextLook& look);
    [[nodiscard]] QString Text() const;
    void SetText(const QString& text);
    void SetMouseCursor(MouseCursor cursor);

private:
    class Label;
    Label* label_;
};
