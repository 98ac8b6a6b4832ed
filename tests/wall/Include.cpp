// One line that the wall lets through or not; CMakeLists.txt names the header.
#include PROBED_HEADER
