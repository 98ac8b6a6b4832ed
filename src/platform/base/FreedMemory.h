#pragma once

// Lets the process keep the memory that it frees, up to 64 MB, for its next use. By default the C library gives a large
// piece back to the system at once, and a program that does the same large work again and again, as a list that is
// filled with each key, spends a third of its time on being given empty pages again.
void KeepFreedMemory();
