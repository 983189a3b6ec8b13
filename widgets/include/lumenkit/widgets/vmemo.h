#pragma once

#include <QtGui/QColor>
#include <lumenkit/widgets/control_widget.h>
#include <lumenkit/widgets/event_arguments.h>
#include <lumenkit/widgets/export.h>

namespace lumenkit::widgets {

/// A text box that is limited to a number of characters in each line and a number of lines.
class LUMENKIT_WIDGETS_EXPORT VMemo : public ControlWidget {
    Q_OBJECT
    Q_PROPERTY(QString text READ text WRITE setText NOTIFY textChanged USER true)
    Q_PROPERTY(QColor foreColor READ foreColor WRITE setForeColor RESET resetForeColor NOTIFY
                   foreColorChanged)
    Q_PROPERTY(uint foreColorValue READ foreColorValue WRITE setForeColorValue RESET resetForeColor
                   NOTIFY foreColorChanged)
    Q_PROPERTY(bool causesValidation READ causesValidation WRITE setCausesValidation
                   DESIGNABLE false STORED false)
    Q_PROPERTY(QString fontName READ fontName WRITE setFontName NOTIFY fontNameChanged
                   DESIGNABLE false STORED false)
    Q_PROPERTY(double fontSize READ fontSize WRITE setFontSize NOTIFY fontSizeChanged
                   DESIGNABLE false STORED false)
    Q_PROPERTY(bool locked READ isLocked WRITE setLocked NOTIFY lockedChanged)
    Q_PROPERTY(int maxLength READ maxLength WRITE setMaxLength NOTIFY maxLengthChanged)
    Q_PROPERTY(lumenkit::widgets::ControlWidget::MousePointer mousePointer READ mousePointer WRITE
                   setMousePointer NOTIFY mousePointerChanged)
    Q_PROPERTY(ScrollBars scrollBars READ scrollBars WRITE setScrollBars NOTIFY scrollBarsChanged)
    Q_PROPERTY(int maxCharsPerLine READ maxCharsPerLine WRITE setMaxCharsPerLine NOTIFY
                   maxCharsPerLineChanged)
    Q_PROPERTY(int maxLines READ maxLines WRITE setMaxLines NOTIFY maxLinesChanged)

 public:
    enum ScrollBars : int { NoScrollBars = 0, HorizontalBar = 1, VerticalBar = 2, BothBars = 3 };
    Q_ENUM(ScrollBars)

    explicit VMemo(QWidget* parent = nullptr);
    explicit VMemo(const QString& text, QWidget* parent = nullptr);
    ~VMemo() override;

    /// The text, its lines separated by CR LF. In a text that is set, line feeds alone become CR
    /// LF. Setting it after the start fits it to the limits; before the start it is taken as it is.
    /// Initially empty.
    QString text() const;
    void setText(const QString& text);

    /// Initially the text of windows (0x80000008).
    QColor foreColor() const;
    void setForeColor(const QColor& color);
    uint foreColorValue() const;
    void setForeColorValue(uint color);
    void resetForeColor();

    /// Always true. Setting it has no effect.
    bool causesValidation() const;
    void setCausesValidation(bool causes);

    /// The family and the size, in points, of `font`.
    QString fontName() const;
    void setFontName(const QString& name);
    double fontSize() const;
    void setFontSize(double points);

    /// Whether the user can only read the text.
    bool isLocked() const;
    void setLocked(bool locked);

    /// The largest number of characters that can be typed; 0 for no limit. See `tag` for its second
    /// meaning.
    int maxLength() const;
    void setMaxLength(int length);

    MousePointer mousePointer() const;
    void setMousePointer(MousePointer pointer);

    ScrollBars scrollBars() const;
    void setScrollBars(ScrollBars bars);

    /// The largest number of characters in a line, up to 32767; 0 for no limit.
    int maxCharsPerLine() const;
    void setMaxCharsPerLine(int characters);

    /// The largest number of lines, up to 32767; 0 for no limit.
    int maxLines() const;
    void setMaxLines(int lines);

    /// Sets maxCharsPerLine to what fits into a page of this width, in the unit of the form.
    Q_INVOKABLE void setPageWidth(double width);

 public Q_SLOTS:
    void refresh();
    /// Reports an error, so that the program's messages can be tried.
    void testMessage();

 Q_SIGNALS:
    void textChanged(const QString& text);
    void foreColorChanged(const QColor& color);
    void fontNameChanged(const QString& name);
    void fontSizeChanged(double points);
    void lockedChanged(bool locked);
    void maxLengthChanged(int length);
    void mousePointerChanged(lumenkit::widgets::ControlWidget::MousePointer pointer);
    void scrollBarsChanged(lumenkit::widgets::VMemo::ScrollBars bars);
    void maxCharsPerLineChanged(int characters);
    void maxLinesChanged(int lines);

    // The events of the control.
    void click();
    void dblClick();
    void keyDown(lumenkit::widgets::KeyArguments* key);
    void keyPress(lumenkit::widgets::KeyPressArguments* key);
    void keyUp(lumenkit::widgets::KeyArguments* key);
    void mouseDown(lumenkit::widgets::MouseArguments* mouse);
    void mouseMove(lumenkit::widgets::MouseArguments* mouse);
    void mouseUp(lumenkit::widgets::MouseArguments* mouse);
    /// The user changed the text.
    void change();
    /// Declared, but never raised.
    void validate(lumenkit::widgets::ValidateArguments* validation);

 private:
    Q_DISABLE_COPY_MOVE(VMemo)
};

}  // namespace lumenkit::widgets
