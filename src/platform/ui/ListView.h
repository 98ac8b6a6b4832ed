#pragma once

#include "platform/ui/CellEditor.h"

#include <QTableView>

class Listbox;
class ListModel;
class ListPainter;

// For the layer itself: the widget of a list.
class ListView : public QTableView {
public:
    ListView(Listbox& list, ListModel& model);

    [[nodiscard]] CellEditor& Editor() { return editor_; }

    void SetColumnWidths(const QString& widths);
    void FitColumns();
    void SetRowHeight(int height);
    [[nodiscard]] int RowHeight() const;

    [[nodiscard]] int FirstSelectedRow() const;
    [[nodiscard]] int SelectedCount() const;
    // True also when columns were added since the row was selected.
    [[nodiscard]] bool IsRowSelected(int row) const;
    void SelectOnly(int row);
    void SelectNone();
    // Deselects a row that is about to be removed.
    void LetGoOf(int row);

    // Public here because the list scrolls before the next paint.
    void updateGeometries() override { QTableView::updateGeometries(); }

    void SetHeadingsSort(bool sort);
    void SetFocusRing(bool ring) { focusRing_ = ring; }
    // The rows are in the logic's own order again.
    void ForgetSorting();

protected:
    void paintEvent(QPaintEvent* event) override;
    void resizeEvent(QResizeEvent* event) override;
    void scrollContentsBy(int dx, int dy) override;
    void mousePressEvent(QMouseEvent* event) override;
    void mouseDoubleClickEvent(QMouseEvent* event) override;
    void keyPressEvent(QKeyEvent* event) override;
    void keyboardSearch(const QString& search) override;
    QModelIndex moveCursor(CursorAction action, Qt::KeyboardModifiers modifiers) override;
    void focusInEvent(QFocusEvent* event) override;
    void focusOutEvent(QFocusEvent* event) override;
    void startDrag(Qt::DropActions actions) override;
    void dragEnterEvent(QDragEnterEvent* event) override;
    void dragMoveEvent(QDragMoveEvent* event) override;
    void dropEvent(QDropEvent* event) override;

private:
    // Raises MouseDown and CellClick; true when the press ends there.
    bool TakePress(QMouseEvent* event);
    void PaintEmptyRows();
    void PaintFocusRing();
    void SortBy(int column);
    [[nodiscard]] QPoint InList(const QPoint& inViewport) const;

    Listbox& list_;
    ListModel& model_;
    ListPainter* painter_;
    CellEditor editor_;
    QString columnWidths_;
    bool focusRing_ = false;
    bool pressTaken_ = false;
    // In the viewport; where a drag was begun.
    QPoint pressPlace_;
    int sortedColumn_ = -1;
    Qt::SortOrder sortOrder_ = Qt::AscendingOrder;
};
