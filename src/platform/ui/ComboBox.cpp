#include "platform/ui/ComboBox.h"

#include "platform/base/Exceptions.h"

#include <QAbstractItemView>
#include <QComboBox>
#include <QCompleter>
#include <QLineEdit>

namespace {

QComboBox* BoxOf(QWidget* widget) {
    return static_cast<QComboBox*>(widget);
}

} // namespace

ComboBox::ComboBox() : Control(new QComboBox) {
    QComboBox* box = BoxOf(Widget());
    box->setEditable(true);
    box->setInsertPolicy(QComboBox::NoInsert);
    box->setMaxVisibleItems(12);
    box->completer()->setCompletionMode(QCompleter::InlineCompletion);
    box->completer()->setCaseSensitivity(Qt::CaseInsensitive);
    QObject::connect(box, &QComboBox::editTextChanged, box, [this](const QString& text) { FollowText(text); });
    // Choosing a row whose text stands there already changes no text.
    QObject::connect(box, &QComboBox::activated, box, [this](int row) { row_ = row; });
}

// Qt chooses the first row by itself.
void ComboBox::AddRow(const QString& text) {
    QComboBox* box = BoxOf(Widget());
    const bool isFirst = box->count() == 0;
    const int chosen = row_;
    const QString typed = box->currentText();
    box->addItem(text);
    tags_.push_back(0);
    if (isFirst) {
        box->setCurrentIndex(-1);
        box->setEditText(typed);
        row_ = chosen;
    }
}

int ComboBox::ListCount() const {
    return static_cast<int>(tags_.size());
}

int ComboBox::RowTag(int row) const {
    CheckRow(row);
    return tags_[static_cast<std::size_t>(row)];
}

void ComboBox::SetRowTag(int row, int tag) {
    CheckRow(row);
    tags_[static_cast<std::size_t>(row)] = tag;
}

QString ComboBox::Text() const {
    return BoxOf(Widget())->currentText();
}

// Tools see the field and the list that drops down as parts of their own.
void ComboBox::Describe(const QString& words) {
    Control::Describe(words);
    BoxOf(Widget())->lineEdit()->setAccessibleName(words);
    BoxOf(Widget())->view()->setAccessibleName(words);
}

// Qt's own current row keeps to the last one chosen: setting it to none would take away what is being typed.
void ComboBox::FollowText(const QString& text) {
    QComboBox* box = BoxOf(Widget());
    if (box->currentIndex() >= 0 && box->itemText(box->currentIndex()) == text) {
        row_ = box->currentIndex();
        return;
    }
    row_ = box->findText(text, Qt::MatchFixedString);
    if (row_ >= 0) {
        const int caret = box->lineEdit()->cursorPosition();
        box->setCurrentIndex(row_);
        box->lineEdit()->setCursorPosition(caret);
    }
}

void ComboBox::CheckRow(int row) const {
    if (row < 0 || row >= ListCount()) {
        throw OutOfBoundsException(QStringLiteral("There is no row %1 in the box").arg(row));
    }
}
