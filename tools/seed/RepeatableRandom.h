#pragma once

#include <QByteArray>

// Makes the engine draw the vectors of its pages from `text` instead of the system's randomness, so that
// the same text gives the same file, byte for byte. It holds for the rest of this process, up to some 80,000 pages
// written; beyond that writing fails. False when OpenSSL refuses, or has already given random bytes.
//
// Only for a file that is published together with its passphrase, as the seed is: nothing in it is secret. A user's
// own file is written by the program, which never calls this, and gets fresh vectors with each page it writes.
[[nodiscard]] bool DrawRandomFrom(const QByteArray& text);
