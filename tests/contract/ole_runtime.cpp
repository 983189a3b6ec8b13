// Runs the contract tests on the component server: a control in a real container, with the
// container's bags, events and extender.
#include <memory>
#include <utility>

#include "frame/runtime_error.h"
#include "runtime/ole/class_factory.h"
#include "runtime/ole/values/font_maker.h"
#include "runtime/ole/values/property_bag.h"
#include "runtime/ole/values/result.h"
#include "runtime/win32/pixels.h"
#include "tests/contract/windows_user.h"
#include "tests/ole/container/bag.h"
#include "tests/ole/container/sinks.h"
#include "tests/ole/container/site.h"
#include "tests/unit/ole/message_boxes.h"

namespace lumenkit::contract {
namespace {

using ole::ComPtr;

// A property bag of the container, which tests read and write through the interface for controls.
class ComBag final : public host::PropertyBag {
 public:
    Value ReadProperty(TextView name, const Value& defaultValue) override {
        return face_.ReadProperty(name, defaultValue);
    }
    void WriteProperty(TextView name, const Value& value, const Value& defaultValue) override {
        face_.WriteProperty(name, value, defaultValue);
        face_.Deliver();
    }
    IPropertyBag* Get() { return &bag_; }

 private:
    container::Bag bag_;
    ole::ContainerBag face_{bag_};
};

IPropertyBag* BagOf(host::PropertyBag& bag) {
    return dynamic_cast<ComBag&>(bag).Get();
}

class OleRuntime final : public WindowsUser {
 public:
    explicit OleRuntime(const ClassTable& classes) : classes_(classes) {}
    ~OleRuntime() override { LetGo(); }

    void PlaceNew(const ClassDescriptor& type) override {
        Place(type);
        ole::Check(site_->As<IPersistPropertyBag>()->InitNew());
        ole::Check(site_->DoVerb(OLEIVERB_SHOW));
    }
    void PlaceSaved(const ClassDescriptor& type, host::PropertyBag& bag) override {
        Place(type);
        ole::Check(site_->As<IPersistPropertyBag>()->Load(BagOf(bag), nullptr));
        ole::Check(site_->DoVerb(OLEIVERB_SHOW));
    }
    void Resize(float width, float height) override {
        const win32::Resolution resolution = win32::Resolution::OfScreen();
        site_->SetPlace({10, 20, 10 + win32::ToPixels(width, resolution.x),
                         20 + win32::ToPixels(height, resolution.y)});
    }
    void Expose() override {
        InvalidateRect(ControlWindow(), nullptr, FALSE);
        UpdateWindow(ControlWindow());
    }
    void Save(host::PropertyBag& bag) override {
        ole::Check(site_->As<IPersistPropertyBag>()->Save(BagOf(bag), TRUE, FALSE));
    }
    void SetEventHandler(EventHandler handler) override { handler_ = std::move(handler); }
    void AllowChange(TextView property, bool allowed) override {
        const DISPID identifier = type_->interfaceTable->Find(property)->identifier;
        if (allowed) {
            properties_.refused.erase(identifier);
        } else {
            properties_.refused.insert(identifier);
        }
    }
    std::vector<Text> ChangedProperties() override {
        std::vector<Text> names;
        for (const std::string& line : changes_.Take()) {
            constexpr std::string_view changed = "OnChanged ";
            if (line.starts_with(changed)) {
                const int identifier = std::stoi(line.substr(changed.size()));
                names.emplace_back(type_->interfaceTable->Find(identifier)->name);
            }
        }
        return names;
    }
    std::unique_ptr<host::PropertyBag> NewBag() override { return std::make_unique<ComBag>(); }
    host::FontRef NewFont(TextView name, float points) override {
        return ole::FontMaker().NewFont(name, points);
    }

 private:
    void Place(const ClassDescriptor& type) {
        LetGo();
        type_ = &type;
        site_ = std::make_unique<container::Site>(form_);
        site_->SetTag(u"its tag");
        site_->Take(Create(type));
        // 3000 by 1500 twips in hundredths of a millimetre.
        SIZEL size = {5292, 2646};
        ole::Check(site_->As<IOleObject>()->SetExtent(DVASPECT_CONTENT, &size));
        Listen();
    }
    ComPtr<IUnknown> Create(const ClassDescriptor& type) {
        const auto factory =
            ole::Adopted(new ole::ClassFactory(ole::Component::Of(classes_), type));
        ComPtr<IUnknown> object;
        ole::Check(factory->CreateInstance(nullptr, IID_PPV_ARGS(&object)));
        return object;
    }
    // The probe's event interface has no identifier: IID_NULL finds its connection point.
    void Listen() {
        const auto points = site_->As<IConnectionPointContainer>();
        ole::Check(points->FindConnectionPoint(IID_NULL, &eventPoint_));
        ole::Check(points->FindConnectionPoint(IID_IPropertyNotifySink, &propertyPoint_));
        ole::Check(eventPoint_->Advise(&events_, &eventCookie_));
        ole::Check(propertyPoint_->Advise(&properties_, &propertyCookie_));
    }
    void LetGo() {
        if (site_ != nullptr) {
            eventPoint_->Unadvise(eventCookie_);
            propertyPoint_->Unadvise(propertyCookie_);
            eventPoint_.Reset();
            propertyPoint_.Reset();
            site_.reset();
        }
    }

    HRESULT Handle(DISPID identifier, DISPPARAMS& parameters) {
        const Event* event = type_->eventTable->Find(identifier);
        if (!handler_ || event == nullptr) {
            return S_OK;
        }
        std::vector<Value> values;
        for (UINT left = parameters.cArgs; left > 0; --left) {
            values.push_back(ole::FromVariant(parameters.rgvarg[left - 1]));
        }
        try {
            handler_(event->name, values);
        } catch (const RuntimeError&) {
            return DISP_E_EXCEPTION;
        }
        for (std::size_t index = 0; index < values.size(); ++index) {
            ole::AssignReference(values[index], parameters.rgvarg[values.size() - 1 - index]);
        }
        return S_OK;
    }

    HWND FormWindow() override { return form_.Window(); }
    HWND ControlWindow() override {
        HWND window = nullptr;
        ole::Check(site_->As<IOleInPlaceObject>()->GetWindow(&window));
        return window;
    }

    const ClassTable& classes_;
    ole::MessageBoxes boxes_;
    container::Form form_;
    container::CallLog changes_;
    container::PropertySink properties_{changes_};
    container::EventSink events_{
        [this](DISPID event, DISPPARAMS& parameters) { return Handle(event, parameters); }};
    EventHandler handler_;
    const ClassDescriptor* type_ = nullptr;
    std::unique_ptr<container::Site> site_;
    ComPtr<IConnectionPoint> eventPoint_;
    ComPtr<IConnectionPoint> propertyPoint_;
    DWORD eventCookie_ = 0;
    DWORD propertyCookie_ = 0;
};

}  // namespace

RuntimeKind RuntimeUnderTest() {
    return {.name = "Ole",
            .create = [](const ClassTable& classes) -> std::unique_ptr<ContractRuntime> {
                return std::make_unique<OleRuntime>(classes);
            }};
}

}  // namespace lumenkit::contract
