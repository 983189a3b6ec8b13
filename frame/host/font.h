#pragma once

#include <cstdint>
#include <memory>
#include <optional>
#include <span>
#include <utility>

#include "frame/automation/value.h"
#include "frame/automation/value_type.h"
#include "frame/text.h"

namespace lumenkit::host {

/// The platform's standard font object. Fonts are shared: a surface, a text box and a client may
/// hold the same font, and a change by one of them affects all.
///
/// Also a late-bound object with the members Name (0), Size (2), Bold (3), Italic (4), Underline
/// (5), Strikethrough (6), Weight (7) and Charset (8). Two fonts are the same (Object::IsSame) when
/// all their attributes are equal.
class Font : public Object {
 public:
    virtual Text Name() const = 0;
    virtual void SetName(TextView name) = 0;
    /// In points, to four decimal places. Setting raises 380 when the size is not above 0 or is too
    /// large.
    virtual float Size() const = 0;
    virtual void SetSize(float points) = 0;
    virtual bool Bold() const = 0;
    virtual void SetBold(bool bold) = 0;
    virtual bool Italic() const = 0;
    virtual void SetItalic(bool italic) = 0;
    virtual bool Underline() const = 0;
    virtual void SetUnderline(bool underline) = 0;
    virtual bool Strikethrough() const = 0;
    virtual void SetStrikethrough(bool strikethrough) = 0;
    /// 400 is regular, 700 is bold. Setting the weight also sets Bold (above 550), and setting Bold
    /// also sets the weight.
    virtual std::int16_t Weight() const = 0;
    virtual void SetWeight(std::int16_t weight) = 0;
    /// The platform's character set number, 0 for ANSI.
    virtual std::int16_t Charset() const = 0;
    virtual void SetCharset(std::int16_t charset) = 0;

    std::optional<std::int32_t> FindMember(TextView name) const override;
    Value Invoke(std::int32_t identifier, InvokeKind kind, std::span<Value> arguments) override;
    bool IsSame(const Object& other) const override;
};

using FontRef = std::shared_ptr<Font>;

/// Returns the font that `value` refers to, which may be null. Raises 13 when `value` is not a
/// font.
FontRef ToFont(const Value& value);

/// Does the same for a value that is assigned to a property, which needs a font: Nothing raises 13
/// too, as a number does.
FontRef ToAssignedFont(const Value& value);

}  // namespace lumenkit::host

namespace lumenkit {

template <>
struct Automation<host::FontRef> {
    static constexpr ValueType type = ValueType::Font;
    static host::FontRef From(const Value& value) { return host::ToAssignedFont(value); }
    static Value To(host::FontRef font) { return ObjectRef(std::move(font)); }
};

}  // namespace lumenkit
