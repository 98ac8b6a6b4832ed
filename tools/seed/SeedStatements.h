#pragma once

#include "library/Library.h"

// The statements that make the nine tables with their indexes, and those that fill them. An id is the place of the
// name in the text, from 1 on: the same text always gives the same rows.
QStringList SchemaStatements();
QStringList RowStatements(const Library& library);
