#pragma once

#include "library/Library.h"

// A page about the library for those who tend it: how much there is of each kind, what no recipe uses, which drinks are
// the same, and how far the starter bar goes.
QString SeedReport(const Library& library);
