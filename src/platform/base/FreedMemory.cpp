#include "platform/base/FreedMemory.h"

#include <malloc.h>

namespace {

constexpr int mostKept = 64 * 1024 * 1024;

// A piece beyond this size is never kept. The C library takes no higher value.
constexpr int largestPiece = 32 * 1024 * 1024;

} // namespace

// Where the C library refuses, it goes on as before.
void KeepFreedMemory() {
    static_cast<void>(mallopt(M_TRIM_THRESHOLD, mostKept));
    static_cast<void>(mallopt(M_MMAP_THRESHOLD, largestPiece));
}
