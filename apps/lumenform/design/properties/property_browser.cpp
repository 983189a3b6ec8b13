#include "apps/lumenform/design/properties/property_browser.h"

#include <QEvent>
#include <QScopedValueRollback>
#include <QShortcut>
#include <QVBoxLayout>
#include <algorithm>

#include "apps/lumenform/design/model/naming.h"
#include "apps/lumenform/design/model/refusal.h"
#include "apps/lumenform/design/properties/cell_editors.h"
#include "apps/lumenform/design/properties/choose_font.h"
#include "apps/lumenform/design/properties/color_dialog.h"
#include "apps/lumenform/design/properties/color_text.h"
#include "apps/lumenform/design/properties/contents/contents_dialog.h"
#include "apps/lumenform/design/properties/encoding_offer.h"
#include "apps/lumenform/design/properties/font_text.h"
#include "apps/lumenform/design/properties/page_dialog.h"
#include "apps/lumenform/design/properties/pictures/picture_dialog.h"
#include "apps/lumenform/design/properties/property_delegate.h"
#include "apps/lumenform/design/properties/text_dialog.h"
#include "apps/lumenform/design/properties/writable_text.h"
#include "forms/controls.h"
#include "runtime/qt/qt_text.h"

namespace lumenkit::lumenform {

namespace {

QString GroupsKey() {
    return QStringLiteral("propertyGroups");
}

const host::Font* FontOf(const PropertyRow& row) {
    const auto* object = row.value ? std::get_if<ObjectRef>(&*row.value) : nullptr;
    return object == nullptr ? nullptr : dynamic_cast<const host::Font*>(object->get());
}

bool HasColor(const PropertyRow& row) {
    return row.value && !std::holds_alternative<Empty>(*row.value);
}

// Returns the name in code and the class.
QString DescribeBlock(const Text& name, TextView className) {
    return qt::ToQString(name) + QStringLiteral("  ") + qt::ToQString(ShortClassName(className));
}

}  // namespace

PropertyBrowser::PropertyBrowser(FormDesign& design, ControlMessages& messages, QWidget* parent)
    : QWidget(parent),
      design_(design),
      messages_(messages),
      list_(design, messages),
      model_(list_),
      heading_(new QLabel(this)),
      filter_(new FilterBar(this)),
      table_(new PropertyTable(this)),
      delegate_(new PropertyDelegate(model_, this)),
      notice_(new Notice(this)),
      help_(new QLabel(this)) {
    table_->setModel(&model_);
    table_->setItemDelegate(delegate_);
    LayOut();
    ConnectFilter();
    connect(delegate_, &PropertyDelegate::Changed, this, &PropertyBrowser::Assign);
    connect(delegate_, &PropertyDelegate::MoreWanted, this, &PropertyBrowser::OpenMore);
    connect(delegate_, &PropertyDelegate::StepWanted, this,
            [this](int rows) { table_->GoTo(table_->currentIndex().row() + rows); });
    connect(table_, &PropertyTable::MoreWanted, this, &PropertyBrowser::OpenMore);
    connect(table_, &PropertyTable::ResetWanted, this, &PropertyBrowser::Reset);
    connect(table_->selectionModel(), &QItemSelectionModel::currentRowChanged, this,
            [this] { ShowCurrent(); });
    connect(&design_, &FormDesign::ViewReplaced, this, &PropertyBrowser::Refresh);
    connect(&design_, &FormDesign::SelectionChanged, this, &PropertyBrowser::FollowSelection);
    connect(&design_, &FormDesign::Edited, this, &PropertyBrowser::Refresh);
    new EncodingOffer(
        design_, *notice_, [this] { return unwritable_; }, [this] { Retry(); });
    Refresh();
}

void PropertyBrowser::LayOut() {
    heading_->setTextFormat(Qt::PlainText);
    heading_->setTextInteractionFlags(Qt::TextSelectableByMouse);
    QFont font = heading_->font();
    font.setBold(true);
    heading_->setFont(font);
    help_->setTextFormat(Qt::PlainText);
    help_->setWordWrap(true);
    help_->setAlignment(Qt::AlignLeft | Qt::AlignTop);
    help_->setAccessibleName(tr("Help"));
    FitHelp();
    auto* const layout = new QVBoxLayout(this);
    layout->addWidget(heading_);
    layout->addWidget(filter_);
    layout->addWidget(table_, 1);
    layout->addWidget(notice_);
    layout->addWidget(help_);
}

void PropertyBrowser::ConnectFilter() {
    connect(filter_, &FilterBar::Filtered, this, &PropertyBrowser::FilterBy);
    connect(filter_, &FilterBar::Grouped, this, &PropertyBrowser::Group);
    connect(filter_, &FilterBar::Left, table_, qOverload<>(&QWidget::setFocus));
    connect(table_, &PropertyTable::Escaped, &filter_->Field(), &QLineEdit::clear);
    auto* const find = new QShortcut(QKeySequence::Find, this);
    find->setContext(Qt::WidgetWithChildrenShortcut);
    connect(find, &QShortcut::activated, this, [this] {
        filter_->Field().setFocus(Qt::ShortcutFocusReason);
        filter_->Field().selectAll();
    });
}

void PropertyBrowser::RememberIn(QSettings& settings) {
    settings_ = &settings;
    filter_->Groups().setChecked(settings.value(GroupsKey()).toBool());
}

void PropertyBrowser::FitHelp() {
    constexpr int lines = 4;
    help_->setFixedHeight(lines * help_->fontMetrics().lineSpacing());
}

void PropertyBrowser::changeEvent(QEvent* event) {
    QWidget::changeEvent(event);
    if (event->type() == QEvent::FontChange || event->type() == QEvent::StyleChange) {
        FitHelp();
    }
}

// ---- Following the design

void PropertyBrowser::Refresh() {
    if (isAssigning_) {
        return;  // Assign refreshes afterwards
    }
    const QScopedValueRollback refreshing(isRefreshing_, true);
    model_.Refresh();
    heading_->setText(DescribeSelection());
    GoBack();
    ShowCurrent();
}

void PropertyBrowser::FollowSelection() {
    if (isAssigning_) {
        return;
    }
    if (QWidget* const editor = table_->indexWidget(table_->currentIndex())) {
        delegate_->Close(editor);  // its text is for the former selection
    }
    notice_->Say({});
    Refresh();
}

// Returns to the row of the property that was current, because the rows may have changed.
void PropertyBrowser::GoBack() {
    const int row = model_.Find(wanted_);
    if (row != table_->currentIndex().row() || row < 0) {
        table_->GoTo(std::max(row, 0));
    }
}

void PropertyBrowser::ShowCurrent() {
    const int row = table_->currentIndex().row();
    if (row < 0 || row >= model_.rowCount() || model_.IsHeading(row)) {
        const QString text = filter_->Field().text();
        help_->setText(text.isEmpty() ? QString() : tr("No property contains \"%1\".").arg(text));
        return;
    }
    const PropertyRow& current = model_.Row(row);
    const QString help = qt::ToQString(current.help);
    help_->setText(qt::ToQString(current.name) + u'\n' + help);
    if (!isRefreshing_) {
        wanted_ = current.name;
        notice_->Say({});
    }
}

QString PropertyBrowser::DescribeSelection() const {
    const std::vector<LiveControl*>& selected = design_.Selected();
    if (selected.size() > 1) {
        return tr("%n controls", nullptr, static_cast<int>(selected.size()));
    }
    if (design_.SelectedMenus().size() > 1) {
        return tr("%n menus", nullptr, static_cast<int>(design_.SelectedMenus().size()));
    }
    const forms::Block& block = SelectedBlock();
    return DescribeBlock(forms::NameInCode(block), block.ClassName());
}

// Returns the first selected object, which is the form if no other is selected.
const forms::Block& PropertyBrowser::SelectedBlock() const {
    if (!design_.Selected().empty()) {
        return design_.Selected().front()->Block();
    }
    return design_.SelectedMenus().empty() ? design_.Document().Root()
                                           : *design_.SelectedMenus().front();
}

// ---- The order of the list

template <typename Change>
void PropertyBrowser::Rearrange(const Change& change) {
    const QScopedValueRollback refreshing(isRefreshing_, true);
    change();
    GoBack();
    ShowCurrent();
}

void PropertyBrowser::FilterBy(const QString& text) {
    Rearrange([&] { model_.SetFilter(text); });
}

void PropertyBrowser::Group(bool isGrouped) {
    Rearrange([&] {
        model_.SetOrder(isGrouped ? PropertyModel::Order::Groups : PropertyModel::Order::Names);
    });
    if (settings_ != nullptr) {
        settings_->setValue(GroupsKey(), isGrouped);
    }
}

// ---- Changing values

QString PropertyBrowser::TryToAssign(int row, const Value& value) {
    const QScopedValueRollback assigning(isAssigning_, true);
    const PropertyRow& changed = model_.Row(row);
    if (QString why = WhyUnwritable(changed, value); !why.isEmpty()) {
        return why;
    }
    if (QString why = WhyNoColor(changed, value); !why.isEmpty()) {
        return why;
    }
    return RefusalOf([&] {
        const auto* text = std::get_if<Text>(&value);
        const bool isFontText = changed.kind == PropertyKind::Font && text != nullptr;
        list_.Assign(model_.IndexOf(row),
                     isFontText ? ObjectRef(FontFromText(*text, FontOf(changed))) : value);
    });
}

// Names the object and the property, because the place in the written form says little.
QString PropertyBrowser::WhyUnwritable(const PropertyRow& row, const Value& value) const {
    const auto* const text = std::get_if<Text>(&value);
    if (text == nullptr || row.kind == PropertyKind::Picture) {
        return {};
    }
    const QString why = lumenform::WhyUnwritable(design_.Document(), *text);
    return why.isEmpty() ? why
                         : qt::ToQString(forms::NameInCode(SelectedBlock())) + u'.' +
                               qt::ToQString(row.name) + QStringLiteral(": ") + why;
}

// Controls take any number for a colour, also from files. What the user types is checked.
QString PropertyBrowser::WhyNoColor(const PropertyRow& row, const Value& value) {
    bool isColor = true;
    const QString mismatch = row.kind != PropertyKind::Color
                                 ? QString()
                                 : RefusalOf([&] { isColor = IsColor(ToColor(value)); });
    return isColor || !mismatch.isEmpty() ? mismatch
                                          : tr("A colour is a number from 0 to &HFFFFFF, or a "
                                               "system colour from &H80000000 to "
                                               "&H80000018");
}

void PropertyBrowser::Assign(int row, const Value& value) {
    wanted_ = model_.Row(row).name;
    const bool isWritable = WhyUnwritable(model_.Row(row), value).isEmpty();
    unwritable_ = isWritable ? Text() : ToText(value);
    const QString refusal = TryToAssign(row, value);
    Refresh();
    SayWhy(refusal, !isWritable);
}

// Assigns the refused text after the code page has changed.
void PropertyBrowser::Retry() {
    AssignTo(wanted_, Text(unwritable_));
}

void PropertyBrowser::Reset(int row) {
    if (row < 0 || !model_.index(row, 0).data(PropertyModel::resettableRole).toBool()) {
        return;
    }
    wanted_ = model_.Row(row).name;
    const QString title = tr("Reset %1").arg(qt::ToQString(wanted_));
    QString refusal;
    {
        const QScopedValueRollback assigning(isAssigning_, true);
        refusal = RefusalOf([&] { list_.Reset(model_.IndexOf(row), title); });
    }
    Refresh();
    SayWhy(refusal);
}

void PropertyBrowser::SayWhy(const QString& refusal, bool offersEncodings) {
    const QString before = qt::ToQString(wanted_) + QStringLiteral(": ");
    notice_->Say(refusal.isEmpty() || refusal.contains(before) ? refusal : before + refusal,
                 offersEncodings);
    Q_EMIT Refused(Message());
}

void PropertyBrowser::AssignTo(const Text& name, const Value& value) {
    const int row = model_.Find(name);
    if (row >= 0 && model_.Row(row).canSet) {
        Assign(row, value);
    }
}

bool PropertyBrowser::Edit(TextView property) {
    if (model_.Find(property) < 0) {
        filter_->Field().clear();
    }
    const int row = model_.Find(property);
    if (row < 0) {
        return false;
    }
    table_->setFocus();
    table_->GoTo(row);
    table_->EditCurrent();
    return true;
}

bool PropertyBrowser::FinishEditing() {
    QWidget* const editor = table_->indexWidget(table_->currentIndex());
    if (editor == nullptr) {
        return true;
    }
    notice_->Say({});
    delegate_->Finish(editor);
    return notice_->Text().isEmpty();
}

// ---- Editors in separate windows

void PropertyBrowser::OpenMore(int row) {
    if (row < 0 || row >= model_.rowCount() || model_.IsHeading(row)) {
        return;
    }
    const PropertyRow& wanted = model_.Row(row);
    if (wanted.kind == PropertyKind::Choice) {
        table_->EditCurrent();
        if (auto* const box = table_->findChild<ChoiceBox*>()) {
            box->showPopup();
        }
    } else if (!HasMore(wanted)) {
        table_->EditCurrent();
    } else if (wanted.isOnPage && Page() != nullptr) {
        EditWithPage();
    } else if (wanted.kind == PropertyKind::Color) {
        OpenColors(wanted);
    } else if (wanted.kind == PropertyKind::Font) {
        OpenFonts(wanted);
    } else if (wanted.kind == PropertyKind::Items) {
        OpenContents(wanted);
    } else if (wanted.kind == PropertyKind::Picture) {
        OpenPicture(wanted);
    } else {
        OpenText(wanted);
    }
}

void PropertyBrowser::OpenContents(const PropertyRow& row) {
    const Text former = EditedValue(row);
    auto* const dialog = new ContentsDialog(design_, qt::ToQString(row.name), former, this);
    dialog->setAttribute(Qt::WA_DeleteOnClose);
    connect(dialog, &QDialog::accepted, this, [this, dialog, former, name = row.name] {
        if (dialog->Result() != former) {
            AssignTo(name, dialog->Result());
        }
    });
    connect(dialog, &ContentsDialog::TextWanted, this,
            [this, name = row.name](const QString& contents) {
                if (const int line = model_.Find(name); line >= 0) {
                    OpenText(model_.Row(line), qt::ToText(contents));
                }
            });
    dialog->open();
}

void PropertyBrowser::OpenText(const PropertyRow& row) {
    OpenText(row, EditedValue(row));
}

// `text` is the text that the dialog begins with.
void PropertyBrowser::OpenText(const PropertyRow& row, const Text& text) {
    const auto lines = row.kind == PropertyKind::Items   ? TextDialog::Lines::Items
                       : row.kind == PropertyKind::Lines ? TextDialog::Lines::List
                                                         : TextDialog::Lines::Breaks;
    const Text former = EditedValue(row);
    auto* const dialog = new TextDialog(design_, qt::ToQString(row.name), text, lines, this);
    dialog->setAttribute(Qt::WA_DeleteOnClose);
    dialog->SetTaker([this, former, name = row.name](const Text& result) {
        notice_->Say({});
        if (result != former) {
            AssignTo(name, result);
        }
        return Message();
    });
    dialog->open();
}

void PropertyBrowser::OpenPicture(const PropertyRow& row) {
    const Text former = row.value ? ToText(*row.value) : Text();
    auto* const dialog = new PictureDialog(row.name, former, this);
    dialog->setAttribute(Qt::WA_DeleteOnClose);
    connect(dialog, &QDialog::accepted, this, [this, dialog, former, name = row.name] {
        if (dialog->Result() != former) {
            AssignTo(name, dialog->Result());
        }
    });
    dialog->open();
}

void PropertyBrowser::OpenColors(const PropertyRow& row) {
    const auto former = HasColor(row) ? std::optional(ToColor(*row.value)) : std::nullopt;
    auto* const dialog = new ColorDialog(qt::ToQString(row.name), former, this);
    dialog->setAttribute(Qt::WA_DeleteOnClose);
    connect(dialog, &QDialog::accepted, this, [this, dialog, former, name = row.name] {
        const std::optional<Color> chosen = dialog->Result();
        if (chosen && chosen != former) {
            AssignTo(name, FromColor(*chosen));
        }
    });
    dialog->open();
}

void PropertyBrowser::OpenFonts(const PropertyRow& row) {
    ChooseFont(*this, qt::ToQString(row.name), FontOf(row),
               [this, name = row.name](const std::shared_ptr<qt::Font>& font) {
                   AssignTo(name, ObjectRef(font));
               });
}

const ClassDescriptor* PropertyBrowser::Page() const {
    const std::vector<LiveControl*>& selected = design_.Selected();
    const ClassTable& classes = design_.Context().classes;
    TextView name;
    for (const LiveControl* control : selected) {
        const TextView page =
            control->Hosted() == nullptr ? TextView() : control->Hosted()->Type().propertyPage;
        if (page.empty() || (!name.empty() && page != name)) {
            return nullptr;
        }
        name = page;
    }
    const auto found = std::ranges::find(classes.classes, name, &ClassDescriptor::name);
    return found == classes.classes.end() ? nullptr : &*found;
}

PageDialog* PropertyBrowser::EditWithPage() {
    const ClassDescriptor* page = Page();
    if (page == nullptr) {
        return nullptr;
    }
    PageDialog* dialog = nullptr;
    notice_->Say(RefusalOf([&] {
        dialog = new PageDialog(design_, messages_, *page, design_.SelectedNames(), this);
        dialog->setAttribute(Qt::WA_DeleteOnClose);
        dialog->show();
    }));
    return dialog;
}

}  // namespace lumenkit::lumenform
