#include "apps/lumenkit/text_input.h"

#include <cerrno>
#include <cstdio>
#include <cstring>
#include <memory>
#include <string_view>

#include "frame/utf8.h"

namespace lumenkit::cli {

namespace {

std::string ReadAll(std::FILE* file, const std::string& name) {
    std::string bytes;
    char block[65536];
    while (const std::size_t count = std::fread(block, 1, sizeof block, file)) {
        bytes.append(block, count);
    }
    if (std::ferror(file) != 0) {
        throw UnusableInput("cannot read " + name + ": " + std::strerror(errno));
    }
    return bytes;
}

std::string ReadFile(const std::string& path) {
    const std::unique_ptr<std::FILE, int (*)(std::FILE*)> file(std::fopen(path.c_str(), "rb"),
                                                               std::fclose);
    if (!file) {
        throw UnusableInput("cannot read " + path + ": " + std::strerror(errno));
    }
    return ReadAll(file.get(), path);
}

std::string_view WithoutFinalLineBreak(std::string_view bytes) {
    if (bytes.ends_with('\n')) {
        bytes.remove_suffix(bytes.ends_with("\r\n") ? 2 : 1);
    }
    return bytes;
}

}  // namespace

Text ReadText(const std::string& path) {
    const bool standardInput = path == "-";
    const std::string name = standardInput ? "standard input" : path;
    const std::string bytes = standardInput ? ReadAll(stdin, name) : ReadFile(path);
    try {
        return FromUtf8(WithoutFinalLineBreak(bytes));
    } catch (const MalformedUtf8& error) {
        throw UnusableInput(name + ": " + error.what());
    }
}

}  // namespace lumenkit::cli
