#pragma once

#include <QTreeWidget>

#include "apps/lumenform/form_view/stage.h"

namespace lumenkit::lumenform {

/// A list of the last thousand events that the controls of a form raised, one per line: control,
/// event and arguments.
class EventLog final : public QTreeWidget {
    Q_OBJECT

 public:
    static constexpr int longest = 1000;

    explicit EventLog(QWidget* parent = nullptr);

    void Add(const ControlEvent& event);

    QSize sizeHint() const override;
};

}  // namespace lumenkit::lumenform
