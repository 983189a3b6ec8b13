#pragma once

#include <cstdint>
#include <memory>

#include "frame/host/font.h"
#include "frame/text.h"
#include "runtime/memory/fault_plan.h"
#include "runtime/memory/metrics.h"

namespace lumenkit::memory {

/// A font with fixed metrics. Sizes are rounded to four decimal places; a rounded size that is not
/// above 0 or is above 2160 points raises 380. A font shares the fault plan, so it may outlive the
/// form.
class Font final : public host::Font {
 public:
    static constexpr std::int16_t regularWeight = 400;
    static constexpr std::int16_t boldWeight = 700;

    /// Creates a font of regular weight. Raises 380 as SetSize does.
    Font(std::shared_ptr<FaultPlan> faults, TextView name, float points);

    Text Name() const override;
    void SetName(TextView name) override;
    float Size() const override;
    void SetSize(float points) override;
    bool Bold() const override;
    void SetBold(bool bold) override;
    bool Italic() const override;
    void SetItalic(bool italic) override;
    bool Underline() const override;
    void SetUnderline(bool underline) override;
    bool Strikethrough() const override;
    void SetStrikethrough(bool strikethrough) override;
    std::int16_t Weight() const override;
    void SetWeight(std::int16_t weight) override;
    std::int16_t Charset() const override;
    void SetCharset(std::int16_t charset) override;

    /// Returns a separate font with the same attributes.
    std::shared_ptr<Font> Clone() const { return std::make_shared<Font>(*this); }
    /// Takes over all attributes of another font.
    void CopyFrom(const Font& other) { now_ = other.now_; }

    /// The attributes, which a surface reads without calls of the contract and without copies.
    struct Attributes {
        Text name;
        float size = 0;
        std::int16_t weight = regularWeight;
        std::int16_t charset = 0;
        bool italic = false;
        bool underline = false;
        bool strikethrough = false;

        bool IsBold() const { return weight > 550; }
        /// In twips.
        double UnitWidth() const {
            return (IsBold() ? boldUnitWidthPerPoint : unitWidthPerPoint) * size;
        }
        double LineHeight() const { return lineHeightPerPoint * size; }
        float WidthOf(TextView text) const {
            return static_cast<float>(static_cast<double>(text.size()) * UnitWidth());
        }
    };
    const Attributes& Now() const { return now_; }

    /// Returns `font` as a font of this runtime. Raises 91 for null and 13 for a font of another
    /// runtime.
    static std::shared_ptr<Font> From(host::FontRef font);

 private:
    void Call(TextView member) const { faults_->Call(u"Font", member); }

    std::shared_ptr<FaultPlan> faults_;
    Attributes now_;
};

}  // namespace lumenkit::memory
