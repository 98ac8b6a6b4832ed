#pragma once

#include "platform/ui/Control.h"
#include "platform/ui/DragItem.h"
#include "platform/ui/TextAlignment.h"

#include <QString>

#include <functional>
#include <memory>

class DatabaseField;
class EditField;
class Graphics;
class ListModel;
class ListView;
class Picture;

enum class RowSelection { Single, Multiple };

// What the cells of a column are. Those of Default and Editable columns can be edited by EditCell, and those of an
// Editable one by the user too: with a click on a cell of the selected row, a double click, or Return or F2.
enum class ColumnType { Default = 0, Plain = 1, CheckBox = 2, Editable = 3 };

enum class GridLines { Default = 0, None = 1, ThinDotted = 2 };

// The fixed properties of a list, as a window's layout gives them.
struct ListboxLook {
    bool hasHeading = false;
    // Whether a frame shows that the list has the keyboard focus. In a list without one a mark shows the row that the
    // keyboard is at, once the keyboard is used.
    bool useFocusRing = false;
    RowSelection selection = RowSelection::Single;
    bool enableDrag = false;
    // Whether the vertical scroll bar shows only when there is something to scroll.
    bool autoHideScrollbars = false;
    // Whether a click on a heading sorts the rows by that column, until the rows are deleted: first click ascending,
    // second click descending.
    bool headingsSort = false;
    // Whether the rows act like buttons, on the click itself: the space bar and the return key then stand for a click
    // on the row that the keyboard is at.
    bool rowsArePressed = false;
    // Lines between the rows and between the columns, also below the last row.
    GridLines horizontalLines = GridLines::Default;
    GridLines verticalLines = GridLines::Default;
    bool border = false;
};

// A list of rows with text cells, a tag and a picture for each row, and rows that can be selected, edited in place
// and dragged.
//
// Rows and columns count from 0. A row or column that is not there throws OutOfBoundsException. Positions (x, y) are
// in the list's own coordinates unless told otherwise. A handler runs at once, inside the call or the user's action
// that caused it; a setter that changes nothing raises nothing.
//
// Rows may be added by the hundred thousand: the screen learns of them when it next needs them.
class Listbox : public Control {
public:
    Listbox();
    ~Listbox() override;

    // The set of selected rows changed, by the user or by the logic.
    std::function<void()> Change;
    // A press on a cell, before the selection moves; x and y are within the cell. True keeps the list from its own
    // handling.
    std::function<bool(int row, int column, int x, int y)> CellClick;
    // A press anywhere in the list, before anything else; true ends it there.
    std::function<bool(int x, int y)> MouseDown;
    // Also raised by return and F2 on a selected row, the keyboard's way to the same.
    std::function<void()> DoubleClick;
    std::function<void()> GotFocus;
    std::function<void()> LostFocus;
    // A key in the list, while no cell is edited. See Keys.h for the text of a key. True ends it there.
    std::function<bool(const QString& key)> KeyDown;
    // A key that is pressed together with the control key alone, as the text that it types without it. True ends it
    // there. A shortcut of the menu comes first.
    std::function<bool(const QString& key)> CommandKeyDown;
    // A key in a cell that is edited, before the editor sees it. True keeps it from the editor.
    std::function<bool(int row, int column, const QString& key)> CellKeyDown;
    // The edit of a cell ended, for whatever reason; the cell has the new text. Raised once for each edit. The
    // handler may start the next edit; a press that ended the last one then does nothing more.
    std::function<void(int row, int column)> CellLostFocus;
    // Before a cell is drawn, over the list's plain ground. True keeps the list from drawing its selection mark. Also
    // raised for the rows that would stand below the last one.
    std::function<bool(Graphics& g, int row, int column)> CellBackgroundPaint;
    // Before the text of a cell is drawn at x, y of the cell. False: the list draws it, in the colour and font set.
    std::function<bool(Graphics& g, int row, int column, int x, int y)> CellTextPaint;
    // A drag begins on a row. False forbids it. The keyboard drags too: Ctrl+D picks the selected rows up, the arrow
    // keys choose a row of the list in the window that takes texts, and Return drops there, or Escape gives up.
    std::function<bool(DragItem& drag, int row)> DragRow;
    // Something is dragged over the list; true forbids the drop there. The action is always 0.
    std::function<bool(int x, int y, const DragItem& drag, int action)> DragOver;
    std::function<void(const DragItem& drag, int action)> DropObject;
    // How two rows compare by a column when the user sorts: true with a negative, zero or positive result; false
    // leaves it to the list, which compares the texts as a person would sort them.
    std::function<bool(int row1, int row2, int column, int& result)> CompareRows;

