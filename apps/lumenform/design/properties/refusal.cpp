#include "apps/lumenform/design/properties/refusal.h"

#include "forms/form_error.h"
#include "frame/runtime_error.h"
#include "runtime/qt/qt_text.h"

namespace lumenkit::lumenform {

QString RefusalOf(const std::function<void()>& change) {
    try {
        change();
        return {};
    } catch (const forms::FormError& error) {
        return QString::fromStdString(error.Description());
    } catch (...) {
        return qt::ToQString(CurrentError().Description());
    }
}

}  // namespace lumenkit::lumenform
