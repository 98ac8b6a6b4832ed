#include "shell/Confirmed.h"

#include "platform/ui/MsgBox.h"

bool Confirmed(const QString& question) {
    constexpr int questionWithYesAndNo = 36;
    constexpr int yes = 6;
    return MsgBox(question, questionWithYesAndNo, QString()) == yes;
}
