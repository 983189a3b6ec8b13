#include "apps/lumenform/form_view/list_kinds.h"

#include <QComboBox>
#include <array>
#include <cstddef>

#include "apps/lumenform/form_view/line_edit.h"
#include "apps/lumenform/form_view/list_box.h"
#include "apps/lumenform/form_view/shared_properties.h"
#include "apps/lumenform/form_view/simple_combo.h"
#include "runtime/qt/qt_text.h"

namespace lumenkit::lumenform {

namespace {

QString TextOf(const BlockReader& reader) {
    return qt::ToQString(reader.String(u"Text"));
}

PlainWidget MakeDropDownCombo(const BlockReader& reader, const PlainSink& raise) {
    auto box = std::make_unique<QComboBox>();
    box->setLineEdit(std::make_unique<LineEdit>().release());
    box->addItems(ListOf(reader));
    // Qt chooses the item of the text when the box loses the focus, if it is not chosen yet.
    box->setCurrentIndex(box->findText(TextOf(reader)));
    box->setEditText(TextOf(reader));
    box->lineEdit()->setCursorPosition(0);  // shows the beginning of the text
    QObject::connect(box.get(), &QComboBox::editTextChanged, [raise] { raise(u"Change"); });
    QObject::connect(box.get(), &QComboBox::activated, [raise] { raise(u"Click"); });
    return {.widget = std::move(box)};
}

PlainWidget MakeSimpleCombo(const BlockReader& reader, const PlainSink& raise) {
    auto box = std::make_unique<SimpleCombo>(ListOf(reader), TextOf(reader));
    QObject::connect(&box->Edit(), &QLineEdit::textEdited, [raise] { raise(u"Change"); });
    box->OnChosen([raise] { raise(u"Click"); });
    return {.widget = std::move(box)};
}

// No item is selected unless the form says which one.
PlainWidget MakeDropDownList(const BlockReader& reader, const PlainSink& raise) {
    auto box = std::make_unique<QComboBox>();
    box->addItems(ListOf(reader));
    box->setCurrentIndex(box->findText(TextOf(reader)));
    QObject::connect(box.get(), &QComboBox::activated, [raise] { raise(u"Click"); });
    return {.widget = std::move(box)};
}

}  // namespace

PlainWidget MakeListBox(const BlockReader& reader, const PlainSink& raise) {
    constexpr std::array selections = {QListWidget::SingleSelection, QListWidget::MultiSelection,
                                       QListWidget::ExtendedSelection};
    constexpr std::int32_t checkBoxes = 1;
    constexpr std::int32_t mostColumns = 100;
    auto list = std::make_unique<ListBox>(ListOf(reader));
    list->SetColumns(reader.Choice(u"Columns", mostColumns, 0));
    list->setSelectionMode(selections[static_cast<std::size_t>(
        reader.Choice(u"MultiSelect", static_cast<std::int32_t>(selections.size()), 0))]);
    if (reader.Whole(u"Style", 0) == checkBoxes) {
        list->AddCheckBoxes();
        QObject::connect(list.get(), &QListWidget::itemChanged, [raise] { raise(u"ItemCheck"); });
    }
    QObject::connect(list.get(), &QListWidget::itemSelectionChanged, [raise] { raise(u"Click"); });
    return {.widget = std::move(list)};
}

PlainWidget MakeComboBox(const BlockReader& reader, const PlainSink& raise) {
    constexpr std::array styles = {MakeDropDownCombo, MakeSimpleCombo, MakeDropDownList};
    const std::int32_t style = reader.Choice(u"Style", static_cast<std::int32_t>(styles.size()), 0);
    return styles[static_cast<std::size_t>(style)](reader, raise);
}

}  // namespace lumenkit::lumenform