    void SetLook(const ListboxLook& look);

    // The lowest selected row, or -1.
    [[nodiscard]] int ListIndex() const;
    // Selects this row alone; -1, or any number below 0, selects none. Does not scroll.
    void SetListIndex(int row);
    [[nodiscard]] int SelCount() const;
    [[nodiscard]] bool Selected(int row) const;

    [[nodiscard]] int ListCount() const;
    // The last row, which is the one that AddRow added last, or -1.
    [[nodiscard]] int LastIndex() const;
    // Appends a row with this text in column 0.
    void AddRow(const QString& text);
    // The same, before the row that has this number now; the number of rows appends. These lists are flat, so the
    // indent has no effect. An edit that runs is ended first.
    void InsertRow(int row, const QString& text, int indent);
    void RemoveRow(int row);
    void DeleteAllRows();

    [[nodiscard]] QString Cell(int row, int column) const;
    void SetCell(int row, int column, const QString& text);
    // The same with the text of a field, without the way over a QString: a list that is filled from a select has
    // hundreds of thousands of cells.
    void SetCell(int row, int column, const DatabaseField& field);
    // A number that the list keeps for the logic. Only column 0 has one.
    [[nodiscard]] int CellTag(int row, int column) const;
    void SetCellTag(int row, int column, int tag);
    // The tick of a cell, in a column of any type; only a column of check boxes shows it. The user ticks and unticks it
    // by a click anywhere in the cell, or by the space bar for the row that the keyboard is at.
    [[nodiscard]] bool CellCheck(int row, int column) const;
    void SetCellCheck(int row, int column, bool checked);
    // The picture at the left of column 0; null is none.
    [[nodiscard]] const Picture* RowPicture(int row) const;
    void SetRowPicture(int row, const Picture* picture);

    void SetColumnCount(int count);
    [[nodiscard]] int ColumnCount() const;
    // See ColumnWidths.h.
    void SetColumnWidths(const QString& widths);
    void SetColumnType(int column, ColumnType type);
    void SetColumnAlignment(int column, TextAlignment alignment);
    // An expression that the list keeps for the logic and does not act on.
    [[nodiscard]] QString MaxWidthExpression(int column) const;
    void SetMaxWidthExpression(int column, const QString& expression);
    [[nodiscard]] QString Heading(int column) const;
    void SetHeading(int column, const QString& text);
    // In pixels; a number below 1 is the height that the font asks for.
    void SetDefaultRowHeight(int height);
    void SetTextSize(int pixels);
    void SetTextFont(const QString& family);

    // Makes this the first row in view. One beyond the end scrolls to the end.
    void SetScrollPosition(int row);
    // The row at a point, or -1 where there is none.
    [[nodiscard]] int RowFromXY(int x, int y) const;

    // Starts the editing of a cell, with its whole text selected; an edit that runs is ended first. Where the handler
    // of that end starts an edit itself, that one stands and nothing else happens. In a column that cannot be edited
    // only the old edit ends: the list gets the focus, and its keys go on from that row.
    void EditCell(int row, int column);
    // The field that edits a cell now, or null.
    [[nodiscard]] EditField* ActiveCell() const;

    // Lets texts be dropped on the list, a cell that is edited included.
    void AcceptTextDrop();

private:
    friend class ListView;
    friend class ListPainter;
    friend class CellEditor;

    explicit Listbox(std::unique_ptr<ListModel> model);
    void AnnounceSoon();

    std::unique_ptr<ListModel> model_;
    ListView* view_;
};
