#include "platform/ui/StyledText.h"

#include <QTextCharFormat>
#include <QTextCursor>
#include <QTextDocument>
#include <QTextEdit>

#include <algorithm>

namespace {

void Merge(QTextEdit* editor, int start, int length, const QTextCharFormat& format) {
    if (editor == nullptr) {
        return;
    }
    const int last = editor->document()->characterCount() - 1;
    // Qt calls a new style a change of the text too.
    const QSignalBlocker quiet(editor);
    QTextCursor range(editor->document());
    range.setPosition(std::clamp(start, 0, last));
    range.setPosition(std::clamp(start + length, 0, last), QTextCursor::KeepAnchor);
    range.mergeCharFormat(format);
}

} // namespace

StyledText::StyledText(QTextEdit* editor) : editor_(editor) {}

void StyledText::SetSize(int start, int length, int pixels) {
    QTextCharFormat format;
    format.setProperty(QTextFormat::FontPixelSize, pixels);
    Merge(editor_, start, length, format);
}

void StyledText::SetBold(int start, int length, bool bold) {
    QTextCharFormat format;
    format.setFontWeight(bold ? QFont::Bold : QFont::Normal);
    Merge(editor_, start, length, format);
}

void StyledText::SetTextColor(int start, int length, Color color) {
    QTextCharFormat format;
    format.setForeground(QColor(QRgb(color.rgb)));
    Merge(editor_, start, length, format);
}
