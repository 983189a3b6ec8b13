#include "tests/ole/container/sinks.h"
#include "tests/unit/ole/ole_test.h"

namespace lumenkit::ole {
namespace {

class EventsTest : public OleTest {
 protected:
    Late memo_{Create<IDispatch>(u"VMemo")};
    container::CallLog log_;

    ComPtr<IConnectionPoint> Point(REFIID interfaceId) {
        ComPtr<IConnectionPointContainer> container;
        memo_.Get().As(&container);
        ComPtr<IConnectionPoint> point;
        EXPECT_EQ(container->FindConnectionPoint(interfaceId, &point), S_OK);
        return point;
    }
    ComPtr<IConnectionPoint> Events() {
        return Point(GuidOf(lumenkitClasses.Find(u"lumenkit.VMemo")->eventTable->uniqueIdentifier));
    }
    // Shows the memo and returns its text box.
    HWND Box() {
        HWND found = nullptr;
        site_.Take(memo_.Get());
        site_.DoVerb(OLEIVERB_UIACTIVATE);
        HWND window = nullptr;
        site_.As<IOleInPlaceObject>()->GetWindow(&window);
        for (HWND child = GetWindow(window, GW_CHILD); child != nullptr;
             child = GetWindow(child, GW_HWNDNEXT)) {
            if (IsWindowVisible(child) != FALSE) {
                found = child;
            }
        }
        return found;
    }
    void TearDown() override {
        site_.LetGo();
        memo_ = Late(nullptr);
        OleTest::TearDown();
    }

