// Benchmarks of forms on Qt: opening and closing a form of 300 controls, painting included, and
// dragging one of the controls over the others in the designer. The peers are plain Qt widgets of
// the same number, kinds and places.
#include <QApplication>
#include <QCheckBox>
#include <QLabel>
#include <QLineEdit>
#include <QMouseEvent>
#include <QPixmap>
#include <QPushButton>
#include <QScrollArea>
#include <QScrollBar>
#include <QVBoxLayout>
#include <array>
#include <memory>
#include <string>
#include <utility>

#include "apps/lumenform/design/canvas/canvas.h"
#include "apps/lumenform/design/model/form_design.h"
#include "apps/lumenform/form_view/form_view.h"
#include "bench/qt_stage.h"
#include "bench/ratio_table.h"
#include "forms/document.h"
#include "runtime/qt/pixels.h"

namespace {

using lumenkit::bench::AddComparison;
using lumenkit::bench::QtStage;
using lumenkit::bench::Ratio;
using lumenkit::bench::Side;
using lumenkit::bench::StageWindow;
namespace lumenform = lumenkit::lumenform;
namespace forms = lumenkit::forms;
namespace host = lumenkit::host;

constexpr int controls = 300;
constexpr int columns = 15;
constexpr std::array<const char*, 4> classes = {"CommandButton", "TextBox", "CheckBox", "Label"};

host::Placement PlaceOf(int index) {
    constexpr float width = 720;
    constexpr float height = 360;
    const int row = index / columns;
    return {.left = static_cast<float>(index % columns) * width,
            .top = static_cast<float>(row) * height,
            .width = width - 60,
            .height = height - 60};
}

std::string Line(const char* name, float number) {
    return std::string("      ") + name + " = " + std::to_string(static_cast<int>(number)) + "\n";
}

std::string FormText() {
    std::string text =
        "VERSION 5.00\nBegin VB.Form Form1\n   ClientHeight = 7200\n   ClientWidth = 10800\n";
    for (int index = 0; index < controls; ++index) {
        const std::string kind = classes[static_cast<std::size_t>(index) % classes.size()];
        const std::string number = std::to_string(index);
        const host::Placement place = PlaceOf(index);
        const char* const shown = kind == "TextBox" ? "Text" : "Caption";
        text += "   Begin VB." + kind + " C" + number + "\n      " + shown + " = \"No. " + number +
                "\"\n" + Line("Height", place.height) + Line("Left", place.left) +
                Line("Top", place.top) + Line("Width", place.width) + "   End\n";
    }
    return text + "End\n";
}

forms::Document ParseForm(const std::string& text) {
    return forms::Document::Parse("bench.frm", text, {});
}

QWidget* NewWidget(int index, QWidget* parent) {
    const QString text = QStringLiteral("No. ") + QString::number(index);
    switch (static_cast<std::size_t>(index) % classes.size()) {
        case 0:
            return new QPushButton(text, parent);
        case 1:
            return new QLineEdit(text, parent);
        case 2:
            return new QCheckBox(text, parent);
        default:
            return new QLabel(text, parent);
    }
}

std::unique_ptr<QWidget> NewPlainForm(QWidget* window) {
    auto form = std::make_unique<QWidget>(window);
    form->setFixedSize(lumenkit::qt::ToPixels({.width = 10800, .height = 7200}).size());
    for (int index = 0; index < controls; ++index) {
        NewWidget(index, form.get())->setGeometry(lumenkit::qt::ToPixels(PlaceOf(index)));
    }
    return form;
}

Side OpeningForm(QtStage& stage) {
    return {[&stage, text = FormText(), window = std::make_shared<StageWindow>()] {
                forms::Document document = ParseForm(text);
                lumenform::FormView view(stage.Context(), document, lumenform::Mode::Run,
                                         window.get());
                view.show();
                QApplication::processEvents();
            },
            controls};
}

Side OpeningPlainForm() {
    return {[window = std::make_shared<StageWindow>()] {
                const auto form = NewPlainForm(window.get());
                form->show();
                QApplication::processEvents();
            },
            controls};
}

constexpr int events = 20;  // per round; down and up in turn
constexpr int distance = 80;

// A form on a design canvas, with the mouse button held down on the first control.
class Dragged {
 public:
    explicit Dragged(QtStage& stage) : design_(stage.Context(), ParseForm(FormText())) {
        auto* const canvas = new lumenform::Canvas(design_);
        auto* const layout = new QVBoxLayout(&window_);
        layout->setContentsMargins(0, 0, 0, 0);
        layout->addWidget(canvas);
        QApplication::processEvents();
        glass_ = &canvas->GetGlass();
        constexpr QPoint inside(10, 10);
        start_ = glass_->mapFromGlobal(design_.View().Client().mapToGlobal(inside));
        Send(QEvent::MouseButtonPress, start_, Qt::LeftButton);
        Move(distance);
    }

