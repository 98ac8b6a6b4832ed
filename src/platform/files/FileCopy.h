#pragma once

#include <QString>

// Copies the contents of the file `from` to a new file `to` with mode 0600, whole or not at all: written under a hidden
// temporary name in the folder of `to`, brought to the disk, then renamed. Throws IOException with the system's words;
// then nothing of the copy is left.
void CopyWhole(const QString& from, const QString& to);
