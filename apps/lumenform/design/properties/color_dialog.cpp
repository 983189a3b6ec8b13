#include "apps/lumenform/design/properties/color_dialog.h"

#include <QColorDialog>
#include <QDialogButtonBox>
#include <QPushButton>
#include <QVBoxLayout>

#include "apps/lumenform/design/properties/color_text.h"
#include "apps/lumenform/design/properties/swatch.h"
#include "runtime/qt/palette_color.h"
#include "runtime/qt/qt_text.h"

namespace lumenkit::lumenform {

namespace {

constexpr int columns = 8;

QListWidgetItem* AddColor(QListWidget& list, const QString& text, Color color, QSize size) {
    const QColor shown = qt::ToQColor(color, list.palette());
    auto* const item =
        new QListWidgetItem(Swatch(shown, size, list.devicePixelRatioF()), text, &list);
    item->setData(Qt::UserRole, static_cast<quint32>(color));
    item->setToolTip(qt::ToQString(ColorText(color)));
    return item;
}

Color ColorOf(const QListWidgetItem& item) {
    return static_cast<Color>(item.data(Qt::UserRole).toUInt());
}

bool Select(QListWidget& list, Color color) {
    for (int row = 0; row < list.count(); ++row) {
        if (ColorOf(*list.item(row)) == color) {
            list.setCurrentRow(row);
            return true;
        }
    }
    return false;
}

Color FromQColor(const QColor& color) {
    return Rgb(static_cast<std::uint8_t>(color.red()), static_cast<std::uint8_t>(color.green()),
               static_cast<std::uint8_t>(color.blue()));
}

}  // namespace

ColorDialog::ColorDialog(const QString& title, std::optional<Color> former, QWidget* parent)
    : QDialog(parent),
      tabs_(new QTabWidget(this)),
      system_(new QListWidget(this)),
      palette_(new QListWidget(this)) {
    setWindowTitle(title);
    FillSystemList();
    FillPalette();
    tabs_->addTab(system_, tr("&System"));
    tabs_->addTab(palette_, tr("&Palette"));
    auto* const buttons =
        new QDialogButtonBox(QDialogButtonBox::Ok | QDialogButtonBox::Cancel, this);
    auto* const other = buttons->addButton(tr("&Other..."), QDialogButtonBox::ActionRole);
    connect(other, &QPushButton::clicked, this, &ColorDialog::ChooseOther);
    connect(buttons, &QDialogButtonBox::accepted, this, &QDialog::accept);
    connect(buttons, &QDialogButtonBox::rejected, this, &QDialog::reject);
    auto* const layout = new QVBoxLayout(this);
    layout->addWidget(tabs_);
    layout->addWidget(buttons);
    ShowChosen(former);
    for (QListWidget* list : {system_, palette_}) {
        connect(list, &QListWidget::currentItemChanged, this, [this](QListWidgetItem* item) {
            if (item != nullptr) {
                chosen_ = ColorOf(*item);
            }
        });
        connect(list, &QListWidget::itemActivated, this, &QDialog::accept);
    }
}

void ColorDialog::FillSystemList() {
    const int side = fontMetrics().height();
    const QSize size(2 * side, side);
    system_->setAccessibleName(tr("System colours"));
    system_->setIconSize(size);
    for (const NamedColor& named : SystemColors()) {
        AddColor(*system_, qt::ToQString(named.name), named.color, size);
    }
}

void ColorDialog::FillPalette() {
    constexpr int gap = 8;
    const int side = 2 * fontMetrics().height();
    const QSize size(side, side);
    palette_->setAccessibleName(tr("Palette"));
    palette_->setViewMode(QListView::IconMode);
    palette_->setMovement(QListView::Static);
    palette_->setResizeMode(QListView::Adjust);
    palette_->setUniformItemSizes(true);
    palette_->setIconSize(size);
    palette_->setGridSize(size + QSize(gap, gap));
    for (const Color color : PaletteColors()) {
        AddColor(*palette_, {}, color, size)
            ->setData(Qt::AccessibleTextRole, qt::ToQString(ColorText(color)));
    }
    const int frame = 2 * palette_->frameWidth();
    const int bar = palette_->style()->pixelMetric(QStyle::PM_ScrollBarExtent);
    palette_->setMinimumSize((side + gap) * columns + frame + bar + 2 * gap,
                             (side + gap) * palette_->count() / columns + frame + 2 * gap);
}

void ColorDialog::ShowChosen(std::optional<Color> color) {
    chosen_ = color;
    if (!color) {
        return;
    }
    if (Select(*system_, *color)) {
        tabs_->setCurrentWidget(system_);
    } else {
        Select(*palette_, *color);
        tabs_->setCurrentWidget(palette_);
    }
}

void ColorDialog::ChooseOther() {
    auto* const dialog = new QColorDialog(this);
    dialog->setAttribute(Qt::WA_DeleteOnClose);
    dialog->setOption(QColorDialog::DontUseNativeDialog);
    if (chosen_) {
        dialog->setCurrentColor(qt::ToQColor(*chosen_, palette()));
    }
    connect(dialog, &QColorDialog::colorSelected, this, [this](const QColor& color) {
        chosen_ = FromQColor(color);
        accept();
    });
    dialog->open();
}

}  // namespace lumenkit::lumenform
