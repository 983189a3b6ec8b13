#pragma once

#include <QtGui/QColor>
#include <lumenkit/widgets/control_widget.h>
#include <lumenkit/widgets/export.h>

namespace lumenkit::widgets {

/// A framed list of option buttons, which is written as one text.
class LUMENKIT_WIDGETS_EXPORT VOptList : public ControlWidget {
    Q_OBJECT
    Q_PROPERTY(QString text READ text WRITE setText NOTIFY textChanged
                   DESIGNABLE false STORED false USER true)
    Q_PROPERTY(QString value READ value NOTIFY valueChanged DESIGNABLE false STORED false)
    Q_PROPERTY(lumenkit::widgets::ControlWidget::BorderStyle borderStyle READ borderStyle WRITE
                   setBorderStyle NOTIFY borderStyleChanged)
    Q_PROPERTY(QString caption READ caption WRITE setCaption NOTIFY captionChanged)
    Q_PROPERTY(QString contents READ contents WRITE setContents NOTIFY contentsChanged)
    Q_PROPERTY(ItemAlignment itemAlignment READ itemAlignment WRITE setItemAlignment NOTIFY
                   itemAlignmentChanged)
    Q_PROPERTY(bool itemFontBold READ itemFontBold WRITE setItemFontBold NOTIFY itemFontBoldChanged)
    Q_PROPERTY(bool itemFontItalic READ itemFontItalic WRITE setItemFontItalic NOTIFY
                   itemFontItalicChanged)
    Q_PROPERTY(
        QString itemFontName READ itemFontName WRITE setItemFontName NOTIFY itemFontNameChanged)
    Q_PROPERTY(
        double itemFontSize READ itemFontSize WRITE setItemFontSize NOTIFY itemFontSizeChanged)
    Q_PROPERTY(QColor itemForeColor READ itemForeColor WRITE setItemForeColor RESET
                   resetItemForeColor NOTIFY itemForeColorChanged)
    Q_PROPERTY(uint itemForeColorValue READ itemForeColorValue WRITE setItemForeColorValue RESET
                   resetItemForeColor NOTIFY itemForeColorChanged)
    Q_PROPERTY(double leftMargin READ leftMargin WRITE setLeftMargin NOTIFY leftMarginChanged)
    Q_PROPERTY(int listIndex READ listIndex WRITE setListIndex NOTIFY listIndexChanged)
    Q_PROPERTY(double spacing READ spacing WRITE setSpacing NOTIFY spacingChanged)
    Q_PROPERTY(double topMargin READ topMargin WRITE setTopMargin NOTIFY topMarginChanged)

 public:
    /// The side of the button on which its caption is: AlignLeft has the caption on the right of
    /// the button, AlignRight on the left.
    enum ItemAlignment : int { AlignLeft = 0, AlignRight = 1 };
    Q_ENUM(ItemAlignment)

    explicit VOptList(QWidget* parent = nullptr);
    explicit VOptList(const QString& contents, QWidget* parent = nullptr);
    ~VOptList() override;

    /// The value of the selected item, or empty. Setting it selects the item with this value, if
    /// there is one, and is refused at design time.
    QString text() const;
    void setText(const QString& text);
    /// The same as `text`.
    QString value() const;

    BorderStyle borderStyle() const;
    void setBorderStyle(BorderStyle style);

    /// The caption of the frame. Initially "Frame1".
    QString caption() const;
    void setCaption(const QString& caption);

    /// The items: "value1;caption1|value2;caption2". Initially "0;Item 0".
    QString contents() const;
    void setContents(const QString& contents);

    // The look of the items. It cannot be set after the start, except at design time.

    ItemAlignment itemAlignment() const;
    void setItemAlignment(ItemAlignment alignment);
    bool itemFontBold() const;
    void setItemFontBold(bool bold);
    bool itemFontItalic() const;
    void setItemFontItalic(bool italic);
    /// Initially "MS Sans Serif" at 8.25 points.
    QString itemFontName() const;
    void setItemFontName(const QString& name);
    double itemFontSize() const;
    void setItemFontSize(double points);
    /// Initially the text of buttons (0x80000012).
    QColor itemForeColor() const;
    void setItemForeColor(const QColor& color);
    uint itemForeColorValue() const;
    void setItemForeColorValue(uint color);
    void resetItemForeColor();

    // The layout of the items, in twips. It cannot be set after the start, except at design time.

    /// Initially 0.
    double leftMargin() const;
    void setLeftMargin(double twips);
    /// The height of an item. Initially 240.
    double spacing() const;
    void setSpacing(double twips);
    /// Initially 0.
    double topMargin() const;
    void setTopMargin(double twips);

    /// The selected item, from 0; -1 for none.
    int listIndex() const;
    void setListIndex(int index);

    /// Changes the caption of an item that exists. `contents` keeps the former one.
    Q_INVOKABLE void setItemCaption(int index, const QString& caption);

 public Q_SLOTS:
    void refresh();

 Q_SIGNALS:
    void textChanged(const QString& text);
    void valueChanged(const QString& value);
    void borderStyleChanged(lumenkit::widgets::ControlWidget::BorderStyle style);
    void captionChanged(const QString& caption);
    void contentsChanged(const QString& contents);
    void itemAlignmentChanged(lumenkit::widgets::VOptList::ItemAlignment alignment);
    void itemFontBoldChanged(bool bold);
    void itemFontItalicChanged(bool italic);
    void itemFontNameChanged(const QString& name);
    void itemFontSizeChanged(double points);
    void itemForeColorChanged(const QColor& color);
    void leftMarginChanged(double twips);
    void listIndexChanged(int index);
    void spacingChanged(double twips);
    void topMarginChanged(double twips);

    /// The user or the program selected an item.
    void click();

 private:
    Q_DISABLE_COPY_MOVE(VOptList)
};

}  // namespace lumenkit::widgets
