#include "vmemo/vmemo.h"

#include <QFontMetrics>
#include <algorithm>
#include <array>

#include <lumenkit/widgets/vmemo.h>

#include "widgets/core/emit_change.h"
#include "widgets/core/event_signals.h"
#include "widgets/core/program.h"
#include "widgets/core/properties.h"

namespace lumenkit::widgets {

namespace {

constexpr std::array memoNotifications = {
    Notification{u"Text", EmitChange<&VMemo::text, &VMemo::textChanged>},
    Notification{u"ForeColor", EmitChange<&VMemo::foreColor, &VMemo::foreColorChanged>},
    Notification{u"FontName", EmitChange<&VMemo::fontName, &VMemo::fontNameChanged>},
    Notification{u"FontSize", EmitChange<&VMemo::fontSize, &VMemo::fontSizeChanged>},
    Notification{u"Locked", EmitChange<&VMemo::isLocked, &VMemo::lockedChanged>},
    Notification{u"MaxLength", EmitChange<&VMemo::maxLength, &VMemo::maxLengthChanged>},
    Notification{u"MousePointer", EmitChange<&VMemo::mousePointer, &VMemo::mousePointerChanged>},
    Notification{u"ScrollBars", EmitChange<&VMemo::scrollBars, &VMemo::scrollBarsChanged>},
    Notification{u"MaxCharsPerLine",
                 EmitChange<&VMemo::maxCharsPerLine, &VMemo::maxCharsPerLineChanged>},
    Notification{u"MaxLines", EmitChange<&VMemo::maxLines, &VMemo::maxLinesChanged>},
};

// The box may change the text by itself, and a page width changes the limit.
constexpr std::array<TextView, 2> watched = {u"Text", u"MaxCharsPerLine"};
constexpr std::array<TextView, 3> derived = {u"FontName", u"FontSize", u"MaxLength"};

void RaiseMemoEvent(ControlWidget& widget, std::int32_t event, std::span<Value> arguments) {
    auto& memo = static_cast<VMemo&>(widget);
    switch (static_cast<VMemoEvent>(event)) {
        case VMemoEvent::Click:
            Q_EMIT memo.click();
            break;
        case VMemoEvent::DblClick:
            Q_EMIT memo.dblClick();
            break;
        case VMemoEvent::KeyDown:
            EmitKey(arguments, [&](KeyArguments* key) { Q_EMIT memo.keyDown(key); });
            break;
        case VMemoEvent::KeyPress:
            EmitKeyPress(arguments, [&](KeyPressArguments* key) { Q_EMIT memo.keyPress(key); });
            break;
        case VMemoEvent::KeyUp:
            EmitKey(arguments, [&](KeyArguments* key) { Q_EMIT memo.keyUp(key); });
            break;
        case VMemoEvent::MouseDown:
            EmitMouse(arguments, [&](MouseArguments* mouse) { Q_EMIT memo.mouseDown(mouse); });
            break;
        case VMemoEvent::MouseMove:
            EmitMouse(arguments, [&](MouseArguments* mouse) { Q_EMIT memo.mouseMove(mouse); });
            break;
        case VMemoEvent::MouseUp:
            EmitMouse(arguments, [&](MouseArguments* mouse) { Q_EMIT memo.mouseUp(mouse); });
            break;
        case VMemoEvent::Change: {
            const QPointer<VMemo> alive(&memo);
            Q_EMIT memo.change();
            if (alive != nullptr) {
                Q_EMIT memo.textChanged(memo.text());
            }
            break;
        }
        case VMemoEvent::Validate:
            EmitValidate(arguments,
                         [&](ValidateArguments* validation) { Q_EMIT memo.validate(validation); });
            break;
    }
}

// Room for the limits, within reason.
QSize IdealMemoSize(ControlCore& core, int /*width*/) {
    constexpr int usualCharacters = 30;
    constexpr int usualLines = 5;
    constexpr int mostCharacters = 80;
    constexpr int mostLines = 20;
    constexpr int frame = 12;
    const auto within = [](int limit, int usual, int most) {
        return limit <= 0 ? usual : std::min(limit, most);
    };
    const int characters =
        within(core.Get<std::int16_t>(u"MaxCharsPerLine"), usualCharacters, mostCharacters);
    const int lines = within(core.Get<std::int16_t>(u"MaxLines"), usualLines, mostLines);
    const QFontMetrics metrics = core.Owner().fontMetrics();
    return {metrics.horizontalAdvance(QLatin1Char('m')) * characters + frame,
            metrics.lineSpacing() * lines + frame};
}

const WidgetClass memoClass = {
    .programmaticIdentifier = u"lumenkit.VMemo",
    .notifications = memoNotifications,
    .raise = RaiseMemoEvent,
    .watched = watched,
    .derived = derived,
    .readAsSaved = {},
    .idealSize = IdealMemoSize,
    .wraps = nullptr,
};

}  // namespace

VMemo::VMemo(QWidget* parent)
    : ControlWidget(std::make_unique<ControlCore>(memoClass, Program()), parent) {
    setSizePolicy(QSizePolicy::Expanding, QSizePolicy::Expanding);
    setFocusPolicy(Qt::StrongFocus);
}

VMemo::VMemo(const QString& text, QWidget* parent) : VMemo(parent) {
    setText(text);
}

VMemo::~VMemo() = default;

QString VMemo::text() const {
    return StringOf(core(), u"Text");
}
void VMemo::setText(const QString& text) {
    const QString lineFeed = QStringLiteral("\n");
    const QString lineEnd = QStringLiteral("\r\n");
    PutString(core(), u"Text", QString(text).replace(lineEnd, lineFeed).replace(lineFeed, lineEnd));
}

QColor VMemo::foreColor() const {
    return ColorOf(*this, core(), u"ForeColor");
}
void VMemo::setForeColor(const QColor& color) {
    PutColor(core(), u"ForeColor", ToColor(color));
}
uint VMemo::foreColorValue() const {
    return ColorValueOf(core(), u"ForeColor");
}
void VMemo::setForeColorValue(uint color) {
    PutColor(core(), u"ForeColor", static_cast<Color>(color));
}
void VMemo::resetForeColor() {
    PutColor(core(), u"ForeColor", Color::WindowText);
}

bool VMemo::causesValidation() const {
    return core().Get<bool>(u"CausesValidation");
}
void VMemo::setCausesValidation(bool causes) {
    core().WriteLater(u"CausesValidation", {causes});
}

QString VMemo::fontName() const {
    return StringOf(core(), u"FontName");
}
void VMemo::setFontName(const QString& name) {
    QFont font = this->font();
    font.setFamily(name);
    setFont(font);
}

double VMemo::fontSize() const {
    return static_cast<double>(core().Get<float>(u"FontSize"));
}
void VMemo::setFontSize(double points) {
    QFont font = this->font();
    font.setPointSizeF(points);
    setFont(font);
}

bool VMemo::isLocked() const {
    return core().Get<bool>(u"Locked");
}
void VMemo::setLocked(bool locked) {
    core().Write(u"Locked", locked);
}

int VMemo::maxLength() const {
    return core().Get<std::int32_t>(u"MaxLength");
}
void VMemo::setMaxLength(int length) {
    PutNumber(core(), u"MaxLength", length);
}

VMemo::MousePointer VMemo::mousePointer() const {
    return static_cast<MousePointer>(core().Get<std::int32_t>(u"MousePointer"));
}
void VMemo::setMousePointer(MousePointer pointer) {
    PutNumber(core(), u"MousePointer", pointer);
}

VMemo::ScrollBars VMemo::scrollBars() const {
    return static_cast<ScrollBars>(core().Get<std::int32_t>(u"ScrollBars"));
}
void VMemo::setScrollBars(ScrollBars bars) {
    PutNumber(core(), u"ScrollBars", bars);
}

int VMemo::maxCharsPerLine() const {
    return core().Get<std::int16_t>(u"MaxCharsPerLine");
}
void VMemo::setMaxCharsPerLine(int characters) {
    PutNumber(core(), u"MaxCharsPerLine", characters);
}

int VMemo::maxLines() const {
    return core().Get<std::int16_t>(u"MaxLines");
}
void VMemo::setMaxLines(int lines) {
    PutNumber(core(), u"MaxLines", lines);
}

void VMemo::setPageWidth(double width) {
    core().WriteLater(u"PageWidth", {static_cast<float>(width)});
}

void VMemo::refresh() {
    core().Call(u"Refresh");
}

void VMemo::testMessage() {
    core().Call(u"TestMessage");
}

}  // namespace lumenkit::widgets
