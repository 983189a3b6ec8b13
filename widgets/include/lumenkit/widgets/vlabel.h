#pragma once

#include <QtCore/QVariant>
#include <QtGui/QColor>
#include <lumenkit/widgets/control_widget.h>
#include <lumenkit/widgets/event_arguments.h>
#include <lumenkit/widgets/export.h>

namespace lumenkit::widgets {

/// A label whose caption is written in a small markup language.
class LUMENKIT_WIDGETS_EXPORT VLabel : public ControlWidget {
    Q_OBJECT
    Q_PROPERTY(QString caption READ caption WRITE setCaption NOTIFY captionChanged USER true)
    Q_PROPERTY(QColor backColor READ backColor WRITE setBackColor RESET resetBackColor NOTIFY
                   backColorChanged)
    Q_PROPERTY(uint backColorValue READ backColorValue WRITE setBackColorValue RESET resetBackColor
                   NOTIFY backColorChanged)
    Q_PROPERTY(QColor foreColor READ foreColor WRITE setForeColor RESET resetForeColor NOTIFY
                   foreColorChanged)
    Q_PROPERTY(uint foreColorValue READ foreColorValue WRITE setForeColorValue RESET resetForeColor
                   NOTIFY foreColorChanged)
    Q_PROPERTY(BackStyle backStyle READ backStyle WRITE setBackStyle NOTIFY backStyleChanged)
    Q_PROPERTY(lumenkit::widgets::ControlWidget::BorderStyle borderStyle READ borderStyle WRITE
                   setBorderStyle NOTIFY borderStyleChanged)
    Q_PROPERTY(bool fontTransparent READ fontTransparent WRITE setFontTransparent NOTIFY
                   fontTransparentChanged)
    Q_PROPERTY(lumenkit::widgets::ControlWidget::MousePointer mousePointer READ mousePointer WRITE
                   setMousePointer NOTIFY mousePointerChanged)
    Q_PROPERTY(bool wordWrap READ wordWrap WRITE setWordWrap NOTIFY wordWrapChanged)
    Q_PROPERTY(int bulletIndent READ bulletIndent WRITE setBulletIndent NOTIFY bulletIndentChanged)
    Q_PROPERTY(
        QString bulletPrefix READ bulletPrefix WRITE setBulletPrefix NOTIFY bulletPrefixChanged)
    Q_PROPERTY(bool autoSize READ autoSize WRITE setAutoSize NOTIFY autoSizeChanged)

 public:
    /// Which background colour is used.
    enum BackStyle : int { OwnBackColor = 0, ContainerBackColor = 1 };
    Q_ENUM(BackStyle)

    explicit VLabel(QWidget* parent = nullptr);
    explicit VLabel(const QString& caption, QWidget* parent = nullptr);
    ~VLabel() override;

    /// The text with its markup. Initially "VLabel".
    QString caption() const;
    void setCaption(const QString& caption);

    /// Initially the background of windows (0x80000005).
    QColor backColor() const;
    void setBackColor(const QColor& color);
    uint backColorValue() const;
    void setBackColorValue(uint color);
    void resetBackColor();

    /// Initially the text of buttons (0x80000012).
    QColor foreColor() const;
    void setForeColor(const QColor& color);
    uint foreColorValue() const;
    void setForeColorValue(uint color);
    void resetForeColor();

    /// With ContainerBackColor, the background of the parent is taken over when the control starts
    /// and when backStyle or backColor is set.
    BackStyle backStyle() const;
    void setBackStyle(BackStyle style);

    BorderStyle borderStyle() const;
    void setBorderStyle(BorderStyle style);

    /// Whether the background shows behind the letters. Initially true.
    bool fontTransparent() const;
    void setFontTransparent(bool transparent);

    MousePointer mousePointer() const;
    void setMousePointer(MousePointer pointer);

    /// Whether lines wrap at the right border.
    bool wordWrap() const;
    void setWordWrap(bool wrap);

    /// The left edge of every line, in twips, -32768 to 32767. Initially 0.
    int bulletIndent() const;
    void setBulletIndent(int twips);

    /// The beginning of a line that is drawn as a bullet, such as "* ". Initially empty.
    QString bulletPrefix() const;
    void setBulletPrefix(const QString& prefix);

    /// Remembers that the control should have the size of its caption. Only setIdealSize resizes
    /// it.
    bool autoSize() const;
    void setAutoSize(bool on);

    /// Returns the caption without its markup, its lines separated by line feeds.
    QString plainText() const;

 public Q_SLOTS:
    /// Paints the caption again.
    void refresh();
    /// Resizes the control to its caption. Does nothing while wordWrap is on or the control is one
    /// to two pixels larger than the caption.
    void setIdealSize();

 public:
    /// Returns the "width" or "height" (in any case) in twips, and an invalid value for other
    /// names.
    Q_INVOKABLE QVariant getProperty(const QString& propertyName) const;
    /// Assigns the caption, to see whether it is right.
    Q_INVOKABLE void test(const QString& captionToVerify);

 Q_SIGNALS:
    void captionChanged(const QString& caption);
    void backColorChanged(const QColor& color);
    void foreColorChanged(const QColor& color);
    void backStyleChanged(lumenkit::widgets::VLabel::BackStyle style);
    void borderStyleChanged(lumenkit::widgets::ControlWidget::BorderStyle style);
    void fontTransparentChanged(bool transparent);
    void mousePointerChanged(lumenkit::widgets::ControlWidget::MousePointer pointer);
    void wordWrapChanged(bool wrap);
    void bulletIndentChanged(int twips);
    void bulletPrefixChanged(const QString& prefix);
    void autoSizeChanged(bool on);

    // The events of the control.
    void click();
    void dblClick();
    void mouseDown(lumenkit::widgets::MouseArguments* mouse);
    void mouseMove(lumenkit::widgets::MouseArguments* mouse);
    void mouseUp(lumenkit::widgets::MouseArguments* mouse);

 private:
    Q_DISABLE_COPY_MOVE(VLabel)
};

}  // namespace lumenkit::widgets
