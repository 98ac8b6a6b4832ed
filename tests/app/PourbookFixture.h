#pragma once

#include "MessageWatcher.h"
#include "PrintText.h"
#include "shell/App.h"
#include "shell/MainWindow.h"
#include "shell/MenuBar1.h"

#include <QTableView>
#include <QTemporaryDir>

#include <gtest/gtest.h>

#include <memory>

// The program in a fresh home folder, with a real window on the offscreen platform and a real encrypted library.
class PourbookTest : public testing::Test {
protected:
    PourbookTest();

    // Given: what the user's file holds before the program starts, or while it runs.
    void GivenUserFile();
    // The user's file without any drink, ingredient or list.
    void GivenEmptyLibrary();
    void GivenDrink(int id, const QString& name, const QString& ingredientList = {}, const QString& more = {});
    // Where the program looks for a newer version. Without it nothing is fetched.
    void GivenVendorSite(const QString& site) { vendorSite_ = site; }
    void Execute(const QString& statement);
    [[nodiscard]] QString Value(const QString& select);
    [[nodiscard]] QString WorkingFile() const;

    // When: what happens.
    // Ends a program that runs.
    void Start();
    void Search(const QString& text);
    void TickMatch(bool ticked);
    void Choose(const QString& menuItem);
    // x is within the cell.
    void ClickDrink(int row, int column, int x, Qt::KeyboardModifiers modifiers = Qt::NoModifier);
    // Scrolls to the cell and gives its place.
    static QRect ShowCell(QTableView& list, int row, int column);
    static void ClickCell(QTableView& list, int row, int column, int x, Qt::KeyboardModifiers modifiers = {});
    void CloseWindow() { Window().Widget()->close(); }

    // Then: what the user sees.
    [[nodiscard]] MainWindow& Window() { return MainWindow::Instance(); }
    [[nodiscard]] App& Program() { return *app_; }
    // The names of the drinks, with a bar between two.
    [[nodiscard]] QString ListedDrinks();
    // The same for the headings of the drinks, with a comma.
    [[nodiscard]] QString Headings();
    [[nodiscard]] bool PanelIsBlank();

    template <class Widget>
    [[nodiscard]] Widget* Find(const char* name) {
        return Window().Widget()->findChild<Widget*>(QString(name));
    }

    void AnswerNextMessage(QMessageBox::StandardButton button = QMessageBox::Ok) {
        messages_.AnswerNextMessage(button);
    }
    void AnswerOtherMessages(std::function<void(QMessageBox& box)> action) {
        messages_.AnswerOtherMessages(std::move(action));
    }
    [[nodiscard]] ShownMessage LastMessage() const { return messages_.LastMessage(); }

private:
    QTemporaryDir home_;
    QString vendorSite_;
    MessageWatcher messages_;
    std::unique_ptr<App> app_;
    std::unique_ptr<MenuBar1> menuBar_;
};
