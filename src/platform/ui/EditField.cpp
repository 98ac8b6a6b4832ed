#include "platform/ui/EditField.h"

#include "platform/base/Text.h"
#include "platform/ui/Events.h"
#include "platform/ui/FieldEvents.h"
#include "platform/ui/Fonts.h"
#include "platform/ui/TextField.h"

#include <QLineEdit>
#include <QScrollBar>
#include <QTextBlockFormat>
#include <QTextCursor>
#include <QTextDocument>

#include <algorithm>
#include <limits>

// What a field of one line and a field of many have in common.
class EditField::Editor {
public:
    Editor() = default;
    virtual ~Editor() = default;
    Editor(const Editor&) = delete;
    Editor& operator=(const Editor&) = delete;

    virtual void SetLook(const EditFieldLook& look) = 0;
    virtual void SetTextSize(int pixels) = 0;
    [[nodiscard]] virtual QString Text() const = 0;
    virtual void SetText(const QString& text) = 0;
    [[nodiscard]] virtual int SelStart() const = 0;
    [[nodiscard]] virtual int SelLength() const = 0;
    virtual void Select(int start, int length) = 0;
    [[nodiscard]] virtual QTextEdit* Styled() const { return nullptr; }
};

namespace {

// Gives a field of one line the text that the user pasted with blanks for its line breaks.
void PasteAsOneLine(QLineEdit& edit, QString text) {
    bool changed = false;
    for (QChar& character : text) {
        if (character == u'\n' || character == u'\r' || character == u'\x2028' || character == u'\x2029') {
            character = u' ';
            changed = true;
        }
    }
    if (changed) {
        const int caret = edit.cursorPosition();
        edit.setText(text);
        edit.setCursorPosition(caret);
    }
}

QPalette FieldPalette(QPalette palette, const EditFieldLook& look) {
    palette.setColor(QPalette::Text, QColor(QRgb(look.textColor.rgb)));
    palette.setColor(QPalette::Base, QColor(QRgb(look.backColor.rgb)));
    return palette;
}

QFont FieldFont(const QFont& base, const EditFieldLook& look) {
    QFont font = fonts::WithSize(base, look.textSize);
    font.setBold(look.bold);
    return font;
}

} // namespace

class EditField::LineEditor : public Editor {
public:
    explicit LineEditor(QLineEdit* edit) : edit_(edit) {
        edit_->setMaxLength(std::numeric_limits<int>::max());
        QObject::connect(edit, &QLineEdit::textEdited, edit,
                         [edit](const QString& text) { PasteAsOneLine(*edit, text); });
    }

    void SetLook(const EditFieldLook& look) override {
        edit_->setPalette(FieldPalette(edit_->palette(), look));
        edit_->setFont(FieldFont(edit_->font(), look));
        edit_->setAlignment(QtAlignment(look.alignment) | Qt::AlignVCenter);
        edit_->setReadOnly(look.readOnly);
        edit_->setFrame(look.border);
    }
    void SetTextSize(int pixels) override { edit_->setFont(fonts::WithSize(edit_->font(), pixels)); }
    [[nodiscard]] QString Text() const override { return edit_->text(); }
    void SetText(const QString& text) override {
        const QString lines = WithLineFeeds(text);
        if (edit_->text() != lines) {
            edit_->setText(lines);
        }
    }
    [[nodiscard]] int SelStart() const override {
        return edit_->hasSelectedText() ? edit_->selectionStart() : edit_->cursorPosition();
    }
    [[nodiscard]] int SelLength() const override { return edit_->selectionLength(); }
    void Select(int start, int length) override {
        if (length > 0) {
            edit_->setSelection(start, length);
        } else {
            edit_->setCursorPosition(std::min<int>(start, static_cast<int>(edit_->text().size())));
        }
    }

private:
    QLineEdit* edit_;
};

class EditField::TextEditor : public Editor {
public:
    explicit TextEditor(TextField* edit) : edit_(edit) {
        edit_->setFrameShape(QFrame::NoFrame);
        edit_->setHorizontalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
        edit_->setVerticalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
        edit_->document()->setDocumentMargin(1);
        edit_->setAcceptRichText(false);
        edit_->setTabChangesFocus(true);
    }

