#pragma once

#include <atomic>

#include "frame/class_table.h"
#include "runtime/ole/module/module_file.h"
#include "runtime/ole/values/font_maker.h"
#include "runtime/ole/values/ole_header.h"
#include "runtime/win32/accessible_share.h"
#include "runtime/win32/application.h"
#include "runtime/win32/context.h"
#include "runtime/win32/interaction.h"

namespace lumenkit::ole {

/// The state that all objects of one class table share, for as long as the module is loaded.
class Component {
 public:
    /// Returns the only component of the table, created at the first call.
    static Component& Of(const ClassTable& classes);

    explicit Component(const ClassTable& classes);
    ~Component() = default;
    Component(const Component&) = delete;
    Component& operator=(const Component&) = delete;

    const ClassTable& Classes() const { return classes_; }
    const win32::Context& GetContext() const { return context_; }

    /// Returns the number of living objects that clients hold.
    int LiveObjects() const { return objects_; }
    bool CanUnload() const {
        return objects_ == 0 && locks_ == 0 && win32::LiveAccessibleObjects() == 0;
    }
    void Lock(bool lock) { lock ? ++locks_ : --locks_; }

    /// Counts an object as long as it lives.
    class Share {
     public:
        explicit Share(Component& component) : component_(component) { ++component_.objects_; }
        ~Share() { --component_.objects_; }
        Share(const Share&) = delete;
        Share& operator=(const Share&) = delete;

     private:
        Component& component_;
    };

 private:
    const ClassTable& classes_;
    FontMaker fonts_;
    win32::Application application_{OwnModule()};
    win32::Interaction interaction_{application_};
    win32::Context context_;
    std::atomic<int> objects_ = 0;
    std::atomic<int> locks_ = 0;
};

}  // namespace lumenkit::ole
