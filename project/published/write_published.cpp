// Writes what is published about the library into the folder that the argument names.
#include <exception>
#include <filesystem>
#include <fstream>
#include <iostream>
#include <string>

#include "project/lumenkit_classes.h"
#include "project/published/idl.h"
#include "project/published/manifest.h"

namespace {

void WriteFile(const std::filesystem::path& file, const std::string& text) {
    std::ofstream stream(file, std::ios::binary);
    stream.exceptions(std::ios::badbit | std::ios::failbit);
    stream << text;
    stream.close();
}

}  // namespace

int main(int count, char** arguments) {
    if (count != 2) {
        std::cerr << "usage: write_published FOLDER\n";
        return 2;
    }
    try {
        const std::filesystem::path folder = arguments[1];
        WriteFile(folder / lumenkit::classesIdlFile, lumenkit::WriteIdl(lumenkit::lumenkitClasses));
        WriteFile(folder / lumenkit::enumerationsIdlFile,
                  lumenkit::WriteIdl(lumenkit::runtimeEnumerations));
        WriteFile(folder / lumenkit::manifestFile,
                  lumenkit::WriteManifest(lumenkit::lumenkitClasses, "lumenkit.ocx"));
        return 0;
    } catch (const std::exception& error) {
        std::cerr << "write_published: " << error.what() << '\n';
        return 1;
    }
}
