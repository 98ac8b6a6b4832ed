#include "platform/ui/ListPainter.h"

#include "platform/ui/Events.h"
#include "platform/ui/Graphics.h"
#include "platform/ui/LineWidths.h"
#include "platform/ui/ListModel.h"
#include "platform/ui/Picture.h"

#include <QPainter>
#include <QStyle>

namespace {

constexpr int textMargin = 3;

// A painter whose origin is the corner of the cell and that draws nothing outside it, for the time of one event.
class CellScope {
public:
    CellScope(QPainter& painter, const QRect& cell) : painter_(painter) {
        painter_.save();
        painter_.translate(cell.topLeft());
        painter_.setClipRect(0, 0, cell.width(), cell.height(), Qt::IntersectClip);
    }
    ~CellScope() { painter_.restore(); }
    CellScope(const CellScope&) = delete;
    CellScope& operator=(const CellScope&) = delete;

private:
    QPainter& painter_;
};

QSize BoxSize(const QStyleOptionViewItem& option) {
    const QStyle& style = *option.widget->style();
    return {style.pixelMetric(QStyle::PM_IndicatorWidth, &option, option.widget),
            style.pixelMetric(QStyle::PM_IndicatorHeight, &option, option.widget)};
}

} // namespace

ListPainter::ListPainter(Listbox& list, ListModel& model, QObject* parent)
    : QStyledItemDelegate(parent), list_(list), model_(model) {}

ListPainter::~ListPainter() = default;

void ListPainter::paint(QPainter* painter, const QStyleOptionViewItem& option, const QModelIndex& index) const {
    const int row = index.row();
    if (row >= model_.RowCount()) {
        return;
    }
    const bool selected = (option.state & QStyle::State_Selected) != 0;
    const bool ownGround = PaintGround(*painter, option.rect, row, index.column());
    if (selected && !ownGround) {
        painter->fillRect(option.rect, option.palette.color(QPalette::Highlight));
    }
    if (index.column() == 0) {
        PaintPicture(*painter, option.rect, row);
    }
    if (model_.Type(index.column()) == ColumnType::CheckBox) {
        PaintCheckBox(*painter, option, row, index.column());
    }
    PaintText(*painter, option, row, index.column());
}

void ListPainter::PaintEmpty(QPainter& painter, const QRect& cell, int row, int column) const {
    PaintGround(painter, cell, row, column);
}

bool ListPainter::PaintGround(QPainter& painter, const QRect& cell, int row, int column) const {
    painter.fillRect(cell, Qt::white);
    if (!list_.CellBackgroundPaint) {
        return false;
    }
    const CellScope scope(painter, cell);
    Graphics graphics(painter, cell.width(), cell.height());
    return events::Raise(list_.CellBackgroundPaint, graphics, row, column);
}

// Without a text beside it the picture stands in the middle of its column.
void ListPainter::PaintPicture(QPainter& painter, const QRect& cell, int row) const {
    const Picture* picture = model_.RowPicture(row);
    if (picture == nullptr) {
        return;
    }
    const QSize size = picture->Size();
    const bool alone = model_.Text(row, 0).isEmpty();
    const int left = alone ? qMax(0, (cell.width() - size.width()) / 2) : 0;
    const int top = (cell.height() - size.height()) / 2;
    const CellScope scope(painter, cell);
    picture->Draw(painter, QRect(QPoint(left, top), size));
}

// It stands where a picture would.
void ListPainter::PaintCheckBox(QPainter& painter, const QStyleOptionViewItem& option, int row, int column) const {
    QStyleOptionViewItem look = option;
    const bool alone = model_.Text(row, column).isEmpty();
    look.rect = QStyle::alignedRect(Qt::LeftToRight, (alone ? Qt::AlignHCenter : Qt::AlignLeft) | Qt::AlignVCenter,
                                    BoxSize(option), option.rect);
    look.state.setFlag(QStyle::State_HasFocus, false);
    look.state.setFlag(QStyle::State_Selected, false);
    look.state |= model_.Check(row, column) ? QStyle::State_On : QStyle::State_Off;
    option.widget->style()->drawPrimitive(QStyle::PE_IndicatorItemViewItemCheck, &look, &painter, option.widget);
}

void ListPainter::PaintText(QPainter& painter, const QStyleOptionViewItem& option, int row, int column) const {
    const QString text = model_.Text(row, column);
    if (text.isEmpty()) {
        return;
    }
    const QRect& cell = option.rect;
    const CellScope scope(painter, cell);
    painter.setFont(option.font);
    painter.setPen(option.palette.color(QPalette::Text));

    int left = textMargin;
    if (const Picture* picture = column == 0 ? model_.RowPicture(row) : nullptr; picture != nullptr) {
        left += picture->Size().width();
    }
    if (model_.Type(column) == ColumnType::CheckBox) {
        left += BoxSize(option).width();
    }
    Graphics graphics(painter, cell.width(), cell.height());
    if (list_.CellTextPaint && events::Raise(list_.CellTextPaint, graphics, row, column, left,
                                             (cell.height() + painter.fontMetrics().ascent()) / 2)) {
        return;
    }
    // A line break in a text is shown as a blank: a row has one line.
    QString shown = text;
    shown.replace(QLatin1Char('\n'), QLatin1Char(' ')).replace(QLatin1Char('\r'), QLatin1Char(' '));
    const bool centred = model_.Alignment(column) == TextAlignment::Centre;
    const QRect room(centred ? 0 : left, 0, cell.width() - (centred ? 0 : left + textMargin), cell.height());
    DrawLine(painter, room, model_.Alignment(column), shown);
}

// The capitals stand in the middle of the row, whatever space the font leaves above and below them.
void ListPainter::DrawLine(QPainter& painter, const QRect& room, TextAlignment alignment, const QString& text) const {
    const QFontMetricsF font(painter.font());
    const QString line = Shortened(text, painter.font(), room.width());
    qreal before = 0;
    // Measuring a text costs as much as drawing it, and most texts stand at the left.
    if (alignment != TextAlignment::Left) {
        const qreal free = room.width() - font.horizontalAdvance(line);
        before = alignment == TextAlignment::Centre ? free / 2 : free;
    }
    const int baseline = static_cast<int>((room.height() + font.capHeight()) / 2);
    painter.drawText(QPointF(room.left() + before, baseline), line);
}

// Qt sets the whole text to shorten it, and to find that it need not be shortened.
QString ListPainter::Shortened(const QString& text, const QFont& font, int width) const {
    if (!widths_ || widths_->Font() != font) {
        widths_ = std::make_unique<LineWidths>(font);
    }
    return widths_->Fits(text, width)
               ? text
               : QFontMetricsF(font).elidedText(widths_->Cut(text, width), Qt::ElideRight, width);
}
