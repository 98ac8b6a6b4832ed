#include "platform/ui/MsgBox.h"

#include "platform/ui/Events.h"
#include "platform/ui/OpenWindows.h"

#include <QApplication>
#include <QLabel>
#include <QMessageBox>
#include <QPushButton>

namespace {

// The code of the form with one argument.
constexpr int plain = 0;

constexpr int ok = 1;
constexpr int yes = 6;
constexpr int no = 7;

struct Form {
    int code = plain;
    QMessageBox::Icon icon = QMessageBox::NoIcon;
    QMessageBox::StandardButtons buttons = QMessageBox::Ok;
    QMessageBox::StandardButton preferred = QMessageBox::Ok;
    const char* iconWords = "";
};

const Form forms[] = {
    {plain, QMessageBox::NoIcon, QMessageBox::Ok, QMessageBox::Ok},
    {16, QMessageBox::Critical, QMessageBox::Ok, QMessageBox::Ok, "Stop"},
    {36, QMessageBox::Question, QMessageBox::Yes | QMessageBox::No, QMessageBox::Yes, "Question"},
    {48, QMessageBox::Warning, QMessageBox::Ok, QMessageBox::Ok, "Caution"},
    {64, QMessageBox::Information, QMessageBox::Ok, QMessageBox::Ok, "Note"},
};

const Form& FormOf(int code) {
    for (const Form& form : forms) {
        if (form.code == code) {
            return form;
        }
    }
    return forms[0];
}

// An open menu would keep the mouse and the keys from the message.
void CloseMenus() {
    while (QWidget* menu = QApplication::activePopupWidget()) {
        if (!menu->close()) {
            return;
        }
    }
}

} // namespace

void MsgBox(const QString& text) {
    MsgBox(text, plain, QString());
}

int MsgBox(const QString& text, int code, const QString& title) {
    events::UnwindIfQuitting();
    CloseMenus();
    const Form& form = FormOf(code);
    QMessageBox box(OpenWindows::MessageParent());
    box.setObjectName(QStringLiteral("MsgBox"));
    box.setTextFormat(Qt::PlainText);
    box.setIcon(form.icon);
    box.setWindowTitle(title.isEmpty() ? QApplication::applicationName() : title);
    box.setText(text);
    if (auto* icon = box.findChild<QLabel*>(QStringLiteral("qt_msgboxex_icon_label")); icon != nullptr) {
        icon->setAccessibleName(QString::fromLatin1(form.iconWords));
    }
    box.setStandardButtons(form.buttons);
    box.setDefaultButton(form.preferred);
    if ((form.buttons & QMessageBox::No) != 0) {
        box.setEscapeButton(QMessageBox::No);
    }
    const int answer = box.exec();
    events::UnwindIfQuitting();
    switch (answer) {
        case QMessageBox::Yes:
            return yes;
        case QMessageBox::No:
            return no;
        default:
            return ok;
    }
}
