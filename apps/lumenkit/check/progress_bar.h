#pragma once

#include <cstddef>
#include <ostream>
#include <string>

namespace lumenkit::check {

/// Shows the progress of a long run as one line of a terminal, which is drawn over and over.
class ProgressBar {
 public:
    /// Draws nothing unless `shown`. The stream must outlive the bar.
    ProgressBar(std::ostream& terminal, std::size_t total, bool shown)
        : terminal_(terminal), total_(total), shown_(shown) {}
    ProgressBar(const ProgressBar&) = delete;
    ProgressBar& operator=(const ProgressBar&) = delete;
    ~ProgressBar() { Hide(); }

    /// Draws the bar if it differs from the visible one. `done` is at most the total.
    void Show(std::size_t done);
    /// Erases the bar, so that other lines can be written.
    void Hide();

 private:
    std::string LineFor(std::size_t done) const;

    std::ostream& terminal_;
    std::size_t total_;
    bool shown_;
    std::string seen_;  // empty while the bar is hidden
};

}  // namespace lumenkit::check
