#pragma once

#include <QListWidget>
#include <QStringList>
#include <QTimer>
#include <functional>

namespace lumenkit::lumenform {

/// Pictures of the forms that were opened last. The pictures are drawn one after the other while
/// the list is visible and idle.
class RecentForms final : public QListWidget {
    Q_OBJECT

 public:
    /// Draws a form to fit into a box of device-independent pixels, for a device with `device`
    /// pixels in one of them. Returns a null pixmap for a form without a picture.
    using Draw = std::function<QPixmap(const QString& path, QSize box, double device)>;

    explicit RecentForms(QWidget* parent = nullptr);

    void SetDraw(Draw draw) { draw_ = std::move(draw); }
    /// Shows these files, the newest first.
    void Show(const QStringList& paths);
    /// Whether all pictures are drawn.
    bool IsDrawn() const { return next_ >= count(); }
    static QString PathOf(const QListWidgetItem& item) {
        return item.data(Qt::UserRole).toString();
    }

    QSize sizeHint() const override;

 Q_SIGNALS:
    void OpenWanted(const QString& path);
    void ForgetWanted(const QString& path);

 protected:
    void keyPressEvent(QKeyEvent* event) override;
    void contextMenuEvent(QContextMenuEvent* event) override;
    void showEvent(QShowEvent* event) override;
    void hideEvent(QHideEvent* event) override;
    void changeEvent(QEvent* event) override;

 private:
    void DrawAllAgain();
    void DrawNext();
    QPixmap Framed(const QPixmap& form) const;

    Draw draw_;
    QTimer idle_;
    int next_ = 0;  // the first item without its picture
};

}  // namespace lumenkit::lumenform
