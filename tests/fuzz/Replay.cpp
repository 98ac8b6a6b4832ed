// What fuzzing has found once, run through the targets again: one folder of inputs for each.
#include "Fuzz.h"

#include <QDirIterator>
#include <QFile>

#include <gtest/gtest.h>

#define TARGETS(T) T(Headers) T(LibraryText) T(Options) T(Quantity) T(URL) T(Version)

#define DECLARE(name) extern "C" int Fuzz##name(const std::uint8_t* data, std::size_t size);
TARGETS(DECLARE)

TEST(Fuzz, Corpus) {
#define ROW(name) {#name, Fuzz##name},
    const std::pair<const char*, decltype(&FuzzURL)> targets[] = {TARGETS(ROW)};
    for (const auto& [name, target] : targets) {
        int count = 0;
        for (QDirIterator inputs(QString(FUZZ_CORPUS "/") + name, QDir::Files); inputs.hasNext(); ++count) {
            QFile input(inputs.next());
            ASSERT_TRUE(input.open(QIODevice::ReadOnly));
            const QByteArray bytes = input.readAll();
            std::fprintf(stderr, "%s\n", qPrintable(input.fileName()));
            target(reinterpret_cast<const std::uint8_t*>(bytes.constData()), static_cast<std::size_t>(bytes.size()));
        }
        EXPECT_GT(count, 0) << name;
    }
}