    container::Form form_;
    container::Site site_{form_};
};

constexpr DISPID keyPress = 4;
constexpr DISPID changeEvent = 9;

TEST_F(EventsTest, ListenersMayChangeArguments) {
    container::EventSink first([&](DISPID event, DISPPARAMS& arguments) {
        if (event == keyPress) {
            EXPECT_EQ(arguments.cArgs, 1U);
            EXPECT_EQ(arguments.rgvarg[0].vt, VT_BYREF | VT_I2);
            EXPECT_EQ(*V_I2REF(&arguments.rgvarg[0]), 'a');
            *V_I2REF(&arguments.rgvarg[0]) = 'b';
        }
        return S_OK;
    });
    container::EventSink second([&](DISPID event, DISPPARAMS& arguments) {
        if (event == keyPress) {
            EXPECT_EQ(*V_I2REF(&arguments.rgvarg[0]), 'b');
            *V_I2REF(&arguments.rgvarg[0]) = 'c';
            log_.Add("KeyPress");
            return E_FAIL;  // the control ignores a listener's failure
        }
        if (event == changeEvent) {
            log_.Add("Change");
        }
        return S_OK;
    });
    DWORD one = 0;
    DWORD two = 0;
    EXPECT_EQ(Events()->Advise(&first, &one), S_OK);
    EXPECT_EQ(Events()->Advise(&second, &two), S_OK);
    const HWND box = Box();
    ASSERT_NE(box, nullptr);
    SendMessageW(box, WM_CHAR, 'a', 1);
    EXPECT_EQ(log_.Take(), (Lines{"KeyPress", "Change"}));
    EXPECT_EQ(ToText(memo_.Get(L"Text")).substr(0, 1), u"c");
    EXPECT_EQ(Events()->Unadvise(one), S_OK);
    EXPECT_EQ(Events()->Unadvise(one), CONNECT_E_NOCONNECTION);
    EXPECT_EQ(Events()->Unadvise(two), S_OK);
    EXPECT_EQ(first.References(), 0U);
    EXPECT_EQ(second.References(), 0U);
}

TEST_F(EventsTest, ListenersMayLeaveWhileTheyAreTold) {
    DWORD one = 0;
    DWORD two = 0;
    container::EventSink second([&](DISPID event, DISPPARAMS&) {
        log_.Add("second " + std::to_string(event));
        return S_OK;
    });
    container::EventSink first([&](DISPID event, DISPPARAMS&) {
        if (event == changeEvent) {
            log_.Add("first");
            Events()->Unadvise(two);
            Events()->Unadvise(one);
        }
        return S_OK;
    });
    EXPECT_EQ(Events()->Advise(&first, &one), S_OK);
    EXPECT_EQ(Events()->Advise(&second, &two), S_OK);
    const HWND box = Box();
    log_.Take();
    SendMessageW(box, WM_CHAR, 'a', 1);
    EXPECT_EQ(log_.Take(), (Lines{"second 4", "first"}));
}

TEST_F(EventsTest, FrozenEventsAreNotRaised) {
    container::EventSink sink([&](DISPID, DISPPARAMS&) {
        log_.Add("event");
        return S_OK;
    });
    DWORD cookie = 0;
    EXPECT_EQ(Events()->Advise(&sink, &cookie), S_OK);
    const HWND box = Box();
    ComPtr<IOleControl> control;
    memo_.Get().As(&control);
    EXPECT_EQ(control->FreezeEvents(TRUE), S_OK);
    EXPECT_EQ(control->FreezeEvents(TRUE), S_OK);
    EXPECT_EQ(control->FreezeEvents(FALSE), S_OK);
    log_.Take();
    SendMessageW(box, WM_CHAR, 'a', 1);
    EXPECT_EQ(log_.Take(), Lines{});
    EXPECT_EQ(control->FreezeEvents(FALSE), S_OK);
    SendMessageW(box, WM_CHAR, 'a', 1);
    EXPECT_EQ(log_.Take(), (Lines{"event", "event"}));
    EXPECT_EQ(Events()->Unadvise(cookie), S_OK);
}

TEST_F(EventsTest, PropertiesTellAndAsk) {
    container::PropertySink sink(log_);
    const ComPtr<IConnectionPoint> point = Point(IID_IPropertyNotifySink);
    DWORD cookie = 0;
    EXPECT_EQ(point->Advise(&sink, &cookie), S_OK);
    EXPECT_EQ(memo_.Put(L"Text", Text(u"one")), S_OK);
    EXPECT_EQ(log_.Take(), (Lines{"OnRequestEdit 0", "OnChanged 0"}));
    sink.refused = {0};
    EXPECT_EQ(memo_.Put(L"Text", Text(u"two")), S_OK);
    EXPECT_EQ(log_.Take(), Lines{"OnRequestEdit 0"});
    EXPECT_EQ(ToText(memo_.Get(L"Text")), u"one");
    EXPECT_EQ(point->Unadvise(cookie), S_OK);
}

TEST_F(EventsTest, ConnectionsCanBeListed) {
    ComPtr<IConnectionPointContainer> container;
    memo_.Get().As(&container);
    ComPtr<IEnumConnectionPoints> points;
    ASSERT_EQ(container->EnumConnectionPoints(&points), S_OK);
    std::array<IConnectionPoint*, 3> found = {};
    ULONG count = 0;
    EXPECT_EQ(points->Next(3, found.data(), &count), S_FALSE);
    ASSERT_EQ(count, 2U);
    for (ULONG index = 0; index < count; ++index) {
        ComPtr<IConnectionPointContainer> owner;
        EXPECT_EQ(found[index]->GetConnectionPointContainer(&owner), S_OK);
        EXPECT_EQ(owner.Get(), container.Get());
        found[index]->Release();
    }
    container::PropertySink sink(log_);
    DWORD cookie = 0;
    const ComPtr<IConnectionPoint> point = Point(IID_IPropertyNotifySink);
    EXPECT_EQ(point->Advise(&sink, &cookie), S_OK);
    ComPtr<IEnumConnections> connections;
    EXPECT_EQ(point->EnumConnections(&connections), S_OK);
    CONNECTDATA connection = {};
    EXPECT_EQ(connections->Next(1, &connection, nullptr), S_OK);
    EXPECT_EQ(connection.dwCookie, cookie);
    connection.pUnk->Release();
    EXPECT_EQ(connections->Next(1, &connection, nullptr), S_FALSE);
    connections.Reset();
    EXPECT_EQ(point->Unadvise(cookie), S_OK);
    EXPECT_EQ(sink.References(), 0U);
}

TEST_F(EventsTest, RefusesWhatCannotListen) {
    container::AdviseSink other(log_);
    DWORD cookie = 7;
    EXPECT_EQ(Events()->Advise(&other, &cookie), CONNECT_E_CANNOTCONNECT);
    EXPECT_EQ(cookie, 0U);
    EXPECT_EQ(Events()->Advise(nullptr, &cookie), E_POINTER);
    EXPECT_EQ(Events()->Advise(&other, nullptr), E_POINTER);
    EXPECT_EQ(Events()->GetConnectionInterface(nullptr), E_POINTER);
    EXPECT_EQ(Events()->EnumConnections(nullptr), E_POINTER);
    ComPtr<IConnectionPointContainer> container;
    memo_.Get().As(&container);
    ComPtr<IConnectionPoint> point;
    EXPECT_EQ(container->FindConnectionPoint(IID_IDispatch, &point), CONNECT_E_NOCONNECTION);
    EXPECT_EQ(container->FindConnectionPoint(IID_IDispatch, nullptr), E_POINTER);
}

}  // namespace
}  // namespace lumenkit::ole
