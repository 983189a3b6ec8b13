#pragma once

#include <memory>
#include <optional>
#include <string>

#include "frame/class_table.h"
#include "runtime/ole/control/activation.h"
#include "runtime/ole/control/client_site.h"
#include "runtime/ole/control/extent.h"
#include "runtime/ole/control/notices.h"
#include "runtime/ole/control/site_ambient.h"
#include "runtime/ole/control/site_extender.h"
#include "runtime/ole/objects/component.h"
#include "runtime/ole/objects/connection_points.h"
#include "runtime/ole/values/settings_bag.h"
#include "runtime/win32/hosted_control.h"

namespace lumenkit::ole {

/// Interfaces of a control's object that the core passes to the container.
struct CoreFaces {
    IDataObject& data;
    IOleInPlaceActiveObject& active;
};

/// The state that the interfaces of one control share: the control itself and the data that its
/// container has set.
class ControlCore final : public win32::ControlSite,
                          public host::Container,
                          public Activated,
                          public Placed {
 public:
    /// `faces` need not be constructed yet.
    ControlCore(Component& component, const ClassDescriptor& type, IUnknown& controlling,
                win32::Life& life, CoreFaces faces);
    ~ControlCore() override;
    ControlCore(const ControlCore&) = delete;
    ControlCore& operator=(const ControlCore&) = delete;

    const ClassDescriptor& Type() const { return type_; }
    Component& GetComponent() const { return component_; }
    IUnknown& Controlling() const { return controlling_; }
    /// Every call into the core holds it.
    win32::Life& GetLife() const { return life_; }
    ConnectionPoints& Points() { return points_; }
    Notices& GetNotices() { return notices_; }
    Activation& GetActivation() { return activation_; }
    const ClientSite& Site() const override { return site_; }
    void SetSite(IOleClientSite* site);

    // The life cycle.
    win32::HostedControl& Hosted() { return *hosted_; }
    /// Returns the control. Starts it as a new one if it is used without having been loaded.
    win32::HostedControl& Started() override;
    /// Returns the window of the active control. Raises a ComError while it has none
    /// in its container.
    HWND ActiveWindow() const;
    /// Starts a new control. Raises a ComError if the control was already started explicitly.
    void StartNew();
    /// Loads the control. A control in use may be loaded again, unless it is shown or is calling
    /// its container. Errors that the bag raises reach the caller; the control is not started then.
    void Load(SettingsBag& bag);
    /// Errors of a save that failed reach the caller. The control stays dirty.
    void Save(host::PropertyBag& bag);
    /// Called when no client holds the control any more.
    void Abandon() noexcept;
    bool IsDirty() const { return dirty_; }
    void SetDirty(bool dirty) { dirty_ = dirty; }

    // The size.
    const Extent& GetExtent() const { return extent_; }
    /// Raises a ComError for a negative size and for a size larger than a window can be.
    void SetExtent(const SIZEL& himetric);
    void SizeChanged(SIZE pixels) override;

    void FreezeEvents(bool freeze);
    /// Returns the mnemonics for the container, which is told when they change.
    std::wstring GiveMnemonics();

    // Requests from the control to its site.
    host::Container& GetContainer() override { return *this; }
    host::Ambient& GetAmbient() override { return ambient_; }
    Object& GetExtender() override { return extender_; }
    void RequestSize(SIZE size) override;
    void PictureChanged() override;
    void FocusChanged(bool inside) override;
    void MnemonicsMayHaveChanged() override;
    bool AcceptsInput() override;

    // Notifications from the control to its container.
    void PropertyChanged(TextView name) override;
    bool CanPropertyChange(TextView name) override;
    void RaiseEvent(std::int32_t event, std::span<Value> arguments) override;

    // Requests from the extender.
    Text Title() const override;
    IOleInPlaceActiveObject& ActiveObject() override { return faces_.active; }
    RECT Place() const override;
    bool IsVisible() const override;
    void SetVisible(bool visible) override;
    void Move(const RECT& place) override;

 private:
    void Make();
    void Restart();
    DISPID IdentifierOf(TextView property) const;

    Component& component_;
    const ClassDescriptor& type_;
    IUnknown& controlling_;
    win32::Life& life_;
    CoreFaces faces_;
    ClientSite site_;
    ConnectionPoints points_;
    Notices notices_;
    SiteAmbient ambient_;
    SiteExtender extender_;
    Activation activation_{*this};
    Extent extent_;
    bool dirty_ = false;
    bool isStarting_ = false;
    bool startedOnPurpose_ = false;
    int frozen_ = 0;
    std::optional<std::wstring> givenMnemonics_;  // empty: the container has not asked
    std::unique_ptr<win32::HostedControl> hosted_;
};

}  // namespace lumenkit::ole
