#include <lumenkit/widgets/event_arguments.h>

namespace lumenkit::widgets {

MouseArguments::MouseArguments(int button, int shift, double x, double y)
    : button_(button), shift_(shift), x_(x), y_(y) {}
MouseArguments::~MouseArguments() = default;

KeyArguments::KeyArguments(int keyCode, int shift) : keyCode_(keyCode), shift_(shift) {}
KeyArguments::~KeyArguments() = default;

KeyPressArguments::KeyPressArguments(int keyAscii) : keyAscii_(keyAscii) {}
KeyPressArguments::~KeyPressArguments() = default;

ValidateArguments::ValidateArguments(bool cancel) : cancel_(cancel) {}
ValidateArguments::~ValidateArguments() = default;

}  // namespace lumenkit::widgets
