#pragma once

// The columns of the recipe grid; column 0 shows the number of the row.
namespace recipegrid {

enum Column { NameColumn = 1, QuantityColumn = 2, UnitColumn = 3, PreparationColumn = 4 };

} // namespace recipegrid
