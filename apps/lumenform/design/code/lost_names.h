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

    /// The names that such changes have lost, in their order, while they are not undone and no
    /// control has the name again.
    const std::vector<Text>& Names() const { return names_; }
    /// The name before the bar in the event procedures of the form itself: "Form".
    Text FormName() const;
    /// The code in which the names are mentioned.
    const CodeOutline& Outline() const { return code_.Outline(); }
    /// Forgets the names.
    void Dismiss();

 Q_SIGNALS:
    /// Names() has changed.
    void Changed();

 private:
    using NamesByKey = std::map<Text, Text>;  // by the name in lower case

    struct Loss {
        Text name;
        int step;  // of the history, after the loss
    };

    NamesByKey PresentNames() const;
    void Follow(int step);
    void ForgetFrom(int step);
    std::vector<Text> Mentioned() const;

    FormDesign& design_;
    FormCode code_;
    NamesByKey present_;
    int step_;                  // of the history
    std::vector<Loss> losses_;  // also of names that are there again: an undo takes them away
    std::vector<Text> names_;
};

}  // namespace lumenkit::lumenform
