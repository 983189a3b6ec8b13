// A user of the Wayland session of scripts/on_wayland.sh.
#pragma once

#include <QByteArray>
#include <QImage>
#include <QPointF>
#include <QStringList>
#include <QWidget>
#include <functional>
#include <map>
#include <optional>

namespace lumenkit::testing {

/// A user at the mouse, the keyboard and the screen of the session. Everything that the user does
/// goes through the compositor, and each function returns when the program has handled it.
///
/// A client of Wayland does not know where its windows are. The user finds a window by moving the
/// pointer over the screen until the window notices it. Popups are looked for where they belong: at
/// the position that the program gave them, counted from the window that they belong to.
///
/// Positions and sizes are in pixels with `Scale()` device pixels each.
class Person final : public QObject {
 public:
    Person();
    ~Person() override;
    Person(const Person&) = delete;
    Person& operator=(const Person&) = delete;

    /// Moves the pointer to a point of a widget. Throws if the compositor does not send it there.
    void PointAt(const QWidget& widget, QPoint at);
    void Click(const QWidget& widget, QPoint at, int button = 1);
    /// Clicks at a point of a widget while a popup has the mouse: the widget does not notice the
    /// pointer.
    void ClickBehindPopup(const QWidget& widget, QPoint at);
    /// Presses the left button at `start`, moves in steps, and releases the button at `end`.
    void Drag(const QWidget& from, QPoint start, const QWidget& to, QPoint end);
    /// Drags to a point beside all windows, where nothing takes what is dropped.
    void DragToTheDesktop(const QWidget& from, QPoint start);
    /// Moves the pointer away from all windows.
    static void PointAtTheDesktop();
    static void Type(const QString& text);
    /// Presses keys: "ctrl+a". Names are those of xdotool.
    static void Press(const QString& keys);

    /// Pastes in another program: text, or data of the type. Returns it. The other program takes
    /// the focus for a moment.
    static QByteArray PasteElsewhere(const QString& type = {});
    /// Gives the focus to another program, and gets it back.
    ///
    /// weston 10 may not tell a window that it is active again: it does not if the window got the
    /// focus back before it had drawn itself as inactive. Keys then reach the window, but no
    /// shortcuts. If the focus leaves and comes back once more, the window can become active.
    static void LeaveAndReturn();

    /// Returns the place of a widget on the screen.
    QRect PlaceOf(const QWidget& widget);
    /// Returns what the screen shows there, in device pixels.
    static QImage Seen(const QRect& place);
    QImage SeenAt(const QWidget& widget) { return Seen(PlaceOf(widget)); }
    static int Scale();

    bool eventFilter(QObject* object, QEvent* event) override;

 private:
    struct Pointed {
        const QWindow* window;
        QPoint at;
    };

    static void FindThePointer();
    QPoint OriginOf(const QWindow& window);
    QPoint Search(const QWindow& window);
    std::optional<QPoint> Confirmed(const QWindow& window, QPoint onScreen);
    static QPoint DesktopPoint();
    bool Notices(const QWindow& window, QPoint onScreen, int milliseconds);
    static void Drag(QPoint from, QPoint to);
    static void Do(const QStringList& commands);

    std::map<const QWindow*, QPoint> origins_;
    std::optional<Pointed> pointed_;
};

/// Waits until the condition holds, for some seconds. The compositor and the program handle what
/// the user does a little later.
bool Soon(const std::function<bool()>& condition);

/// Waits until `get` returns the expected value. Returns its last value, for the message of a
/// check.
template <typename Get, typename Value>
auto Awaited(const Get& get, const Value& expected) {
    Soon([&] { return get() == expected; });
    return get();
}

/// Runs another program of the session while this one goes on. Returns what it printed. Throws if
/// it fails, or does not end.
QByteArray OutputOf(const QString& program, const QStringList& arguments);

}  // namespace lumenkit::testing
