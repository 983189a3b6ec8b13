#include "apps/lumenkit/check/review_path.h"

#include <filesystem>

namespace lumenkit::check {

std::string ReviewPath(const std::string& file) {
    return std::filesystem::path(file).lexically_normal().generic_string();
}

}  // namespace lumenkit::check
