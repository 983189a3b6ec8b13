#pragma once

#include <QObject>
#include <functional>

#include "apps/lumenform/design/model/form_design.h"
#include "apps/lumenform/design/properties/notice.h"
#include "frame/text.h"

namespace lumenkit::lumenform {

/// Writes the form in another code page when the user follows a link of a notice about a text that
/// the present page cannot hold. It belongs to the notice.
class EncodingOffer final : public QObject {
    Q_OBJECT

 public:
    /// `text` returns the refused text, and `retry` takes it over after the change. `design` must
    /// outlive the notice.
    EncodingOffer(FormDesign& design, Notice& notice, std::function<Text()> text,
                  std::function<void()> retry);

 private:
    void WriteIn(int codePage);
    void ShowPages();

    FormDesign& design_;
    Notice& notice_;
    std::function<Text()> text_;
    std::function<void()> retry_;
};

}  // namespace lumenkit::lumenform
