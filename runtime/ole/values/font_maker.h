#pragma once

#include "runtime/ole/stored/record.h"
#include "runtime/ole/values/ole_font.h"

namespace lumenkit::ole {

stored::FontRecord RecordOf(const host::Font& font);

/// Returns a separate standard font object. Raises 380 for attributes that the platform refuses.
std::shared_ptr<OleFont> NewOleFont(const stored::FontRecord& attributes);

class FontMaker final : public win32::FontMaker {
 public:
    std::shared_ptr<win32::Font> NewFont(TextView name, float points) override;
};

}  // namespace lumenkit::ole
