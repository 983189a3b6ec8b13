#include "apps/lumenkit/check/progress_bar.h"

namespace lumenkit::check {

namespace {

constexpr std::size_t width = 30;
constexpr const char* eraseLine = "\r\x1b[K";

}  // namespace

std::string ProgressBar::LineFor(std::size_t done) const {
    const std::size_t filled = total_ == 0 ? width : done * width / total_;
    const std::size_t percent = total_ == 0 ? 100 : done * 100 / total_;
    return '[' + std::string(filled, '#') + std::string(width - filled, '.') + "] " +
           std::to_string(percent) + '%';
}

void ProgressBar::Show(std::size_t done) {
    if (!shown_) {
        return;
    }
    std::string line = LineFor(done);
    if (line != seen_) {
        terminal_ << eraseLine << line << std::flush;
        seen_ = std::move(line);
    }
}

void ProgressBar::Hide() {
    if (!seen_.empty()) {
        terminal_ << eraseLine << std::flush;
        seen_.clear();
    }
}

}  // namespace lumenkit::check
