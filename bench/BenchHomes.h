#pragma once

#include <QString>

// The data folders of users whose libraries have different sizes. The program looks for its file anew with each
// connection, so it can be sent from one to the other while it runs.
namespace BenchHomes {

// Where the folders are made. It must be there as long as they are used.
void SetFolder(const QString& folder);

// Sends the program to the library with this many drinks, and writes it at the first call, which takes up to half a
// minute. A failure ends the process.
void Use(int drinks);

// The file of the folder that is used now.
QString File();

} // namespace BenchHomes
