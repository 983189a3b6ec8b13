#include "apps/lumenkit/text_input.h"

#include <algorithm>
#include <array>
#include <cerrno>
#include <cstdio>
#include <filesystem>
#include <memory>
#include <string_view>
#include <system_error>

#include "forms/plain_file.h"
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

// A pipe without a name, as shells make them, has a writer already.
bool IsNamedPipe(const std::string& path) {
    std::error_code none;
    const std::filesystem::path named = std::filesystem::canonical(path, none);
    return !none && std::filesystem::is_fifo(named, none);
}

std::string ReadFile(const std::string& path) {
    if (IsNamedPipe(path)) {
        throw UnusableInput(path + ": is not a plain file");
    }
    const std::unique_ptr<std::FILE, int (*)(std::FILE*)> file(std::fopen(path.c_str(), "rb"),
                                                               std::fclose);
    if (!file) {
        throw UnusableInput("cannot read " + path + ": " + LastError());
    }
    return ReadAll(file.get(), path);
}

std::string NameOf(const std::string& path) {
    return IsStandardInput(path) ? "standard input" : path;
}

std::size_t LengthOfFinalLineBreak(std::string_view bytes) {
    return bytes.ends_with("\r\n") ? 2 : bytes.ends_with('\n') ? 1 : 0;
}

}  // namespace

bool IsStandardInput(const std::string& path) {
    constexpr std::array<std::string_view, 4> names = {"-", "/dev/stdin", "/dev/fd/0",
                                                       "/proc/self/fd/0"};
    return std::ranges::find(names, path) != names.end();
}

TextFile TextFileOf(const std::string& path, std::string_view bytes) {
    const std::size_t length = bytes.size() - LengthOfFinalLineBreak(bytes);
    TextFile file;
    try {
        file.text = FromUtf8(bytes.substr(0, length));
    } catch (const MalformedUtf8& error) {
        throw UnusableInput(NameOf(path) + ": " + error.what());
    }
    file.lineBreak = bytes.substr(length);
    return file;
}

Text ReadText(const std::string& path) {
    return TextFileOf(path, ReadBytes(path)).text;
}

std::string ReadBytes(const std::string& path) {
    return IsStandardInput(path) ? ReadAll(stdin, NameOf(path)) : ReadFile(path);
}

}  // namespace lumenkit::cli
