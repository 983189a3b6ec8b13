#pragma once

#include <QAbstractItemModel>
#include <QIcon>
#include <QPalette>
#include <QUuid>
#include <map>
#include <memory>
#include <unordered_map>
#include <vector>

#include "apps/lumenform/design/model/form_design.h"
#include "apps/lumenform/form_view/live_control.h"
#include "forms/block.h"
#include "frame/text.h"

namespace lumenkit::lumenform {

/// An object of a form in the outline.
struct OutlineNode {
    enum class Kind { Form, Control, Page, Menu };

    Kind kind;
    forms::Block* block;             ///< of a page: the block of its box
    LiveControl* control = nullptr;  ///< of a page: its box; null for the form and for menus
    int page = 0;                    ///< the number of a page
    bool isOutOfView = false;
    OutlineNode* parent = nullptr;
    int row = 0;
    std::vector<std::unique_ptr<OutlineNode>> children = {};

    bool Is(Kind other) const { return kind == other; }
};

/// Returns an icon of a control class.
using DrawClassIcon = QIcon (*)(TextView className, const QPalette& palette);

/// The tree of a form's objects, in the order of the file: the control in front comes first, menus
/// come last. The controls of a tabbed box are under its pages. Valid until the view of the design
/// is replaced.
class OutlineModel final : public QAbstractItemModel {
    Q_OBJECT

 public:
    enum Column { Name, Class, Columns };

    explicit OutlineModel(DrawClassIcon drawIcon, QObject* parent = nullptr);
    ~OutlineModel() override;
    OutlineModel(const OutlineModel&) = delete;
    OutlineModel& operator=(const OutlineModel&) = delete;

    /// Shows the present view of the design. Null shows nothing.
    void Show(const FormDesign* design);
    /// Finds the controls that are out of view now.
    void MarkOutOfView();
    /// The colours of icons and texts from the next Show on.
    void SetPalette(const QPalette& palette);

    static const OutlineNode* NodeOf(const QModelIndex& index);
    /// Returns the node of a control; null if there is none.
    const OutlineNode* NodeOf(const LiveControl& control) const;
    /// Returns the node of the form, or null.
    const OutlineNode* Form() const;
    QModelIndex IndexOf(const OutlineNode& node) const;
    /// A name of the node that no other node has, unless the form has two objects with one name.
    static QString KeyOf(const OutlineNode& node);
    /// Returns the class without its library; "Page" and "Menu" for these.
    static QString ClassOf(const OutlineNode& node);

    /// The data of a drag: it belongs to this outline only.
    static QString DragFormat();
    const QByteArray& DragToken() const { return dragToken_; }

    QModelIndex index(int row, int column, const QModelIndex& parent = {}) const override;
    QModelIndex parent(const QModelIndex& child) const override;
    int rowCount(const QModelIndex& parent = {}) const override;
    int columnCount(const QModelIndex& parent = {}) const override;
    QVariant data(const QModelIndex& index, int role = Qt::DisplayRole) const override;
    bool setData(const QModelIndex& index, const QVariant& value, int role) override;
    Qt::ItemFlags flags(const QModelIndex& index) const override;
    QStringList mimeTypes() const override;
    QMimeData* mimeData(const QModelIndexList& indexes) const override;
    Qt::DropActions supportedDropActions() const override { return Qt::MoveAction; }

 Q_SIGNALS:
    /// The user has typed a new name for a node.
    void RenameWanted(const QModelIndex& index, const QString& name);

 private:
    void AddControls(OutlineNode& parent);
    static void AddPages(OutlineNode& box);
    static OutlineNode& Add(OutlineNode& parent, OutlineNode node);
    QVariant NameData(const OutlineNode& node, int role) const;
    QVariant ClassData(const OutlineNode& node, int role) const;
    QIcon IconOf(const OutlineNode& node) const;

    const QByteArray dragToken_ = QUuid::createUuid().toByteArray();
    DrawClassIcon drawIcon_;
    QPalette palette_;
    const FormDesign* design_ = nullptr;
    std::unique_ptr<OutlineNode> form_;
    std::unordered_map<const forms::Block*, LiveControl*> live_;
    std::unordered_map<const LiveControl*, OutlineNode*> nodes_;
    mutable std::map<Text, QIcon> icons_;  // by class
};

}  // namespace lumenkit::lumenform
