#include "platform/ui/ProgressBar.h"

#include "platform/ui/Events.h"

#include <QCoreApplication>
#include <QProgressBar>

ProgressBar::ProgressBar() : Control(new QProgressBar) {
    static_cast<QProgressBar*>(Widget())->setTextVisible(false);
}

void ProgressBar::SetMaximum(int maximum) {
    static_cast<QProgressBar*>(Widget())->setMaximum(maximum);
}

void ProgressBar::SetValue(int value) {
    static_cast<QProgressBar*>(Widget())->setValue(value);
    QCoreApplication::processEvents(QEventLoop::ExcludeUserInputEvents);
    events::UnwindIfQuitting();
}
