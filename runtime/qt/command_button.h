#pragma once

#include "frame/host/simple_constituents.h"
#include "runtime/qt/basic_constituent.h"

class QPushButton;

namespace lumenkit::qt {

class CommandButton final : public BasicCaptioned<host::CommandButton> {
 public:
    CommandButton(Elements& elements, const host::CaptionDesign& design, host::ClickEvents& events);
    ~CommandButton() override { Release(); }
    CommandButton(const CommandButton&) = delete;
    CommandButton& operator=(const CommandButton&) = delete;
    void Disconnect() override;

 private:
    QPushButton& Button() const;
    void ShowCaption() override;
};

}  // namespace lumenkit::qt
