#pragma once

#include "library/LibraryText.h"

// A line that counts. `text` has single blanks only, and none at its ends; `indent` is the number of blanks
// before it (a tab is one).
struct SourceLine {
    QString text;
    int indent = 0;
    TextPlace place;
};

// The lines of a file without the empty ones and the comments.
QList<SourceLine> SourceLines(const LibraryFile& file);
