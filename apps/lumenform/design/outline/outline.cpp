#include "apps/lumenform/design/outline/outline.h"

#include <QHeaderView>
#include <QKeyEvent>
#include <QScopedValueRollback>
#include <QScrollBar>
#include <QTimer>
#include <QVBoxLayout>
#include <algorithm>
#include <unordered_set>
#include <utility>

#include "apps/lumenform/design/icons/icons.h"
#include "apps/lumenform/design/model/refusal.h"
#include "apps/lumenform/form_view/likeness/tab_pages.h"
#include "forms/controls.h"
#include "runtime/qt/qt_text.h"

namespace lumenkit::lumenform {

namespace {

using Kind = OutlineNode::Kind;

// Shows the rows whose name or class contains the searched text, with the rows above them.
class OutlineFilter final : public QSortFilterProxyModel {
 public:
    explicit OutlineFilter(QObject* parent) : QSortFilterProxyModel(parent) {
        setRecursiveFilteringEnabled(true);
        setFilterCaseSensitivity(Qt::CaseInsensitive);
    }

 protected:
    bool filterAcceptsRow(int row, const QModelIndex& parent) const override {
        const auto shows = [&](OutlineModel::Column column) {
            const QModelIndex index = sourceModel()->index(row, column, parent);
            return index.data().toString().contains(filterRegularExpression());
        };
        return shows(OutlineModel::Name) || shows(OutlineModel::Class);
    }
};

void ForEach(const OutlineNode& node, const std::function<void(const OutlineNode&)>& visit) {
    visit(node);
    for (const auto& child : node.children) {
        ForEach(*child, visit);
    }
}

// Joins rows that follow each other: a selection of many ranges is slow.
void AddRow(QItemSelection& selection, const QModelIndex& row) {
    const QModelIndex end = row.siblingAtColumn(OutlineModel::Class);
    if (!selection.isEmpty()) {
        const QItemSelectionRange& last = selection.constLast();
        if (last.parent() == row.parent() && last.bottom() + 1 == row.row()) {
            selection.last() = QItemSelectionRange(last.topLeft(), end);
            return;
        }
    }
    selection.append(QItemSelectionRange(row, end));
}

}  // namespace

Outline::Outline(FormDesign& design, DrawClassIcon drawIcon, QWidget* parent)
    : QWidget(parent),
      design_(design),
      model_(drawIcon),
      filter_(new OutlineFilter(this)),
      search_(new QLineEdit),
      tree_(new OutlineTree) {
    filter_->setSourceModel(&model_);
    tree_->setModel(filter_);
    LayOut();
    ConnectParts();
}

Outline::~Outline() {
    tree_->setModel(nullptr);
}

void Outline::LayOut() {
    constexpr int margin = 4;
    constexpr int classLetters = 18;
    constexpr int nameLetters = 8;
    search_->setPlaceholderText(tr("Search the outline"));
    search_->setAccessibleName(tr("Search the outline"));
    search_->addAction(ThemeIcon(QStringLiteral("edit-find")), QLineEdit::LeadingPosition);
    search_->setClearButtonEnabled(true);
    search_->installEventFilter(this);
    tree_->installEventFilter(this);
    tree_->setAccessibleName(tr("Outline"));
    const int letter = fontMetrics().averageCharWidth();
    QHeaderView& header = *tree_->header();
    header.setMinimumSectionSize(letter);
    header.setStretchLastSection(false);
    header.setSectionResizeMode(OutlineModel::Name, QHeaderView::Stretch);
    header.setSectionResizeMode(OutlineModel::Class, QHeaderView::Fixed);
    header.resizeSection(OutlineModel::Class, classLetters * letter);
    tree_->setMinimumWidth((classLetters + nameLetters) * letter);
    tree_->setIndentation(2 * letter);
    auto* const layout = new QVBoxLayout(this);
    layout->setContentsMargins(0, margin, 0, 0);
    layout->setSpacing(margin);
    layout->addWidget(search_);
    layout->addWidget(tree_);
}

void Outline::ConnectParts() {
    connect(&design_, &FormDesign::ViewReplaced, this, &Outline::FollowView);
    connect(&design_, &FormDesign::SelectionChanged, this, &Outline::ShowSelection);
    connect(&design_, &FormDesign::Edited, &model_, &OutlineModel::MarkOutOfView);
    connect(&model_, &OutlineModel::RenameWanted, this, &Outline::Rename);
    connect(search_, &QLineEdit::textChanged, this, &Outline::SearchFor);
    connect(tree_->selectionModel(), &QItemSelectionModel::selectionChanged, this,
            &Outline::TakeSelection);
    connect(tree_, &QTreeView::collapsed, this,
            [this](const QModelIndex& row) { RememberExpansion(row, true); });
    connect(tree_, &QTreeView::expanded, this,
            [this](const QModelIndex& row) { RememberExpansion(row, false); });
    connect(tree_, &QWidget::customContextMenuRequested, this,
            [this](QPoint at) { Q_EMIT MenuRequested(tree_->viewport()->mapToGlobal(at)); });
    connect(tree_, &OutlineTree::PropertiesWanted, this, &Outline::PropertiesWanted);
    connect(tree_, &OutlineTree::MoveWanted, this,
            [this](bool up) { Try([&] { MoveByOne(design_, SelectedNodes(), up); }); });
    connect(tree_, &OutlineTree::DeleteWanted, this,
            [this] { Try([&] { DeleteNodes(design_, SelectedNodes()); }); });
    tree_->SetDrops(
        OutlineModel::DragFormat(), model_.DragToken(),
        [this](const QModelIndex& row, DropSide side) {
            return CanMoveTo(design_, OutermostOf(SelectedNodes()), PlaceAt(row, side));
        },
        [this](const QModelIndex& row, DropSide side) {
            const OutlineNodes nodes = OutermostOf(SelectedNodes());
            const OutlinePlace place = PlaceAt(row, side);
            if (CanMoveTo(design_, nodes, place)) {
                Try([&] { MoveTo(design_, nodes, place); });
            }
        });
}

void Outline::Try(const std::function<void()>& work) {
    if (const auto why = Attempt(work)) {
        Q_EMIT Refused(*why);
    }
}

// ---- Rows

void Outline::FollowView() {
    isStale_ = true;
    if (isVisible()) {
        Rebuild();
    } else {
        const QScopedValueRollback syncing(isSyncing_, true);
        model_.Show(nullptr);
    }
}

void Outline::Rebuild() {
    {
        const QScopedValueRollback syncing(isSyncing_, true);
        const int scrolled = tree_->verticalScrollBar()->value();
        isStale_ = false;
        model_.Show(&design_);
        RestoreExpansion();
        tree_->verticalScrollBar()->setValue(scrolled);
    }
    ShowSelection();
}

void Outline::showEvent(QShowEvent* event) {
    QWidget::showEvent(event);
    if (isStale_) {
        Rebuild();
    }
}

void Outline::changeEvent(QEvent* event) {
    QWidget::changeEvent(event);
    if (event->type() == QEvent::PaletteChange) {
        model_.SetPalette(palette());
        if (!isStale_) {
            Rebuild();
        }
    }
}

void Outline::RestoreExpansion() {
    const QScopedValueRollback syncing(isSyncing_, true);
    tree_->expandAll();
    if (search_->text().isEmpty() && !collapsed_.isEmpty() && model_.Form() != nullptr) {
        ForEach(*model_.Form(), [this](const OutlineNode& node) {
            if (collapsed_.contains(OutlineModel::KeyOf(node))) {
                tree_->collapse(RowOf(node));
            }
        });
    }
}

void Outline::RememberExpansion(const QModelIndex& index, bool isCollapsed) {
    const OutlineNode* const node = NodeAt(index);
    if (isSyncing_ || node == nullptr || !search_->text().isEmpty()) {
        return;
    }
    if (isCollapsed) {
        collapsed_.insert(OutlineModel::KeyOf(*node));
    } else {
        collapsed_.remove(OutlineModel::KeyOf(*node));
    }
}

void Outline::SearchFor(const QString& text) {
    {
        const QScopedValueRollback syncing(isSyncing_, true);
        filter_->setFilterFixedString(text);
        RestoreExpansion();
    }
    ShowSelection();
}

// In the search field, Down and Enter go to the rows. There and in the rows, Esc clears the search.
bool Outline::eventFilter(QObject* watched, QEvent* event) {
    if (event->type() != QEvent::KeyPress) {
        return QWidget::eventFilter(watched, event);
    }
    const int key = static_cast<const QKeyEvent*>(event)->key();
    if (key == Qt::Key_Escape && !search_->text().isEmpty()) {
        search_->clear();
        return true;
    }
    if (watched != search_) {
        return false;
    }
    if (key != Qt::Key_Down && key != Qt::Key_Return && key != Qt::Key_Enter) {
        return false;
    }
    tree_->setFocus();
    if (model_.Form() != nullptr && !search_->text().isEmpty()) {
        const QModelIndexList found =
            filter_->match(filter_->index(0, 0), Qt::DisplayRole, search_->text(), 1,
                           Qt::MatchContains | Qt::MatchRecursive);
        if (!found.isEmpty()) {
            tree_->setCurrentIndex(found.front());
        }
    }
    return true;
}

// ---- Selection

QModelIndex Outline::RowOf(const OutlineNode& node) const {
    return filter_->mapFromSource(model_.IndexOf(node));
}

const OutlineNode* Outline::NodeAt(const QModelIndex& row) const {
    return OutlineModel::NodeOf(filter_->mapToSource(row));
}

// Does not ask for selectedRows(): while a row is deselected with Ctrl, that leaves out selected
// rows with the same number in other parents.
OutlineNodes Outline::SelectedNodes() const {
    OutlineNodes nodes;
    for (const QModelIndex& index : tree_->selectionModel()->selectedIndexes()) {
        if (index.column() == OutlineModel::Name) {
            nodes.push_back(NodeAt(index));
        }
    }
    return nodes;
}

// The controls that were selected before keep their order: the others are aligned with the last
// one. A selected page shows itself and selects its box.
void Outline::TakeSelection() {
    if (isSyncing_) {
        return;
    }
    const OutlineNodes nodes = SelectedNodes();
    std::vector<forms::Block*> menus;
    std::unordered_set<LiveControl*> wanted;
    for (const OutlineNode* const node : nodes) {
        if (node->Is(Kind::Menu)) {
            menus.push_back(node->block);
        } else if (node->control != nullptr) {
            wanted.insert(node->control);
        }
    }
    std::vector<LiveControl*> chosen;
    const auto choose = [&](LiveControl* control) {
        if (wanted.erase(control) > 0) {
            chosen.push_back(control);
        }
    };
    std::ranges::for_each(design_.Selected(), choose);
    for (const OutlineNode* const node : nodes) {
        choose(node->control);
    }
    {
        const QScopedValueRollback syncing(isSyncing_, true);
        if (chosen.empty()) {
            design_.SelectMenus(std::move(menus));
        } else {
            design_.Select(std::move(chosen));
        }
        for (const OutlineNode* const node : nodes) {
            if (node->Is(Kind::Page)) {
                node->control->Pages()->Show(node->page);
            }
        }
    }
    Q_EMIT Chosen();
}

std::vector<Text> Outline::SelectedMenus() const {
    std::vector<Text> names;
    for (const OutlineNode* const node : SelectedNodes()) {
        if (node->Is(Kind::Menu)) {
            names.push_back(node->block->Name());
        }
    }
    return names;
}

// In the order of the rows.
OutlineNodes Outline::NodesToShow() const {
    OutlineNodes nodes;
    if (!design_.Selected().empty()) {
        const std::unordered_set<const LiveControl*> selected(design_.Selected().begin(),
                                                              design_.Selected().end());
        for (const auto& control : design_.View().Controls()) {
            const OutlineNode* const node = model_.NodeOf(*control);
            if (node != nullptr && selected.contains(control.get())) {
                nodes.push_back(node);
            }
        }
    } else if (design_.SelectedMenus().empty()) {
        nodes.push_back(model_.Form());
    } else {
        const std::unordered_set<const forms::Block*> selected(design_.SelectedMenus().begin(),
                                                               design_.SelectedMenus().end());
        ForEach(*model_.Form(), [&](const OutlineNode& node) {
            if (node.Is(Kind::Menu) && selected.contains(node.block)) {
                nodes.push_back(&node);
            }
        });
    }
    return nodes;
}

void Outline::ShowSelection() {
    if (isSyncing_ || model_.Form() == nullptr) {
        return;
    }
    const QScopedValueRollback syncing(isSyncing_, true);
    QItemSelection selection;
    for (const OutlineNode* const node : NodesToShow()) {
        if (const QModelIndex row = RowOf(*node); row.isValid()) {
            AddRow(selection, row);
        }
    }
    tree_->selectionModel()->select(selection, QItemSelectionModel::ClearAndSelect);
    const OutlineNode* const last =
        design_.Selected().empty() ? nullptr : model_.NodeOf(*design_.Selected().back());
    const QModelIndex current = last != nullptr ? RowOf(*last)
                                : selection.isEmpty()
                                    ? QModelIndex()
                                    : QModelIndex(selection.constFirst().topLeft());
    if (current.isValid()) {
        tree_->selectionModel()->setCurrentIndex(current, QItemSelectionModel::NoUpdate);
        tree_->scrollTo(current);
    }
}

// ---- Changes

OutlinePlace Outline::PlaceAt(const QModelIndex& row, DropSide side) const {
    const OutlineNode* const node = NodeAt(row.siblingAtColumn(OutlineModel::Name));
    if (node == nullptr) {
        return {model_.Form(), nullptr};
    }
    if (side == DropSide::Onto) {
        return {node, node->children.empty() ? nullptr : node->children.front().get()};
    }
    if (node->parent == nullptr || node->Is(Kind::Page)) {
        return {};  // beside the form, or between pages
    }
    const auto next = static_cast<std::size_t>(node->row) + (side == DropSide::Below ? 1 : 0);
    const auto& siblings = node->parent->children;
    return {node->parent, next < siblings.size() ? siblings[next].get() : nullptr};
}

// The change replaces all rows, so it waits until the editor is closed.
void Outline::Rename(const QModelIndex& index, const QString& name) {
    const Text former = forms::NameInCode(*OutlineModel::NodeOf(index)->block);
    QTimer::singleShot(0, this, [this, former, name] {
        if (model_.Form() == nullptr) {
            return;  // hidden meanwhile
        }
        const OutlineNode* found = nullptr;
        ForEach(*model_.Form(), [&](const OutlineNode& node) {
            const bool isNamed = SameText(forms::NameInCode(*node.block), former, Compare::Binary);
            found = found == nullptr && isNamed ? &node : found;
        });
        if (found != nullptr) {
            Try([&] { RenameNode(design_, *found, Text(Trim(qt::ToText(name)))); });
        }
    });
}

}  // namespace lumenkit::lumenform
