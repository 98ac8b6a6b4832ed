#pragma once

#include <QObject>

class EditField;

// For the layer itself: tells a field of the keys that its widget is given, and of the focus that it gets and loses.
// The widget takes a change of the focus first, so that what the handler selects stands. A mouse press that brings the
// focus would set the caret next and drop that selection, so the selection is put back after it.
class FieldEvents : public QObject {
public:
    // The widget owns it.
    FieldEvents(QWidget* widget, EditField& field);

protected:
    bool eventFilter(QObject* watched, QEvent* event) override;

private:
    void PassOn(QObject* watched, QEvent* event);
    void PassOnKeepingSelection(QObject* watched, QEvent* event);

    EditField& field_;
    bool broughtByMouse_ = false;
};
