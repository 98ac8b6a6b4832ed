#pragma once

#include <QAccessible>
#include <QString>

// For the layer itself: a widget of the layer's own that tells assistive tools what it is, because Qt takes it for a
// bare area or, where it acts when it is pressed, for something that does not.
class Spoken {
public:
    virtual ~Spoken() = default;

    // With no role the widget is told as Qt tells it. Once it was asked for it changes to another one, but not from or
    // to none.
    [[nodiscard]] virtual QAccessible::Role Role() const = 0;
    // What the widget shows beyond its name, or empty.
    [[nodiscard]] virtual QString Shown() const { return {}; }
    [[nodiscard]] virtual bool IsPressable() const { return false; }
    // An assistive tool presses the widget. Only called on a pressable one.
    virtual void PressByTool() {}

    // Lets Qt ask such widgets. Once, after the application object was made.
    static void Install();
};
