// The connection points of a control: its events and the notifications of changed properties.
#pragma once

#include "activex/com/owners.h"
#include "activex/com/part.h"

#include <ocidl.h>

#include <span>
#include <vector>

namespace vela::activex {

struct Connection {
    DWORD cookie;
    ComPtr<IUnknown> sink;
};

// The sinks of one interface. A sink may come or go while another is being told.
class Sinks final : public IConnectionPoint {
public:
    // `iid` null: there is no such point.
    Sinks(IConnectionPointContainer& container, const IID* iid) noexcept : container_(container), iid_(iid) {}
    Sinks(const Sinks&) = delete;
    Sinks& operator=(const Sinks&) = delete;

    [[nodiscard]] const IID* interfaceId() const noexcept { return iid_; }
    [[nodiscard]] bool empty() const noexcept { return sinks_.empty(); }
    void clear() noexcept;
    // Tells each sink that stands there when its turn comes, in the order of their coming; those that come meanwhile
    // are not told. `tell` takes the sink's own interface, as IUnknown&.
    template <class Tell>
    void each(Tell&& tell)
    {
        const DWORD newest = lastCookie_;
        for (DWORD told = 0; const auto sink = after(told, newest);)
            tell(*sink.Get());
    }

    // A connection point is an object of its own, kept by the whole's references.
    STDMETHODIMP QueryInterface(REFIID iid, void** object) noexcept override;
    STDMETHODIMP_(ULONG) AddRef() noexcept override { return container_.AddRef(); }
    STDMETHODIMP_(ULONG) Release() noexcept override { return container_.Release(); }
    STDMETHODIMP GetConnectionInterface(IID* iid) noexcept override;
    STDMETHODIMP GetConnectionPointContainer(IConnectionPointContainer** container) noexcept override;
    STDMETHODIMP Advise(IUnknown* sink, DWORD* cookie) noexcept override;
    STDMETHODIMP Unadvise(DWORD cookie) noexcept override;
    STDMETHODIMP EnumConnections(IEnumConnections** connections) noexcept override;

private:
    // The next connection with a cookie above `told` and not above `newest`; its cookie is then stored in `told`.
    [[nodiscard]] ComPtr<IUnknown> after(DWORD& told, DWORD newest) const noexcept;

    IConnectionPointContainer& container_;
    const IID* iid_;
    std::vector<Connection> sinks_; // by cookie, rising
    DWORD lastCookie_ = 0;
};

class Connections final : public Part<IConnectionPointContainer> {
public:
    Connections(Shell& shell, const IID* events) noexcept;

    [[nodiscard]] Sinks& events() noexcept { return events_; }
    [[nodiscard]] Sinks& properties() noexcept { return properties_; }
    void clear() noexcept;

    // Raises what a handler raised, the first of several, when all have heard; sinks that do not know the event are
    // passed over. The handlers may write the arguments, which stand in the order of the event's parameters.
    void fire(DISPID event, std::span<std::int16_t* const> arguments);
    void changed(DISPID property) noexcept;
    [[nodiscard]] bool mayChange(DISPID property) noexcept; // no sink refuses

    STDMETHODIMP EnumConnectionPoints(IEnumConnectionPoints** points) noexcept override;
    STDMETHODIMP FindConnectionPoint(REFIID iid, IConnectionPoint** point) noexcept override;

private:
    Sinks events_;
    Sinks properties_;
};

} // namespace vela::activex
