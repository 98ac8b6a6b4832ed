#include "platform/ui/Buttons.h"

#include "platform/ui/Events.h"
#include "platform/ui/Fonts.h"

#include <QCheckBox>
#include <QPushButton>
#include <QRadioButton>

PushButton::PushButton() : Control(new QPushButton) {
    auto* button = static_cast<QPushButton*>(Widget());
    button->setAutoDefault(false);
    QObject::connect(button, &QPushButton::clicked, button, [this, button] {
        // A press by an assistive tool does not bring the focus, which would end an edit in a cell first.
        button->setFocus(Qt::OtherFocusReason);
        events::Raise(Action);
    });
}

void PushButton::SetCaption(const QString& caption) {
    static_cast<QPushButton*>(Widget())->setText(caption);
}

void PushButton::SetTextSize(int pixels) {
    Widget()->setFont(fonts::WithSize(Widget()->font(), pixels));
}

void PushButton::SetDefault(bool isDefault) {
    static_cast<QPushButton*>(Widget())->setDefault(isDefault);
}

RadioButton::RadioButton() : Control(new QRadioButton) {}

void RadioButton::SetCaption(const QString& caption) {
    static_cast<QRadioButton*>(Widget())->setText(caption);
}

bool RadioButton::Value() const {
    return static_cast<QRadioButton*>(Widget())->isChecked();
}

void RadioButton::SetValue(bool value) {
    static_cast<QRadioButton*>(Widget())->setChecked(value);
}

BevelButton::BevelButton() : Control(new QPushButton) {
    auto* button = static_cast<QPushButton*>(Widget());
    button->setFocusPolicy(Qt::NoFocus);
    button->setAutoDefault(false);
    QObject::connect(button, &QPushButton::clicked, button, [this] { events::Raise(Action); });
}

void BevelButton::SetCaption(const QString& caption) {
    static_cast<QPushButton*>(Widget())->setText(caption);
}

void BevelButton::Describe(const QString& words) {
    Control::Describe(words);
    Widget()->setToolTip(words);
}

CheckBox::CheckBox() : Control(new QCheckBox) {
    auto* box = static_cast<QCheckBox*>(Widget());
    QObject::connect(box, &QCheckBox::toggled, box, [this] { events::Raise(Action); });
}

void CheckBox::SetCaption(const QString& caption) {
    static_cast<QCheckBox*>(Widget())->setText(caption);
}

void CheckBox::SetTextSize(int pixels) {
    Widget()->setFont(fonts::WithSize(Widget()->font(), pixels));
}

bool CheckBox::Value() const {
    return static_cast<QCheckBox*>(Widget())->isChecked();
}

void CheckBox::SetValue(bool value) {
    static_cast<QCheckBox*>(Widget())->setChecked(value);
    events::UnwindIfQuitting();
}
