#include "platform/files/FolderItem.h"

#include "platform/base/Exceptions.h"
#include "platform/files/FileCopy.h"
#include "platform/files/Rename.h"
#include "platform/files/SystemError.h"

#include <QDir>
#include <QFile>
#include <QFileInfo>

#include <sys/stat.h>

#include <cerrno>
#include <cstdio>

namespace {

bool IsTaken(const QByteArray& path) {
    struct stat found {};
    return lstat(path.constData(), &found) == 0;
}

// "drinks.rsd" becomes "drinks (2).rsd", or the first number behind it that is free.
QByteArray FirstNumberedPath(const QString& path) {
    const QFileInfo info(path);
    const QString ending = info.suffix().isEmpty() ? QString() : u'.' + info.suffix();
    const QString stem = path.chopped(ending.length());
    for (int number = 2;; ++number) {
        QByteArray candidate = QFile::encodeName(QStringLiteral("%1 (%2)%3").arg(stem).arg(number).arg(ending));
        if (!IsTaken(candidate)) {
            return candidate;
        }
    }
}

void MakeFolder(const QString& path) {
    const QByteArray encoded = QFile::encodeName(path);
    if (mkdir(encoded.constData(), S_IRWXU) == 0) {
        return;
    }
    const int code = errno;
    // Another copy of the program may have made it just now.
    if (code != EEXIST || !QFileInfo(path).isDir()) {
        ThrowSystemError(QStringLiteral("Could not make the folder \"%1\"").arg(path), code);
    }
}

} // namespace

FolderItem::FolderItem(const QString& path) : path_(QDir::cleanPath(QDir::current().absoluteFilePath(path))) {}

bool FolderItem::IsNil() const {
    return path_.isNull();
}

FolderItem FolderItem::Parent() const {
    const QString path = AbsolutePath();
    return path == QStringLiteral("/") ? FolderItem() : FolderItem(path + QStringLiteral("/.."));
}

FolderItem FolderItem::Child(const QString& name) const {
    return FolderItem(AbsolutePath() + u'/' + name);
}

bool FolderItem::Exists() const {
    return QFileInfo::exists(AbsolutePath());
}

QString FolderItem::Name() const {
    return QFileInfo(AbsolutePath()).fileName();
}

QString FolderItem::AbsolutePath() const {
    if (IsNil()) {
        throw NilObjectException(QStringLiteral("There is no such file or folder"));
    }
    return path_;
}

void FolderItem::SetName(const QString& name) {
    const QString deed = QStringLiteral("Could not rename \"%1\" to \"%2\"").arg(AbsolutePath(), name);
    if (name.isEmpty() || name.contains(u'/') || name == QStringLiteral(".") || name == QStringLiteral("..")) {
        ThrowSystemError(deed, EINVAL);
    }
    const FolderItem renamed = Parent().Child(name);
    const QByteArray from = QFile::encodeName(path_);
    const QByteArray to = QFile::encodeName(renamed.path_);
    // Looked at first, so that a missing file moves no other one out of its way.
    if (!IsTaken(from)) {
        ThrowSystemError(deed, ENOENT);
    }
    QByteArray kept;
    if (from != to && IsTaken(to)) {
        kept = FirstNumberedPath(renamed.path_);
        if (const int code = RenameToFreeName(to, kept); code != 0) {
            ThrowSystemError(deed, code);
        }
    }
    if (const int code = from == to ? 0 : RenameToFreeName(from, to); code != 0) {
        if (!kept.isEmpty()) {
            // The first failure is the one to tell of.
            static_cast<void>(RenameToFreeName(kept, to));
        }
        ThrowSystemError(deed, code);
    }
    path_ = renamed.path_;
}

void FolderItem::CreateAsFolder() const {
    const FolderItem parent = Parent();
    if (!parent.IsNil() && !parent.Exists()) {
        parent.CreateAsFolder();
    }
    MakeFolder(path_);
}

bool FolderItem::Delete() const {
    return std::remove(QFile::encodeName(AbsolutePath()).constData()) == 0;
}

void FolderItem::CopyFileTo(const FolderItem& folder) const {
    CopyWhole(AbsolutePath(), folder.Child(Name()).AbsolutePath());
}
