#pragma once

#include "library/Library.h"

// The library that is shipped, cut or grown to this many drinks, the same at each call. It grows by numbered copies of
// its recipes, so names, texts and recipes are as long as real ones, and the ids are in no order of the names. Of the
// ingredients there are some copies too. A library that cannot be read ends the process.
Library GrownLibrary(int drinks);
