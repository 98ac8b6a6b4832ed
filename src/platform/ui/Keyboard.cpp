#include "platform/ui/Keyboard.h"

#include <QGuiApplication>

bool Keyboard::AsyncShiftKey() {
    return (QGuiApplication::keyboardModifiers() & Qt::ShiftModifier) != 0;
}