    void SetLook(const EditFieldLook& look) override {
        look_ = look;
        edit_->setFrameShape(look.border ? QFrame::StyledPanel : QFrame::NoFrame);
        edit_->setVerticalScrollBarPolicy(look.verticalScrollBar ? Qt::ScrollBarAlwaysOn : Qt::ScrollBarAlwaysOff);
        edit_->setPalette(FieldPalette(edit_->palette(), look));
        edit_->setFont(FieldFont(edit_->font(), look));
        edit_->setReadOnly(look.readOnly);
        edit_->SetIsCaption(look.isCaption);
        edit_->setLineWrapMode(look.wraps ? QTextEdit::WidgetWidth : QTextEdit::NoWrap);
        if (look.readOnly) {
            edit_->setTextInteractionFlags(Qt::TextSelectableByMouse | Qt::TextSelectableByKeyboard);
        }
        FormatLines();
    }
    void SetTextSize(int pixels) override {
        look_.textSize = pixels;
        edit_->setFont(fonts::WithSize(edit_->font(), pixels));
        FormatLines();
    }
    [[nodiscard]] QString Text() const override { return edit_->toPlainText(); }
    void SetText(const QString& text) override {
        const QString lines = WithLineFeeds(text);
        if (edit_->toPlainText() == lines) {
            return;
        }
        edit_->setCurrentCharFormat({});
        edit_->setPlainText(lines);
        FormatLines();
    }
    [[nodiscard]] int SelStart() const override { return edit_->textCursor().selectionStart(); }
    [[nodiscard]] int SelLength() const override {
        const QTextCursor cursor = edit_->textCursor();
        return cursor.selectionEnd() - cursor.selectionStart();
    }
    void Select(int start, int length) override {
        const int last = edit_->document()->characterCount() - 1;
        QTextCursor cursor = edit_->textCursor();
        cursor.setPosition(std::clamp(start, 0, last));
        cursor.setPosition(std::clamp(start + length, 0, last), QTextCursor::KeepAnchor);
        edit_->setTextCursor(cursor);
    }
    [[nodiscard]] QTextEdit* Styled() const override { return edit_; }

private:
    void FormatLines() {
        QTextBlockFormat format;
        format.setAlignment(QtAlignment(look_.alignment));
        const int textHeight = edit_->font().pixelSize();
        format.setLineHeight(textHeight * 1.15, QTextBlockFormat::FixedHeight);
        const QSignalBlocker quiet(edit_);
        QTextCursor all(edit_->document());
        all.select(QTextCursor::Document);
        all.mergeBlockFormat(format);
    }

    TextField* edit_;
    EditFieldLook look_;
};

EditField::EditField(Lines lines)
    : Control(lines == Lines::One ? static_cast<QWidget*>(new QLineEdit) : new TextField) {
    new FieldEvents(Widget(), *this);
    if (lines == Lines::One) {
        auto* edit = static_cast<QLineEdit*>(Widget());
        editor_ = std::make_unique<LineEditor>(edit);
        QObject::connect(edit, &QLineEdit::textChanged, edit, [this] { events::Raise(TextChange); });
    } else {
        auto* edit = static_cast<TextField*>(Widget());
        editor_ = std::make_unique<TextEditor>(edit);
        QObject::connect(edit, &QTextEdit::textChanged, edit, [this] { events::Raise(TextChange); });
    }
}

EditField::EditField(QLineEdit* cellEditor) : Control(cellEditor), editor_(std::make_unique<LineEditor>(cellEditor)) {}

EditField::~EditField() = default;

void EditField::Describe(const QString& words) {
    Control::Describe(words);
    if (const QTextEdit* many = editor_->Styled(); many != nullptr) {
        many->verticalScrollBar()->setAccessibleName(words + QStringLiteral(", scroll bar"));
    }
}

void EditField::SetLook(const EditFieldLook& look) {
    editor_->SetLook(look);
}

void EditField::SetTextSize(int pixels) {
    editor_->SetTextSize(pixels);
}

QString EditField::Text() const {
    return editor_->Text();
}

void EditField::SetText(const QString& text) {
    editor_->SetText(text);
    events::UnwindIfQuitting();
}

int EditField::SelStart() const {
    return editor_->SelStart();
}

void EditField::SetSelStart(int position) {
    editor_->Select(position, 0);
}

int EditField::SelLength() const {
    return editor_->SelLength();
}

void EditField::SetSelLength(int length) {
    editor_->Select(editor_->SelStart(), length);
}

StyledText EditField::StyledText() {
    return ::StyledText(editor_->Styled());
}
