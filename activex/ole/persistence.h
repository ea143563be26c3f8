// Saving and loading the settings: in a stream, in a storage, and in the host's property bag.
#pragma once

#include "activex/com/part.h"

#include <ocidl.h>

namespace vela::activex {

class Shell;

class StreamPersistence final : public Part<IPersistStreamInit> {
public:
    explicit StreamPersistence(Shell& shell) noexcept;

    HRESULT STDMETHODCALLTYPE GetClassID(CLSID* id) noexcept override;
    HRESULT STDMETHODCALLTYPE IsDirty() noexcept override;
    HRESULT STDMETHODCALLTYPE Load(IStream* stream) noexcept override;
    HRESULT STDMETHODCALLTYPE Save(IStream* stream, BOOL clearDirty) noexcept override;
    HRESULT STDMETHODCALLTYPE GetSizeMax(ULARGE_INTEGER* size) noexcept override;
    HRESULT STDMETHODCALLTYPE InitNew() noexcept override;

private:
    Shell& shell_;
};

// The settings stand in the storage's stream "Contents"; the storage itself is never kept.
class StoragePersistence final : public Part<IPersistStorage> {
public:
    explicit StoragePersistence(Shell& shell) noexcept;

    HRESULT STDMETHODCALLTYPE GetClassID(CLSID* id) noexcept override;
    HRESULT STDMETHODCALLTYPE IsDirty() noexcept override;
    HRESULT STDMETHODCALLTYPE InitNew(IStorage* storage) noexcept override;
    HRESULT STDMETHODCALLTYPE Load(IStorage* storage) noexcept override;
    HRESULT STDMETHODCALLTYPE Save(IStorage* storage, BOOL sameAsLoad) noexcept override;
    HRESULT STDMETHODCALLTYPE SaveCompleted(IStorage* storage) noexcept override;
    HRESULT STDMETHODCALLTYPE HandsOffStorage() noexcept override;

private:
    Shell& shell_;
    bool savedHere_ = false; // what SaveCompleted() declares clean
};

class BagPersistence final : public Part<IPersistPropertyBag> {
public:
    explicit BagPersistence(Shell& shell) noexcept;

    HRESULT STDMETHODCALLTYPE GetClassID(CLSID* id) noexcept override;
    HRESULT STDMETHODCALLTYPE InitNew() noexcept override;
    HRESULT STDMETHODCALLTYPE Load(IPropertyBag* bag, IErrorLog* log) noexcept override;
    // Values equal to their defaults are left out unless all are asked for: their absence means them.
    HRESULT STDMETHODCALLTYPE Save(IPropertyBag* bag, BOOL clearDirty, BOOL all) noexcept override;

private:
    Shell& shell_;
};

} // namespace vela::activex
