#include "apps/lumenkit/text_input.h"

#include <array>
#include <cerrno>
#include <cstdio>
#include <memory>
#include <string_view>
#include <system_error>

#include "forms/file.h"
#include "frame/utf8.h"

namespace lumenkit::cli {

namespace {

std::string LastError() {
    return std::generic_category().message(errno);
}

std::string ReadAll(std::FILE* file, const std::string& name) {
    std::string bytes;
    std::array<char, 65536> block{};
    while (const std::size_t count = std::fread(block.data(), 1, block.size(), file)) {
        bytes.append(block.data(), count);
        if (bytes.size() > forms::largestFile) {
            throw UnusableInput(name + ": is larger than " +
                                std::to_string(forms::largestFile >> 20U) + " MB");
        }
    }
    if (std::ferror(file) != 0) {
        throw UnusableInput("cannot read " + name + ": " + LastError());
    }
    return bytes;
}

std::string ReadFile(const std::string& path) {
    const std::unique_ptr<std::FILE, int (*)(std::FILE*)> file(std::fopen(path.c_str(), "rb"),
                                                               std::fclose);
    if (!file) {
        throw UnusableInput("cannot read " + path + ": " + LastError());
    }
    return ReadAll(file.get(), path);
}

bool IsStandardInput(const std::string& path) {
    return path == "-";
}

std::string NameOf(const std::string& path) {
    return IsStandardInput(path) ? "standard input" : path;
}

std::string_view WithoutFinalLineBreak(std::string_view bytes) {
    if (bytes.ends_with('\n')) {
        bytes.remove_suffix(bytes.ends_with("\r\n") ? 2 : 1);
    }
    return bytes;
}

}  // namespace

Text ReadText(const std::string& path) {
    const std::string bytes = ReadBytes(path);
    try {
        return FromUtf8(WithoutFinalLineBreak(bytes));
    } catch (const MalformedUtf8& error) {
        throw UnusableInput(NameOf(path) + ": " + error.what());
    }
}

std::string ReadBytes(const std::string& path) {
    return IsStandardInput(path) ? ReadAll(stdin, NameOf(path)) : ReadFile(path);
}

}  // namespace lumenkit::cli