    void Move(int down) {
        Send(QEvent::MouseMove, start_ + QPoint(0, down), Qt::NoButton);
        QApplication::processEvents();
    }

 private:
    void Send(QEvent::Type type, QPoint at, Qt::MouseButton button) {
        QMouseEvent event(type, at, glass_->mapToGlobal(at), button, Qt::LeftButton, {});
        QApplication::sendEvent(glass_, &event);
    }

    lumenform::FormDesign design_;
    StageWindow window_;
    lumenform::Glass* glass_;
    QPoint start_;
};

// Alternates between two distances, so that each event moves the control.
template <typename Move>
void MoveInTurn(const Move& move) {
    for (int event = 0; event < events; ++event) {
        move(event % 2 == 0 ? 2 * distance : distance);
    }
}

Side Dragging(QtStage& stage) {
    return {[dragged = std::make_shared<Dragged>(stage)] {
                MoveInTurn([&](int down) { dragged->Move(down); });
            },
            events};
}

Side MovingPlain() {
    struct Plain {
        StageWindow window;
        std::unique_ptr<QWidget> form = NewPlainForm(&window);
        QWidget* moved = form->findChild<QPushButton*>();
    };
    auto plain = std::make_shared<Plain>();
    plain->moved->raise();
    plain->form->show();
    QApplication::processEvents();
    return {[plain] {
                MoveInTurn([&](int down) {
                    plain->moved->move(0, down);
                    QApplication::processEvents();
                });
            },
            events};
}

// A form at 200 % on a design canvas that shows a part of it.
class Scrolled {
 public:
    explicit Scrolled(QtStage& stage) : design_(stage.Context(), ParseForm(FormText())) {
        canvas_ = new lumenform::Canvas(design_);
        auto* const layout = new QVBoxLayout(&window_);
        layout->setContentsMargins(0, 0, 0, 0);
        layout->addWidget(canvas_);
        canvas_->SetZoom(2 * lumenform::Zoom::full);
        QApplication::processEvents();
        MoveInTurn([this](int down) { ScrollTo(down); });
    }

    void ScrollTo(int down) {
        canvas_->verticalScrollBar()->setValue(down);
        canvas_->repaint();
        QApplication::processEvents();
    }

 private:
    lumenform::FormDesign design_;
    StageWindow window_;
    lumenform::Canvas* canvas_;
};

Side Scrolling(QtStage& stage) {
    return {[scrolled = std::make_shared<Scrolled>(stage)] {
                MoveInTurn([&](int down) { scrolled->ScrollTo(down); });
            },
            events};
}

// A picture of the same size in a scroll area.
Side ScrollingPicture() {
    struct Plain {
        StageWindow window;
        QScrollArea* area = new QScrollArea(&window);
    };
    auto plain = std::make_shared<Plain>();
    QPixmap picture(lumenkit::qt::ToPixels({.width = 21600, .height = 14400}).size());
    picture.fill(Qt::white);
    auto* const label = new QLabel;
    label->setPixmap(picture);
    plain->area->setWidget(label);
    plain->area->resize(plain->window.size());
    plain->area->show();
    QApplication::processEvents();
    return {[plain] {
                MoveInTurn([&](int down) {
                    plain->area->verticalScrollBar()->setValue(down);
                    plain->area->repaint();
                    QApplication::processEvents();
                });
            },
            events};
}

}  // namespace

int main(int argc, char** argv) {
    QtStage stage;
    AddComparison({"Qt: open a form of 300 controls, against as many plain widgets", "control",
                   OpeningForm(stage), OpeningPlainForm(), Ratio::TimesSlower, "<= 2x"});
    AddComparison({"Qt: drag one of 300 controls in the designer, against moving a plain widget",
                   "event", Dragging(stage), MovingPlain(), Ratio::TimesSlower, "<= 2x"});
    AddComparison({"Qt: scroll a form of 300 controls at 200 %, against a picture of its size",
                   "event", Scrolling(stage), ScrollingPicture(), Ratio::TimesSlower, "<= 2x"});
    return lumenkit::bench::RunComparisons(argc, argv);
}
