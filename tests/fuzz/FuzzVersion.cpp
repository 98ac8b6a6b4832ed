// The page that names the latest version.
#include "Fuzz.h"
#include "updates/VersionNumber.h"

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    const QString reply = TextOf(data, size);
    const int version = VersionNumber(reply);
    const QString front = QString(reply).remove('.').trimmed();
    const bool hasDigit = !front.isEmpty() && front[0] >= '0' && front[0] <= '9';
    Expect(hasDigit ? version >= 0 : version <= 0 || front[0] == '+', "only digits announce a version");
    Expect(VersionNumber(reply + "\r\n") == version, "a line end does no harm");
    Expect(VersionNumber(reply + "<p>9") == version, "the digits in front decide");
    if (size >= 3) {
        const QString fields = QString("%1.%2.%3").arg(data[0]).arg(data[1]).arg(data[2]);
        Expect(VersionNumber(data[0], data[1], data[2]) == VersionNumber(fields), "both sides count alike");
    }
    return 0;
}
