#include "platform/ui/WindowFrame.h"

#include "platform/ui/OpenWindows.h"
#include "platform/ui/Picture.h"

#include <QCloseEvent>
#include <QGuiApplication>
#include <QMenuBar>
#include <QPainter>
#include <QPushButton>
#include <QResizeEvent>
#include <QScreen>
#include <QWindow>

#include <algorithm>

namespace {

class ContentArea : public QWidget {
public:
    ContentArea(QWidget* parent, const WindowProperties& properties)
        : QWidget(parent),
          backColor_(properties.backColor),
          backdrop_(*properties.backdrop == '\0' ? nullptr : NamedPicture(QString::fromLatin1(properties.backdrop))) {}

protected:
    void paintEvent(QPaintEvent* /*event*/) override {
        QPainter painter(this);
        if (backColor_.has_value()) {
            painter.fillRect(rect(), QColor(QRgb(backColor_->rgb)));
        }
        if (backdrop_ != nullptr) {
            backdrop_->Draw(painter, rect());
        }
    }

private:
    std::optional<Color> backColor_;
    const Picture* backdrop_;
};

Qt::WindowFlags FlagsFor(const WindowProperties& properties) {
    switch (properties.kind) {
        case WindowKind::Floating:
            return Qt::Dialog | Qt::CustomizeWindowHint | Qt::WindowTitleHint | Qt::WindowSystemMenuHint |
                   Qt::WindowCloseButtonHint |
                   (properties.minimizeable ? Qt::WindowMinimizeButtonHint : Qt::WindowFlags());
        case WindowKind::Dialog:
            return Qt::Dialog | Qt::CustomizeWindowHint | Qt::WindowTitleHint;
        case WindowKind::Document:
            break;
    }
    return Qt::Window;
}

} // namespace

WindowFrame::WindowFrame(const WindowProperties& properties)
    : QMainWindow(nullptr, FlagsFor(properties)), properties_(properties), content_(new ContentArea(this, properties)) {
    setObjectName(QString::fromLatin1(properties.name));
    setWindowTitle(properties.title);
    setAttribute(Qt::WA_DeleteOnClose, false);
    ApplyLimits();
    resize(properties.width, properties.height);
    LayOut();
    if (properties.kind == WindowKind::Dialog) {
        move(QGuiApplication::primaryScreen()->availableGeometry().center() - rect().center());
    }
}

void WindowFrame::AddMenuBar(QMenuBar* menuBar) {
    menuBar_ = menuBar;
    menuBar_->setParent(this);
    menuBar_->setNativeMenuBar(false);
    menuBar_->show();
}

void WindowFrame::ApplyLimits() {
    const int above = MenuHeight();
    if (properties_.resizeable) {
        setMinimumSize(properties_.minWidth, properties_.minHeight + above);
        setMaximumSize(properties_.maxWidth, properties_.maxHeight + above);
    } else {
        setFixedSize(properties_.width, properties_.height + above);
    }
}

int WindowFrame::MenuHeight() const {
    return menuBar_ == nullptr ? 0 : menuBar_->sizeHint().height();
}

void WindowFrame::LayOut() {
    const int menuHeight = MenuHeight();
    if (menuBar_ != nullptr) {
        menuBar_->setGeometry(0, 0, width(), menuHeight);
    }
    const QSize before = content_->size();
    content_->setGeometry(0, menuHeight, width(), std::max(0, height() - menuHeight));
    const QSize after = content_->size();
    if (laidOut_ && before != after && Resized) {
        Resized({0, 0, after.width() - before.width(), after.height() - before.height()});
    }
    laidOut_ = true;
}

void WindowFrame::resizeEvent(QResizeEvent* event) {
    QMainWindow::resizeEvent(event);
    LayOut();
}

// What the focused control did not take comes here.
void WindowFrame::keyPressEvent(QKeyEvent* event) {
    if (event->key() == Qt::Key_Return || event->key() == Qt::Key_Enter) {
        for (QPushButton* button : findChildren<QPushButton*>()) {
            if (button->isDefault() && button->isVisible()) {
                button->click();
                return;
            }
        }
    }
    QMainWindow::keyPressEvent(event);
}

// The window system keeps a window above the one that it is transient for.
void WindowFrame::showEvent(QShowEvent* event) {
    if (const Window* document = OpenWindows::Document();
        properties_.kind == WindowKind::Floating && document != nullptr) {
        windowHandle()->setTransientParent(document->Widget()->windowHandle());
    }
    QMainWindow::showEvent(event);
}

void WindowFrame::closeEvent(QCloseEvent* event) {
    // A dialog has no close box, but the desktop has keys for closing any window.
    if (properties_.kind == WindowKind::Dialog && event->spontaneous()) {
        event->ignore();
        return;
    }
    // An edit in a cell ends before the window does, so that its text reaches the handler.
    if (QWidget* focused = focusWidget(); focused != nullptr) {
        focused->clearFocus();
    }
    if (Closed) {
        Closed();
    }
    event->accept();
}
