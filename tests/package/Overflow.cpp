// Copies more than there is room for, to see that the flags of the release end such a process.
#include <cstdio>
#include <cstdlib>
#include <cstring>

int main(int argumentCount, char** arguments) {
    // The sizes must be known only while it runs.
    auto* const target = static_cast<char*>(std::malloc(static_cast<size_t>(argumentCount)));
    std::memcpy(target, arguments[0], std::strlen(arguments[0]) + 1);
    std::puts(target);
    std::free(target);
    return EXIT_SUCCESS;
}
