#include "Fuzz.h"
#include "updates/URL.h"

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    const QString url = TextOf(data, size);
    const URLParts parts = ParseURL(url, 80);
    Expect(parts.path.startsWith('/'), "a path begins with its slash");
    Expect(!parts.server.contains('/') && parts.server.startsWith(parts.address), "the host stands before the path");
    Expect(!parts.address.contains(':') && parts.port != 0, "the port is apart from the host");
    Expect(url.endsWith(parts.server + parts.path) || url.endsWith(parts.server), "nothing is lost");

    const URLParts again = ParseURL("http://" + parts.server + parts.path, 80);
    Expect(again.server == parts.server && again.path == parts.path && again.port == parts.port, "parts read the same");
    return 0;
}
