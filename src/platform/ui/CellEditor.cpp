#include "platform/ui/CellEditor.h"

#include "platform/ui/Events.h"
#include "platform/ui/Keys.h"
#include "platform/ui/ListModel.h"
#include "platform/ui/ListView.h"
#include "platform/ui/Style.h"

#include <QApplication>
#include <QInputMethodEvent>
#include <QKeyEvent>
#include <QPainter>
#include <QTimer>

namespace {

constexpr auto endWithNextTurn = QEvent::User;

} // namespace

// The field itself. Keys reach the list's CellKeyDown before the field; text that an input method or a dead key
// composes comes the same way.
class CellEditor::Line : public QLineEdit {
public:
    Line(CellEditor& owner, QWidget* parent) : QLineEdit(parent), owner_(owner) {
        setObjectName(QStringLiteral("CellEditor"));
        setFrame(false);
        setTextMargins(1, 0, 1, 0);
        hide();
    }

protected:
    // Without a frame the field would not stand out from white cells around it.
    void paintEvent(QPaintEvent* event) override {
        QLineEdit::paintEvent(event);
        QPainter painter(this);
        DrawFrame(painter, rect(), palette().color(QPalette::Highlight).darker(170));
    }

    bool event(QEvent* event) override {
        // The tab keys would move the focus before keyPressEvent sees them.
        if (event->type() == QEvent::KeyPress) {
            auto* key = static_cast<QKeyEvent*>(event);
            if (key->key() == Qt::Key_Tab || key->key() == Qt::Key_Backtab) {
                keyPressEvent(key);
                return true;
            }
        }
        if (event->type() == endWithNextTurn) {
            owner_.End();
            return true;
        }
        return QLineEdit::event(event);
    }

    void keyPressEvent(QKeyEvent* event) override {
        const QString key = KeyText(*event);
        if (!key.isEmpty() && Offer(key)) {
            return;
        }
        switch (event->key()) {
            case Qt::Key_Return:
            case Qt::Key_Enter:
            case Qt::Key_Escape:
            case Qt::Key_Tab:
            case Qt::Key_Backtab:
                owner_.End();
                break;
            default:
                QLineEdit::keyPressEvent(event);
        }
    }

    void inputMethodEvent(QInputMethodEvent* event) override {
        const QString composed = event->commitString();
        if (composed.isEmpty()) {
            QLineEdit::inputMethodEvent(event);
            return;
        }
        QInputMethodEvent replaced;
        replaced.setCommitString(QString(), event->replacementStart(), event->replacementLength());
        QLineEdit::inputMethodEvent(&replaced);
        // A whole word may come at once; the handler is told of keys.
        for (const char32_t character : composed.toUcs4()) {
            const QString key = QString::fromUcs4(&character, 1);
            if (!Offer(key)) {
                insert(key);
            }
        }
    }

    // The field's own context menu takes the focus for a while and gives it back.
    void focusOutEvent(QFocusEvent* event) override {
        QLineEdit::focusOutEvent(event);
        const QWidget* popup = QApplication::activePopupWidget();
        const bool ownMenu = event->reason() == Qt::PopupFocusReason && popup != nullptr && popup->parent() == this;
        if (ownMenu) {
            return;
        }
        if (event->reason() == Qt::PopupFocusReason || event->reason() == Qt::MenuBarFocusReason ||
            event->reason() == Qt::ActiveWindowFocusReason) {
            // Qt is in the middle of opening a menu, or of changing windows, and would go on with one that is gone when
            // a message from the handler has been read. Still, the end comes before the menu asks what it can offer.
            QCoreApplication::postEvent(this, new QEvent(endWithNextTurn), Qt::HighEventPriority);
            return;
        }
        const bool byPress = event->reason() == Qt::MouseFocusReason;
        owner_.End();
        if (byPress && owner_.IsEditing()) {
            TakePress();
        }
    }

    bool eventFilter(QObject* watched, QEvent* event) override {
        if (event->type() == QEvent::MouseButtonPress) {
            qApp->removeEventFilter(this);
            return true;
        }
        return QLineEdit::eventFilter(watched, event);
    }

private:
    // The handler holds the user in the cell. The press that asked for the focus follows at once, and must not reach
    // its widget: a message has swallowed its release, and a button would stay down for ever.
    void TakePress() {
        qApp->installEventFilter(this);
        QTimer::singleShot(0, this, [this] { qApp->removeEventFilter(this); });
    }

    // The handler may end this edit and start another one.
    bool Offer(const QString& key) { return events::Raise(owner_.list_.CellKeyDown, owner_.row_, owner_.column_, key); }

    CellEditor& owner_;
};

CellEditor::CellEditor(Listbox& list, ListModel& model, ListView& view) : list_(list), model_(model), view_(view) {}

void CellEditor::Begin(int row, int column) {
    row_ = row;
    column_ = column;
    if (line_ == nullptr) {
        line_ = new Line(*this, view_.viewport());
        field_ = std::make_unique<EditField>(line_);
    }
    const QString heading = model_.Heading(column);
    line_->setAccessibleName(heading.isEmpty() ? view_.accessibleName() : heading);
    // Where the list takes texts, one that is dropped on the field is meant for the list too.
    line_->setAcceptDrops(!view_.acceptDrops());
    view_.scrollTo(model_.index(row, column));
    line_->setFont(view_.font());
    line_->setText(model_.Text(row, column));
    FollowCell();
    line_->show();
    line_->setFocusProxy(nullptr);
    line_->selectAll();
    line_->setFocus(Qt::OtherFocusReason);
}

void CellEditor::End() {
    if (!IsEditing()) {
        return;
    }
    const int row = row_;
    const int column = column_;
    model_.SetText(row, column, line_->text());
    Abandon();
    events::Raise(list_.CellLostFocus, row, column);
}

void CellEditor::Abandon() {
    if (!IsEditing()) {
        return;
    }
    row_ = -1;
    column_ = -1;
    // The list keeps the focus, so that its keys go on working, unless another control has taken it. In a window that
    // is not in front it will have it when the window comes back.
    if (view_.window()->focusWidget() == line_) {
        view_.setFocus(Qt::OtherFocusReason);
    }
    // The list's GotFocus may have begun the next edit in the same field.
    if (IsEditing()) {
        return;
    }
    line_->hide();
    // A menu that took the focus from the field gives it back to the field.
    line_->setFocusProxy(&view_);
}

void CellEditor::FollowCell() {
    if (IsEditing()) {
        line_->setGeometry(view_.visualRect(model_.index(row_, column_)));
    }
}
