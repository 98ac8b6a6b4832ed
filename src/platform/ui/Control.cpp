#include "platform/ui/Control.h"

#include "platform/ui/Events.h"
#include "platform/ui/Window.h"

#include <QPointer>
#include <QWidget>

#include <algorithm>
#include <vector>

struct Control::State {
    QPointer<QWidget> widget;
    Control* parent = nullptr;
    std::vector<Control*> children;
    // In the window's coordinates, and the true size even where the widget is too small to have it.
    Rect rect;
    Locks locks = LockNone;
};

Control::Control(QWidget* widget) : state_(std::make_unique<State>()) {
    state_->widget = widget;
}

// The widget's parent may have been destroyed first, and the widget with it.
Control::~Control() {
    delete state_->widget;
}

void Control::Place(Window& window, Control* parent, const ControlPlace& place) {
    QWidget* widget = Widget();
    widget->setParent(parent == nullptr ? window.Content() : parent->Ground());
    widget->setObjectName(QString::fromLatin1(place.name));
    Describe(QString::fromUtf8(place.description));
    state_->parent = parent;
    state_->locks = place.locks;
    if (parent == nullptr) {
        window.Adopt(*this);
    } else {
        parent->state_->children.push_back(this);
    }
    ShowAt(place.rect);
    widget->show();
}

void Control::Describe(const QString& words) {
    Widget()->setAccessibleName(words);
}

QString Control::Name() const {
    return Widget()->objectName();
}

int Control::Left() const {
    return state_->rect.left;
}

int Control::Top() const {
    return state_->rect.top;
}

int Control::Width() const {
    return state_->rect.width;
}

int Control::Height() const {
    return state_->rect.height;
}

void Control::SetLeft(int left) {
    Rect rect = state_->rect;
    rect.left = left;
    MoveTo(rect);
}

void Control::SetTop(int top) {
    Rect rect = state_->rect;
    rect.top = top;
    MoveTo(rect);
}

void Control::SetWidth(int width) {
    Rect rect = state_->rect;
    rect.width = width;
    MoveTo(rect);
}

void Control::SetHeight(int height) {
    Rect rect = state_->rect;
    rect.height = height;
    MoveTo(rect);
}

bool Control::Visible() const {
    return !Widget()->isHidden();
}

void Control::SetVisible(bool visible) {
    Widget()->setVisible(visible);
    events::UnwindIfQuitting();
}

bool Control::Enabled() const {
    return Widget()->isEnabled();
}

void Control::SetEnabled(bool enabled) {
    Widget()->setEnabled(enabled);
    events::UnwindIfQuitting();
}

void Control::SetFocus() {
    Widget()->setFocus(Qt::OtherFocusReason);
    events::UnwindIfQuitting();
}

void Control::FollowFrame(const FrameChange& parent) {
    MoveTo(FollowParent(state_->rect, state_->locks, parent));
}

QWidget* Control::Widget() const {
    return state_->widget;
}

void Control::MoveTo(const Rect& rect) {
    const FrameChange change = ChangeBetween(state_->rect, rect);
    ShowAt(rect);
    if (change != FrameChange{}) {
        for (Control* child : state_->children) {
            child->FollowFrame(change);
        }
    }
}

// A child of a control that moved keeps its place in the parent's own coordinates, and still has to be told: the
// window's coordinates are what the logic reads.
void Control::ShowAt(const Rect& rect) {
    state_->rect = rect;
    const Control* parent = state_->parent;
    const int originLeft = parent == nullptr ? 0 : parent->Left();
    const int originTop = parent == nullptr ? 0 : parent->Top();
    Widget()->setGeometry(rect.left - originLeft, rect.top - originTop, std::max(0, rect.width),
                          std::max(0, rect.height));
}

void PlaceAll(Window& window, std::initializer_list<PlacedControl> rows) {
    for (const PlacedControl& row : rows) {
        row.control.Place(window, row.parent, row.place);
    }
}

void SetTabOrder(std::initializer_list<Control*> controls) {
    Control* before = nullptr;
    for (Control* control : controls) {
        if (before != nullptr) {
            QWidget::setTabOrder(before->Widget(), control->Widget());
        }
        before = control;
    }
}
