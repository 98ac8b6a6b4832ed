#include "platform/ui/Listbox.h"

#include "platform/base/Exceptions.h"
#include "platform/ui/Events.h"
#include "platform/ui/Fonts.h"
#include "platform/ui/ListModel.h"
#include "platform/ui/ListView.h"

#include <QHeaderView>
#include <QScrollBar>
#include <QTimer>

namespace {

void CheckRow(const ListModel& model, int row) {
    if (row < 0 || row >= model.RowCount()) {
        throw OutOfBoundsException(QStringLiteral("There is no row %1 in the list").arg(row));
    }
}

void CheckColumn(int column, int count) {
    if (column < 0 || column >= count) {
        throw OutOfBoundsException(QStringLiteral("There is no column %1 in the list").arg(column));
    }
}

} // namespace

Listbox::Listbox() : Listbox(std::make_unique<ListModel>()) {}

Listbox::Listbox(std::unique_ptr<ListModel> model)
    : Control(new ListView(*this, *model)), model_(std::move(model)), view_(static_cast<ListView*>(Widget())) {}

Listbox::~Listbox() {
    view_->Editor().Abandon();
}

void Listbox::SetLook(const ListboxLook& look) {
    view_->horizontalHeader()->setVisible(look.hasHeading);
    view_->setSelectionMode(look.selection == RowSelection::Multiple ? QAbstractItemView::ExtendedSelection
                                                                     : QAbstractItemView::SingleSelection);
    view_->setDragEnabled(look.enableDrag);
    view_->setVerticalScrollBarPolicy(look.autoHideScrollbars ? Qt::ScrollBarAsNeeded : Qt::ScrollBarAlwaysOn);
    view_->SetHeadingsSort(look.headingsSort);
    view_->SetFocusRing(look.useFocusRing);
    view_->SetRowsArePressed(look.rowsArePressed);
    view_->setFrameShape(look.border ? QFrame::StyledPanel : QFrame::NoFrame);
    view_->SetGridLines(look.horizontalLines, look.verticalLines);
}

int Listbox::ListIndex() const {
    return view_->FirstSelectedRow();
}

void Listbox::SetListIndex(int row) {
    if (row < 0) {
        view_->SelectNone();
    } else {
        CheckRow(*model_, row);
        model_->Announce();
        view_->SelectOnly(row);
    }
    events::UnwindIfQuitting();
}

int Listbox::SelCount() const {
    return view_->SelectedCount();
}

bool Listbox::Selected(int row) const {
    CheckRow(*model_, row);
    return view_->IsRowSelected(row);
}

int Listbox::ListCount() const {
    return model_->RowCount();
}

int Listbox::LastIndex() const {
    return model_->RowCount() - 1;
}

void Listbox::AddRow(const QString& text) {
    AnnounceSoon();
    model_->Append(text);
}

void Listbox::InsertRow(int row, const QString& text, int /*indent*/) {
    view_->Editor().End();
    view_->Editor().Abandon();
    if (row != model_->RowCount()) {
        CheckRow(*model_, row);
    }
    AnnounceSoon();
    model_->Insert(row, text);
    events::UnwindIfQuitting();
}

void Listbox::RemoveRow(int row) {
    CheckRow(*model_, row);
    view_->Editor().End();
    view_->Editor().Abandon();
    CheckRow(*model_, row);
    model_->Announce();
    view_->LetGoOf(row);
    // The handlers that were told of the edit's or the selection's end may have changed the rows.
    CheckRow(*model_, row);
    model_->Remove(row);
    events::UnwindIfQuitting();
}

// A reset takes the selection away without a word, so the change is raised here.
void Listbox::DeleteAllRows() {
    view_->Editor().End();
    view_->Editor().Abandon();
    const bool hadSelection = ListIndex() >= 0;
    model_->Clear();
    view_->ForgetSorting();
    if (hadSelection) {
        events::Raise(Change);
    }
    events::UnwindIfQuitting();
}

QString Listbox::Cell(int row, int column) const {
    CheckRow(*model_, row);
    CheckColumn(column, model_->ColumnCount());
    return model_->Text(row, column);
}

void Listbox::SetCell(int row, int column, const QString& text) {
    CheckRow(*model_, row);
    CheckColumn(column, model_->ColumnCount());
    model_->SetText(row, column, text);
}

