#pragma once

#include <memory>

#include <QtWidgets/QWidget>
#include <lumenkit/widgets/export.h>

namespace lumenkit::widgets {

class CoreAccess;
class ControlCore;

/// The base of the three controls: VLabel, VMemo and VOptList.
///
/// **Before and after the start.** A control starts when it is shown for the first time. What is
/// set before reaches it as the settings of a saved form do: no rule refuses it and no event is
/// raised. After the start the control's rules for design time and run time hold. A setter that
/// they refuse changes nothing, and the control reports the error (see setMessageHandler). Reading
/// a property never reports an error: it returns the stored value.
///
/// **Values.** A number that the control cannot hold is refused with a warning (qWarning). Lengths
/// are in twips (1/1440 inch). Colours are available as QColor and as the 32-bit number that forms
/// save: red + 256 * green + 65536 * blue, or 0x80000000 plus the number of a system colour. System
/// colours are those of the widget's palette. Resetting a colour sets the system colour that it has
/// at first.
///
/// **Font, colours, size.** `font`, `enabled`, `toolTip` and so on are QWidget's own. A control
/// without a font of its own has that of its parent.
///
/// **Threads and errors.** Controls are used on the thread of the user interface. No function
/// throws (except std::bad_alloc), and a slot must not throw. A slot that is called by a control
/// destroys that control with deleteLater, not with delete.
class LUMENKIT_WIDGETS_EXPORT ControlWidget : public QWidget {
    Q_OBJECT
    Q_PROPERTY(QString tag READ tag WRITE setTag NOTIFY tagChanged)

 public:
    /// The border around a control.
    enum BorderStyle : int { NoBorder = 0, FixedSingle = 1 };
    Q_ENUM(BorderStyle)

    /// The mouse pointer over a control.
    enum MousePointer : int {
        DefaultPointer = 0,
        ArrowPointer = 1,
        CrosshairPointer = 2,
        IBeamPointer = 3,
        IconPointer = 4,
        SizePointer = 5,
        SizeNESWPointer = 6,
        SizeNSPointer = 7,
        SizeNWSEPointer = 8,
        SizeWEPointer = 9,
        UpArrowPointer = 10,
        HourglassPointer = 11,
        NoDropPointer = 12,
        ArrowHourglassPointer = 13,
        ArrowQuestionPointer = 14,
        SizeAllPointer = 15,
        CustomPointer = 99
    };
    Q_ENUM(MousePointer)

    ~ControlWidget() override;

    /// A text for the program's own use. A VMemo with the tag "Return hWnd via ML" returns the
    /// identifier of its window as `maxLength`.
    QString tag() const;
    void setTag(const QString& tag);

    /// Whether the control is edited in a designer. It then takes no input and raises no events,
    /// and its rules for design time hold. Initially false.
    bool isDesignMode() const;
    /// Must be called before the first show. Later calls have no effect and cause a warning.
    Q_INVOKABLE void setDesignMode(bool on);

    bool hasHeightForWidth() const override;
    int heightForWidth(int width) const override;
    QSize sizeHint() const override;
    QSize minimumSizeHint() const override;

 Q_SIGNALS:
    void tagChanged(const QString& tag);

 protected:
    ControlWidget(std::unique_ptr<ControlCore> core, QWidget* parent);

    void changeEvent(QEvent* event) override;
    void resizeEvent(QResizeEvent* event) override;
    void showEvent(QShowEvent* event) override;

    ControlCore& core() const { return *core_; }

 private:
    friend class CoreAccess;
    Q_DISABLE_COPY_MOVE(ControlWidget)

    std::unique_ptr<ControlCore> core_;
};

}  // namespace lumenkit::widgets
