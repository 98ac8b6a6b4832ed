#include "platform/ui/TabPanel.h"

#include <QTabWidget>

TabPanel::TabPanel() : Control(new QTabWidget) {}

void TabPanel::AddTab(const QString& caption) {
    auto* tabs = static_cast<QTabWidget*>(Widget());
    tabs->addTab(new QWidget, caption);
}

QWidget* TabPanel::Ground() const {
    const auto* tabs = static_cast<QTabWidget*>(Widget());
    return tabs->widget(tabs->count() - 1);
}
