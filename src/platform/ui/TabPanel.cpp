#include "platform/ui/TabPanel.h"

#include <QTabBar>
#include <QTabWidget>

TabPanel::TabPanel() : Control(new QTabWidget) {}

void TabPanel::AddTab(const QString& caption) {
    auto* tabs = static_cast<QTabWidget*>(Widget());
    auto* page = new QWidget;
    page->setAccessibleName(caption);
    tabs->addTab(page, caption);
}

void TabPanel::Describe(const QString& words) {
    Control::Describe(words);
    static_cast<QTabWidget*>(Widget())->tabBar()->setAccessibleName(words);
}

QWidget* TabPanel::Ground() const {
    const auto* tabs = static_cast<QTabWidget*>(Widget());
    return tabs->widget(tabs->count() - 1);
}
