#include "widgets/designer/control_classes.h"

#include <QCoreApplication>

#include <lumenkit/widgets/vlabel.h>
#include <lumenkit/widgets/vmemo.h>
#include <lumenkit/widgets/voptlist.h>

#include "widgets/designer/edit_caption.h"
#include "widgets/designer/items_dialog.h"
#include "widgets/designer/text_dialog.h"

namespace lumenkit::designer {

namespace {

QString Told(const char* text) {
    return QCoreApplication::translate("lumenkit::designer::ControlClass", text);
}

template <typename Widget>
widgets::ControlWidget* Create(QWidget* parent) {
    return new Widget(parent);
}

QList<PropertyChange> Changed(const QByteArray& property, const std::optional<QString>& text) {
    return text ? QList<PropertyChange>{{property, *text}} : QList<PropertyChange>();
}

QList<PropertyChange> EditTextOf(QWidget* parent, const QWidget& memo) {
    return Changed("text", EditText(parent, Told("Edit text"), memo.property("text").toString()));
}

QList<PropertyChange> EditItemsOf(QWidget* parent, const QWidget& list) {
    return Changed("contents", EditItems(parent, list.property("contents").toString()));
}

}  // namespace

ControlClass LabelClass() {
    return {
        .name = QStringLiteral("lumenkit::widgets::VLabel"),
        .header = QStringLiteral("<lumenkit/widgets/vlabel.h>"),
        .picture = QStringLiteral(":/lumenkit/vlabel.bmp"),
        .toolTip = Told("A label with bold, coloured and bulleted text"),
        .whatsThis = Told("A label whose caption is written in a small markup language: bold, "
                          "italics, colours, sizes, bullets, word wrap."),
        .domXml = QStringLiteral(R"xml(
<ui language="c++" displayname="VLabel">
 <widget class="lumenkit::widgets::VLabel" name="label">
  <property name="geometry">
   <rect><x>0</x><y>0</y><width>120</width><height>24</height></rect>
  </property>
  <property name="caption"><string>VLabel</string></property>
 </widget>
 <customwidgets>
  <customwidget>
   <class>lumenkit::widgets::VLabel</class>
   <extends>QWidget</extends>
   <propertyspecifications>
    <stringpropertyspecification name="caption" type="multiline"/>
    <stringpropertyspecification name="bulletPrefix" type="singleline" notr="true"/>
    <stringpropertyspecification name="tag" type="singleline" notr="true"/>
   </propertyspecifications>
  </customwidget>
 </customwidgets>
</ui>
)xml"),
        .create = Create<widgets::VLabel>,
        .command = Told("Edit &caption..."),
        .edit = EditCaption,
    };
}

ControlClass MemoClass() {
    return {
        .name = QStringLiteral("lumenkit::widgets::VMemo"),
        .header = QStringLiteral("<lumenkit/widgets/vmemo.h>"),
        .picture = QStringLiteral(":/lumenkit/vmemo.bmp"),
        .toolTip = Told("A text box with limited lines"),
        .whatsThis = Told("A text box that is limited to a number of characters in each line and "
                          "a number of lines."),
        .domXml = QStringLiteral(R"xml(
<ui language="c++" displayname="VMemo">
 <widget class="lumenkit::widgets::VMemo" name="memo">
  <property name="geometry">
   <rect><x>0</x><y>0</y><width>160</width><height>80</height></rect>
  </property>
 </widget>
 <customwidgets>
  <customwidget>
   <class>lumenkit::widgets::VMemo</class>
   <extends>QWidget</extends>
   <propertyspecifications>
    <stringpropertyspecification name="text" type="multiline"/>
    <stringpropertyspecification name="fontName" type="singleline" notr="true"/>
    <stringpropertyspecification name="tag" type="singleline" notr="true"/>
   </propertyspecifications>
  </customwidget>
 </customwidgets>
</ui>
)xml"),
        .create = Create<widgets::VMemo>,
        .command = Told("Edit &text..."),
        .edit = EditTextOf,
    };
}

ControlClass OptionListClass() {
    return {
        .name = QStringLiteral("lumenkit::widgets::VOptList"),
        .header = QStringLiteral("<lumenkit/widgets/voptlist.h>"),
        .picture = QStringLiteral(":/lumenkit/voptlist.bmp"),
        .toolTip = Told("A framed list of option buttons"),
        .whatsThis = Told("A framed list of option buttons, each with a value and a caption."),
        .domXml = QStringLiteral(R"xml(
<ui language="c++" displayname="VOptList">
 <widget class="lumenkit::widgets::VOptList" name="optionList">
  <property name="geometry">
   <rect><x>0</x><y>0</y><width>140</width><height>80</height></rect>
  </property>
  <property name="caption"><string>Options</string></property>
  <property name="contents"><string>1;First|2;Second</string></property>
  <property name="leftMargin"><double>120</double></property>
  <property name="topMargin"><double>240</double></property>
 </widget>
 <customwidgets>
  <customwidget>
   <class>lumenkit::widgets::VOptList</class>
   <extends>QWidget</extends>
   <propertyspecifications>
    <stringpropertyspecification name="caption" type="singleline"/>
    <stringpropertyspecification name="contents" type="singleline"/>
    <stringpropertyspecification name="itemFontName" type="singleline" notr="true"/>
    <stringpropertyspecification name="tag" type="singleline" notr="true"/>
   </propertyspecifications>
  </customwidget>
 </customwidgets>
</ui>
)xml"),
        .create = Create<widgets::VOptList>,
        .command = Told("Edit &list..."),
        .edit = EditItemsOf,
    };
}

}  // namespace lumenkit::designer
