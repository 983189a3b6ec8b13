#include "apps/lumenform/form_view/likeness/lists.h"

#include <QCoreApplication>
#include <QHeaderView>
#include <QListWidget>
#include <QStyle>
#include <QTreeWidget>
#include <algorithm>
#include <utility>

#include "apps/lumenform/form_view/likeness/item_groups.h"
#include "apps/lumenform/form_view/likeness/still.h"
#include "runtime/qt/qt_text.h"

namespace lumenkit::lumenform {

namespace {

constexpr float usualColumn = 2540;  // hundredths of a millimetre

void AddColumns(QTreeWidget& list, const std::vector<BlockReader>& columns) {
    constexpr std::size_t most = 256;
    const std::size_t count = std::min(columns.size(), most);
    list.setColumnCount(static_cast<int>(count));
    for (std::size_t index = 0; index < count; ++index) {
        const BlockReader& column = columns[index];
        const int section = static_cast<int>(index);
        const bool isRight = column.Whole(u"Alignment", 0) == 1;
        list.headerItem()->setText(section, qt::ToQString(column.String(u"Text")));
        list.headerItem()->setTextAlignment(
            section, Qt::AlignVCenter | (isRight ? Qt::AlignRight : Qt::AlignLeft));
        list.header()->resizeSection(section,
                                     PixelsOfExtent(column.Number(u"Object.Width", usualColumn)));
    }
}

PlainWidget ListWith(const BlockReader& reader, const QString& text, QStyle::StandardPixmap sign) {
    auto list = std::make_unique<QListWidget>();
    constexpr int side = 16;
    list->setIconSize(QSize(side, side));
    list->addItem(new QListWidgetItem(list->style()->standardIcon(sign), text));
    return Likeness(reader, std::move(list));
}

}  // namespace

PlainWidget MakeListView(const BlockReader& reader, const PlainSink& /*raise*/) {
    constexpr std::int32_t details = 3;
    auto list = std::make_unique<QTreeWidget>();
    const std::vector<BlockReader> columns = NumberedGroups(reader, u"ColumnHeader");
    list->setRootIsDecorated(false);
    list->header()->setStretchLastSection(false);
    list->header()->setMinimumSectionSize(0);
    if (!columns.empty()) {
        AddColumns(*list, columns);
    }
    const bool hasDetails = !columns.empty() && reader.Whole(u"View", 0) == details;
    list->setHeaderHidden(!hasDetails || reader.Flag(u"HideColumnHeaders", false));
    list->setHorizontalScrollBarPolicy(hasDetails ? Qt::ScrollBarAsNeeded : Qt::ScrollBarAlwaysOff);
    return Likeness(reader, std::move(list));
}

PlainWidget MakeTree(const BlockReader& reader, const PlainSink& /*raise*/) {
    const QString text = QCoreApplication::translate("likeness", "Node");
    const auto add = [&text](QTreeWidgetItem& parent) {
        auto* const node = new QTreeWidgetItem(&parent, QStringList{text});
        node->setDisabled(true);
        return node;
    };
    auto tree = std::make_unique<QTreeWidget>();
    tree->setHeaderHidden(true);
    QTreeWidgetItem* const top = add(*tree->invisibleRootItem());
    add(*top);
    add(*top);
    tree->expandAll();
    return Likeness(reader, std::move(tree));
}

PlainWidget MakeEmptyList(const BlockReader& reader, const PlainSink& /*raise*/) {
    return Likeness(reader, std::make_unique<QListWidget>());
}

PlainWidget MakeFolderList(const BlockReader& reader, const PlainSink& /*raise*/) {
    return ListWith(reader, QStringLiteral("\\"), QStyle::SP_DirOpenIcon);
}

PlainWidget MakeFileList(const BlockReader& reader, const PlainSink& /*raise*/) {
    return ListWith(reader, qt::ToQString(reader.String(u"Pattern", u"*.*")), QStyle::SP_FileIcon);
}

}  // namespace lumenkit::lumenform
