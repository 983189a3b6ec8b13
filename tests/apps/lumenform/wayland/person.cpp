#include "tests/apps/lumenform/wayland/person.h"

#include <QApplication>
#include <QEventLoop>
#include <QMouseEvent>
#include <QProcess>
#include <QScreen>
#include <QTest>
#include <QTimer>
#include <QWindow>
#include <stdexcept>

#include "tests/support/qt_windows.h"

namespace lumenkit::testing {

namespace {

constexpr int patience = 10'000;  // milliseconds

QString Shown(int number) {
    return QString::number(number);
}

QStringList MoveTo(QPoint at) {
    const QPoint device = at * Person::Scale();
    return {QStringLiteral("mousemove"), Shown(device.x()), Shown(device.y())};
}

QStringList Pause() {
    return {QStringLiteral("sleep"), QStringLiteral("0.05")};
}

QWindow& WindowOf(const QWidget& widget) {
    QWindow* const window = widget.window()->windowHandle();
    if (window == nullptr) {
        throw std::logic_error("the window was never shown");
    }
    return *window;
}

// Returns the position of a window as the program believes it. Only differences between windows
// that belong together mean something.
QPoint Believed(const QWindow& window) {
    return window.geometry().topLeft();
}

}  // namespace

bool Soon(const std::function<bool()>& condition) {
    constexpr int longest = 5000;  // milliseconds
    return QTest::qWaitFor(condition, longest);
}

QByteArray OutputOf(const QString& program, const QStringList& arguments) {
    QProcess process;
    // An event loop reads much output faster than a wait that looks from time to time.
    QEventLoop loop;
    QObject::connect(&process, &QProcess::finished, &loop, [&] { loop.quit(); });
    QObject::connect(&process, &QProcess::errorOccurred, &loop, [&] { loop.quit(); });
    QTimer::singleShot(patience, &loop, [&] { loop.quit(); });
    process.start(program, arguments);
    if (process.state() != QProcess::NotRunning) {
        loop.exec();
    }
    if (process.state() != QProcess::NotRunning) {
        process.kill();
        throw std::runtime_error(program.toStdString() + " does not end");
    }
    if (process.exitStatus() != QProcess::NormalExit || process.exitCode() != 0) {
        throw std::runtime_error(program.toStdString() +
                                 " fails: " + process.readAllStandardError().toStdString());
    }
    return process.readAllStandardOutput();
}

Person::Person() {
    if (!IsOnWayland()) {
        throw std::logic_error("run the program by scripts/on_wayland.sh");
    }
    QApplication::instance()->installEventFilter(this);
    FindThePointer();
}

Person::~Person() {
    QApplication::instance()->removeEventFilter(this);
}

int Person::Scale() {
    return qRound(QGuiApplication::primaryScreen()->devicePixelRatio());
}

// Records where the program notices the pointer.
bool Person::eventFilter(QObject* object, QEvent* event) {
    const bool isPointed = event->type() == QEvent::MouseMove || event->type() == QEvent::Enter;
    if (isPointed && object->isWindowType()) {
        const auto* const window = static_cast<QWindow*>(object);
        const QPoint at = static_cast<QSinglePointEvent*>(event)->position().toPoint();
        if (QRect(QPoint(), window->size()).contains(at)) {
            pointed_ = {window, at};
        }
    }
    return QObject::eventFilter(object, event);
}

void Person::Do(const QStringList& commands) {
    OutputOf(QStringLiteral("xdotool"), commands);
    constexpr int settling = 40;
    QTest::qWait(settling);
}

// ---- Finding windows

// The pointer of weston follows the moves of that of the X display, but need not begin at the same
// place. Neither pointer leaves its screen, so that both are at the same place in a corner.
void Person::FindThePointer() {
    const QSize screen = QGuiApplication::primaryScreen()->size();
    Do(MoveTo({screen.width() - 1, screen.height() - 1}) + MoveTo({0, 0}));
}

bool Person::Notices(const QWindow& window, QPoint onScreen, int milliseconds) {
    pointed_.reset();
    OutputOf(QStringLiteral("xdotool"), MoveTo(onScreen));
    return QTest::qWaitFor([&] { return pointed_ && pointed_->window == &window; }, milliseconds);
}

// The window noticed the pointer, but perhaps at an earlier point of the search. Returns the origin
// of the window if a further point agrees.
std::optional<QPoint> Person::Confirmed(const QWindow& window, QPoint onScreen) {
    constexpr int settling = 200;
    QTest::qWait(settling);
    const QPoint origin = onScreen - pointed_->at;
    const QPoint further = onScreen + QPoint(7, 5);
    const auto agrees = [&] { return pointed_->at == further - origin; };
    const bool isThere =
        Notices(window, further, 2 * settling) && QTest::qWaitFor(agrees, settling);
    return isThere ? std::optional(origin) : std::nullopt;
}

// Goes over the screen in steps that no window of this size fits between. Searches again with more
// patience, because the machine may be busy.
QPoint Person::Search(const QWindow& window) {
    const QSize screen = QGuiApplication::primaryScreen()->size();
    const QSize step = (window.size() * 2 / 3).expandedTo({20, 20});
    for (const int milliseconds : {50, 150, 500}) {
        for (int y = step.height() / 2; y < screen.height(); y += step.height()) {
            for (int x = step.width() / 2; x < screen.width(); x += step.width()) {
                if (Notices(window, {x, y}, milliseconds)) {
                    if (const auto origin = Confirmed(window, {x, y})) {
                        return *origin;
                    }
                }
            }
        }
    }
    throw std::runtime_error("the window is not on the screen: " + window.title().toStdString());
}

QPoint Person::OriginOf(const QWindow& window) {
    const QWindow* const parent = window.transientParent();
    if (window.type() == Qt::Popup && parent != nullptr) {
        return OriginOf(*parent) + Believed(window) - Believed(*parent);
    }
    const auto found = origins_.find(&window);
    return found != origins_.end() ? found->second
                                   : origins_.emplace(&window, Search(window)).first->second;
}

QRect Person::PlaceOf(const QWidget& widget) {
    return {OriginOf(WindowOf(widget)) + widget.mapTo(widget.window(), QPoint()), widget.size()};
}

// Windows leave a margin around them on the screen of the session.
QPoint Person::DesktopPoint() {
    return QGuiApplication::primaryScreen()->geometry().bottomRight() - QPoint(3, 3);
}

// ---- Acting

void Person::PointAt(const QWidget& widget, QPoint at) {
    const QPoint onScreen = PlaceOf(widget).topLeft() + at;
    const QPoint inWindow = widget.mapTo(widget.window(), at);
    Do(MoveTo(onScreen - QPoint(1, 1)));  // so that the next move is one
    const bool notices = Notices(WindowOf(widget), onScreen, patience);
    if (!notices || !Soon([&] { return pointed_->at == inWindow; })) {
        throw std::runtime_error(std::string("the pointer is not over the ") +
                                 widget.metaObject()->className());
    }
}

void Person::PointAtTheDesktop() {
    Do(MoveTo(DesktopPoint()));
}

void Person::Click(const QWidget& widget, QPoint at, int button) {
    PointAt(widget, at);
    Do({QStringLiteral("click"), Shown(button)});
}

void Person::ClickBehindPopup(const QWidget& widget, QPoint at) {
    Do(MoveTo(PlaceOf(widget).topLeft() + at));
    Do({QStringLiteral("click"), Shown(1)});
}

// Qt handles a drag in an event loop of its own, until the button is released. One process
// therefore does all of it.
void Person::Drag(QPoint from, QPoint to) {
    constexpr int steps = 5;
    QStringList commands =
        MoveTo(from) + Pause() + QStringList{QStringLiteral("mousedown"), Shown(1)} + Pause();
    for (int step = 1; step <= steps; ++step) {
        commands += MoveTo(from + (to - from) * step / steps) + Pause();
    }
    commands += Pause() + QStringList{QStringLiteral("mouseup"), Shown(1)};
    Do(commands);
}

void Person::Drag(const QWidget& from, QPoint start, const QWidget& to, QPoint end) {
    const QPoint released = PlaceOf(to).topLeft() + end;
    Drag(PlaceOf(from).topLeft() + start, released);
}

void Person::DragToTheDesktop(const QWidget& from, QPoint start) {
    Drag(PlaceOf(from).topLeft() + start, DesktopPoint());
}

void Person::Type(const QString& text) {
    Do({QStringLiteral("type"), QStringLiteral("--delay"), QStringLiteral("10"), text});
}

void Person::Press(const QString& keys) {
    Do({QStringLiteral("key"), keys});
}

QByteArray Person::PasteElsewhere(const QString& type) {
    QStringList options{QStringLiteral("--no-newline")};
    if (!type.isEmpty()) {
        options += {QStringLiteral("--type"), type};
    }
    return OutputOf(QStringLiteral("wl-paste"), options);
}

void Person::LeaveAndReturn() {
    // It takes the focus to look at the clipboard. If that is empty, it says so by its status.
    OutputOf(QStringLiteral("sh"),
             {QStringLiteral("-c"), QStringLiteral("wl-paste --list-types 2>&1 || true")});
}

// ---- Seeing

QImage Person::Seen(const QRect& place) {
    const QByteArray screen =
        OutputOf(QStringLiteral("import"),
                 {QStringLiteral("-window"), QStringLiteral("root"), QStringLiteral("-depth"),
                  QStringLiteral("8"), QStringLiteral("bmp:-")});
    return QImage::fromData(screen)
        .copy(QRect(place.topLeft() * Scale(), place.size() * Scale()))
        .convertToFormat(QImage::Format_RGB32);
}

}  // namespace lumenkit::testing
