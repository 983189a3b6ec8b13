#include "apps/lumenform/design/outline/outline_model.h"

#include <QMimeData>
#include <optional>
#include <unordered_set>
#include <utility>

#include "apps/lumenform/design/icons/icons.h"
#include "apps/lumenform/design/look/contrast.h"
#include "apps/lumenform/design/model/containers.h"
#include "apps/lumenform/design/model/naming.h"
#include "apps/lumenform/form_view/likeness/tab_pages.h"
#include "apps/lumenform/form_view/menu_bar.h"
#include "forms/controls.h"
#include "runtime/qt/qt_text.h"

namespace lumenkit::lumenform {

namespace {

using Kind = OutlineNode::Kind;

// The title of a page without its mnemonic.
QString TitleOf(const OutlineNode& page) {
    return page.control->Pages()->WidgetOf(page.page).accessibleName();
}

QString ShownName(const OutlineNode& node) {
    return node.Is(Kind::Page) ? TitleOf(node) : qt::ToQString(forms::NameInCode(*node.block));
}

// Returns the page that has the control.
std::optional<int> PageWith(const TabPages& pages, const LiveControl& control) {
    for (int page = 0; page < pages.Count(); ++page) {
        if (&pages.WidgetOf(page) == control.Widget().parentWidget()) {
            return page;
        }
    }
    return std::nullopt;
}

bool TakesControls(const OutlineNode& node) {
    return node.Is(Kind::Form) || node.Is(Kind::Page) ||
           (node.Is(Kind::Control) && node.control->IsContainer());
}

}  // namespace

OutlineModel::OutlineModel(DrawClassIcon drawIcon, QObject* parent)
    : QAbstractItemModel(parent), drawIcon_(drawIcon) {}

OutlineModel::~OutlineModel() = default;

// ---- The tree

void OutlineModel::Show(const FormDesign* design) {
    beginResetModel();
    design_ = design;
    form_.reset();
    live_.clear();
    nodes_.clear();
    if (design != nullptr) {
        for (const auto& control : design->View().Controls()) {
            live_.emplace(&control->Block(), control.get());
        }
        form_ = std::make_unique<OutlineNode>(
            OutlineNode{.kind = Kind::Form, .block = &design->Document().Root()});
        AddControls(*form_);
        for (const LiveControl* const control : OutOfView(*design)) {
            nodes_.at(control)->isOutOfView = true;
        }
    }
    endResetModel();
}

OutlineNode& OutlineModel::Add(OutlineNode& parent, OutlineNode node) {
    node.parent = &parent;
    node.row = static_cast<int>(parent.children.size());
    parent.children.push_back(std::make_unique<OutlineNode>(std::move(node)));
    return *parent.children.back();
}

void OutlineModel::AddPages(OutlineNode& box) {
    for (int page = 0; page < box.control->Pages()->Count(); ++page) {
        Add(box, {.kind = Kind::Page, .block = box.block, .control = box.control, .page = page});
    }
}

// The recursion is as deep as the blocks are nested, which the parser limits.
void OutlineModel::AddControls(OutlineNode& parent) {
    const std::vector<forms::Block*> blocks = parent.block->Controls();
    const TabPages* const pages = parent.control == nullptr ? nullptr : parent.control->Pages();
    if (pages != nullptr) {
        AddPages(parent);
    }
    for (forms::Block* const block : blocks) {
        if (const auto live = live_.find(block); live != live_.end()) {
            const auto page = pages == nullptr ? std::nullopt : PageWith(*pages, *live->second);
            OutlineNode& home = page ? *parent.children[static_cast<std::size_t>(*page)] : parent;
            OutlineNode& added =
                Add(home, {.kind = Kind::Control, .block = block, .control = live->second});
            nodes_.emplace(live->second, &added);
            AddControls(added);
        }
    }
    for (forms::Block* const block : blocks) {
        if (IsMenu(*block)) {
            AddControls(Add(parent, {.kind = Kind::Menu, .block = block}));
        }
    }
}

void OutlineModel::MarkOutOfView() {
    if (form_ == nullptr) {
        return;
    }
    const std::vector<LiveControl*> found = OutOfView(*design_);
    const std::unordered_set<const LiveControl*> out(found.begin(), found.end());
    for (const auto& [control, node] : nodes_) {
        const bool isOut = out.contains(control);
        if (std::exchange(node->isOutOfView, isOut) != isOut) {
            const QModelIndex index = IndexOf(*node);
            Q_EMIT dataChanged(index, index.siblingAtColumn(Class));
        }
    }
}

const OutlineNode* OutlineModel::NodeOf(const QModelIndex& index) {
    return index.isValid() ? static_cast<const OutlineNode*>(index.constInternalPointer())
                           : nullptr;
}

const OutlineNode* OutlineModel::NodeOf(const LiveControl& control) const {
    const auto found = nodes_.find(&control);
    return found == nodes_.end() ? nullptr : found->second;
}

const OutlineNode* OutlineModel::Form() const {
    return form_.get();
}

QModelIndex OutlineModel::IndexOf(const OutlineNode& node) const {
    return createIndex(node.row, Name, &node);
}

QString OutlineModel::KeyOf(const OutlineNode& node) {
    const QString name = qt::ToQString(forms::NameInCode(*node.block)).toLower();
    return node.Is(Kind::Page) ? name + u'#' + QString::number(node.page) : name;
}

QString OutlineModel::ClassOf(const OutlineNode& node) {
    return node.Is(Kind::Page) ? tr("Page")
                               : qt::ToQString(ShortClassName(node.block->ClassName()));
}

QModelIndex OutlineModel::index(int row, int column, const QModelIndex& parent) const {
    const OutlineNode* const above = NodeOf(parent);
    const int rows = rowCount(parent);
    if (row < 0 || row >= rows || column < 0 || column >= Columns) {
        return {};
    }
    const OutlineNode* const node =
        above == nullptr ? form_.get() : above->children[static_cast<std::size_t>(row)].get();
    return createIndex(row, column, node);
}

QModelIndex OutlineModel::parent(const QModelIndex& child) const {
    const OutlineNode* const node = NodeOf(child);
    return node == nullptr || node->parent == nullptr ? QModelIndex() : IndexOf(*node->parent);
}

int OutlineModel::rowCount(const QModelIndex& parent) const {
    if (!parent.isValid()) {
        return form_ == nullptr ? 0 : 1;
    }
    return parent.column() == Name ? static_cast<int>(NodeOf(parent)->children.size()) : 0;
}

int OutlineModel::columnCount(const QModelIndex& /*parent*/) const {
    return Columns;
}

// ---- Texts and icons

void OutlineModel::SetPalette(const QPalette& palette) {
    palette_ = palette;
    icons_.clear();
}

QIcon OutlineModel::IconOf(const OutlineNode& node) const {
    const Text name = node.Is(Kind::Page) ? Text(u"Page") : node.block->ClassName();
    const auto found = icons_.find(name);
    return found != icons_.end() ? found->second
                                 : icons_.emplace(name, drawIcon_(name, palette_)).first->second;
}

QVariant OutlineModel::NameData(const OutlineNode& node, int role) const {
    switch (role) {
        case Qt::DisplayRole:
            return ShownName(node);
        case Qt::EditRole:
            return qt::ToQString(node.block->Name());
        case Qt::DecorationRole:
            return IconOf(node);
        case Qt::AccessibleTextRole:
            return node.isOutOfView ? tr("%1, %2, out of view").arg(ShownName(node), ClassOf(node))
                                    : tr("%1, %2").arg(ShownName(node), ClassOf(node));
        default:
            return {};
    }
}

QVariant OutlineModel::ClassData(const OutlineNode& node, int role) const {
    switch (role) {
        case Qt::DisplayRole:
            return ClassOf(node);
        case Qt::ForegroundRole:
            return DimmedText(palette_);
        case Qt::DecorationRole:
            return node.isOutOfView ? QVariant(ThemeIcon(QStringLiteral("dialog-warning")))
                                    : QVariant();
        default:
            return {};
    }
}

QVariant OutlineModel::data(const QModelIndex& index, int role) const {
    const OutlineNode* const node = NodeOf(index);
    if (node == nullptr) {
        return {};
    }
    if (role == Qt::ToolTipRole) {
        const QString text = tr("%1, %2").arg(ShownName(*node), ClassOf(*node));
        return node->isOutOfView
                   ? tr("%1: out of view. Format > Bring into view moves it inside.").arg(text)
                   : text;
    }
    return index.column() == Name ? NameData(*node, role) : ClassData(*node, role);
}

bool OutlineModel::setData(const QModelIndex& index, const QVariant& value, int role) {
    const OutlineNode* const node = NodeOf(index);
    if (node == nullptr || role != Qt::EditRole || value == data(index, role)) {
        return false;
    }
    Q_EMIT RenameWanted(index, value.toString());
    return true;
}

Qt::ItemFlags OutlineModel::flags(const QModelIndex& index) const {
    const OutlineNode* const node = NodeOf(index);
    if (node == nullptr) {
        return Qt::ItemIsDropEnabled;  // below the form
    }
    Qt::ItemFlags flags = Qt::ItemIsEnabled | Qt::ItemIsSelectable;
    flags.setFlag(Qt::ItemIsEditable, index.column() == Name && !node->Is(Kind::Page));
    flags.setFlag(Qt::ItemIsDragEnabled, node->Is(Kind::Control) || node->Is(Kind::Menu));
    flags.setFlag(Qt::ItemIsDropEnabled,
                  TakesControls(*node) || (node->Is(Kind::Menu) && !node->children.empty()));
    return flags;
}

// ---- Dragging

QString OutlineModel::DragFormat() {
    return QStringLiteral("application/x-lumenform-outline");
}

QStringList OutlineModel::mimeTypes() const {
    return {DragFormat()};
}

QMimeData* OutlineModel::mimeData(const QModelIndexList& /*indexes*/) const {
    auto data = std::make_unique<QMimeData>();
    data->setData(DragFormat(), dragToken_);
    return data.release();
}

}  // namespace lumenkit::lumenform
