#include "apps/lumenform/design/window/workbench.h"

#include <QVBoxLayout>
#include <algorithm>
#include <cmath>
#include <cstddef>

#include "apps/lumenform/design/model/arrange.h"
#include "apps/lumenform/design/model/new_control.h"
#include "apps/lumenform/design/model/refusal.h"
#include "apps/lumenform/design/window/class_icon.h"
#include "runtime/qt/pixels.h"
#include "runtime/qt/qt_text.h"

namespace lumenkit::lumenform {

namespace {

// Moves a place to the middle of its container, on the grid.
host::Placement Centered(const Surroundings& around, host::Placement place, const Grid& grid) {
    const qt::TwipsPerPixel& twips = qt::TwipsPerPixel::OfScreens();
    const auto start = [&](int pixels, double twipsPerPixel, float length) {
        const auto room = static_cast<float>(pixels * twipsPerPixel);
        return std::max(grid.Nearest((room - length) / 2), 0.F);
    };
    place.left = start(around.widget.width(), twips.x, place.width);
    place.top = start(around.widget.height(), twips.y, place.height);
    return place;
}

// Whether another control of the container begins at the place.
bool IsTaken(const FormDesign& design, const LiveControl* container, const host::Placement& place) {
    return std::ranges::any_of(design.View().Controls(), [&](const auto& control) {
        const host::Placement other = control->Place();
        return other.left == place.left && other.top == place.top &&
               ContainerOf(design, *control) == container;
    });
}

// Moves a place by steps to where no other control begins. From the edge of the container, the
// steps go on at its upper left corner.
host::Placement Cascaded(const FormDesign& design, const LiveControl* container,
                         host::Placement place, float step) {
    const QSizeF room = InsideOf(design, container).room;
    for (std::size_t left = design.View().Controls().size();
         left > 0 && IsTaken(design, container, place); --left) {
        place.left += step;
        place.top += step;
        if (place.left + place.width > room.width() || place.top + place.height > room.height()) {
            place.left = 0;
            place.top = 0;
        }
    }
    return place;
}

}  // namespace

Workbench::Workbench(const qt::Context& context, ControlMessages& messages,
                     forms::Document document, QWidget* parent)
    : QSplitter(Qt::Horizontal, parent),
      design_(context, std::move(document)),
      toolbox_(new Toolbox(design_)),
      canvas_(new Canvas(design_)),
      outline_(new Outline(design_, ClassIcon)),
      properties_(new PropertyBrowser(design_, messages)) {
    setObjectName(QStringLiteral("workbench"));
    LayOut();
    ConnectParts();
}

// Destroys the users of the design before the design.
Workbench::~Workbench() {
    delete toolbox_;
    delete canvas_;
    delete outline_;
    delete properties_;
}

void Workbench::LayOut() {
    constexpr int toolboxLetters = 25;
    constexpr int propertiesLetters = 50;
    const int letter = fontMetrics().averageCharWidth();
    constexpr int canvasLetters = 22;  // on a small screen
    canvas_->setMinimumWidth(canvasLetters * letter);
    addWidget(toolbox_);
    addWidget(canvas_);
    auto* const column = new QSplitter(Qt::Vertical);
    column->addWidget(outline_);
    column->addWidget(properties_);
    column->setChildrenCollapsible(false);
    column->setStretchFactor(0, 2);
    column->setStretchFactor(1, 3);
    addWidget(column);
    setChildrenCollapsible(false);
    setStretchFactor(1, 1);
    constexpr int most = 1 << 14;
    setSizes({toolboxLetters * letter, most, propertiesLetters * letter});
}

void Workbench::ConnectParts() {
    connect(toolbox_, &Toolbox::Chosen, this, [this](const QString& className) {
        canvas_->BeginDrawing(qt::ToText(className));
        canvas_->GetGlass().setFocus();
    });
    connect(toolbox_, &Toolbox::PutDown, this, &Workbench::PutDown);
    connect(canvas_, &Canvas::DrawingEnded, toolbox_, &Toolbox::Release);
    connect(
        canvas_, &Canvas::Drawn, this,
        [this](const Text& className, const LiveControl* container, const host::Placement& place,
               DragStart start) { Add(className, container, place, start); });
    connect(canvas_, &Canvas::Activated, this, &Workbench::EditSelected);
    connect(canvas_, &Canvas::FormActivated, this, &Workbench::EditSelected);
    connect(canvas_, &Canvas::MenuActivated, this, [this] {
        if (FinishEditing()) {
            EditMenus();
        }
    });
    connect(canvas_, &Canvas::Refused, this, &Workbench::Refused);
    connect(properties_, &PropertyBrowser::Refused, this, &Workbench::Refused);
    connect(outline_, &Outline::Chosen, &canvas_->GetGlass(), &Glass::ShowSelected);
    connect(outline_, &Outline::PropertiesWanted, this,
            [this] { properties_->Table().setFocus(); });
    connect(outline_, &Outline::MenuRequested, canvas_, &Canvas::MenuRequested);
    connect(outline_, &Outline::Refused, this, &Workbench::Refused);
}

void Workbench::EditSelected() {
    if (properties_->EditWithPage() == nullptr) {
        properties_->Table().setFocus();
    }
}

MenusDialog& Workbench::EditMenus() {
    auto* const dialog = new MenusDialog(design_, this);
    dialog->setAttribute(Qt::WA_DeleteOnClose);
    dialog->open();
    return *dialog;
}

bool Workbench::FinishEditing() {
    return properties_->FinishEditing();
}

void Workbench::PutDown(const QString& className) {
    canvas_->EndDrawing();
    const Text name = qt::ToText(className);
    const auto& selected = design_.Selected();
    const LiveControl* const container =
        selected.size() == 1 && selected.front()->IsContainer() ? selected.front() : nullptr;
    const host::Placement usual = UsualPlace(design_, name);
    const Grid& grid = canvas_->GetGrid();
    const host::Placement middle = Centered(InsideOf(design_, container), usual, grid);
    Add(name, container, Cascaded(design_, container, middle, grid.step));
}

void Workbench::Add(const Text& className, const LiveControl* container,
                    const host::Placement& place, DragStart start) {
    Try([&] { AddNewControl(design_, className, container, place, start); });
    canvas_->GetGlass().setFocus();
}

void Workbench::Try(const std::function<void()>& action) {
    if (const auto why = Attempt(action)) {
        Q_EMIT Refused(*why);
    }
}

}  // namespace lumenkit::lumenform
