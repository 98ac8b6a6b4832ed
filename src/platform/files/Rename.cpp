#include "platform/files/Rename.h"

#include <fcntl.h>
#include <stdio.h>
#include <sys/stat.h>

#include <cerrno>

int RenameToFreeName(const QByteArray& from, const QByteArray& to) {
    if (renameat2(AT_FDCWD, from.constData(), AT_FDCWD, to.constData(), RENAME_NOREPLACE) == 0) {
        return 0;
    }
    if (errno != EINVAL && errno != ENOSYS) {
        return errno;
    }
    // Some file systems, network ones above all, cannot refuse a taken name by themselves.
    struct stat found {};
    if (lstat(to.constData(), &found) == 0) {
        return EEXIST;
    }
    return rename(from.constData(), to.constData()) == 0 ? 0 : errno;
}
