#include "apps/lumenform/design/canvas/glass.h"

#include <QContextMenuEvent>
#include <QMouseEvent>
#include <QPainter>
#include <utility>

#include "apps/lumenform/design/canvas/band_gesture.h"
#include "apps/lumenform/design/canvas/drawing_gesture.h"
#include "apps/lumenform/design/canvas/form_size_gesture.h"
#include "apps/lumenform/design/canvas/handles.h"
#include "apps/lumenform/design/canvas/nudge.h"
#include "apps/lumenform/design/canvas/placing_gesture.h"
#include "apps/lumenform/design/canvas/selection.h"
#include "apps/lumenform/design/model/refusal.h"
#include "apps/lumenform/form_view/likeness/tab_pages.h"
#include "runtime/qt/qt_text.h"

namespace lumenkit::lumenform {

namespace {

constexpr int dragDistance = 4;  // pixels; a shorter drag is a click

bool Adds(Qt::KeyboardModifiers held) {
    return (held & (Qt::ShiftModifier | Qt::ControlModifier)) != 0;
}

QRect Grown(const QRect& rect) {
    return rect.adjusted(-1, -1, 1, 1);
}

}  // namespace

Glass::Glass(FormDesign& design, const Grid& grid, const Zoom& zoom, QWidget& desk)
    : QWidget(&desk),
      design_(design),
      grid_(grid),
      map_(design, zoom),
      badges_(design, map_, desk),
      label_(new PlaceLabel(this)) {
    setFocusPolicy(Qt::StrongFocus);
    setMouseTracking(true);
    setAccessibleName(tr("Form"));
    connect(&design, &FormDesign::SelectionChanged, this, &Glass::TellSelection);
    // Any other change to the form during a drag, such as undo, ends the drag.
    connect(&design, &FormDesign::Edited, this, &Glass::EndGesture);
}

Glass::~Glass() = default;

void Glass::FollowView() {
    EndGesture();
    map_.Update();
    raise();
    TellSelection();
}

void Glass::FollowZoom() {
    raise();
    marks_ = Marks();
    update();
    Q_EMIT MarksChanged();
    FollowScroll();
}

void Glass::FollowScroll() {
    if (!pointer_) {
        return;
    }
    const QPoint at = mapFromGlobal(*pointer_);
    TellPointer(at);
    if (gesture_ != nullptr) {
        Drag(at, held_);
    } else if (!press_) {
        UpdateCursor(at);
    }
}

QRect Glass::SelectedRect() const {
    QRect rect;
    for (const LiveControl* const control : design_.Selected()) {
        rect |= map_.RectOf(*control);
    }
    return rect;
}

void Glass::Try(const std::function<void()>& work) {
    if (const auto why = Attempt(work)) {
        Q_EMIT Refused(*why);
    }
}

void Glass::BeginDrawing(const Text& className) {
    SetTabOrderMode(false);
    drawnClass_ = className;
    setCursor(Qt::CrossCursor);
}

void Glass::EndDrawing() {
    if (IsDrawing()) {
        drawnClass_.clear();
        unsetCursor();
        Q_EMIT DrawingEnded();
    }
}

void Glass::SetTabOrderMode(bool on) {
    if (on == isTabOrderMode_) {
        return;
    }
    EndDrawing();
    isTabOrderMode_ = on;
    badges_.Start();
    unsetCursor();
    UpdateMarks();
    Q_EMIT TabOrderModeChanged(on);
}

// ---- Mouse

void Glass::mousePressEvent(QMouseEvent* event) {
    if (event->button() != Qt::LeftButton || press_) {
        return;
    }
    setFocus(Qt::MouseFocusReason);
    const QPoint at = event->position().toPoint();
    Try([&] { press_ = PressAt(at, event->modifiers()); });
}

Glass::Press Glass::PressAt(QPoint at, Qt::KeyboardModifiers held) {
    LiveControl* const control = map_.ControlAt(at);
    if (isTabOrderMode_) {
        return {at, {}, [this, control] {
                    if (control != nullptr) {
                        badges_.Number(*control);
                    }
                }};
    }
    if (IsDrawing()) {
        return {at, [this, at] { return StartDrawing(at); },
                [this, at] {
                    const GestureRef gesture = StartDrawing(at);
                    gesture->Finish();
                }};
    }
    if (const auto grip = GripAt(at)) {
        return {at,
                [this, at, grip] {
                    return grip->control == nullptr
                               ? std::make_unique<FormSizeGesture>(ground(), grip->edges, at)
                               : StartPlacing(*grip->control, grip->edges, at);
                },
                {}};
    }
    if (forms::Block* const menu = map_.MenuAt(at)) {
        design_.SelectMenus({menu});
        return {at, {}, {}};
    }
    if (control == nullptr || Adds(held)) {
        const bool adds = Adds(held);
        if (!adds) {
            design_.Select({});
        }
        return {at,
                [this, at, adds] {
                    return std::make_unique<BandGesture>(ground(), map_.ContainerAt(at), at, adds);
                },
                [this, control] {
                    if (control != nullptr) {
                        Toggle(design_, *control);
                    }
                }};
    }
    return PressOnControl(*control, at);
}

Glass::Press Glass::PressOnControl(LiveControl& control, QPoint at) {
    if (!design_.IsSelected(control)) {
        design_.Select({&control});
    }
    return {at, [this, at, &control] { return StartPlacing(control, allEdges, at); },
            [this, at, &control] {
                MakeLast(design_, control);
                ShowPageAt(control, at);
            }};
}

// Shows another page for looking. The form stays as it is.
void Glass::ShowPageAt(LiveControl& control, QPoint at) {
    TabPages* const pages = control.Pages();
    const int page = pages == nullptr ? -1 : pages->TabAt(map_.InWidget(control, at));
    if (page >= 0) {
        design_.Select({&control});
        pages->Show(page);
    }
}

Glass::GestureRef Glass::StartPlacing(LiveControl& control, Edges edges, QPoint at) {
    setCursor(CursorFor(edges));
    return std::make_unique<PlacingGesture>(ground(), control, edges, at);
}

Glass::GestureRef Glass::StartDrawing(QPoint at) {
    const auto done = [this](LiveControl* container, const host::Placement& place,
                             DragStart start) {
        const Text className = drawnClass_;
        EndDrawing();
        Q_EMIT Drawn(className, container, place, start);
    };
    auto gesture = std::make_unique<DrawingGesture>(ground(), drawnClass_, at, done);
    gesture->DragTo({.at = at, .snaps = grid_.snaps});
    return gesture;
}

std::optional<Glass::Grip> Glass::GripAt(QPoint at) const {
    if (design_.IsFormSelected()) {
        const auto edges = EdgesAt(FormHandlesOf(map_.ClientRect()), at);
        return edges ? std::optional(Grip{nullptr, *edges}) : std::nullopt;
    }
    for (LiveControl* control : design_.Selected()) {
        const auto edges = EdgesAt(HandlesOf(map_.RectOf(*control)), at);
        if (edges && control->IsSizable()) {
            return Grip{control, *edges};
        }
    }
    return std::nullopt;
}

void Glass::mouseMoveEvent(QMouseEvent* event) {
    const QPoint at = event->position().toPoint();
    pointer_ = event->globalPosition().toPoint();
    held_ = event->modifiers();
    TellPointer(at);
    if (!press_) {
        UpdateCursor(at);
    } else if (press_->drag) {
        Drag(at, event->modifiers());
    }
}

void Glass::Drag(QPoint at, Qt::KeyboardModifiers held) {
    if (gesture_ == nullptr && (at - press_->at).manhattanLength() < dragDistance) {
        return;
    }
    Try([&] {
        if (gesture_ == nullptr) {
            gesture_ = press_->drag();
        }
        const QRect former = Grown(gesture_->Band()) | gesture_->Painted();
        draggedTo_ = at;
        gesture_->DragTo({.at = at,
                          .snaps = grid_.snaps && !held.testFlag(Qt::AltModifier),
                          .guides = grid_.guides && !held.testFlag(Qt::AltModifier),
                          .keepsContainer = held.testFlag(Qt::ControlModifier)});
        update(former | Grown(gesture_->Band()) | gesture_->Painted());
        if (const auto place = gesture_->Place()) {
            label_->Tell(*place, at);
        }
    });
    UpdateMarks();
    Q_EMIT Dragged(at);
}

void Glass::mouseReleaseEvent(QMouseEvent* event) {
    if (event->button() != Qt::LeftButton || !press_) {
        return;
    }
    const Press press = std::move(*press_);
    const GestureRef gesture = EndGesture();
    Try([&] {
        if (gesture != nullptr) {
            gesture->Finish();
        } else if (press.click) {
            press.click();
        }
    });
    UpdateCursor(event->position().toPoint());
}

// Ends the drag and returns its gesture. Its effects so far remain.
Glass::GestureRef Glass::EndGesture() {
    if (gesture_ != nullptr) {
        update(Grown(gesture_->Band()) | gesture_->Painted());
    }
    GestureRef ended = std::exchange(gesture_, nullptr);
    press_.reset();
    label_->hide();
    UpdateMarks();
    Q_EMIT DragEnded();
    return ended;
}

void Glass::mouseDoubleClickEvent(QMouseEvent* event) {
    if (event->button() != Qt::LeftButton || isTabOrderMode_ || IsDrawing()) {
        mousePressEvent(event);
        return;
    }
    if (!Adds(event->modifiers())) {
        Activate();
    }
}

void Glass::Activate() {
    if (!design_.SelectedMenus().empty()) {
        Q_EMIT MenuActivated();
    } else if (design_.Selected().empty()) {
        Q_EMIT FormActivated();
    } else {
        Q_EMIT Activated(*design_.Selected().back());
    }
}

void Glass::contextMenuEvent(QContextMenuEvent* event) {
    if (press_ || isTabOrderMode_ || IsDrawing()) {
        return;
    }
    if (event->reason() != QContextMenuEvent::Mouse) {
        const QRect rect = design_.Selected().empty() ? map_.ClientRect()
                                                      : map_.RectOf(*design_.Selected().back());
        Q_EMIT MenuRequested(mapToGlobal(rect.center()));
        return;
    }
    SelectForMenu(event->pos());
    Q_EMIT MenuRequested(event->globalPos());
}

// Selects the object under the context menu. If it is a selected control, the context menu is for
// all selected controls.
void Glass::SelectForMenu(QPoint at) {
    LiveControl* const control = map_.ControlAt(at);
    if (forms::Block* const menu = map_.MenuAt(at)) {
        design_.SelectMenus({menu});
    } else if (control == nullptr) {
        design_.Select({});
    } else if (!design_.IsSelected(*control)) {
        design_.Select({control});
    }
}

void Glass::leaveEvent(QEvent* event) {
    QWidget::leaveEvent(event);
    pointer_.reset();
    Q_EMIT PointerLeft();
}

void Glass::UpdateCursor(QPoint at) {
    if (IsDrawing()) {
        return;
    }
    const auto grip = isTabOrderMode_ ? std::nullopt : GripAt(at);
    if (grip) {
        setCursor(CursorFor(grip->edges));
    } else {
        unsetCursor();
    }
}

void Glass::TellPointer(QPoint at) {
    Q_EMIT PointerMoved(map_.TwipsAt(at, nullptr));
}

// ---- Keyboard

void Glass::keyPressEvent(QKeyEvent* event) {
    if (event->key() == Qt::Key_Escape) {
        Escape();
    } else if (event->key() == Qt::Key_Control && gesture_ != nullptr) {
        Drag(draggedTo_, event->modifiers() | Qt::ControlModifier);
    } else if (press_ || isTabOrderMode_) {
        event->ignore();
    } else if (event->matches(QKeySequence::SelectAll)) {
        SelectAll(design_);
    } else if (event->key() == Qt::Key_Return || event->key() == Qt::Key_Enter) {
        Activate();
    } else {
        bool isNudge = false;
        Try([&] { isNudge = Nudge(ground(), *event); });
        if (isNudge) {
            UpdateMarks();
        } else {
            QWidget::keyPressEvent(event);
        }
    }
}

// Shows at once which container a drag leads to.
void Glass::keyReleaseEvent(QKeyEvent* event) {
    if (event->key() == Qt::Key_Control && gesture_ != nullptr) {
        Drag(draggedTo_, event->modifiers() & ~Qt::KeyboardModifiers(Qt::ControlModifier));
    } else {
        QWidget::keyReleaseEvent(event);
    }
}

void Glass::Escape() {
    if (press_) {
        const GestureRef gesture = EndGesture();
        if (gesture != nullptr) {
            Try([&] { gesture->Cancel(); });
        }
        UpdateMarks();
    } else if (IsDrawing()) {
        EndDrawing();
    } else if (isTabOrderMode_) {
        SetTabOrderMode(false);
    } else {
        SelectContainer(design_);
    }
}

bool Glass::focusNextPrevChild(bool next) {
    if (design_.View().Controls().empty()) {
        return QWidget::focusNextPrevChild(next);
    }
    if (!press_ && !isTabOrderMode_) {
        SelectNext(design_, next);
        ShowSelected();
    }
    return true;
}

void Glass::ShowSelected() {
    if (!design_.Selected().empty()) {
        Q_EMIT Wanted(map_.RectOf(*design_.Selected().back()));
    }
}

QRectF Glass::SeenPart() const {
    const QRect seen = visibleRegion().boundingRect() & map_.ClientRect();
    return {map_.TwipsAt(seen.topLeft(), nullptr),
            map_.TwipsAt(seen.bottomRight() + QPoint(1, 1), nullptr)};
}

// ---- Painting and accessibility

void Glass::TellSelection() {
    QStringList names;
    for (const Text& name : design_.SelectedNames()) {
        names.append(qt::ToQString(name));
    }
    setAccessibleDescription(names.isEmpty() ? tr("The form is selected")
                                             : tr("Selected: %1").arg(names.join(u", ")));
    UpdateMarks();
}

QRegion Glass::Marks() const {
    if (isTabOrderMode_) {
        return badges_.Region();
    }
    if (design_.IsFormSelected()) {
        return BoundsOf(FormHandlesOf(map_.ClientRect()));
    }
    QRegion region;
    for (const forms::Block* menu : design_.SelectedMenus()) {
        region += map_.RectOfMenu(*menu);
    }
    for (const LiveControl* control : design_.Selected()) {
        region += BoundsOf(HandlesOf(map_.RectOf(*control)));
    }
    return region;
}

void Glass::UpdateMarks() {
    const QRegion marks = Marks();
    update(marks_ | marks);
    marks_ = marks;
    Q_EMIT MarksChanged();
}

void Glass::paintEvent(QPaintEvent* /*event*/) {
    QPainter painter(this);
    if (gesture_ != nullptr) {
        gesture_->Paint(painter, palette());
    }
    PaintMarks(painter);
    const QRect band = gesture_ == nullptr ? QRect() : gesture_->Band();
    if (!band.isEmpty()) {
        constexpr int strength = 40;
        QColor color = palette().color(QPalette::Active, QPalette::Highlight);
        painter.setPen(color);
        color.setAlpha(strength);
        painter.fillRect(band, color);
        painter.drawRect(band.adjusted(0, 0, -1, -1));
    }
}

void Glass::PaintMarks(QPainter& painter) const {
    if (isTabOrderMode_) {
        badges_.Paint(painter);
        return;
    }
    const std::vector<LiveControl*>& selected = design_.Selected();
    if (design_.IsFormSelected()) {
        PaintHandles(painter, FormHandlesOf(map_.ClientRect()), true, palette());
    }
    for (const LiveControl* control : selected) {
        PaintHandles(painter, HandlesOf(map_.RectOf(*control)), control == selected.back(),
                     palette());
    }
    PaintMenuMarks(painter);
}

// Frames the titles in the menu bar.
void Glass::PaintMenuMarks(QPainter& painter) const {
    painter.setPen(QPen(palette().color(QPalette::Active, QPalette::Highlight), 2));
    painter.setBrush(Qt::NoBrush);
    for (const forms::Block* menu : design_.SelectedMenus()) {
        painter.drawRect(map_.RectOfMenu(*menu).adjusted(1, 1, -1, -1));
    }
}

}  // namespace lumenkit::lumenform
