#include "PrintText.h"
#include "updates/HeaderBlock.h"
#include "updates/InternetHeaders.h"
#include "updates/URL.h"
#include "updates/VersionNumber.h"

#include <gtest/gtest.h>

TEST(UpdateTextTest, URLIsReadIntoItsParts) {
    const std::pair<const char*, const char*> cases[] = {
        {"http://host/a/b?c=d:e", "host host 80 /a/b?c=d:e"},
        {"host:8080", "host:8080 host 8080 /"},
        {"x://host:0/", "host:0 host 80 /"},
        {"", "  80 /"},
    };
    for (const auto& [url, expected] : cases) {
        const URLParts parts = ParseURL(url, 80);
        EXPECT_EQ(QString("%1 %2 %3 %4").arg(parts.server, parts.address).arg(parts.port).arg(parts.path), expected);
    }
}

TEST(UpdateTextTest, HeadersAreReadInAnyCaseAndMayGoOverLines) {
    const InternetHeaders headers("HTTP/1.0 200\nFolded: one\n\ttwo\nno colon\nCONTENT-length:   12 \nUrl: a:b");
    EXPECT_EQ(headers.Value("Folded"), "one two");
    EXPECT_EQ(headers.Value("Content-Length"), "12");
    EXPECT_EQ(headers.Value("url"), "a:b");
    EXPECT_EQ(StatusCode("HTTP/1.0\r\nA: 5 6"), 0);
}

TEST(UpdateTextTest, VersionsCompareAsTheNumbersOfAllTheirDigits) {
    EXPECT_GT(VersionNumber("1.2.10\r\n"), VersionNumber(2, 0, 0));
}
