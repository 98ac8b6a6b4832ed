#pragma once

#include "platform/ui/Color.h"

class QTextEdit;

// The character styles of a field's text. Ranges count from 0; what lies beyond the text is ignored.
class StyledText {
public:
    // For the layer itself. Null is a field that has no styles: setting them does nothing.
    explicit StyledText(QTextEdit* editor);

    void SetSize(int start, int length, int pixels);
    void SetBold(int start, int length, bool bold);
    void SetTextColor(int start, int length, Color color);

private:
    QTextEdit* editor_;
};
