#pragma once

#include <QStyledItemDelegate>

class Listbox;
class ListModel;

// For the layer itself: draws the cells of a list, with the list's paint events between ground, mark and text.
class ListPainter : public QStyledItemDelegate {
public:
    ListPainter(Listbox& list, ListModel& model, QObject* parent);

    void paint(QPainter* painter, const QStyleOptionViewItem& option, const QModelIndex& index) const override;

    // Draws the ground of a cell of a row that is not there, below the last one.
    void PaintEmpty(QPainter& painter, const QRect& cell, int row, int column) const;

private:
    // Draws the plain ground and what the event adds to it. True when the event wants no mark of the selection.
    bool PaintGround(QPainter& painter, const QRect& cell, int row, int column) const;
    void PaintPicture(QPainter& painter, const QRect& cell, int row) const;
    void PaintCheckBox(QPainter& painter, const QStyleOptionViewItem& option, int row, int column) const;
    void PaintText(QPainter& painter, const QStyleOptionViewItem& option, int row, int column) const;

    Listbox& list_;
    ListModel& model_;
};
