#pragma once

#include <cstddef>
#include <ostream>
#include <string>

namespace lumenkit::check {

/// How far a long run has got, as one line of a terminal that is drawn over and over.
class ProgressBar {
 public:
    /// Nothing is ever drawn where not `shown`. The stream must outlive the bar.
    ProgressBar(std::ostream& terminal, std::size_t total, bool shown)
        : terminal_(terminal), total_(total), shown_(shown) {}
    ProgressBar(const ProgressBar&) = delete;
    ProgressBar& operator=(const ProgressBar&) = delete;
    ~ProgressBar() { Hide(); }

    /// Draws the bar where it differs from the one that is seen; `done` is at most the total.
    void Show(std::size_t done);
    /// Takes it from the terminal, so that other lines can be written.
    void Hide();

 private:
    std::string LineFor(std::size_t done) const;

    std::ostream& terminal_;
    std::size_t total_;
    bool shown_;
    std::string seen_;  // empty while it is hidden
};

}  // namespace lumenkit::check
