#pragma once

#include <QTreeWidget>

#include "apps/lumenform/form_view/stage.h"

namespace lumenkit::form {

/// What the controls of a form raise, a line each: control, event, arguments. The last thousand.
class EventLog final : public QTreeWidget {
 public:
    static constexpr int longest = 1000;

    explicit EventLog(QWidget* parent = nullptr);

    void Add(const RaisedEvent& event);

    QSize sizeHint() const override;
};

}  // namespace lumenkit::form
