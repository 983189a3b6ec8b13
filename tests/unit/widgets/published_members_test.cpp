// Every member of the controls' published interfaces is a property, a method or a signal of its
// widget.
#include <QMetaMethod>
#include <QMetaProperty>
#include <map>
#include <string>

#include <gtest/gtest.h>
#include <lumenkit/widgets/vlabel.h>
#include <lumenkit/widgets/vmemo.h>
#include <lumenkit/widgets/voptlist.h>

#include "project/lumenkit_classes.h"
#include "runtime/qt/qt_text.h"

namespace lumenkit::testing {
namespace {

struct Published {
    TextView name;
    const QMetaObject* widget;
};

class PublishedMembers : public ::testing::TestWithParam<Published> {
 protected:
    const ClassDescriptor& Class() const { return *lumenkitClasses.Find(GetParam().name); }
    const QMetaObject& Widget() const { return *GetParam().widget; }

    static QByteArray QtName(TextView name) {
        QByteArray text = qt::ToQString(name).toLatin1();
        text[0] = static_cast<char>(std::tolower(text[0]));
        return text;
    }
    QMetaProperty PropertyOf(const QByteArray& name) const {
        return Widget().property(Widget().indexOfProperty(name));
    }
    QMetaMethod MethodOf(const QByteArray& name) const {
        for (int index = Widget().methodCount() - 1; index >= 0; --index) {
            if (Widget().method(index).name() == name) {
                return Widget().method(index);
            }
        }
        return {};
    }
};

QMetaType TypeOf(const Member& member) {
    switch (member.type) {
        case ValueType::Boolean:
            return QMetaType::fromType<bool>();
        case ValueType::Color:
            return QMetaType::fromType<QColor>();
        case ValueType::Font:
            return QMetaType::fromType<QFont>();
        case ValueType::Integer:
        case ValueType::Long:
            return QMetaType::fromType<int>();
        case ValueType::Single:
            return QMetaType::fromType<double>();
        case ValueType::String:
            return QMetaType::fromType<QString>();
        default:
            return {};  // an enumeration of the widget
    }
}

TEST_P(PublishedMembers, PropertiesAreOfQtsTypesAndAsWritable) {
    for (const Member& member : Class().interfaceTable->members) {
        if (member.kind != MemberKind::Property || member.read == nullptr) {
            continue;
        }
        const QByteArray name = QtName(member.name);
        const QMetaProperty property = PropertyOf(name);
        ASSERT_TRUE(property.isValid()) << name.constData();
        EXPECT_TRUE(property.isReadable()) << name.constData();
        EXPECT_EQ(property.isWritable(), member.assign != nullptr) << name.constData();
        if (property.isEnumType()) {
            EXPECT_GE(property.enumerator().keyCount(), 2) << name.constData();
        } else {
            EXPECT_EQ(property.metaType(), TypeOf(member)) << name.constData();
        }
    }
}

TEST_P(PublishedMembers, PropertiesTellTheirChanges) {
    for (const Member& member : Class().interfaceTable->members) {
        const QByteArray name = QtName(member.name);
        // Those of QWidget have events; the validation never changes.
        const bool isSilent = name == "enabled" || name == "font" || name == "causesValidation";
        if (member.kind == MemberKind::Property && member.read != nullptr && !isSilent) {
            EXPECT_TRUE(PropertyOf(name).hasNotifySignal()) << name.constData();
        }
    }
}

TEST_P(PublishedMembers, ColoursAreAlsoNumbersAndCanBeReset) {
    for (const Member& member : Class().interfaceTable->members) {
        if (member.type == ValueType::Color) {
            const QByteArray name = QtName(member.name);
            EXPECT_TRUE(PropertyOf(name).isResettable()) << name.constData();
            EXPECT_EQ(PropertyOf(name + "Value").metaType(), QMetaType::fromType<uint>());
        }
    }
}

TEST_P(PublishedMembers, WriteOnlyPropertiesAndMethodsAreMethods) {
    for (const Member& member : Class().interfaceTable->members) {
        QByteArray name = QtName(member.name);
        auto count = static_cast<int>(member.parameters.size());
        if (member.kind == MemberKind::Property) {
            if (member.read != nullptr) {
                continue;
            }
            name = "set" + qt::ToQString(member.name).toLatin1();
            ++count;
        }
        const QMetaMethod method = MethodOf(name);
        ASSERT_TRUE(method.isValid()) << name.constData();
        EXPECT_EQ(method.parameterCount(), count) << name.constData();
        EXPECT_EQ(method.access(), QMetaMethod::Public) << name.constData();
    }
}

TEST_P(PublishedMembers, EventsAreSignals) {
    for (const Event& event : Class().eventTable->events) {
        const QByteArray name = QtName(event.name);
        const QMetaMethod signal = MethodOf(name);
        ASSERT_TRUE(signal.isValid()) << name.constData();
        EXPECT_EQ(signal.methodType(), QMetaMethod::Signal) << name.constData();
        ASSERT_EQ(signal.parameterCount(), event.parameters.empty() ? 0 : 1) << name.constData();
        if (event.parameters.empty()) {
            continue;
        }
        const QMetaObject* const arguments = signal.parameterMetaType(0).metaObject();
        ASSERT_NE(arguments, nullptr) << name.constData();
        for (const Parameter& parameter : event.parameters) {
            const int index = arguments->indexOfProperty(QtName(parameter.name));
            ASSERT_GE(index, 0) << QtName(parameter.name).constData();
            EXPECT_TRUE(arguments->property(index).isWritable());
        }
    }
}

TEST_P(PublishedMembers, TheDefaultMemberIsTheUsersProperty) {
    const Member* const member = Class().interfaceTable->Find(defaultMember);
    EXPECT_EQ(Widget().userProperty().name(), QtName(member->name));
}

INSTANTIATE_TEST_SUITE_P(
    Controls, PublishedMembers,
    ::testing::Values(Published{u"lumenkit.VLabel", &widgets::VLabel::staticMetaObject},
                      Published{u"lumenkit.VMemo", &widgets::VMemo::staticMetaObject},
                      Published{u"lumenkit.VOptList", &widgets::VOptList::staticMetaObject}),
    [](const auto& published) {
        return std::string(published.param.widget->className()).substr(19);
    });

}  // namespace
}  // namespace lumenkit::testing
