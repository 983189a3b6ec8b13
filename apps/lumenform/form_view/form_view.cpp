#include "apps/lumenform/form_view/form_view.h"

#include <QButtonGroup>
#include <QEvent>
#include <QLabel>
#include <QRadioButton>
#include <QVBoxLayout>
#include <algorithm>
#include <cstdint>
#include <map>
#include <string>
#include <utility>

#include "apps/lumenform/form_view/companion_records.h"
#include "apps/lumenform/form_view/form_size.h"
#include "apps/lumenform/form_view/likeness/docking.h"
#include "apps/lumenform/form_view/likeness/user_control_files.h"
#include "apps/lumenform/form_view/likeness/user_control_picture.h"
#include "apps/lumenform/form_view/make_control.h"
#include "apps/lumenform/form_view/menu_bar.h"
#include "apps/lumenform/form_view/painting_room.h"
#include "forms/controls.h"
#include "forms/file.h"
#include "forms/font_description.h"
#include "forms/form_error.h"
#include "forms/naming_labels.h"
#include "forms/path_names.h"
#include "frame/utf8.h"
#include "runtime/qt/mnemonic.h"
#include "runtime/qt/pixels.h"
#include "runtime/qt/qt_text.h"

namespace lumenkit::lumenform {

namespace {

constexpr Color applicationWorkspace{0x8000000C};

Color UsualBackColor(const forms::Block& form) {
    return SameText(form.ClassName(), u"VB.MDIForm", Compare::IgnoreCase) ? applicationWorkspace
                                                                          : Color::ButtonFace;
}

// Sets the z-order: the first control in the file is in front, and the controls of the back layer
// are behind all others.
// Makes the option buttons of one parent release each other. By itself, Qt also counts those in the
// containers beside them.
void GroupOptions(const std::vector<LiveControl*>& controls) {
    std::map<QWidget*, QButtonGroup*> groups;
    for (LiveControl* control : controls) {
        if (auto* const button = qobject_cast<QRadioButton*>(&control->Widget())) {
            QWidget* const parent = button->parentWidget();
            QButtonGroup*& group = groups[parent];
            group = group == nullptr ? new QButtonGroup(parent) : group;
            group->addButton(button);
        }
    }
}

void Stack(const std::vector<LiveControl*>& controls) {
    for (const bool inBack : {false, true}) {
        for (LiveControl* control : controls) {
            if (control->IsInBack() == inBack) {
                control->Widget().lower();
            }
        }
    }
}

void RequireRoomToPaint(const forms::Document& document, const forms::Block& container,
                        std::size_t count) {
    const std::size_t most = MakeRoomToPaint(count);
    if (count > most) {
        throw forms::FormError(document.Name(), container.NamePlace(),
                               ToUtf8(container.Name()) + ": has " + std::to_string(count) +
                                   " controls; at most " + std::to_string(most) +
                                   " can be shown in one container");
    }
}

QSize PixelsOf(FormSize size) {
    constexpr int largest = 16384;
    const qt::TwipsPerPixel& twips = qt::TwipsPerPixel::OfScreens();
    return {std::clamp(qt::ToPixels(size.width, twips.x), 1, largest),
            std::clamp(qt::ToPixels(size.height, twips.y), 1, largest)};
}

// Returns the first widget of a control that takes the focus, or null.
QWidget* FirstStop(const LiveControl& control) {
    QWidget& widget = control.Widget();
    const auto takes = [&widget](const QWidget* part) {
        const bool isShown = part == &widget ? !part->isHidden() : part->isVisibleTo(&widget);
        return (part->focusPolicy() & Qt::TabFocus) == Qt::TabFocus && isShown;
    };
    if (takes(&widget)) {
        return &widget;
    }
    const auto parts =
        control.Hosted() == nullptr ? QList<QWidget*>() : widget.findChildren<QWidget*>();
    const auto found = std::ranges::find_if(parts, takes);
    return found == parts.end() ? nullptr : *found;
}

}  // namespace

// A user control on the form, as its own file shows it when the program runs.
class FormView::UserControl {
 public:
    UserControl(const qt::Context& context, forms::Document document,
                std::shared_ptr<UserControlFiles> files)
        : document_(std::move(document)),
          view_(new FormView(context, document_, Mode::Run, std::move(files), nullptr)) {}

    QPixmap Picture(QSize size) {
        view_->Client().setFixedSize(size.expandedTo(QSize(1, 1)));
        view_->layout()->activate();
        return view_->Client().grab();
    }

