#include "platform/ui/StandardEdit.h"

#include <QApplication>
#include <QClipboard>
#include <QComboBox>
#include <QLineEdit>
#include <QTextCursor>
#include <QTextEdit>

namespace {

// A box with a list keeps the focus for the field inside it.
QWidget* FocusedField() {
    QWidget* focused = QApplication::focusWidget();
    const auto* box = qobject_cast<QComboBox*>(focused);
    return box == nullptr ? focused : box->lineEdit();
}

bool CanDoWith(MenuItemKind kind, bool hasSelection, bool isReadOnly) {
    switch (kind) {
        case MenuItemKind::EditCut:
            return hasSelection && !isReadOnly;
        case MenuItemKind::EditCopy:
            return hasSelection;
        case MenuItemKind::EditPaste:
            return !isReadOnly && !QApplication::clipboard()->text().isEmpty();
        default:
            return false;
    }
}

template <class Field>
void DoOn(Field* field, MenuItemKind kind) {
    switch (kind) {
        case MenuItemKind::EditCut:
            field->cut();
            break;
        case MenuItemKind::EditCopy:
            field->copy();
            break;
        case MenuItemKind::EditPaste:
            field->paste();
            break;
        default:
            break;
    }
}

} // namespace

namespace standardedit {

bool CanDo(MenuItemKind kind) {
    QWidget* focused = FocusedField();
    if (const auto* line = qobject_cast<QLineEdit*>(focused); line != nullptr) {
        return CanDoWith(kind, line->hasSelectedText(), line->isReadOnly());
    }
    if (const auto* text = qobject_cast<QTextEdit*>(focused); text != nullptr) {
        return CanDoWith(kind, text->textCursor().hasSelection(), text->isReadOnly());
    }
    return false;
}

void Do(MenuItemKind kind) {
    QWidget* focused = FocusedField();
    if (auto* line = qobject_cast<QLineEdit*>(focused); line != nullptr) {
        DoOn(line, kind);
    } else if (auto* text = qobject_cast<QTextEdit*>(focused); text != nullptr) {
        DoOn(text, kind);
    }
}

} // namespace standardedit
