// The platform's enumerators over a list that is fixed when they are created.
#pragma once

#include <memory>
#include <vector>

#include "runtime/ole/values/counted.h"
#include "runtime/ole/values/result.h"

namespace lumenkit::ole {

/// Defines how an item is given to a client, who then owns it. `Kept` is the type in the list.
template <typename Item>
struct PlainItem {
    using Kept = Item;
    static Item Give(const Kept& kept) { return kept; }
};
template <typename Interface>
struct InterfaceItem {
    using Kept = ComPtr<Interface>;
    static Interface* Give(const Kept& kept) { return ComPtr<Interface>(kept).Detach(); }
};

template <typename Interface, const IID& interfaceId, typename Item, typename Policy>
class Enumerator final : public Counted<Interface, interfaceId> {
 public:
    using List = std::vector<typename Policy::Kept>;

    explicit Enumerator(std::shared_ptr<const List> list, std::size_t position = 0)
        : list_(std::move(list)), position_(position) {}

    static ComPtr<Interface> Over(List list) {
        return Adopted<Interface>(new Enumerator(std::make_shared<const List>(std::move(list))));
    }

    HRESULT STDMETHODCALLTYPE Next(ULONG count, Item* items, ULONG* fetched) override {
        if (items == nullptr || (fetched == nullptr && count != 1)) {
            return E_POINTER;
        }
        return Guarded([&] {
            ULONG given = 0;
            while (given < count && position_ < list_->size()) {
                items[given++] = Policy::Give((*list_)[position_++]);
            }
            if (fetched != nullptr) {
                *fetched = given;
            }
            return given == count ? S_OK : S_FALSE;
        });
    }
    HRESULT STDMETHODCALLTYPE Skip(ULONG count) override {
        const std::size_t left = list_->size() - position_;
        position_ += count < left ? count : left;
        return count <= left ? S_OK : S_FALSE;
    }
    HRESULT STDMETHODCALLTYPE Reset() override {
        position_ = 0;
        return S_OK;
    }
    HRESULT STDMETHODCALLTYPE Clone(Interface** copy) override {
        return Guarded([&] { Checked(copy) = new Enumerator(list_, position_); });
    }

 private:
    std::shared_ptr<const List> list_;
    std::size_t position_;
};

}  // namespace lumenkit::ole
