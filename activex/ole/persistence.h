// Saving and loading the settings: in a stream, in a storage, and in the host's property bag.
#pragma once

#include "activex/com/part.h"

#include <ocidl.h>

namespace vela::activex {

// What the interfaces answer alike.
HRESULT giveClass(const Shell& shell, CLSID* id) noexcept;
HRESULT dirtyState(const Shell& shell) noexcept;

class StreamPersistence final : public Part<IPersistStreamInit> {
public:
    using Part::Part;

    STDMETHODIMP GetClassID(CLSID* id) noexcept override { return giveClass(shell_, id); }
    STDMETHODIMP IsDirty() noexcept override { return dirtyState(shell_); }
    STDMETHODIMP Load(IStream* stream) noexcept override;
    STDMETHODIMP Save(IStream* stream, BOOL clearDirty) noexcept override;
    STDMETHODIMP GetSizeMax(ULARGE_INTEGER* size) noexcept override;
    STDMETHODIMP InitNew() noexcept override;
};

// The settings stand in the storage's stream "Contents"; the storage itself is never kept.
class StoragePersistence final : public Part<IPersistStorage> {
public:
    using Part::Part;

    STDMETHODIMP GetClassID(CLSID* id) noexcept override { return giveClass(shell_, id); }
    STDMETHODIMP IsDirty() noexcept override { return dirtyState(shell_); }
    STDMETHODIMP InitNew(IStorage* storage) noexcept override;
    STDMETHODIMP Load(IStorage* storage) noexcept override;
    STDMETHODIMP Save(IStorage* storage, BOOL sameAsLoad) noexcept override;
    STDMETHODIMP SaveCompleted(IStorage* storage) noexcept override;
    STDMETHODIMP HandsOffStorage() noexcept override { return S_OK; }

private:
    bool savedHere_ = false; // what SaveCompleted() declares clean
};

class BagPersistence final : public Part<IPersistPropertyBag> {
public:
    using Part::Part;

    STDMETHODIMP GetClassID(CLSID* id) noexcept override { return giveClass(shell_, id); }
    STDMETHODIMP InitNew() noexcept override;
    STDMETHODIMP Load(IPropertyBag* bag, IErrorLog* log) noexcept override;
    // Values equal to their defaults are left out unless all are asked for: their absence means them.
    STDMETHODIMP Save(IPropertyBag* bag, BOOL clearDirty, BOOL all) noexcept override;
};

} // namespace vela::activex
