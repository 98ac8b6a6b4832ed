#pragma once

struct sqlite3;

// Replaces the engine's LIKE on this connection, with and without ESCAPE, by one that ignores accents as well as case.
// Throws EngineFailure.
void InstallLike(sqlite3* engine);
