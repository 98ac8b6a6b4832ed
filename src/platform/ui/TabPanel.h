#pragma once

#include "platform/ui/Control.h"

#include <QString>

// Pages that share one place, with a tab for each of which one is selected, at first the one that was added first.
// The tab key reaches the tabs, the arrow keys choose one.
class TabPanel : public Control {
public:
    TabPanel();

    // Adds a tab at the right end. The controls that are placed into the panel from here on stand on its page, in the
    // window's coordinates as ever.
    void AddTab(const QString& caption);

private:
    void Describe(const QString& words) override;
    [[nodiscard]] QWidget* Ground() const override;
};
