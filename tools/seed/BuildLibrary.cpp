// Builds the seed database from the text of the recipe library:
//
//     build_library <library folder> <output file> [--report FILE]
//
// Exit status 0: the file is written. 1: the text has errors (all are listed) or the file cannot be written.
// 2: the command line is wrong.
#include "library/LibraryText.h"
#include "seed/RepeatableRandom.h"
#include "seed/SeedReport.h"
#include "seed/SeedStatements.h"
#include "seed/SeedWriter.h"

#include <QFile>

#include <iostream>

namespace {

void Complain(const QString& message) {
    std::cerr << qPrintable(message) << '\n';
}

[[nodiscard]] bool WriteReport(const QString& path, const QString& report) {
    QFile file(path);
    return file.open(QIODevice::WriteOnly) && file.write(report.toUtf8()) >= 0;
}

int Build(const QString& folder, const QString& output, const QString& reportFile) {
    const LibraryReading reading = ReadLibraryFolder(folder);
    for (const LibraryError& error : reading.errors) {
        Complain(error.Text());
    }
    if (!reading.errors.isEmpty()) {
        return 1;
    }
    // The package has to be the same from build to build, and the seed is in it.
    const QStringList text = SchemaStatements() + RowStatements(reading.library);
    if (!DrawRandomFrom(text.join(u'\n').toUtf8())) {
        Complain(output + QStringLiteral(": the file would differ from build to build"));
        return 1;
    }
    QString problem;
    if (!WriteSeed(reading.library, output, problem)) {
        Complain(output + QStringLiteral(": ") + problem);
        return 1;
    }
    const QString report = SeedReport(reading.library);
    std::cout << report.toStdString();
    if (!reportFile.isEmpty() && !WriteReport(reportFile, report)) {
        Complain(reportFile + QStringLiteral(": the report cannot be written"));
        return 1;
    }
    return 0;
}

} // namespace

int main(int argumentCount, char* arguments[]) {
    QStringList given;
    for (int index = 1; index < argumentCount; ++index) {
        given.append(QString::fromLocal8Bit(arguments[index]));
    }
    const bool wantsReport = given.size() == 4 && given.at(2) == QLatin1String("--report");
    if (given.size() != 2 && !wantsReport) {
        Complain(QStringLiteral("usage: build_library <library folder> <output file> [--report FILE]"));
        return 2;
    }
    return Build(given.at(0), given.at(1), wantsReport ? given.at(3) : QString());
}
