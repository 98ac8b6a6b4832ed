#include "MessageWatcher.h"

#include "PrintText.h"

#include <QAbstractButton>
#include <QCoreApplication>
#include <QEvent>
#include <QGuiApplication>
#include <QPushButton>
#include <QTimer>

#include <gtest/gtest.h>

MessageWatcher::MessageWatcher() {
    QCoreApplication::instance()->installEventFilter(this);
}

MessageWatcher::~MessageWatcher() {
    EXPECT_TRUE(expected_.empty()) << expected_.size() << " expected message boxes did not come";
}

void MessageWatcher::AnswerNextMessage(QMessageBox::StandardButton button) {
    DuringNextMessage([button](QMessageBox& box) {
        if (QAbstractButton* pressed = box.button(button); pressed != nullptr) {
            pressed->click();
            return;
        }
        ADD_FAILURE() << "the message box has no such button: " << box.text();
        box.done(QMessageBox::NoButton);
    });
}

void MessageWatcher::DuringNextMessage(std::function<void(QMessageBox& box)> action) {
    expected_.push_back(std::move(action));
}

bool MessageWatcher::eventFilter(QObject* watched, QEvent* event) {
    if (watched->objectName() != QLatin1String("MsgBox")) {
        return false;
    }
    auto* box = qobject_cast<QMessageBox*>(watched);
    if (box != nullptr && event->type() == QEvent::Show) {
        // The box's event loop begins after it was shown.
        QTimer::singleShot(0, box, [this, box] { Answer(*box); });
    }
    if (box != nullptr && event->type() == QEvent::Hide && box->parentWidget() != nullptr) {
        // The offscreen platform has no window manager that gives the focus back.
        QWidget* below = box->parentWidget();
        QTimer::singleShot(0, below, [below] {
            if (QGuiApplication::focusWindow() == nullptr && below->isVisible()) {
                below->activateWindow();
            }
        });
    }
    return false;
}

void MessageWatcher::Answer(QMessageBox& box) {
    QPushButton* preferred = box.defaultButton();
    shown_.push_back({box.text(), box.windowTitle(), box.icon(), box.standardButtons(),
                      preferred == nullptr ? QMessageBox::NoButton : box.standardButton(preferred)});
    if (expected_.empty() && others_) {
        others_(box);
        return;
    }
    if (expected_.empty()) {
        ADD_FAILURE() << "an unexpected message box: " << box.text();
        box.done(QMessageBox::NoButton);
        return;
    }
    const auto action = std::move(expected_.front());
    expected_.pop_front();
    action(box);
}
