/// interface-reader INCLUDE DOXYFILE: prints what the public headers below INCLUDE tell, as JSON.
#include "headers.h"

#include <fmt/format.h>

int main(int argc, char** argv)
{
    if (argc != 3) {
        fmt::print(stderr, "Usage: interface-reader INCLUDE DOXYFILE\n");
        return 2;
    }
    try {
        const reader::Aliases aliases(argv[2]);
        fmt::print("{}\n", reader::readHeaders(argv[1], aliases).dump(1));
        return 0;
    } catch (const std::exception& error) {
        fmt::print(stderr, "interface-reader: {}\n", error.what());
        return 1;
    }
}
