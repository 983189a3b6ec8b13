#include "apps/lumenform/form_view/likeness/user_control_files.h"

#include <algorithm>
#include <fstream>
#include <string_view>
#include <system_error>
#include <utility>

#include "forms/path_names.h"

namespace lumenkit::lumenform {

namespace {

namespace fs = std::filesystem;

constexpr int mostTaken = 200;

Text WidenedAscii(std::string_view bytes) {
    return {bytes.begin(), bytes.end()};
}

bool IsControlFile(const fs::path& path) {
    return SameText(WidenedAscii(path.extension().string()), u".ctl", Compare::IgnoreCase);
}

}  // namespace

Text UserControlIn(const fs::path& path) {
    constexpr std::size_t longestHead = 8192;
    constexpr std::string_view opening = "vb.usercontrol";
    std::string head(longestHead, '\0');
    std::ifstream file(path, std::ios::binary);
    file.read(head.data(), static_cast<std::streamsize>(head.size()));
    head.resize(static_cast<std::size_t>(file.gcount()));
    std::string lower = head;
    std::ranges::transform(lower, lower.begin(), [](char byte) {
        return byte >= 'A' && byte <= 'Z' ? static_cast<char>(byte + ('a' - 'A')) : byte;
    });
    const std::size_t found = lower.find(opening);
    if (found == std::string::npos) {
        return {};
    }
    std::string_view rest = std::string_view(head).substr(found + opening.size());
    rest = rest.substr(0, rest.find_first_of("\r\n"));
    const std::size_t first = rest.find_first_not_of(" \t");
    if (first == std::string_view::npos) {
        return {};
    }
    rest.remove_prefix(first);
    return WidenedAscii(rest.substr(0, rest.find_first_of(" \t")));
}

UserControlFiles::UserControlFiles(const fs::path& form)
    : folder_(form.parent_path()), drawn_{forms::Resolved(form)} {}

void UserControlFiles::ReadFolder() {
    isRead_ = true;
    std::error_code error;
    std::vector<fs::path> found;
    const fs::path folder = folder_.empty() ? fs::path(".") : folder_;
    for (fs::directory_iterator entry(folder, error), end; !error && entry != end;
         entry.increment(error)) {
        if (IsControlFile(entry->path()) && entry->is_regular_file(error)) {
            found.push_back(entry->path());
        }
    }
    std::ranges::sort(found);  // the same file for a name that two define
    for (const fs::path& path : found) {
        if (const Text name = UserControlIn(path); !name.empty()) {
            files_.emplace(LCase(name), path);
        }
    }
}

std::optional<fs::path> UserControlFiles::Take(TextView className) {
    if (!isRead_) {
        ReadFolder();
    }
    const auto found = files_.find(LCase(className.substr(className.rfind(u'.') + 1)));
    if (found == files_.end() || taken_ == mostTaken ||
        std::ranges::find(drawn_, forms::Resolved(found->second)) != drawn_.end()) {
        return std::nullopt;
    }
    ++taken_;
    return found->second;
}

UserControlFiles::Drawing::Drawing(UserControlFiles& files, const fs::path& path) : files_(files) {
    files_.drawn_.push_back(forms::Resolved(path));
}

UserControlFiles::Drawing::~Drawing() {
    files_.drawn_.pop_back();
}

}  // namespace lumenkit::lumenform
