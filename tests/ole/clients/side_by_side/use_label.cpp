// Creates a label by its class name, reads its caption and prints it.
#include <cstdio>

#include <ole2.h>
#include <wrl/client.h>

namespace {

using Microsoft::WRL::ComPtr;

constexpr int notThere = 3;

int Use(IDispatch& label) {
    wchar_t name[] = L"Caption";
    wchar_t* names[] = {name};
    DISPID caption = DISPID_UNKNOWN;
    DISPPARAMS none = {};
    VARIANT value = {};
    ComPtr<ITypeInfo> type;
    if (FAILED(label.GetIDsOfNames(IID_NULL, names, 1, 0, &caption)) ||
        FAILED(label.Invoke(caption, IID_NULL, 0, DISPATCH_PROPERTYGET, &none, &value, nullptr,
                            nullptr)) ||
        FAILED(label.GetTypeInfo(0, 0, &type))) {
        return 1;
    }
    std::printf("%ls\n", value.bstrVal);
    VariantClear(&value);
    return 0;
}

}  // namespace

int main() {
    if (FAILED(OleInitialize(nullptr))) {
        return 2;
    }
    int result = notThere;
    CLSID type = {};
    {
        ComPtr<IDispatch> label;
        if (SUCCEEDED(CLSIDFromProgID(L"lumenkit.VLabel", &type)) &&
            SUCCEEDED(
                CoCreateInstance(type, nullptr, CLSCTX_INPROC_SERVER, IID_PPV_ARGS(&label)))) {
            result = Use(*label.Get());
        }
    }
    OleUninitialize();
    return result;
}
