#include "apps/lumenform/design/properties/pictures/picture_dialog.h"

#include <QDialogButtonBox>
#include <QFile>
#include <QFileDialog>
#include <QFileInfo>
#include <QHBoxLayout>
#include <QScrollArea>
#include <QVBoxLayout>
#include <algorithm>
#include <utility>

#include "apps/lumenform/design/icons/icons.h"
#include "apps/lumenform/design/model/refusal.h"
#include "apps/lumenform/design/properties/pictures/picture_format.h"
#include "forms/path_names.h"
#include "forms/replace_file.h"
#include "runtime/qt/qt_text.h"

namespace lumenkit::lumenform {

namespace {

constexpr qint64 mostBytes = 64LL << 20;

QFileDialog* OpenFileDialog(QWidget* parent, const QString& title) {
    auto* const dialog = new QFileDialog(parent, title);
    dialog->setAttribute(Qt::WA_DeleteOnClose);
    return dialog;
}

}  // namespace

PictureDialog::PictureDialog(const Text& property, Text picture, QWidget* parent)
    : QDialog(parent),
      property_(property),
      picture_(std::move(picture)),
      preview_(new QLabel(this)),
      description_(new QLabel(this)),
      load_(new QPushButton(ThemeIcon(QStringLiteral("document-open")), tr("&Load..."), this)),
      save_(
          new QPushButton(ThemeIcon(QStringLiteral("document-save-as")), tr("&Save as..."), this)),
      clear_(new QPushButton(ThemeIcon(QStringLiteral("edit-clear")), tr("&Clear"), this)),
      notice_(new Notice(this)) {
    setWindowTitle(qt::ToQString(property));
    connect(load_, &QPushButton::clicked, this, &PictureDialog::ChooseFile);
    connect(save_, &QPushButton::clicked, this, &PictureDialog::ChoosePlace);
    connect(clear_, &QPushButton::clicked, this, [this] {
        picture_.clear();
        notice_->Say({});
        Show();
    });
    LayOut();
    Show();
}

void PictureDialog::LayOut() {
    preview_->setAlignment(Qt::AlignCenter);
    preview_->setAccessibleName(tr("Picture"));
    auto* const scrolled = new QScrollArea(this);
    scrolled->setWidget(preview_);
    scrolled->setAccessibleName(tr("Picture"));
    scrolled->setWidgetResizable(true);
    scrolled->setMinimumSize(fontMetrics().averageCharWidth() * 36, fontMetrics().height() * 9);
    auto* const actions = new QVBoxLayout;
    for (QPushButton* button : {load_, save_, clear_}) {
        button->setAutoDefault(false);
        actions->addWidget(button);
    }
    actions->addStretch();
    auto* const upper = new QHBoxLayout;
    upper->addWidget(scrolled, 1);
    upper->addLayout(actions);
    auto* const buttons =
        new QDialogButtonBox(QDialogButtonBox::Ok | QDialogButtonBox::Cancel, this);
    connect(buttons, &QDialogButtonBox::accepted, this, &QDialog::accept);
    connect(buttons, &QDialogButtonBox::rejected, this, &QDialog::reject);
    auto* const layout = new QVBoxLayout(this);
    layout->addLayout(upper, 1);
    layout->addWidget(description_);
    layout->addWidget(notice_);
    layout->addWidget(buttons);
}

void PictureDialog::Show() {
    const QPixmap pixmap = PixmapOf(picture_);
    preview_->setPixmap(pixmap);
    QString text = qt::ToQString(DescribePicture(picture_));
    if (!pixmap.isNull()) {
        text += tr("  %1 x %2 pixels").arg(pixmap.width()).arg(pixmap.height());
    } else if (!picture_.empty()) {
        preview_->setText(tr("No preview"));
    }
    description_->setText(text);
    save_->setEnabled(!picture_.empty());
    clear_->setEnabled(!picture_.empty());
}

void PictureDialog::LoadFrom(const QString& path) {
    QFile file(path);
    if (!file.open(QIODevice::ReadOnly)) {
        Say(tr("%1: %2").arg(path, file.errorString()));
        return;
    }
    if (file.size() > mostBytes) {
        Say(tr("%1: The file is larger than 64 MB.").arg(path));
        return;
    }
    const QString refusal = RefusalOf([&] {
        TakenPicture taken = TakePicture(file.readAll(), property_);
        picture_ = std::move(taken.picture);
        Say(taken.note);
    });
    if (!refusal.isEmpty()) {
        Say(QFileInfo(path).fileName() + QStringLiteral(": ") + refusal);
    }
    Show();
}

// The dialog grows for a long notice.
void PictureDialog::Say(const QString& text) {
    notice_->Say(text);
    notice_->updateGeometry();  // now, not with the next event
    layout()->activate();
    resize(width(), std::max(height(), layout()->totalHeightForWidth(width())));
}

void PictureDialog::SaveTo(const QString& path) {
    Say(RefusalOf(
        [&] { forms::ReplaceFile(forms::PathOf(path.toStdString()), BytesOfText(picture_)); }));
}

void PictureDialog::ChooseFile() {
    QFileDialog* const dialog = OpenFileDialog(this, tr("Load a picture"));
    dialog->setFileMode(QFileDialog::ExistingFile);
    dialog->setNameFilters({tr("Pictures (*.bmp *.dib *.gif *.jpg *.jpeg *.ico *.cur *.wmf *.emf "
                               "*.png *.BMP *.GIF *.JPG *.ICO *.CUR *.WMF *.EMF *.PNG)"),
                            tr("All files (*)")});
    connect(dialog, &QFileDialog::fileSelected, this, &PictureDialog::LoadFrom);
    dialog->open();
}

void PictureDialog::ChoosePlace() {
    QFileDialog* const dialog = OpenFileDialog(this, tr("Save the picture"));
    dialog->setAcceptMode(QFileDialog::AcceptSave);
    dialog->setDefaultSuffix(SuffixOf(picture_));
    connect(dialog, &QFileDialog::fileSelected, this, &PictureDialog::SaveTo);
    dialog->open();
}

}  // namespace lumenkit::lumenform
