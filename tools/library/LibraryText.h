// The recipe library as text, and how it is read.
//
// All files are UTF-8. Empty lines and lines that begin with "#" do not count. Names are compared without regard
// to case and must be unique among their kind.
//
//     types.txt, glasses.txt   one name a line
//     units.txt                one name a line; "0 top" is a unit that always stands without a number
//     starter-bar.txt          one ingredient a line
//     ingredients.txt          a general ingredient at the margin, the kinds of it below, indented by four blanks
//     recipes/*.txt            one block a recipe
//
// A recipe has its name at the margin and all else indented:
//
//     Negroni
//         Aperitif, Old-Fashioned             type, glass
//         1 oz Gin                            quantity, unit, ingredient
//         2 Cloves                            without a unit
//         top Soda Water                      a unit that stands without a number
//         ? 1 slice Orange, cut thin          "?": optional; after the comma: how to prepare it
//         > Build over ice.                   instructions, on as many lines as needed
//
// A quantity is a whole number, or one with .25 .5 .75 .33 .66 .1 or .2, which are the fractions that the recipe panel
// can show. An ingredient stands once in a recipe. Optional rows (garnish, plain water, what is added to taste) do not
// count when the program looks for what can be made.
#pragma once

#include "library/Library.h"

struct LibraryFile {
    QString name;
    QString text;
};

struct LibraryError {
    TextPlace place;
    QString message;

    // "recipes/sours.txt:41: unknown glass 'Cokctail'"
    QString Text() const;
};

// The library is complete only when there are no errors.
struct LibraryReading {
    Library library;
    QList<LibraryError> errors;
};

// The instructions field shows three lines; more characters than this do not fit in.
inline constexpr int longestInstructions = 230;

// Reads and checks the files, and goes on after an error so that all of them are found in one go.
LibraryReading ReadLibrary(const QList<LibraryFile>& files);

// The same for a folder on the disk. The recipe files are read in the order of their names. A file that cannot be read,
// or is not UTF-8, is an error of the reading.
LibraryReading ReadLibraryFolder(const QString& folder);
