// Makes one fault on purpose, to see that the sanitizers are linked and end the process.
#include <cstdlib>
#include <limits>
#include <string_view>

namespace {

// The compiler must neither see the values nor find that nobody looks at the result.
volatile int one = 1;
volatile int result = 0;

void OverflowHeap() {
    const int* volatile numbers = new int[2]{};
    result = numbers[one + 1];
    delete[] numbers;
}

void OverflowInteger() {
    result = std::numeric_limits<int>::max() + one;
}

void Leak() {
    int* volatile lost = new int[2]{};
    lost = nullptr;
    result = lost == nullptr;
}

} // namespace

int main(int argumentCount, char** arguments) {
    const std::string_view fault = argumentCount == 2 ? arguments[1] : "";
    if (fault == "heap")
        OverflowHeap();
    else if (fault == "integer")
        OverflowInteger();
    else if (fault == "leak")
        Leak();
    return EXIT_SUCCESS;
}
