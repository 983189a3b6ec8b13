#pragma once

#include "frame/host/simple_constituents.h"
#include "runtime/qt/basic_constituent.h"

class QPushButton;

namespace lumenkit::qt {

class CommandButton final : public BasicCaptioned<host::CommandButton> {
 public:
    CommandButton(Constituents& owner, const host::CaptionDesign& design,
                  host::ClickEvents& events);
    ~CommandButton() override { Release(); }

 private:
    QPushButton& Button() const;
    void ShowCaption() override;
    void Disconnect() override;
};

}  // namespace lumenkit::qt
