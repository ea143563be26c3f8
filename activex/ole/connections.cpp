// Connecting sinks, and telling them.
#include "activex/ole/connections.h"

#include "activex/com/enumerator.h"
#include "activex/ole/shell.h"

#include <olectl.h>

#include <algorithm>
#include <exception>

namespace vela::activex {

namespace {

void giveConnection(const Connection& from, CONNECTDATA& into)
{
    into.dwCookie = from.cookie;
    from.sink.CopyTo(&into.pUnk);
}
void givePoint(const ComPtr<IConnectionPoint>& from, IConnectionPoint*& into)
{
    from.CopyTo(&into);
}
using ConnectionEnumerator = Enumerator<IEnumConnections, CONNECTDATA, Connection, giveConnection>;
using PointEnumerator = Enumerator<IEnumConnectionPoints, IConnectionPoint*, ComPtr<IConnectionPoint>, givePoint>;

constexpr std::size_t mostArguments = 2;

// One call of one sink, the arguments by reference and, as automation wants them, last first.
void invoke(IDispatch& sink, DISPID event, std::span<std::int16_t* const> arguments)
{
    VARIANTARG given[mostArguments];
    for (std::size_t i = 0; i < arguments.size(); ++i) {
        VARIANTARG& argument = given[arguments.size() - 1 - i];
        argument.vt = VT_BYREF | VT_I2;
        argument.piVal = arguments[i];
    }
    DISPPARAMS parameters{given, nullptr, static_cast<UINT>(arguments.size()), 0};
    Variant result;
    EXCEPINFO info{};
    if (sink.Invoke(event, IID_NULL, LOCALE_USER_DEFAULT, DISPATCH_METHOD, &parameters, result.put(), &info, nullptr) ==
        DISP_E_EXCEPTION)
        throw errorFromException(info);
}

} // namespace

void Sinks::clear() noexcept
{
    const auto gone = std::move(sinks_); // a sink that goes may come back here
    sinks_.clear();
}

ComPtr<IUnknown> Sinks::after(DWORD& told, DWORD newest) const noexcept
{
    for (const Connection& connection : sinks_)
        if (connection.cookie > told && connection.cookie <= newest) {
            told = connection.cookie;
            return connection.sink;
        }
    return {};
}

HRESULT Sinks::QueryInterface(REFIID iid, void** object) noexcept
{
    if (!object)
        return E_POINTER;
    *object = nullptr;
    if (iid != IID_IUnknown && iid != IID_IConnectionPoint)
        return E_NOINTERFACE;
    *object = static_cast<IConnectionPoint*>(this);
    AddRef();
    return S_OK;
}

HRESULT Sinks::GetConnectionInterface(IID* iid) noexcept
{
    if (!iid)
        return E_POINTER;
    *iid = iid_ ? *iid_ : IID_NULL;
    return S_OK;
}

HRESULT Sinks::GetConnectionPointContainer(IConnectionPointContainer** container) noexcept
{
    if (!container)
        return E_POINTER;
    container_.AddRef();
    *container = &container_;
    return S_OK;
}

HRESULT Sinks::Advise(IUnknown* sink, DWORD* cookie) noexcept
{
    if (!sink || !cookie)
        return E_POINTER;
    *cookie = 0;
    const auto kept = ComPtr<IConnectionPointContainer>(&container_); // a sink may let go of the source
    if (!iid_)
        return CONNECT_E_CANNOTCONNECT;
    // Sinks of a dispinterface often answer to IDispatch alone.
    const bool dispatched = *iid_ != IID_IPropertyNotifySink;
    auto own = query<IUnknown>(sink, *iid_);
    if (!own && dispatched)
        own = query<IUnknown>(sink, IID_IDispatch);
    if (!own)
        return CONNECT_E_CANNOTCONNECT;
    return guarded([&] {
        sinks_.push_back({lastCookie_ + 1, std::move(own)});
        *cookie = ++lastCookie_;
    });
}

HRESULT Sinks::Unadvise(DWORD cookie) noexcept
{
    const auto found = std::find_if(sinks_.begin(), sinks_.end(),
                                    [&](const Connection& connection) { return connection.cookie == cookie; });
    if (found == sinks_.end())
        return CONNECT_E_NOCONNECTION;
    const auto kept = ComPtr<IConnectionPointContainer>(&container_);
    const auto gone = std::move(found->sink);
    sinks_.erase(found);
    return S_OK;
}

HRESULT Sinks::EnumConnections(IEnumConnections** connections) noexcept
{
    if (!connections)
        return E_POINTER;
    *connections = nullptr;
    return guarded(
        [&] { *connections = ConnectionEnumerator::make(std::make_shared<std::vector<Connection>>(sinks_)).Detach(); });
}

Connections::Connections(Shell& shell, const IID* events) noexcept
    : Part(shell), events_(*this, events), properties_(*this, &IID_IPropertyNotifySink)
{
}

void Connections::clear() noexcept
{
    events_.clear();
    properties_.clear();
}

void Connections::fire(DISPID event, std::span<std::int16_t* const> arguments)
{
    std::exception_ptr first;
    events_.each([&](IUnknown& sink) {
        try {
            invoke(static_cast<IDispatch&>(sink), event, arguments);
        } catch (...) {
            if (!first)
                first = std::current_exception();
        }
    });
    if (first)
        std::rethrow_exception(first);
}

void Connections::changed(DISPID property) noexcept
{
    properties_.each([&](IUnknown& sink) { static_cast<IPropertyNotifySink&>(sink).OnChanged(property); });
}

bool Connections::mayChange(DISPID property) noexcept
{
    bool may = true;
    properties_.each([&](IUnknown& sink) {
        may = may && static_cast<IPropertyNotifySink&>(sink).OnRequestEdit(property) != S_FALSE;
    });
    return may;
}

HRESULT Connections::EnumConnectionPoints(IEnumConnectionPoints** points) noexcept
{
    if (!points)
        return E_POINTER;
    *points = nullptr;
    return guarded([&] {
        auto list = std::make_shared<std::vector<ComPtr<IConnectionPoint>>>();
        for (Sinks* sinks : {&events_, &properties_})
            if (sinks->interfaceId())
                list->push_back(ComPtr<IConnectionPoint>(sinks));
        *points = PointEnumerator::make(std::move(list)).Detach();
    });
}

HRESULT Connections::FindConnectionPoint(REFIID iid, IConnectionPoint** point) noexcept
{
    if (!point)
        return E_POINTER;
    *point = nullptr;
    for (Sinks* sinks : {&events_, &properties_})
        if (sinks->interfaceId() && *sinks->interfaceId() == iid) {
            sinks->AddRef();
            *point = sinks;
            return S_OK;
        }
    return CONNECT_E_NOCONNECTION;
}

} // namespace vela::activex
