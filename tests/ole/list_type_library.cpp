// Prints type libraries:  list_type_library FILE...
#include <cstdio>
#include <exception>
#include <string>

#include <fcntl.h>
#include <io.h>

#include "tests/ole/type_library_listing.h"

int wmain(int count, wchar_t** arguments) {
    if (count < 2) {
        std::fputs("usage: list_type_library FILE...\n", stderr);
        return 2;
    }
    _setmode(_fileno(stdout), _O_BINARY);
    try {
        for (int i = 1; i < count; ++i) {
            const std::string text = lumenkit::ListTypeLibrary(arguments[i]);
            std::fputs((i == 1 ? text : "\n" + text).c_str(), stdout);
        }
        return 0;
    } catch (const std::exception& error) {
        std::fprintf(stderr, "list_type_library: %s\n", error.what());
        return 1;
    }
}
