#include "library/LibraryText.h"

#include <QDir>
#include <QFile>
#include <QStringDecoder>

namespace {

void AppendFile(const QDir& folder, const QString& name, QList<LibraryFile>& files, QList<LibraryError>& errors) {
    QFile file(folder.filePath(name));
    if (!file.open(QIODevice::ReadOnly)) {
        errors.append({{name, 0}, file.errorString()});
        return;
    }
    QStringDecoder decoder(QStringDecoder::Utf8);
    const QString text = decoder.decode(file.readAll());
    if (decoder.hasError()) {
        errors.append({{name, 0}, QStringLiteral("the file is not UTF-8")});
    }
    files.append({name, text});
}

} // namespace

LibraryReading ReadLibraryFolder(const QString& folder) {
    const QDir root(folder);
    QList<LibraryFile> files;
    QList<LibraryError> unreadable;
    const QStringList pattern{QStringLiteral("*.txt")};
    for (const QString& name : root.entryList(pattern, QDir::Files, QDir::Name)) {
        AppendFile(root, name, files, unreadable);
    }
    const QDir recipes(root.filePath(QStringLiteral("recipes")));
    for (const QString& name : recipes.entryList(pattern, QDir::Files, QDir::Name)) {
        AppendFile(root, QStringLiteral("recipes/") + name, files, unreadable);
    }
    LibraryReading reading = ReadLibrary(files);
    reading.errors = unreadable + reading.errors;
    return reading;
}
