#include "platform/ui/FieldEvents.h"

#include "platform/ui/EditField.h"
#include "platform/ui/Events.h"
#include "platform/ui/Keys.h"

#include <QCoreApplication>
#include <QFocusEvent>
#include <QKeyEvent>
#include <QWidget>

#include <utility>

FieldEvents::FieldEvents(QWidget* widget, EditField& field) : QObject(widget), field_(field) {
    widget->installEventFilter(this);
}

bool FieldEvents::eventFilter(QObject* watched, QEvent* event) {
    switch (event->type()) {
        case QEvent::FocusIn:
            broughtByMouse_ = static_cast<QFocusEvent*>(event)->reason() == Qt::MouseFocusReason;
            PassOn(watched, event);
            events::Raise(field_.GotFocus);
            return true;
        case QEvent::FocusOut:
            PassOn(watched, event);
            events::Raise(field_.LostFocus);
            return true;
        case QEvent::KeyPress: {
            const QString key = KeyText(*static_cast<QKeyEvent*>(event));
            return !key.isEmpty() && events::Raise(field_.KeyDown, key);
        }
        case QEvent::ShortcutOverride:
            // A read-only field of many lines would leave the key to the menu.
            if (static_cast<QKeyEvent*>(event)->matches(QKeySequence::Copy)) {
                event->accept();
                return true;
            }
            return false;
        case QEvent::MouseButtonPress:
            if (std::exchange(broughtByMouse_, false) && field_.SelLength() > 0) {
                PassOnKeepingSelection(watched, event);
                return true;
            }
            return false;
        default:
            return false;
    }
}

void FieldEvents::PassOn(QObject* watched, QEvent* event) {
    watched->removeEventFilter(this);
    QCoreApplication::sendEvent(watched, event);
    watched->installEventFilter(this);
}

void FieldEvents::PassOnKeepingSelection(QObject* watched, QEvent* event) {
    const int start = field_.SelStart();
    const int length = field_.SelLength();
    PassOn(watched, event);
    field_.SetSelStart(start);
    field_.SetSelLength(length);
}
