#include "library/SourceText.h"

QList<SourceLine> SourceLines(const LibraryFile& file) {
    QList<SourceLine> lines;
    int number = 0;
    // Composed accents, so that a name matches whichever way an editor wrote its letters.
    const QString text = file.text.normalized(QString::NormalizationForm_C);
    for (const QString& line : text.split(u'\n')) {
        ++number;
        const QString content = line.simplified();
        if (content.isEmpty() || content.startsWith(u'#')) {
            continue;
        }
        int indent = 0;
        while (line.at(indent).isSpace()) {
            ++indent;
        }
        lines.append({content, indent, {file.name, number}});
    }
    return lines;
}
