#include "apps/lumenform/design/menus/menus_dialog.h"

#include <QHBoxLayout>
#include <QScrollArea>
#include <QShortcut>
#include <QStyle>
#include <algorithm>
#include <utility>

#include "apps/lumenform/design/icons/icons.h"
#include "apps/lumenform/design/look/fitting.h"
#include "apps/lumenform/design/menus/apply_menus.h"
#include "apps/lumenform/design/menus/menu_moves.h"
#include "apps/lumenform/design/model/naming.h"
#include "apps/lumenform/design/model/refusal.h"
#include "apps/lumenform/design/properties/writable_text.h"
#include "frame/numbers.h"
#include "runtime/qt/qt_text.h"

namespace lumenkit::lumenform {

namespace {

bool IsAlwaysPossible(const MenuEntries& /*menus*/, std::size_t /*at*/) {
    return true;
}

// Returns the position of the menu that is selected in the design; 0 if there is none.
std::size_t SelectedMenu(const FormDesign& design) {
    if (design.SelectedMenus().empty()) {
        return 0;
    }
    const std::vector<forms::Block*> blocks = MenuBlocks(design.Document().Root());
    const auto found = std::ranges::find(blocks, design.SelectedMenus().front());
    return found == blocks.end() ? 0 : static_cast<std::size_t>(found - blocks.begin());
}

}  // namespace

MenusDialog::MenusDialog(FormDesign& design, QWidget* parent)
    : QDialog(parent),
      design_(design),
      former_(ReadMenus(design.Document())),
      menus_(former_),
      tree_(new MenuTree(this)),
      fields_(new MenuFields(this)),
      notice_(new Notice(this)),
      buttons_(new QDialogButtonBox(QDialogButtonBox::Ok | QDialogButtonBox::Cancel, this)) {
    setWindowTitle(tr("Menus"));
    LayOut();
    connect(buttons_, &QDialogButtonBox::accepted, this, &MenusDialog::accept);
    connect(buttons_, &QDialogButtonBox::rejected, this, &QDialog::reject);
    connect(tree_, &MenuTree::Chosen, this, &MenusDialog::ShowCurrent);
    connect(fields_, &MenuFields::Changed, this, [this](const auto& change) {
        if (!menus_.empty()) {
            change(menus_.at(tree_->Current()));
            Update();
        }
    });
    Rebuild(SelectedMenu(design));
    tree_->setFocus();
}

// ---- Parts

void MenusDialog::LayOut() {
    auto* const upper = new QHBoxLayout;
    upper->addWidget(tree_, 3);
    upper->addLayout(Actions());
    upper->addWidget(ScrolledFields(), 2);
    auto* const layout = new QVBoxLayout(this);
    layout->addLayout(upper, 1);
    layout->addWidget(notice_);
    layout->addWidget(buttons_);
    constexpr int columns = 140;
    constexpr int lines = 26;
    ResizeWithin(*this,
                 {fontMetrics().averageCharWidth() * columns, fontMetrics().height() * lines});
}

QScrollArea* MenusDialog::ScrolledFields() {
    auto* const scrolled = new QScrollArea(this);
    scrolled->setFrameShape(QFrame::NoFrame);
    scrolled->setWidget(fields_);
    scrolled->setWidgetResizable(true);
    scrolled->setFocusPolicy(Qt::NoFocus);
    scrolled->setHorizontalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
    scrolled->setMinimumWidth(fields_->minimumSizeHint().width() +
                              style()->pixelMetric(QStyle::PM_ScrollBarExtent));
    return scrolled;
}

QPushButton* MenusDialog::AddAction(QVBoxLayout& actions, const QString& icon, const QString& title,
                                    const QKeySequence& keys, const std::function<void()>& run) {
    auto* const button = new QPushButton(ThemeIcon(icon), title, this);
    button->setAutoDefault(false);
    connect(button, &QPushButton::clicked, this, run);
    actions.addWidget(button);
    if (!keys.isEmpty()) {
        button->setToolTip(keys.toString(QKeySequence::NativeText));
        // Keys without Alt are for text fields, too.
        const bool isForAll = keys[0].keyboardModifiers().testFlag(Qt::AltModifier);
        auto* const shortcut = new QShortcut(keys, isForAll ? static_cast<QWidget*>(this) : tree_);
        shortcut->setContext(isForAll ? Qt::WindowShortcut : Qt::WidgetShortcut);
        connect(shortcut, &QShortcut::activated, button, &QPushButton::click);
    }
    return button;
}

void MenusDialog::AddMove(QVBoxLayout& actions, const QString& icon, const QString& title,
                          const QKeySequence& keys, Move step, CanMove isPossible) {
    QPushButton* const button = AddAction(
        actions, icon, title, keys, [this, step] { Rebuild(step(menus_, tree_->Current())); });
    actions_.push_back({button, isPossible});
}

void MenusDialog::AddNew(QVBoxLayout& actions, const QString& icon, const QString& title,
                         const QKeySequence& keys,
                         std::size_t (*add)(MenuEntries&, std::size_t, MenuEntry),
                         const Text& caption) {
    AddAction(actions, icon, title, keys, [this, add, caption] {
        Rebuild(add(menus_, tree_->Current(), NewEntry(caption)));
        if (caption.empty()) {
            fields_->EditCaption();
        }
    });
}

QVBoxLayout* MenusDialog::Actions() {
    auto* const actions = new QVBoxLayout;
    AddNew(*actions, QStringLiteral("list-add"), tr("&Insert before"), Qt::Key_Insert,
           InsertMenuBefore, {});
    AddNew(*actions, QStringLiteral("list-add"), tr("&Add after"), {}, AddMenuAfter, {});
    AddNew(*actions, QStringLiteral("list-add"), tr("Add se&parator"), {}, AddMenuAfter, u"-");
    AddMove(*actions, QStringLiteral("edit-delete"), tr("&Delete"), QKeySequence::Delete,
            RemoveMenu, IsAlwaysPossible);
    AddMove(*actions, QStringLiteral("go-up"), tr("Move &up"), Qt::ALT | Qt::Key_Up, MoveMenuUp,
            CanMoveMenuUp);
    AddMove(*actions, QStringLiteral("go-down"), tr("&Move down"), Qt::ALT | Qt::Key_Down,
            MoveMenuDown, CanMoveMenuDown);
    AddMove(*actions, QStringLiteral("format-indent-less"), tr("Move &left"),
            Qt::ALT | Qt::Key_Left, MoveMenuOut, CanMoveMenuOut);
    AddMove(*actions, QStringLiteral("format-indent-more"), tr("Move &right"),
            Qt::ALT | Qt::Key_Right, MoveMenuIn, CanMoveMenuIn);
    actions->addStretch();
    return actions;
}

// ---- The entries

// The name is the first one that neither the form nor the other menus have.
MenuEntry MenusDialog::NewEntry(const Text& caption) const {
    const auto isTakenHere = [this](const Text& name) {
        return std::ranges::any_of(menus_, [&](const MenuEntry& entry) {
            return SameText(entry.name, name, Compare::IgnoreCase);
        });
    };
    Text name;
    for (std::int32_t number = 1;
         name.empty() || isTakenHere(name) || IsTaken(design_.Document().Root(), name); ++number) {
        name = u"Menu" + Decimal(number);
    }
    return {.name = name, .caption = caption};
}

void MenusDialog::Rebuild(std::size_t current) {
    tree_->Show(menus_, current);
    ShowCurrent();
}

void MenusDialog::ShowCurrent() {
    if (menus_.empty()) {
        fields_->ShowNone();
    } else {
        fields_->Show(menus_.at(tree_->Current()));
    }
    Update();
}

std::vector<MenuProblem> MenusDialog::Problems() const {
    std::vector<MenuProblem> problems = NewMenuProblems(design_.Document(), former_, menus_);
    for (std::size_t at = 0; at < menus_.size(); ++at) {
        const MenuEntry& entry = menus_[at];
        if (entry.origin && former_.at(*entry.origin).caption == entry.caption) {
            continue;
        }
        if (const QString why = WhyUnwritable(design_.Document(), entry.caption); !why.isEmpty()) {
            problems.push_back({at, qt::ToText(why)});
        }
    }
    return problems;
}

// A problem of the current menu comes first.
QString MenusDialog::Describe(const std::vector<MenuProblem>& problems) const {
    if (problems.empty()) {
        return {};
    }
    const auto own = std::ranges::find(problems, tree_->Current(), &MenuProblem::entry);
    const MenuProblem& told = own == problems.end() ? problems.front() : *own;
    const MenuEntry& entry = menus_.at(told.entry);
    const QString name = qt::ToQString(entry.name.empty() ? entry.caption : NameInCode(entry));
    return name.isEmpty() ? qt::ToQString(told.why)
                          : tr("%1: %2").arg(name, qt::ToQString(told.why));
}

void MenusDialog::Update() {
    const std::vector<MenuProblem> problems = Problems();
    tree_->Refresh(menus_, problems);
    notice_->Say(Describe(problems));
    buttons_->button(QDialogButtonBox::Ok)->setEnabled(problems.empty());
    for (const Action& action : actions_) {
        action.button->setEnabled(!menus_.empty() && action.isPossible(menus_, tree_->Current()));
    }
}

void MenusDialog::accept() {
    if (!Problems().empty()) {
        return;
    }
    if (menus_ != former_) {
        const QString why =
            RefusalOf([this] { ApplyMenus(design_, former_, menus_, tree_->Current()); });
        if (!why.isEmpty()) {
            notice_->Say(why);
            return;
        }
    }
    QDialog::accept();
}

}  // namespace lumenkit::lumenform