 private:
    forms::Document document_;
    std::unique_ptr<FormView> view_;
};

FormView::FormView(const qt::Context& context, forms::Document& document, Mode mode,
                   QWidget* parent)
    : FormView(context, document, mode,
               std::make_shared<UserControlFiles>(forms::PathOf(document.Name())), parent) {}

FormView::FormView(const qt::Context& context, forms::Document& document, Mode mode,
                   std::shared_ptr<UserControlFiles> userControls, QWidget* parent)
    : QWidget(parent),
      userControls_(std::move(userControls)),
      stage_{
          .context = context,
          .document = document,
          .mode = mode,
          .raise = {},
          .drawUserControl = [this](const forms::Block& block) { return DrawUserControl(block); }} {
    setBackgroundRole(QPalette::Window);  // whatever the parent's role is
    const BlockReader form(document, document.Root());
    caption_ = form.String(u"Caption");
    const Color backColor = form.ColorOf(u"BackColor", UsualBackColor(document.Root()));
    std::shared_ptr<qt::Font> font = form.Font();
    if (font == nullptr) {
        font = MakeFont(forms::FontDescription());
    }
    auto* const layout = new QVBoxLayout(this);
    layout->setContentsMargins(0, 0, 0, 0);
    layout->setSpacing(0);
    layout->setSizeConstraint(QLayout::SetFixedSize);
    if (auto bar = MakeMenuBar(stage_, document.Root())) {
        layout->setMenuBar(bar.release());
    }
    client_ = new ClientArea(backColor, controls_, this);
    client_->SetPicture(PictureIn(form.Record(u"Picture")));
    setWindowIcon(PictureIn(form.Record(u"Icon")));
    client_->setFixedSize(PixelsOf(ClientSizeOf(form)));
    layout->addWidget(client_);
    const qt::TwipsPerPixel& twips = qt::TwipsPerPixel::OfScreens();
    const QSizeF room(client_->width() * twips.x, client_->height() * twips.y);
    inside_.emplace(Surroundings{*client_, backColor, font, Scale::Of(form, room), room});
    AddControls(document.Root(), nullptr);
    NameFields();
    MarkLabels();
    if (mode == Mode::Design) {
        RefuseFocus();
    }
}

FormView::~FormView() {
    while (!controls_.empty()) {
        controls_.pop_back();  // children go before their containers
    }
}

// A file that is no form leaves a warning.
std::unique_ptr<QWidget> FormView::DrawUserControl(const forms::Block& block) {
    const auto path = userControls_->Take(block.ClassName());
    if (!path) {
        return nullptr;
    }
    try {
        const UserControlFiles::Drawing drawing(*userControls_, *path);
        const auto control = std::make_shared<UserControl>(
            stage_.context, forms::Load(*path, stage_.document.CompanionCodePage()), userControls_);
        return std::make_unique<UserControlPicture>(
            qt::ToQString(forms::NameInCode(block)),
            [control](QSize size) { return control->Picture(size); });
    } catch (const forms::FormError& error) {
        stage_.document.Warn(block.ClassPlace(), error.what());
        return nullptr;
    }
}

// Adds the controls of a block. `container` is its control, or null for the form.
void FormView::AddControls(const forms::Block& block, const LiveControl* container) {
    const std::vector<forms::Block*> controls = block.Controls();
    RequireRoomToPaint(stage_.document, block, controls.size());
    std::vector<LiveControl*> added;
    for (forms::Block* inner : controls) {
        if (!IsMenu(*inner)) {
            const Surroundings& around =
                container == nullptr ? *inside_ : container->InsideFor(*inner);
            controls_.push_back(MakeControl(stage_, around, *inner));
            added.push_back(controls_.back().get());
            AddControls(*inner, added.back());
        }
    }
    GroupOptions(added);
    Stack(added);
    if (container == nullptr) {
        DockControls(added, client_->size());
    }
}

// Gives each control the text of the label before it in tab order, for screen readers.
void FormView::NameFields() {
    std::map<const forms::Block*, LiveControl*> live;
    for (const auto& control : controls_) {
        live.emplace(&control->Block(), control.get());
    }
    for (const auto& [field, label] : forms::NamingLabels(stage_.document.Root())) {
        const auto named = live.find(field);
        const auto naming = live.find(label);
        if (named != live.end() && naming != live.end()) {
            named->second->SetSpokenName(naming->second->SpokenText().simplified());
        }
    }
}

// Makes the mnemonic of a label move the focus to the next control in tab order.
void FormView::MarkLabels() {
    struct Stop {
        std::int32_t turn;
        QWidget* widget;
    };
    const auto turnOf = [](const LiveControl& control) { return control.TabIndex().value_or(-1); };
    std::vector<Stop> stops;
    for (const auto& control : controls_) {
        if (QWidget* const widget = FirstStop(*control)) {
            stops.push_back({turnOf(*control), widget});
        }
    }
    std::ranges::stable_sort(stops, {}, &Stop::turn);
    for (const auto& control : controls_) {
        auto* const label = qobject_cast<QLabel*>(&control->Widget());
        if (label == nullptr || !qt::HasMnemonic(label->text())) {
            continue;
        }
        const auto next = std::ranges::upper_bound(stops, turnOf(*control), {}, &Stop::turn);
        if (next != stops.end()) {
            label->setBuddy(next->widget);
        } else {
            label->setText(qt::WithoutMnemonic(label->text()));
        }
    }
}

// Only after the labels were marked: their access keys lead to widgets that take the focus.
void FormView::RefuseFocus() {
    for (const auto& control : controls_) {
        if (control->Hosted() == nullptr) {
            control->Widget().setFocusPolicy(Qt::NoFocus);
            for (QWidget* const part : control->Widget().findChildren<QWidget*>()) {
                part->setFocusPolicy(Qt::NoFocus);
            }
        }
    }
}

LiveControl* FormView::Find(TextView name) const {
    const auto found = std::ranges::find_if(controls_, [&](const auto& control) {
        return SameText(control->Name(), name, Compare::IgnoreCase);
    });
    return found == controls_.end() ? nullptr : found->get();
}

void FormView::FocusFirst() {
    const std::vector<QWidget*> stops = client_->TabStops();
    if (!stops.empty()) {
        stops.front()->setFocus(Qt::TabFocusReason);
    }
}

void FormView::Save() {
    for (const auto& control : controls_) {
        control->Save();
    }
}

void FormView::OnRaised(std::function<void(const ControlEvent&)> listener) {
    stage_.raise = std::move(listener);
}

void FormView::changeEvent(QEvent* event) {
    QWidget::changeEvent(event);
    if (event->type() == QEvent::PaletteChange) {
        for (const auto& control : controls_) {
            control->PaletteChanged();
        }
    }
}

}  // namespace lumenkit::lumenform
