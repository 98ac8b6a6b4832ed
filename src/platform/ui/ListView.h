#pragma once

#include "platform/ui/CellEditor.h"
#include "platform/ui/DragItem.h"
#include "platform/ui/Listbox.h"

#include <QPersistentModelIndex>
#include <QPointer>
#include <QTableView>

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
    void SetRowsArePressed(bool pressed) { rowsArePressed_ = pressed; }
    void SetGridLines(GridLines horizontal, GridLines vertical);
    // Edits the cell; where its column does not allow that, the list gets the focus, to go on from that row. No edit
    // may be running, and the cell must exist.
    void OpenCell(int row, int column);
    // The rows are in the logic's own order again.
    void ForgetSorting();

protected:
    void paintEvent(QPaintEvent* event) override;
    void resizeEvent(QResizeEvent* event) override;
    void scrollContentsBy(int dx, int dy) override;
    void mousePressEvent(QMouseEvent* event) override;
    void mouseReleaseEvent(QMouseEvent* event) override;
    void mouseDoubleClickEvent(QMouseEvent* event) override;
    void keyPressEvent(QKeyEvent* event) override;
    void keyReleaseEvent(QKeyEvent* event) override;
    void keyboardSearch(const QString& search) override;
    QModelIndex moveCursor(CursorAction action, Qt::KeyboardModifiers modifiers) override;
    void currentChanged(const QModelIndex& current, const QModelIndex& previous) override;
    void dataChanged(const QModelIndex& first, const QModelIndex& last, const QList<int>& roles) override;
    void focusInEvent(QFocusEvent* event) override;
    void focusOutEvent(QFocusEvent* event) override;
    void startDrag(Qt::DropActions actions) override;
    void dragEnterEvent(QDragEnterEvent* event) override;
    void dragMoveEvent(QDragMoveEvent* event) override;
    void dropEvent(QDropEvent* event) override;

private:
    // Raises MouseDown and CellClick; true when the press ends there.
    bool TakePress(QMouseEvent* event);
    // A modifier key by itself is no use of the list.
    void NoteKeyboardUse(const QKeyEvent& event);
    [[nodiscard]] bool RaiseCommandKey(const QKeyEvent& event);
    // Ticks a check box or presses the current row; true when the key did one of the two.
    bool TakeActionKey(const QKeyEvent& event);
    void PressRow(int row);
    // Whether the key picks the selected rows up; PickUp does it and gives the keyboard to the list that takes drops.
    [[nodiscard]] bool PicksUp(const QKeyEvent& event) const;
    [[nodiscard]] bool PickUp();
    void TakeCarryingKey(const QKeyEvent& event);
    void MarkForDrop(int row);
    void Drop();
    void StopCarrying();
    void ToggleCheck(int row, int column);
    // The cell with a check box at this place of the viewport, or none.
    [[nodiscard]] QModelIndex CheckCellAt(const QPoint& place) const;
    void SetKeyboardUsed(bool used);
    // Whether keys can press the current row.
    [[nodiscard]] bool PressesCurrentRow() const;
    [[nodiscard]] bool MarksCurrentRow() const;
    void PaintRowMark();
    void PaintEmptyRows();
    void PaintFocusRing();
    void PaintGridLines();
    // Remembers the cell if a click that ends there is to edit it.
    void NoteEditableCell(const QMouseEvent* event);
    void EditClickedCell(const QMouseEvent* event);
    // Edits the cell that the keyboard is at, or the first one of its row that can be edited. False: there is none.
    [[nodiscard]] bool EditAtKeyboard();
    void EditByUser(int row, int column);
    void SortBy(int column);
    [[nodiscard]] QPoint InList(const QPoint& inViewport) const;

    Listbox& list_;
    ListModel& model_;
    ListPainter* painter_;
    CellEditor editor_;
    QString columnWidths_;
    bool focusRing_ = false;
    bool rowsArePressed_ = false;
    // Whether the list was last worked with by the keyboard: after a click nobody needs to see where the keys would go.
    bool keyboardUsed_ = false;
    // Set while the keyboard carries rows of another list to this one.
    QPointer<ListView> carriedFrom_;
    DragItem carried_;
    // The cell with a check box that the mouse was pressed on.
    QPersistentModelIndex pressedCheck_;
    bool horizontalLines_ = false;
    bool verticalLines_ = false;
    bool pressTaken_ = false;
    QPersistentModelIndex editedByClick_;
    int sortedColumn_ = -1;
    Qt::SortOrder sortOrder_ = Qt::AscendingOrder;
};
