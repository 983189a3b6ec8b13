#include "apps/lumenform/design/properties/usual_properties.h"

#include <QCoreApplication>
#include <algorithm>
#include <array>

namespace lumenkit::lumenform {

namespace {

constexpr std::array<TextView, 3> textAlignments = {u"0 - Left", u"1 - Right", u"2 - Centre"};
constexpr std::array<TextView, 6> formBorderStyles = {
    u"0 - None",         u"1 - Fixed single",      u"2 - Sizable",
    u"3 - Fixed dialog", u"4 - Fixed tool window", u"5 - Sizable tool window"};
constexpr std::array<TextView, 3> checkValues = {u"0 - Unchecked", u"1 - Checked", u"2 - Greyed"};
constexpr std::array<TextView, 3> comboStyles = {u"0 - Drop-down combo", u"1 - Simple combo",
                                                 u"2 - Drop-down list"};
constexpr std::array<TextView, 2> buttonStyles = {u"0 - Standard", u"1 - Graphical"};
constexpr std::array<TextView, 2> listStyles = {u"0 - Standard", u"1 - Check boxes"};
constexpr std::array<TextView, 3> selections = {u"0 - One item", u"1 - Several items",
                                                u"2 - Ranges of items"};
constexpr std::array<TextView, 8> scaleModes = {
    u"0 - User",       u"1 - Twips",  u"2 - Points",      u"3 - Pixels",
    u"4 - Characters", u"5 - Inches", u"6 - Millimetres", u"7 - Centimetres"};
constexpr std::array<TextView, 4> menuPositions = {u"0 - None", u"1 - Left", u"2 - Middle",
                                                   u"3 - Right"};
constexpr std::array<TextView, 4> startPositions = {
    u"0 - Manual", u"1 - Centre of owner", u"2 - Centre of screen", u"3 - Windows default"};
constexpr std::array<TextView, 3> windowStates = {u"0 - Normal", u"1 - Minimized",
                                                  u"2 - Maximized"};

constexpr std::array<TextView, 6> shapes = {
    u"0 - Rectangle",         u"1 - Square",        u"2 - Oval", u"3 - Circle",
    u"4 - Rounded rectangle", u"5 - Rounded square"};
constexpr std::array<TextView, 7> strokeStyles = {
    u"0 - Transparent", u"1 - Solid",        u"2 - Dash",        u"3 - Dot",
    u"4 - Dash-dot",    u"5 - Dash-dot-dot", u"6 - Inside solid"};
constexpr std::array<TextView, 8> fillStyles = {
    u"0 - Solid",          u"1 - Transparent",     u"2 - Horizontal lines",
    u"3 - Vertical lines", u"4 - Upward diagonal", u"5 - Downward diagonal",
    u"6 - Cross",          u"7 - Diagonal cross"};

// As for the classes of the library.
constexpr const char* backColorHelp = QT_TRANSLATE_NOOP(
    "help", "Returns/sets the background color used to display text and graphics in an object.");
constexpr const char* borderStyleHelp =
    QT_TRANSLATE_NOOP("help", "Returns/sets the border style for an object.");
constexpr const char* enabledHelp = QT_TRANSLATE_NOOP(
    "help",
    "Returns/sets a value that determines whether an object can respond to user-generated events.");
constexpr const char* fontHelp = QT_TRANSLATE_NOOP("help", "Returns a Font object.");
constexpr const char* foreColorHelp = QT_TRANSLATE_NOOP(
    "help", "Returns/sets the foreground color used to display text and graphics in an object.");
constexpr const char* mousePointerHelp = QT_TRANSLATE_NOOP(
    "help", "Returns/sets the type of mouse pointer displayed when over part of an object.");

constexpr UsualProperty ChoiceOf(TextView name, const char* help, std::int32_t otherwise,
                                 ChoiceLabels labels) {
    return {name, help, StoredType::Enumeration, otherwise, labels};
}
constexpr UsualProperty Truth(TextView name, const char* help, bool otherwise) {
    return {name, help, StoredType::Truth, otherwise, {}};
}
constexpr UsualProperty Number(TextView name, const char* help, std::int32_t otherwise) {
    return {name, help, StoredType::Whole, otherwise, {}};
}
constexpr UsualProperty ColorOf(TextView name, const char* help, Color otherwise) {
    return {name, help, StoredType::Color, static_cast<std::int32_t>(otherwise), {}};
}
constexpr UsualProperty String(TextView name, const char* help,
                               StoredType type = StoredType::Text) {
    return {name, help, type, TextView(), {}};
}

constexpr UsualProperty PictureOf(TextView name, const char* help) {
    return {name, help, StoredType::Picture, {}, {}};
}

constexpr UsualProperty textAlignment = ChoiceOf(
    u"Alignment", QT_TRANSLATE_NOOP("help", "The alignment of the text."), 0, textAlignments);
constexpr UsualProperty buttonAlignment = ChoiceOf(
    u"Alignment", QT_TRANSLATE_NOOP("help", "The side of the text on which the mark is drawn."), 0,
    choices::buttonAlignments);
constexpr UsualProperty buttonStyle = ChoiceOf(
    u"Style",
    QT_TRANSLATE_NOOP("help", "Determines whether the button has its own pictures and background."),
    0, buttonStyles);
constexpr UsualProperty backColor = {u"BackColor", backColorHelp, StoredType::Color};
constexpr UsualProperty foreColor = {u"ForeColor", foreColorHelp, StoredType::Color};
constexpr UsualProperty caption = String(
    u"Caption",
    QT_TRANSLATE_NOOP("help", "The text of the object. The letter after & is its access key."));
constexpr UsualProperty enabled = Truth(u"Enabled", enabledHelp, true);
constexpr UsualProperty font = {u"Font", fontHelp, StoredType::Font};
constexpr UsualProperty toolTip =
    String(u"ToolTipText",
           QT_TRANSLATE_NOOP("help", "The text that appears when the mouse rests on the object."));
constexpr UsualProperty locked = Truth(
    u"Locked", QT_TRANSLATE_NOOP("help", "Determines whether a control can be edited."), false);
constexpr UsualProperty border =
    ChoiceOf(u"BorderStyle", borderStyleHelp, 1, choices::borderStyles);
constexpr UsualProperty noBorder =
    ChoiceOf(u"BorderStyle", borderStyleHelp, 0, choices::borderStyles);
constexpr UsualProperty borderColor = ColorOf(
    u"BorderColor", QT_TRANSLATE_NOOP("help", "The colour of the border."), Color::WindowText);
constexpr UsualProperty borderWidth =
    Number(u"BorderWidth", QT_TRANSLATE_NOOP("help", "The width of the border in pixels."), 1);
constexpr UsualProperty strokeStyle = ChoiceOf(
    u"BorderStyle",
    QT_TRANSLATE_NOOP(
        "help",
        "The line style of the border. A border wider than one pixel is drawn without gaps."),
    1, strokeStyles);
constexpr UsualProperty scaleMode =
    ChoiceOf(u"ScaleMode",
             QT_TRANSLATE_NOOP("help", "The unit of measure for the ends of the contained lines."),
             1, scaleModes);
constexpr UsualProperty clientHeight = {
    u"ClientHeight", QT_TRANSLATE_NOOP("help", "The height of the form's client area in twips."),
    StoredType::Number};
constexpr UsualProperty clientWidth = {
    u"ClientWidth", QT_TRANSLATE_NOOP("help", "The width of the form's client area in twips."),
    StoredType::Number};

constexpr UsualProperty picture =
    PictureOf(u"Picture", QT_TRANSLATE_NOOP("help", "The picture of the object."));
constexpr UsualProperty downPicture = PictureOf(
    u"DownPicture", QT_TRANSLATE_NOOP("help", "The picture of a pressed button, if Style is 1."));
constexpr UsualProperty disabledPicture =
    PictureOf(u"DisabledPicture",
              QT_TRANSLATE_NOOP("help", "The picture of a disabled button, if Style is 1."));
constexpr UsualProperty mouseIcon =
    PictureOf(u"MouseIcon", QT_TRANSLATE_NOOP("help", "The mouse pointer, if MousePointer is 99."));
constexpr UsualProperty dragIcon = PictureOf(
    u"DragIcon", QT_TRANSLATE_NOOP("help", "The mouse pointer while the object is dragged."));

// ---- Properties that many classes share

constexpr std::array<TextView, 2> appearances = {u"0 - Flat", u"1 - 3D"};
constexpr std::array<TextView, 2> dragModes = {u"0 - By code", u"1 - By mouse"};
constexpr std::array<TextView, 2> oleDragModes = {u"0 - By code", u"1 - By mouse"};
constexpr std::array<TextView, 3> oleDropModes = {u"0 - None", u"1 - By code",
                                                  u"2 - By the control"};
constexpr std::array<TextView, 5> alignedEdges = {u"0 - None", u"1 - Top", u"2 - Bottom",
                                                  u"3 - Left", u"4 - Right"};

constexpr UsualProperty causesValidation = Truth(
    u"CausesValidation",
    QT_TRANSLATE_NOOP("help", "Determines whether the control that loses the focus is validated."),
    true);
constexpr UsualProperty dragMode = ChoiceOf(
    u"DragMode",
    QT_TRANSLATE_NOOP("help", "Determines whether the mouse or the program starts a drag."), 0,
    dragModes);
constexpr UsualProperty helpContextId =
    Number(u"HelpContextID",
           QT_TRANSLATE_NOOP("help", "The number of the help topic for F1. 0: none."), 0);
constexpr UsualProperty whatsThisHelpId = Number(
    u"WhatsThisHelpID",
    QT_TRANSLATE_NOOP("help", "The number of the help topic that a popup shows. 0: none."), 0);

constexpr std::array looks = {
    ChoiceOf(u"Appearance",
             QT_TRANSLATE_NOOP("help", "Determines whether the object is flat or looks raised."), 1,
             appearances),
    Truth(u"RightToLeft",
          QT_TRANSLATE_NOOP("help", "Determines whether the text runs from right to left."),
          false)};
constexpr std::array pointing = {
    ChoiceOf(u"MousePointer", mousePointerHelp, 0, choices::mousePointers), mouseIcon,
    ChoiceOf(u"OLEDropMode",
             QT_TRANSLATE_NOOP("help", "Determines how the object takes dropped data."), 0,
             oleDropModes)};
constexpr std::array dragging = {dragMode, dragIcon};
constexpr std::array validating = {causesValidation};
constexpr std::array dataDragging = {ChoiceOf(
    u"OLEDragMode",
    QT_TRANSLATE_NOOP("help", "Determines whether the mouse or the program starts a drag of data."),
    0, oleDragModes)};
constexpr std::array binding = {
    String(u"DataField",
           QT_TRANSLATE_NOOP("help", "The field of the record that the control shows.")),
    String(u"DataMember", QT_TRANSLATE_NOOP("help", "The set of records that the control shows."))};
constexpr std::array masking = {
    ColorOf(u"MaskColor",
            QT_TRANSLATE_NOOP("help", "The colour of the picture that is transparent."),
            Rgb(192, 192, 192)),
    Truth(u"UseMaskColor",
          QT_TRANSLATE_NOOP("help", "Determines whether MaskColor is transparent."), false)};
constexpr std::array painting = {
    Truth(u"AutoRedraw",
          QT_TRANSLATE_NOOP("help", "Determines whether the object keeps what is drawn on it."),
          false),
    Truth(u"ClipControls",
          QT_TRANSLATE_NOOP("help", "Determines whether drawing leaves out the controls."), true),
    Number(u"DrawMode",
           QT_TRANSLATE_NOOP("help",
                             "How drawn colours are combined with the background. 13: copied."),
           13),
    Number(u"DrawStyle", QT_TRANSLATE_NOOP("help", "The style of drawn lines. 0: solid."), 0),
    Number(u"DrawWidth", QT_TRANSLATE_NOOP("help", "The width of drawn lines in pixels."), 1),
    ColorOf(u"FillColor", QT_TRANSLATE_NOOP("help", "The colour that fills drawn shapes."),
            Rgb(0, 0, 0)),
    ChoiceOf(u"FillStyle", QT_TRANSLATE_NOOP("help", "The pattern that fills drawn shapes."), 1,
             fillStyles),
    Truth(u"FontTransparent",
          QT_TRANSLATE_NOOP("help", "Determines whether the background is seen behind drawn text."),
          true),
    Truth(u"HasDC",
          QT_TRANSLATE_NOOP("help",
                            "Determines whether the object has a drawing context of its own."),
          true)};

// ---- The classes

constexpr std::array checkBox = {
    buttonAlignment,
    backColor,
    caption,
    downPicture,
    disabledPicture,
    enabled,
    font,
    foreColor,
    buttonStyle,
    picture,
    toolTip,
    ChoiceOf(u"Value", QT_TRANSLATE_NOOP("help", "The state of the check box."), 0, checkValues)};
constexpr std::array comboBox = {
    backColor,
    enabled,
    font,
    foreColor,
    locked,
    ChoiceOf(u"Style",
             QT_TRANSLATE_NOOP(
                 "help", "Determines whether the user can type a text, choose an item, or both."),
             0, comboStyles),
    Truth(u"IntegralHeight",
          QT_TRANSLATE_NOOP("help", "Determines whether the list shows only complete items."),
          true),
    Truth(u"Sorted", QT_TRANSLATE_NOOP("help", "Determines whether the items are sorted."), false),
    String(u"Text", QT_TRANSLATE_NOOP("help", "The text in the box.")),
    toolTip};
constexpr std::array commandButton = {
    backColor,
    Truth(u"Cancel", QT_TRANSLATE_NOOP("help", "Determines whether Esc presses the button."),
          false),
    caption,
    Truth(u"Default", QT_TRANSLATE_NOOP("help", "Determines whether Enter presses the button."),
          false),
    enabled,
    font,
    buttonStyle,
    downPicture,
    disabledPicture,
    picture,
    toolTip};
constexpr std::array frame = {
    backColor,
    border,
    Truth(u"ClipControls",
          QT_TRANSLATE_NOOP("help", "Determines whether drawing leaves out the controls."), true),
    caption,
    enabled,
    font,
    foreColor,
    toolTip};
constexpr std::array image = {
    noBorder, enabled, picture,
    Truth(u"Stretch",
          QT_TRANSLATE_NOOP(
              "help", "Determines whether the picture is stretched to the size of the control."),
          false),
    toolTip};
constexpr std::array label = {
    textAlignment,
    Truth(u"AutoSize",
          QT_TRANSLATE_NOOP("help", "Determines whether the label is resized to fit its text."),
          false),
    backColor,
    ChoiceOf(
        u"BackStyle",
        QT_TRANSLATE_NOOP("help", "Determines whether the background is transparent or opaque."), 1,
        choices::backStyles),
    noBorder,
    caption,
    enabled,
    font,
    foreColor,
    toolTip,
    Truth(u"UseMnemonic", QT_TRANSLATE_NOOP("help", "Determines whether & marks an access key."),
          true),
    Truth(u"WordWrap",
          QT_TRANSLATE_NOOP(
              "help",
              "With AutoSize: determines whether the label wraps its text and grows downwards."),
          false)};
constexpr std::array menu = {
    caption,
    Truth(u"Checked",
          QT_TRANSLATE_NOOP("help", "Determines whether a check mark is beside the menu."), false),
    enabled,
    helpContextId,
    ChoiceOf(
        u"NegotiatePosition",
        QT_TRANSLATE_NOOP(
            "help",
            "The position of the menu in the menu bar while an object with a menu bar of its own "
            "is active."),
        0, menuPositions),
    Truth(u"Visible",
          QT_TRANSLATE_NOOP("help", "Determines whether the menu is visible when the form runs."),
          true),
    Truth(u"WindowList",
          QT_TRANSLATE_NOOP("help",
                            "Determines whether the menu lists the child windows of an MDI form."),
          false)};
constexpr std::array<UsualProperty, 7> line = {
    borderColor,
    strokeStyle,
    borderWidth,
    {u"X1", QT_TRANSLATE_NOOP("help", "The horizontal position of the first end of the line."),
     StoredType::Number},
    {u"X2", QT_TRANSLATE_NOOP("help", "The horizontal position of the second end of the line."),
     StoredType::Number},
    {u"Y1", QT_TRANSLATE_NOOP("help", "The vertical position of the first end of the line."),
     StoredType::Number},
    {u"Y2", QT_TRANSLATE_NOOP("help", "The vertical position of the second end of the line."),
     StoredType::Number}};
constexpr std::array listBox = {
    backColor,
    Number(u"Columns",
           QT_TRANSLATE_NOOP(
               "help", "The number of visible columns. 0: one column that scrolls up and down."),
           0),
    enabled,
    font,
    foreColor,
    Truth(u"IntegralHeight",
          QT_TRANSLATE_NOOP("help", "Determines whether the list shows only complete items."),
          true),
    ChoiceOf(u"MultiSelect",
             QT_TRANSLATE_NOOP("help", "Determines how many items the user can select."), 0,
             selections),
    Truth(u"Sorted", QT_TRANSLATE_NOOP("help", "Determines whether the items are sorted."), false),
    ChoiceOf(u"Style", QT_TRANSLATE_NOOP("help", "Determines whether each item has a check box."),
             0, listStyles),
    toolTip};
constexpr std::array optionButton = {
    buttonAlignment,
    backColor,
    caption,
    downPicture,
    disabledPicture,
    picture,
    enabled,
    font,
    foreColor,
    buttonStyle,
    toolTip,
    Truth(u"Value", QT_TRANSLATE_NOOP("help", "Determines whether the option button is selected."),
          false)};
constexpr std::array pictureBox = {
    ChoiceOf(u"Align",
             QT_TRANSLATE_NOOP("help", "The edge of the form along which the picture box lies."), 0,
             alignedEdges),
    Truth(u"AutoSize",
          QT_TRANSLATE_NOOP("help", "Determines whether the picture box fits its picture."), false),
    backColor,
    border,
    enabled,
    font,
    foreColor,
    scaleMode,
    picture,
    toolTip};
constexpr std::array scrollBar = {
    enabled,
    Number(u"LargeChange",
           QT_TRANSLATE_NOOP("help", "The change of the value when the user clicks the bar."), 1),
    Number(u"Max", QT_TRANSLATE_NOOP("help", "The value at the right or lower end."), 32767),
    Number(u"Min", QT_TRANSLATE_NOOP("help", "The value at the left or upper end."), 0),
    Number(u"SmallChange",
           QT_TRANSLATE_NOOP("help", "The change of the value when the user clicks an arrow."), 1),
    Number(u"Value", QT_TRANSLATE_NOOP("help", "The position of the scroll box."), 0)};
constexpr std::array shape = {
    backColor,
    ChoiceOf(
        u"BackStyle",
        QT_TRANSLATE_NOOP("help", "Determines whether the background is transparent or opaque."), 0,
        choices::backStyles),
    borderColor,
    strokeStyle,
    borderWidth,
    ColorOf(u"FillColor", QT_TRANSLATE_NOOP("help", "The colour that fills the shape."),
            Rgb(0, 0, 0)),
    ChoiceOf(u"FillStyle", QT_TRANSLATE_NOOP("help", "The pattern that fills the shape."), 1,
             fillStyles),
    ChoiceOf(u"Shape", QT_TRANSLATE_NOOP("help", "The kind of shape."), 0, shapes)};
constexpr std::array textBox = {
    textAlignment,
    backColor,
    border,
    enabled,
    font,
    foreColor,
    Truth(
        u"HideSelection",
        QT_TRANSLATE_NOOP("help", "Determines whether the selection is hidden without the focus."),
        true),
    locked,
    Number(u"MaxLength",
           QT_TRANSLATE_NOOP(
               "help",
               "Returns/sets the maximum number of characters that can be entered in a control."),
           0),
    Truth(u"MultiLine",
          QT_TRANSLATE_NOOP("help", "Determines whether the text box can contain several lines."),
          false),
    String(
        u"PasswordChar",
        QT_TRANSLATE_NOOP("help", "The character that is shown in place of each typed character.")),
    ChoiceOf(u"ScrollBars", QT_TRANSLATE_NOOP("help", "The scroll bars of the text box."), 0,
             choices::scrollBars),
    String(u"Text", QT_TRANSLATE_NOOP("help", "Returns/sets the text contained in the control."),
           StoredType::LongText),
    toolTip};
constexpr std::array timer = {
    enabled,
    Number(u"Interval",
           QT_TRANSLATE_NOOP(
               "help", "The time between two events in milliseconds. 0 switches the timer off."),
           0)};
constexpr UsualProperty formTag = String(
    u"Tag", QT_TRANSLATE_NOOP("help", "A text for the use of the program."), StoredType::LongText);

constexpr std::array form = {
    backColor,
    ChoiceOf(u"BorderStyle", borderStyleHelp, 2, formBorderStyles),
    String(u"Caption", QT_TRANSLATE_NOOP("help", "The text in the title bar.")),
    clientHeight,
    clientWidth,
    Truth(u"ControlBox",
          QT_TRANSLATE_NOOP("help",
                            "Determines whether the title bar has a system menu and buttons."),
          true),
    enabled,
    font,
    foreColor,
    PictureOf(u"Icon", QT_TRANSLATE_NOOP("help", "The icon in the title bar of the form.")),
    picture,
    helpContextId,
    Truth(u"KeyPreview",
          QT_TRANSLATE_NOOP("help",
                            "Determines whether the form receives key events before its controls."),
          false),
    Truth(u"MaxButton", QT_TRANSLATE_NOOP("help", "Determines whether the form can be maximized."),
          true),
    Truth(
        u"MDIChild",
        QT_TRANSLATE_NOOP("help", "Determines whether the form is a child window of an MDI form."),
        false),
    Truth(u"MinButton", QT_TRANSLATE_NOOP("help", "Determines whether the form can be minimized."),
          true),
    Truth(u"Moveable", QT_TRANSLATE_NOOP("help", "Determines whether the user can move the form."),
          true),
    scaleMode,
    Truth(u"ShowInTaskbar",
          QT_TRANSLATE_NOOP("help", "Determines whether the form is shown in the taskbar."), true),
    ChoiceOf(u"StartUpPosition",
             QT_TRANSLATE_NOOP("help", "The position of the form when it is first shown."), 3,
             startPositions),
    formTag,
    Truth(u"Visible", QT_TRANSLATE_NOOP("help", "Determines whether the form is visible."), true),
    Truth(u"WhatsThisButton",
          QT_TRANSLATE_NOOP("help", "Determines whether the title bar has a help button."), false),
    Truth(u"WhatsThisHelp",
          QT_TRANSLATE_NOOP("help", "Determines whether help topics are shown in a popup."), false),
    ChoiceOf(u"WindowState",
             QT_TRANSLATE_NOOP("help", "The state of the window when it is first shown."), 0,
             windowStates)};
constexpr std::array mdiForm = {
    backColor,
    String(u"Caption", QT_TRANSLATE_NOOP("help", "The text in the title bar.")),
    clientHeight,
    clientWidth,
    enabled,
    PictureOf(u"Icon", QT_TRANSLATE_NOOP("help", "The icon in the title bar of the form.")),
    picture};
// User controls, property pages and documents.
constexpr std::array designed = {backColor, clientHeight, clientWidth, enabled,
                                 font,      foreColor,    scaleMode,   picture};

using Properties = std::span<const UsualProperty>;

struct UsualClass {
    TextView name;
    std::array<Properties, 7> parts;
};

constexpr std::array classes = {
    UsualClass{u"VB.CheckBox", {checkBox, looks, pointing, dragging, validating, binding, masking}},
    UsualClass{u"VB.ComboBox",
               {comboBox, looks, pointing, dragging, validating, binding, dataDragging}},
    UsualClass{u"VB.CommandButton",
               {commandButton, looks, pointing, dragging, validating, masking}},
    UsualClass{u"VB.Form", {form, looks, pointing, painting}},
    UsualClass{u"VB.Frame", {frame, looks, pointing, dragging}},
    UsualClass{u"VB.HScrollBar", {scrollBar, pointing, dragging, validating}},
    UsualClass{u"VB.Image", {image, pointing, dragging, binding, dataDragging}},
    UsualClass{u"VB.Label", {label, looks, pointing, dragging, binding}},
    UsualClass{u"VB.Line", {line}},
    UsualClass{u"VB.ListBox",
               {listBox, looks, pointing, dragging, validating, binding, dataDragging}},
    UsualClass{u"VB.MDIForm", {mdiForm, pointing}},
    UsualClass{u"VB.Menu", {menu}},
    UsualClass{u"VB.OptionButton", {optionButton, looks, pointing, dragging, validating, masking}},
    UsualClass{u"VB.PictureBox",
               {pictureBox, looks, pointing, dragging, validating, binding, painting}},
    UsualClass{u"VB.PropertyPage", {designed, pointing, painting}},
    UsualClass{u"VB.Shape", {shape}},
    UsualClass{u"VB.TextBox",
               {textBox, looks, pointing, dragging, validating, binding, dataDragging}},
    UsualClass{u"VB.Timer", {timer}},
    UsualClass{u"VB.UserControl", {designed, pointing, painting}},
    UsualClass{u"VB.UserDocument", {designed, pointing, painting}},
    UsualClass{u"VB.VScrollBar", {scrollBar, pointing, dragging, validating}},
};

// Properties with the same meaning in every class.
constexpr std::array shared = {backColor, caption, enabled,       font,
                               foreColor, toolTip, helpContextId, whatsThisHelpId};
constexpr std::array<Properties, 6> common = {shared,   looks,      pointing,
                                              dragging, validating, dataDragging};

}  // namespace

std::vector<UsualProperty> UsualPropertiesOf(TextView className) {
    const auto* const found = std::ranges::find_if(classes, [&](const UsualClass& known) {
        return SameText(known.name, className, Compare::IgnoreCase);
    });
    std::vector<UsualProperty> properties;
    if (found != classes.end()) {
        for (const Properties part : found->parts) {
            properties.insert(properties.end(), part.begin(), part.end());
        }
    }
    return properties;
}

const UsualProperty* FindCommonProperty(TextView name) {
    for (const Properties part : common) {
        for (const UsualProperty& property : part) {
            if (SameText(property.name, name, Compare::IgnoreCase)) {
                return &property;
            }
        }
    }
    return nullptr;
}

}  // namespace lumenkit::lumenform
