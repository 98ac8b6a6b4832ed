#include "platform/ui/Keys.h"

#include <QKeyEvent>

namespace {

struct NamedKey {
    int key;
    char16_t code;
};

constexpr NamedKey namedKeys[] = {
    {Qt::Key_Backspace, 8}, {Qt::Key_Tab, 9},     {Qt::Key_Backtab, 9},  {Qt::Key_Return, 13},
    {Qt::Key_Enter, 13},    {Qt::Key_Escape, 27}, {Qt::Key_Left, 28},    {Qt::Key_Right, 29},
    {Qt::Key_Up, 30},       {Qt::Key_Down, 31},   {Qt::Key_Delete, 127},
};

} // namespace

QString KeyText(const QKeyEvent& event) {
    for (const NamedKey& named : namedKeys) {
        if (named.key == event.key()) {
            return QString(QChar(named.code));
        }
    }
    // With the control key a letter names a command, and its text would be the code of another key: that of Ctrl+H is a
    // backspace.
    const bool command = (event.modifiers() & (Qt::ControlModifier | Qt::MetaModifier)) != 0 &&
                         (event.modifiers() & Qt::AltModifier) == 0;
    return command ? QString() : event.text();
}
