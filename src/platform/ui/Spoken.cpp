#include "platform/ui/Spoken.h"

#include <QAccessibleWidget>
#include <QStringList>
#include <QWidget>

namespace {

class SpokenWidget : public QAccessibleWidget {
public:
    using QAccessibleWidget::QAccessibleWidget;

    [[nodiscard]] QAccessible::Role role() const override {
        const Spoken* spoken = Asked();
        return spoken == nullptr ? QAccessibleWidget::role() : spoken->Role();
    }

    [[nodiscard]] QString text(QAccessible::Text kind) const override {
        const QString text = QAccessibleWidget::text(kind);
        const Spoken* spoken = Asked();
        const QString shown = spoken == nullptr || kind != QAccessible::Name ? QString() : spoken->Shown();
        return text.isEmpty() || shown.isEmpty() ? text + shown : text + QStringLiteral(": ") + shown;
    }

    // The parts of a text that is only read are of no use.
    [[nodiscard]] int childCount() const override {
        return role() == QAccessible::StaticText ? 0 : QAccessibleWidget::childCount();
    }

    [[nodiscard]] QStringList actionNames() const override {
        QStringList names = QAccessibleWidget::actionNames();
        if (const Spoken* spoken = Asked(); spoken != nullptr && spoken->IsPressable()) {
            names.prepend(pressAction());
        }
        return names;
    }

    void doAction(const QString& name) override {
        Spoken* spoken = Asked();
        if (name == pressAction() && spoken != nullptr && spoken->IsPressable()) {
            spoken->PressByTool();
        } else {
            QAccessibleWidget::doAction(name);
        }
    }

private:
    // A widget that is being destroyed may still be asked for, and is no such widget any more.
    [[nodiscard]] Spoken* Asked() const { return dynamic_cast<Spoken*>(object()); }
};

QAccessibleInterface* InterfaceOf(const QString& /*className*/, QObject* object) {
    const auto* spoken = dynamic_cast<Spoken*>(object);
    return spoken == nullptr || spoken->Role() == QAccessible::NoRole
               ? nullptr
               : new SpokenWidget(static_cast<QWidget*>(object), spoken->Role());
}

} // namespace

void Spoken::Install() {
    QAccessible::installFactory(InterfaceOf);
}
