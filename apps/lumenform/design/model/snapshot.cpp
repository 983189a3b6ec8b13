#include "apps/lumenform/design/model/snapshot.h"

#include <utility>

namespace lumenkit::lumenform {

namespace {

std::shared_ptr<const std::string> Shared(std::string bytes,
                                          const std::shared_ptr<const std::string>& earlier) {
    return earlier != nullptr && *earlier == bytes
               ? earlier
               : std::make_shared<const std::string>(std::move(bytes));
}

}  // namespace

Snapshot::Snapshot(const forms::Document& document, std::vector<Text> selected,
                   const Snapshot* earlier)
    : encoding_(document.TextEncoding()), selected_(std::move(selected)) {
    forms::FormBytes bytes = document.Write();
    form_ = Shared(std::move(bytes.form), earlier == nullptr ? nullptr : earlier->form_);
    companion_ =
        Shared(std::move(bytes.companion), earlier == nullptr ? nullptr : earlier->companion_);
}

Snapshot::Snapshot(const Snapshot& other, std::vector<Text> selected)
    : encoding_(other.encoding_),
      form_(other.form_),
      companion_(other.companion_),
      selected_(std::move(selected)) {}

bool Snapshot::HoldsTheSameAs(const Snapshot& other) const {
    return form_ == other.form_ && companion_ == other.companion_ &&
           encoding_.FormCodePage() == other.encoding_.FormCodePage() &&
           encoding_.CompanionPage().Number() == other.encoding_.CompanionPage().Number();
}

}  // namespace lumenkit::lumenform
