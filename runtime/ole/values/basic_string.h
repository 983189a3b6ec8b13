// The platform's automation strings.
#pragma once

#include <utility>

#include "frame/text.h"
#include "runtime/ole/values/ole_header.h"

namespace lumenkit::ole {

/// Returns the text of a BSTR, zeros inside it included. Null is the empty text.
TextView TextOf(BSTR string);

/// Owns a BSTR.
class BasicString {
 public:
    BasicString() = default;
    /// Throws std::bad_alloc.
    explicit BasicString(TextView text);
    ~BasicString() { SysFreeString(string_); }
    BasicString(const BasicString&) = delete;
    BasicString& operator=(const BasicString&) = delete;

    BSTR Get() const { return string_; }
    BSTR* Out() { return &string_; }
    TextView AsText() const { return TextOf(string_); }
    /// Passes the ownership to the caller.
    BSTR Detach() { return std::exchange(string_, nullptr); }

 private:
    BSTR string_ = nullptr;
};

}  // namespace lumenkit::ole
