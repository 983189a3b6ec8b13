// Uses the dual interfaces from another thread. Windows builds their proxies from the registered
// type library.
#include <functional>
#include <thread>

#include <gmock/gmock.h>
#include <lumenkit.h>

#include "tests/ole/clients/support/com.h"

namespace lumenkit::clients {

namespace {

class Marshalling : public OleTest {
 protected:
    // Runs `body` on a thread of the multithreaded apartment, and this thread's messages meanwhile.
    static void OnAnotherThread(const std::function<void()>& body) {
        const HANDLE done = CreateEventW(nullptr, TRUE, FALSE, nullptr);
        std::thread other([&] {
            EXPECT_EQ(CoInitializeEx(nullptr, COINIT_MULTITHREADED), S_OK);
            body();
            CoUninitialize();
            SetEvent(done);
        });
        while (MsgWaitForMultipleObjects(1, &done, FALSE, INFINITE, QS_ALLINPUT) != WAIT_OBJECT_0) {
            RunMessages();
        }
        other.join();
        CloseHandle(done);
    }

    template <typename Interface>
    static void CheckText(const wchar_t* name, HRESULT (STDMETHODCALLTYPE Interface::*put)(BSTR),
                          HRESULT (STDMETHODCALLTYPE Interface::*get)(BSTR*)) {
        const auto object = Create<Interface>(name);
        ComPtr<IStream> stream;
        ASSERT_EQ(CoMarshalInterThreadInterfaceInStream(__uuidof(Interface), object.Get(), &stream),
                  S_OK);
        OnAnotherThread([&] {
            ComPtr<Interface> proxy;
            ASSERT_EQ(CoGetInterfaceAndReleaseStream(stream.Detach(), __uuidof(Interface), &proxy),
                      S_OK);
            EXPECT_NE(proxy.Get(), object.Get());
            EXPECT_EQ((proxy.Get()->*put)(Text(L"from another thread").Get()), S_OK);
            Text value;
            EXPECT_EQ((proxy.Get()->*get)(value.Out()), S_OK);
            EXPECT_EQ(value.Read(), L"from another thread");
        });
        Text value;
        EXPECT_EQ((object.Get()->*get)(value.Out()), S_OK);
        EXPECT_EQ(value.Read(), L"from another thread");
    }
};

TEST_F(Marshalling, TheControlsAreUsedFromAnotherThread) {
    CheckText(L"lumenkit.VLabel", &_VLabel::put_Caption, &_VLabel::get_Caption);
    CheckText(L"lumenkit.VMemo", &_VMemo::put_Text, &_VMemo::get_Text);
    CheckText(L"lumenkit.VOptList", &_VOptList::put_Caption, &_VOptList::get_Caption);
}

}  // namespace

}  // namespace lumenkit::clients