void Listbox::SetCell(int row, int column, const DatabaseField& field) {
    CheckRow(*model_, row);
    CheckColumn(column, model_->ColumnCount());
    model_->SetText(row, column, field);
}

int Listbox::CellTag(int row, int column) const {
    CheckRow(*model_, row);
    CheckColumn(column, 1);
    return model_->Tag(row);
}

void Listbox::SetCellTag(int row, int column, int tag) {
    CheckRow(*model_, row);
    CheckColumn(column, 1);
    model_->SetTag(row, tag);
}

bool Listbox::CellCheck(int row, int column) const {
    CheckRow(*model_, row);
    CheckColumn(column, model_->ColumnCount());
    return model_->Check(row, column);
}

void Listbox::SetCellCheck(int row, int column, bool checked) {
    CheckRow(*model_, row);
    CheckColumn(column, model_->ColumnCount());
    model_->SetCheck(row, column, checked);
}

const Picture* Listbox::RowPicture(int row) const {
    CheckRow(*model_, row);
    return model_->RowPicture(row);
}

void Listbox::SetRowPicture(int row, const Picture* picture) {
    CheckRow(*model_, row);
    model_->SetRowPicture(row, picture);
}

void Listbox::SetColumnCount(int count) {
    model_->SetColumnCount(count);
    view_->FitColumns();
}

int Listbox::ColumnCount() const {
    return model_->ColumnCount();
}

void Listbox::SetColumnWidths(const QString& widths) {
    view_->SetColumnWidths(widths);
}

void Listbox::SetColumnType(int column, ColumnType type) {
    CheckColumn(column, model_->ColumnCount());
    model_->SetType(column, type);
}

void Listbox::SetColumnAlignment(int column, TextAlignment alignment) {
    CheckColumn(column, model_->ColumnCount());
    model_->SetAlignment(column, alignment);
}

QString Listbox::MaxWidthExpression(int column) const {
    CheckColumn(column, model_->ColumnCount());
    return model_->MaxWidthExpression(column);
}

void Listbox::SetMaxWidthExpression(int column, const QString& expression) {
    CheckColumn(column, model_->ColumnCount());
    model_->SetMaxWidthExpression(column, expression);
}

QString Listbox::Heading(int column) const {
    CheckColumn(column, model_->ColumnCount());
    return model_->Heading(column);
}

void Listbox::SetHeading(int column, const QString& text) {
    CheckColumn(column, model_->ColumnCount());
    model_->SetHeading(column, text);
}

void Listbox::SetDefaultRowHeight(int height) {
    view_->SetRowHeight(height);
}

void Listbox::SetTextSize(int pixels) {
    view_->setFont(fonts::WithSize(view_->font(), pixels));
    view_->horizontalHeader()->setFont(view_->font());
}

void Listbox::SetTextFont(const QString& family) {
    view_->setFont(fonts::WithFamily(view_->font(), family));
}

void Listbox::SetScrollPosition(int row) {
    model_->Announce();
    // The bar learns its range with the layout, which otherwise comes with the next paint.
    view_->updateGeometries();
    view_->verticalScrollBar()->setValue(row * view_->RowHeight());
}

int Listbox::RowFromXY(int x, int y) const {
    return view_->rowAt(view_->viewport()->mapFrom(view_, QPoint(x, y)).y());
}

// The handler that is told of the last edit's end may have removed the row, or started that edit again to hold the
// user there; the hold is the stronger one.
void Listbox::EditCell(int row, int column) {
    view_->Editor().End();
    events::UnwindIfQuitting();
    if (view_->Editor().IsEditing()) {
        return;
    }
    CheckRow(*model_, row);
    CheckColumn(column, model_->ColumnCount());
    model_->Announce();
    view_->OpenCell(row, column);
    events::UnwindIfQuitting();
}

EditField* Listbox::ActiveCell() const {
    return view_->Editor().Field();
}

void Listbox::AcceptTextDrop() {
    view_->setAcceptDrops(true);
    view_->viewport()->setAcceptDrops(true);
}

// The screen learns of new rows with the next turn of the event loop at the latest.
void Listbox::AnnounceSoon() {
    if (!model_->HasUnannounced()) {
        QTimer::singleShot(0, view_, [this] { model_->Announce(); });
    }
}
