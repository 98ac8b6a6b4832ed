#pragma once

#include "platform/ui/Listbox.h"

#include <QAbstractTableModel>

#include <cstddef>
#include <functional>
#include <string>
#include <string_view>
#include <vector>

class DatabaseField;

// For the layer itself: the rows of a list. Rows that were added are told to the view late, by Announce, so that
// filling a list costs one notification and not one a row.
//
// No row or cell has memory of its own: all cells stand in one block and all texts in another, as UTF-8, so that rows
// are added and dropped by the hundred thousand without a call for each. What a longer text or a removed row leaves
// unused goes with the next Clear.
class ListModel : public QAbstractTableModel {
public:
    ListModel();

    // Rows and columns of all functions below must exist; the row may be one that is not announced yet.
    [[nodiscard]] int RowCount() const { return static_cast<int>(rows_.size()); }
    [[nodiscard]] int ColumnCount() const { return columnCount_; }

    void Append(const QString& text);
    // Before this row, or at the end. Told to the view at once if the view knows the row before it.
    void Insert(int row, const QString& text);
    void Remove(int row);
    void Clear();
    // Tells the view of the rows that were appended since.
    void Announce();
    [[nodiscard]] bool HasUnannounced() const { return announced_ != RowCount(); }

    [[nodiscard]] QString Text(int row, int column) const;
    void SetText(int row, int column, const QString& text);
    // The same for the text of a field.
    void SetText(int row, int column, const DatabaseField& field);
    [[nodiscard]] int Tag(int row) const { return rows_[static_cast<std::size_t>(row)].tag; }
    void SetTag(int row, int tag) { rows_[static_cast<std::size_t>(row)].tag = tag; }
    [[nodiscard]] bool Check(int row, int column) const;
    void SetCheck(int row, int column, bool checked);
    [[nodiscard]] const Picture* RowPicture(int row) const { return rows_[static_cast<std::size_t>(row)].picture; }
    void SetRowPicture(int row, const Picture* picture);

    void SetColumnCount(int count);
    [[nodiscard]] QString Heading(int column) const;
    void SetHeading(int column, const QString& text);
    [[nodiscard]] ColumnType Type(int column) const;
    void SetType(int column, ColumnType type);
    [[nodiscard]] TextAlignment Alignment(int column) const;
    void SetAlignment(int column, TextAlignment alignment);
    [[nodiscard]] QString MaxWidthExpression(int column) const;
    void SetMaxWidthExpression(int column, const QString& expression) {
        ColumnAt(column).maxWidthExpression = expression;
    }

    // Puts the rows in the order of the comparison, which is given row numbers as they were before. Rows that compare
    // equal keep their order. Views keep each row's selection.
    void Sort(const std::function<bool(int row1, int row2)>& isBefore);

    [[nodiscard]] int rowCount(const QModelIndex& parent = {}) const override;
    [[nodiscard]] int columnCount(const QModelIndex& parent = {}) const override;
    [[nodiscard]] QVariant data(const QModelIndex& index, int role) const override;
    [[nodiscard]] QVariant headerData(int section, Qt::Orientation orientation, int role) const override;
    // What the keyboard finds: the next row whose text begins so, blanks at its front and case aside.
    [[nodiscard]] QModelIndexList match(const QModelIndex& start, int role, const QVariant& value, int hits,
                                        Qt::MatchFlags flags) const override;
    [[nodiscard]] Qt::ItemFlags flags(const QModelIndex& index) const override;

private:
    struct Cell {
        std::size_t begin = 0; // of its text in `texts_`
        unsigned length = 0;   // in bytes
        bool checked = false;
    };
    struct Row {
        std::size_t firstCell = 0;
        int cellCount = 0; // columns that came later have no cell until they are given something
        int tag = 0;
        const Picture* picture = nullptr;
    };
    struct Column {
        QString heading;
        ColumnType type = ColumnType::Default;
        TextAlignment alignment = TextAlignment::Left;
        QString maxWidthExpression;
    };

    // What the box of a row without a text of its own is called: the first text of the row.
    [[nodiscard]] QString BoxName(int row) const;
    [[nodiscard]] Row MakeRow(const QString& text);
    // Null for a column that came later and was given nothing yet.
    [[nodiscard]] const Cell* FindCell(int row, int column) const;
    Cell& MakeCell(int row, int column);
    [[nodiscard]] std::string_view TextOf(const Cell& cell) const;
    // Gives the cell the text that was just appended to `texts_`, from `begin` on.
    void TakeAppended(int row, int column, std::size_t begin);
    void CellChanged(int row, int column);
    Column& ColumnAt(int column);

    std::vector<Row> rows_;
    std::vector<Cell> cells_;
    std::string texts_;
    std::vector<Column> columns_;
    int columnCount_ = 1;
    int announced_ = 0;
};
