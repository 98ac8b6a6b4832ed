#pragma once

#include "platform/ui/Color.h"
#include "platform/ui/Control.h"
#include "platform/ui/StyledText.h"
#include "platform/ui/TextAlignment.h"

#include <functional>
#include <memory>

class QLineEdit;

// How a field looks and behaves, as a window's layout gives it.
struct EditFieldLook {
    Color textColor = Color{0x000000};
    Color backColor = Color{0xFFFFFF};
    int textSize = 0; // logical pixels; 0 is the platform's default
    bool bold = false;
    TextAlignment alignment = TextAlignment::Left;
    bool readOnly = false;
    bool border = false;
    bool wraps = true;              // many lines only: whether a line too long for the field goes on below
    bool verticalScrollBar = false; // many lines only
    // Whether the field only names what stands beside it: the tab key passes it by, and to a screen reader it is a
    // label that is called by its text. Many lines only.
    bool isCaption = false;
};

// A field of text, of one line or of many. Text of a read-only field can be selected and copied.
//
// Positions in the text count from 0. Line ends in the text may be of any platform's kind; they read back as a single
// line feed. In a field of one line a line break that the user pastes becomes a blank. Lines of a field of many lines
// stand at a fixed distance of 1.15 times the text size, so that fields beside each other keep their lines level
// whatever fonts the machine has.
class EditField : public Control {
public:
    enum class Lines { One, Many };

    explicit EditField(Lines lines);
    // For the layer itself: takes over the editor of a list's cells.
    explicit EditField(QLineEdit* cellEditor);
    ~EditField() override;

    // Raised for every change of the text, also when the logic makes it.
    std::function<void()> TextChange;
    std::function<void()> GotFocus;
    std::function<void()> LostFocus;
    // A key in the field, before the field sees it; see Keys.h for its text. True keeps it from the field.
    std::function<bool(const QString& key)> KeyDown;

    void SetLook(const EditFieldLook& look);
    void SetTextSize(int pixels);

    [[nodiscard]] QString Text() const;
    void SetText(const QString& text);

    [[nodiscard]] int SelStart() const;
    // Sets the caret and drops the selection.
    void SetSelStart(int position);
    [[nodiscard]] int SelLength() const;
    void SetSelLength(int length);

    // The character styles of a field of many lines. They end with the next SetText.
    [[nodiscard]] class StyledText StyledText();

private:
    void Describe(const QString& words) override;

    class Editor;
    class LineEditor;
    class TextEditor;

    std::unique_ptr<Editor> editor_;
};
