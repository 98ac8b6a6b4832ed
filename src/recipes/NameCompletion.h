#pragma once

#include <QString>
#include <QStringList>

// What the recipe grid makes of a text and a list of names. Pure. The first name that begins with the text, ignoring
// case, counts; no name begins with the empty text.

// That name, or the text itself when there is none.
[[nodiscard]] QString CompletedName(const QStringList& names, const QString& text);

// The name behind that one, or in front of it. At the end of the list, and without such a name, the
// text itself.
[[nodiscard]] QString NextName(const QStringList& names, const QString& text);
[[nodiscard]] QString PreviousName(const QStringList& names, const QString& text);
