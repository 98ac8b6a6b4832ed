#include "platform/files/FileCopy.h"

#include "platform/files/Rename.h"
#include "platform/files/SystemError.h"

#include <QFile>
#include <QFileInfo>

#include <fcntl.h>
#include <stdlib.h>
#include <unistd.h>

#include <array>
#include <cerrno>
#include <utility>

namespace {

class Descriptor {
public:
    explicit Descriptor(int number) : number_(number) {}
    ~Descriptor() {
        if (number_ >= 0) {
            close(number_);
        }
    }
    Descriptor(const Descriptor&) = delete;
    Descriptor& operator=(const Descriptor&) = delete;

    int Number() const { return number_; }

    // Some file systems report a failed write only here.
    [[nodiscard]] bool Close() { return close(std::exchange(number_, -1)) == 0; }

private:
    int number_;
};

// A file that goes again unless it got its real name.
class TemporaryFile {
public:
    explicit TemporaryFile(QByteArray pattern)
        : path_(std::move(pattern)), file_(mkostemp(path_.data(), O_CLOEXEC)), exists_(file_.Number() >= 0) {}
    ~TemporaryFile() {
        if (exists_) {
            unlink(path_.constData());
        }
    }
    TemporaryFile(const TemporaryFile&) = delete;
    TemporaryFile& operator=(const TemporaryFile&) = delete;

    Descriptor& File() { return file_; }

    [[nodiscard]] int MoveTo(const QByteArray& path) {
        const int code = RenameToFreeName(path_, path);
        exists_ = code != 0;
        return code;
    }

private:
    QByteArray path_;
    Descriptor file_;
    bool exists_;
};

[[nodiscard]] bool WriteAll(int file, const char* bytes, ssize_t count) {
    while (count > 0) {
        const ssize_t written = write(file, bytes, size_t(count));
        if (written < 0 && errno != EINTR) {
            return false;
        }
        const ssize_t done = written < 0 ? 0 : written;
        bytes += done;
        count -= done;
    }
    return true;
}

[[nodiscard]] bool CopyContents(int from, int to) {
    std::array<char, 65536> buffer{};
    for (;;) {
        const ssize_t count = read(from, buffer.data(), buffer.size());
        if (count == 0) {
            return true;
        }
        if (count < 0 && errno != EINTR) {
            return false;
        }
        if (count > 0 && !WriteAll(to, buffer.data(), count)) {
            return false;
        }
    }
}

// Brings the new name to the disk. Without effect where a folder cannot be synchronised, and then the file system
// has its own way to keep names.
void SynchroniseFolder(const QString& path) {
    const Descriptor folder(open(QFile::encodeName(path).constData(), O_RDONLY | O_DIRECTORY | O_CLOEXEC));
    if (folder.Number() >= 0) {
        fsync(folder.Number());
    }
}

} // namespace

void CopyWhole(const QString& from, const QString& to) {
    const QString deed = QStringLiteral("Could not copy \"%1\" to \"%2\"").arg(from, to);
    const QFileInfo target(to);
    const Descriptor source(open(QFile::encodeName(from).constData(), O_RDONLY | O_CLOEXEC));
    if (source.Number() < 0) {
        ThrowSystemError(deed, errno);
    }
    TemporaryFile copy(QFile::encodeName(target.path() + QStringLiteral("/.") + target.fileName()) + ".XXXXXX");
    if (copy.File().Number() < 0) {
        ThrowSystemError(deed, errno);
    }
    if (!CopyContents(source.Number(), copy.File().Number()) || fsync(copy.File().Number()) != 0 ||
        !copy.File().Close()) {
        ThrowSystemError(deed, errno);
    }
    if (const int code = copy.MoveTo(QFile::encodeName(to)); code != 0) {
        ThrowSystemError(deed, code);
    }
    SynchroniseFolder(target.path());
}
