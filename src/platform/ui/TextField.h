#pragma once

#include "platform/ui/Spoken.h"

#include <QTextEdit>

// For the layer itself: the widget of a field of many lines.
class TextField : public QTextEdit, public Spoken {
public:
    // A caption takes the focus from the mouse only, for those who want to copy it.
    void SetIsCaption(bool isCaption) {
        if (isCaption != isCaption_) {
            isCaption_ = isCaption;
            ForgetWhatWasTold();
        }
        setFocusPolicy(isCaption ? Qt::ClickFocus : Qt::StrongFocus);
    }

    [[nodiscard]] QString Shown() const override { return toPlainText(); }
    [[nodiscard]] QAccessible::Role Role() const override {
        return isCaption_ ? QAccessible::StaticText : QAccessible::NoRole;
    }

private:
    // Qt keeps the kind of element that the widget was when it was first asked for.
    void ForgetWhatWasTold() {
        QAccessible::deleteAccessibleInterface(QAccessible::uniqueId(QAccessible::queryAccessibleInterface(this)));
    }

    bool isCaption_ = false;
};
