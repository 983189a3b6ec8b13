// Writes the published files: the definitions and the manifest into the folder of the first
// argument, the reference pages into the folder of the second.
#include <exception>
#include <filesystem>
#include <fstream>
#include <iostream>
#include <string>

#include "project/lumenkit_classes.h"
#include "project/published/idl.h"
#include "project/published/manifest.h"
#include "project/published/reference.h"

namespace {

void WriteFile(const std::filesystem::path& file, const std::string& text) {
    std::ofstream stream(file, std::ios::binary);
    stream.exceptions(std::ios::badbit | std::ios::failbit);
    stream << text;
    stream.close();
}

void WriteDefinitions(const std::filesystem::path& folder) {
    WriteFile(folder / lumenkit::classesIdlFile, lumenkit::WriteIdl(lumenkit::lumenkitClasses));
    WriteFile(folder / lumenkit::enumerationsIdlFile,
              lumenkit::WriteIdl(lumenkit::runtimeEnumerations));
    WriteFile(folder / lumenkit::manifestFile,
              lumenkit::WriteManifest(lumenkit::lumenkitClasses, "lumenkit.ocx"));
}

void WriteReferences(const std::filesystem::path& folder) {
    std::filesystem::create_directories(folder);
    for (const lumenkit::ReferencePage& page : lumenkit::referencePages) {
        WriteFile(folder / page.file, lumenkit::WriteReference(lumenkit::lumenkitClasses, page));
    }
}

}  // namespace

int main(int count, char** arguments) {
    if (count != 3) {
        std::cerr << "usage: write_published DEFINITIONS REFERENCES\n";
        return 2;
    }
    try {
        WriteDefinitions(arguments[1]);
        WriteReferences(arguments[2]);
        return 0;
    } catch (const std::exception& error) {
        std::cerr << "write_published: " << error.what() << '\n';
        return 1;
    }
}
