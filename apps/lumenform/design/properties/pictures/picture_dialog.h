#pragma once

#include <QDialog>
#include <QLabel>
#include <QPushButton>

#include "apps/lumenform/design/properties/notice.h"
#include "frame/text.h"

namespace lumenkit::lumenform {

/// A dialog that shows the picture of a property, loads another one from a file, saves it to a file
/// and removes it.
class PictureDialog final : public QDialog {
    Q_OBJECT

 public:
    /// `picture` is the present one: see TextOfBytes.
    PictureDialog(const Text& property, Text picture, QWidget* parent);

    /// The picture as it is now; empty for none.
    const Text& Result() const { return picture_; }
    /// Why a file could not be taken or written, or what became of it.
    QString Message() const { return notice_->Text(); }

    /// Takes the picture of a file. If the property cannot hold it, keeps the former one and shows
    /// the reason.
    void LoadFrom(const QString& path);
    /// Writes the picture to a file.
    void SaveTo(const QString& path);

 private:
    void LayOut();
    void Show();
    void Say(const QString& text);
    void ChooseFile();
    void ChoosePlace();

    Text property_;
    Text picture_;
    QLabel* preview_;
    QLabel* description_;
    QPushButton* load_;
    QPushButton* save_;
    QPushButton* clear_;
    Notice* notice_;
};

}  // namespace lumenkit::lumenform
