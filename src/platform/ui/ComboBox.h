#pragma once

#include "platform/ui/Control.h"

#include <QString>

#include <vector>

// A field of text with a list of rows to choose from. While the user types, the field adds the rest of the first row
// that begins with the text, selected, so that the next key replaces it.
//
// Rows count from 0. A row that is not there throws OutOfBoundsException.
class ComboBox : public Control {
public:
    ComboBox();

    void AddRow(const QString& text);
    [[nodiscard]] int ListCount() const;
    // A number that the box keeps for the logic; 0 until it is set.
    [[nodiscard]] int RowTag(int row) const;
    void SetRowTag(int row, int tag);

    // The row that was chosen, or whose text equals what was typed, ignoring case; -1 when there is none, and until
    // the user has chosen or typed.
    [[nodiscard]] int ListIndex() const { return row_; }
    [[nodiscard]] QString Text() const;

private:
    void Describe(const QString& words) override;
    void FollowText(const QString& text);
    void CheckRow(int row) const;

    std::vector<int> tags_;
    int row_ = -1;
};
