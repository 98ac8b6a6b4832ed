#pragma once

#include "platform/ui/EditField.h"

#include <QLineEdit>

#include <memory>

class Listbox;
class ListModel;
class ListView;

// For the layer itself: the in-place editing of a list's cells. One field serves all edits of a list.
//
// An edit ends when the field loses the focus or by return, escape or an unhandled tab; it always takes the text over.
// The edit is over before CellLostFocus is raised, so that the handler can begin the next one.
class CellEditor {
public:
    CellEditor(Listbox& list, ListModel& model, ListView& view);

    // No edit may be running, and the cell must exist.
    void Begin(int row, int column);
    // Ends the edit, if there is one, and raises CellLostFocus.
    void End();
    // Ends the edit, if there is one, and forgets its text: the row is about to go.
    void Abandon();

    [[nodiscard]] bool IsEditing() const { return row_ >= 0; }
    [[nodiscard]] EditField* Field() const { return IsEditing() ? field_.get() : nullptr; }
    // Puts the field over its cell again after the list scrolled or its columns changed.
    void FollowCell();

private:
    class Line;

    Listbox& list_;
    ListModel& model_;
    ListView& view_;
    // Made for the first edit: most lists never see one.
    Line* line_ = nullptr;
    std::unique_ptr<EditField> field_;
    int row_ = -1;
    int column_ = -1;
};
