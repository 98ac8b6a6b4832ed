#pragma once

#include "platform/ui/TextAlignment.h"

#include <QStyledItemDelegate>

#include <memory>

class LineWidths;
class Listbox;
class ListModel;

// For the layer itself: draws the cells of a list, with the list's paint events between ground, mark and text.
class ListPainter : public QStyledItemDelegate {
public:
    ListPainter(Listbox& list, ListModel& model, QObject* parent);
    ~ListPainter() override;
    ListPainter(const ListPainter&) = delete;
    ListPainter& operator=(const ListPainter&) = delete;

    void paint(QPainter* painter, const QStyleOptionViewItem& option, const QModelIndex& index) const override;

    // Draws the ground of a cell of a row that is not there, below the last one.
    void PaintEmpty(QPainter& painter, const QRect& cell, int row, int column) const;

private:
    // Draws the plain ground and what the event adds to it. True when the event wants no mark of the selection.
    bool PaintGround(QPainter& painter, const QRect& cell, int row, int column) const;
    void PaintPicture(QPainter& painter, const QRect& cell, int row) const;
    void PaintCheckBox(QPainter& painter, const QStyleOptionViewItem& option, int row, int column) const;
    void PaintText(QPainter& painter, const QStyleOptionViewItem& option, int row, int column) const;
    void DrawLine(QPainter& painter, const QRect& room, TextAlignment alignment, const QString& text) const;
    // The text, with an ellipsis for its end where it is wider than this.
    [[nodiscard]] QString Shortened(const QString& text, const QFont& font, int width) const;

    Listbox& list_;
    ListModel& model_;
    // Of the font that was used last. Painting is const to Qt.
    mutable std::unique_ptr<LineWidths> widths_;
};
