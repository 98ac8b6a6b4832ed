#pragma once

#include <QString>

// The data folders of two users: one has the library that is shipped, the other a large one. The program looks for
// its file anew with each connection, so it can be sent from one to the other while it runs.
namespace BenchHomes {

// Makes the folder of the first user below this one. A failure ends the process.
void Make(const QString& folder);

void UseShipped();
// Writes the large library at the first call, which takes some seconds.
void UseGenerated();

// The file of the folder that is used now.
QString File();

} // namespace BenchHomes
