#include "tests/apps/lumenform/designed_form.h"

#include <QApplication>
#include <QMouseEvent>
#include <QTest>
#include <sstream>
#include <stdexcept>

#include "frame/utf8.h"
#include "tests/support/qt_windows.h"

namespace lumenkit::host {

void PrintTo(const Placement& place, std::ostream* out) {
    *out << place.left << ", " << place.top << "  " << place.width << " x " << place.height;
}

}  // namespace lumenkit::host

namespace lumenkit::testing {

namespace {

std::vector<std::string> LinesOf(const std::string& text) {
    std::vector<std::string> lines;
    std::istringstream stream(text);
    for (std::string line; std::getline(stream, line);) {
        const auto first = line.find_first_not_of(' ');
        line.erase(0, first == std::string::npos ? line.size() : first);
        line.erase(line.find_last_not_of(" \r") + 1);
        lines.push_back(line);
    }
    return lines;
}

// Distance of the middle of a handle from the edge of its control, in pixels.
constexpr int aside = 3;

int HandleAt(int near, int length, int side) {
    return side < 0 ? near - 1 - aside : side > 0 ? near + length + aside : near + length / 2;
}

}  // namespace

DesignedForm::DesignedForm(forms::Document loaded)
    : design(surface.context, std::move(loaded)), canvas(new lumenform::Canvas(design)) {
    QObject::connect(canvas, &lumenform::Canvas::Refused,
                     [this](const QString& why) { refused.push_back(why); });
    canvas->SetGrid({.guides = false});
    window.setCentralWidget(canvas);
    window.resize(700, 500);
    ShowActive(window);
    canvas->setFocus();
}

DesignedForm::DesignedForm(const std::string& inner) : DesignedForm(FormWith(inner)) {}

lumenform::LiveControl& DesignedForm::Control(TextView name) const {
    lumenform::LiveControl* control = design.View().Find(name);
    if (control == nullptr) {
        throw std::out_of_range("no control " + ToUtf8(name));
    }
    return *control;
}

std::vector<std::string> DesignedForm::Selected() const {
    std::vector<std::string> names;
    for (const Text& name : design.SelectedNames()) {
        names.push_back(ToUtf8(name));
    }
    return names;
}

std::vector<std::string> DesignedForm::ChangedSince(const std::string& before) const {
    const std::vector<std::string> former = LinesOf(before);
    const std::vector<std::string> now = LinesOf(Saved());
    if (former.size() != now.size()) {
        return {"(other lines)"};
    }
    std::vector<std::string> changed;
    for (std::size_t line = 0; line < now.size(); ++line) {
        if (former[line] != now[line]) {
            changed.push_back(now[line]);
        }
    }
    return changed;
}

QPoint DesignedForm::OnGlass(QPoint onForm) const {
    return canvas->GetZoom()
        .ToDesk(QPointF(design.View().Client().mapTo(&design.View(), onForm)))
        .toPoint();
}

QPoint DesignedForm::OnForm(const QWidget& widget, QPoint at) const {
    return widget.mapTo(&design.View().Client(), at);
}

QPoint DesignedForm::MiddleOf(TextView name) const {
    const QWidget& widget = Control(name).Widget();
    return OnForm(widget, widget.rect().center());
}

QPoint DesignedForm::HandleOf(TextView name, int across, int down) const {
    const QWidget& widget = Control(name).Widget();
    const QPoint corner = OnForm(widget, QPoint());
    return {HandleAt(corner.x(), widget.width(), across),
            HandleAt(corner.y(), widget.height(), down)};
}

QPoint DesignedForm::FormHandle(int across, int down) const {
    const QSize size = design.View().Client().size();
    return {HandleAt(0, size.width(), across), HandleAt(0, size.height(), down)};
}

void DesignedForm::Press(QPoint at, Qt::KeyboardModifiers held) {
    QTest::mousePress(&canvas->GetGlass(), Qt::LeftButton, held, OnGlass(at));
}

void DesignedForm::MoveTo(QPoint at, Qt::KeyboardModifiers held) {
    lumenform::Glass& glass = canvas->GetGlass();
    const QPoint onGlass = OnGlass(at);
    QMouseEvent event(QEvent::MouseMove, onGlass, glass.mapToGlobal(onGlass), Qt::NoButton,
                      Qt::LeftButton, held);
    QApplication::sendEvent(&glass, &event);
}

void DesignedForm::Release(QPoint at, Qt::KeyboardModifiers held) {
    QTest::mouseRelease(&canvas->GetGlass(), Qt::LeftButton, held, OnGlass(at));
}

void DesignedForm::Click(QPoint at, Qt::KeyboardModifiers held) {
    Press(at, held);
    Release(at, held);
}

void DesignedForm::Drag(QPoint from, QPoint by, Qt::KeyboardModifiers held) {
    Press(from, held);
    MoveTo(from + by / 2, held);
    MoveTo(from + by, held);
    Release(from + by, held);
}

void DesignedForm::Key(Qt::Key key, Qt::KeyboardModifiers held) {
    QTest::keyClick(&canvas->GetGlass(), key, held);
}

}  // namespace lumenkit::testing
