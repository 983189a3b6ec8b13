#pragma once

#include <QObject>
#include <map>
#include <vector>

#include "apps/lumenform/design/code/form_code.h"
#include "apps/lumenform/design/model/form_design.h"
#include "frame/text.h"

namespace lumenkit::lumenform {

/// Watches which names of controls and menus disappear from a form by a change, a deletion or
/// another name, while its code still mentions them. The name of a control array disappears with
/// its last element.
class LostNames final : public QObject {
    Q_OBJECT

 public:
    /// The design must outlive this object.
    explicit LostNames(FormDesign& design, QObject* parent = nullptr);

    /// The names that the last such change has lost, until it is undone or they are there again.
    const std::vector<Text>& Names() const { return lost_; }
    /// The code when Names() was determined.
    const CodeOutline& Outline() const { return code_.Outline(); }
    /// Forgets the names.
    void Dismiss();

 Q_SIGNALS:
    /// Names() has changed.
    void Changed();

 private:
    using NamesByKey = std::map<Text, Text>;  // by the name in lower case

    NamesByKey PresentNames() const;
    void Follow(int step);
    void Take(std::vector<Text> lost);

    FormDesign& design_;
    FormCode code_;
    NamesByKey present_;
    int step_;          // of the history
    int lostStep_ = 0;  // the step after the loss
    std::vector<Text> lost_;
};

}  // namespace lumenkit::lumenform
