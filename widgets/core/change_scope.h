#pragma once

#include <QPointer>
#include <span>
#include <vector>

#include "frame/automation/value.h"
#include "frame/text.h"

namespace lumenkit::widgets {

class ChangeScope;

/// The properties whose changes a ChangeScope announces.
class ChangeSource {
 public:
    virtual ~ChangeSource() = default;

    virtual Value Read(TextView property) = 0;
    virtual void Announce(TextView property) = 0;
    /// The widget that emits the signals. A slot may destroy it, and with it the source.
    virtual QObject* Emitter() const = 0;

    /// The scope of the innermost call that is running, or null.
    ChangeScope* innermost = nullptr;
};

/// Collects the changes that one call causes and announces them at its end, each property once:
/// those that the control tells of, and those of the watched properties that have another value
/// than at the beginning.
class ChangeScope {
 public:
    /// `assigned` is a watched property too, unless it is empty.
    ChangeScope(ChangeSource& source, TextView assigned, std::span<const TextView> watched);
    ~ChangeScope();
    ChangeScope(const ChangeScope&) = delete;
    ChangeScope& operator=(const ChangeScope&) = delete;

    /// Called when the control tells of a change.
    void Add(TextView property);
    /// Announces the changes. Called at most once, and not after an error.
    void Announce();

 private:
    struct Watched {
        TextView property;
        Value before;
    };
    void Watch(TextView property);

    ChangeSource& source_;
    QPointer<QObject> emitter_;
    ChangeScope* outer_;
    std::vector<Watched> watched_;
    std::vector<Text> told_;
};

}  // namespace lumenkit::widgets
