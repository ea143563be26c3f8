// Identity and life of a control, and what its content tells the host through it.
#include "activex/ole/shell.h"

#include "activex/com/guard.h"

#include <utility>

namespace vela::activex {

namespace {

constexpr int himetricPerInch = 2540;
constexpr int standardDpi = 96;
constexpr int setNotPermitted = 387;

LONG toHimetric(int pixels, int dpi) noexcept
{
    return MulDiv(pixels, himetricPerInch, dpi);
}

FieldSize toPixels(SIZEL himetric, int dpi) noexcept
{
    return {MulDiv(himetric.cx, dpi, himetricPerInch), MulDiv(himetric.cy, dpi, himetricPerInch)};
}

} // namespace

Shell::Shell(const ClassFacts& facts, Maker make) noexcept
    : facts_(facts),
      make_(make), extent_{toHimetric(facts.size.width, standardDpi), toHimetric(facts.size.height, standardDpi)},
      connections_(*this, facts.events), activation_(*this), object_(*this), control_(*this), inPlace_(*this),
      active_(*this), view_(*this), data_(*this), stream_(*this), storage_(*this), bag_(*this), dispatch_(*this),
      classInfo_(*this), errors_(*this), pages_(*this), browsing_(*this), categories_(*this), quick_(*this)
{
}

Shell::~Shell() = default;

HRESULT Shell::QueryInterface(REFIID iid, void** object) noexcept
{
    if (!object)
        return E_POINTER;
    IUnknown* const found = part(iid);
    *object = found;
    if (!found)
        return E_NOINTERFACE;
    found->AddRef();
    return S_OK;
}

IUnknown* Shell::part(REFIID iid) noexcept
{
    struct Entry {
        const IID& iid;
        IUnknown* part;
    };
    // IPersistStream has the functions of IPersistStreamInit but the last.
    const Entry entries[] = {
        {IID_IUnknown, this},
        {IID_IDispatch, &dispatch_},
        {facts_.members, &dispatch_},
        {IID_IOleObject, &object_},
        {IID_IOleControl, &control_},
        {IID_IOleInPlaceObject, &inPlace_},
        {IID_IOleWindow, &inPlace_},
        {IID_IOleInPlaceActiveObject, &active_},
        {IID_IViewObjectEx, &view_},
        {IID_IViewObject2, &view_},
        {IID_IViewObject, &view_},
        {IID_IPersistStreamInit, &stream_},
        {IID_IPersistStream, &stream_},
        {IID_IPersist, &stream_},
        {IID_IPersistStorage, &storage_},
        {IID_IPersistPropertyBag, &bag_},
        {IID_IConnectionPointContainer, &connections_},
        {IID_IDataObject, &data_},
        {IID_IQuickActivate, &quick_},
        {IID_IProvideClassInfo2, &classInfo_},
        {IID_IProvideClassInfo, &classInfo_},
        {IID_ISupportErrorInfo, &errors_},
        {IID_ISpecifyPropertyPages, &pages_},
        {IID_IPerPropertyBrowsing, &browsing_},
        {categorizePropertiesId, &categories_},
    };
    for (const Entry& entry : entries)
        if (entry.iid == iid)
            return entry.part;
    return nullptr;
}

ULONG Shell::AddRef() noexcept
{
    return ++references_;
}

ULONG Shell::Release() noexcept
{
    if (references_ > 1)
        return --references_;
    const win32::LibraryCall call;
    end(); // with the last reference: the host may take and return others meanwhile
    if (references_ > 1)
        return --references_;
    delete this;
    return 0;
}

void Shell::releaseLater() noexcept
{
    if (references_ == 1)
        end();
    const auto letGo = [](void* shell) noexcept { static_cast<Shell*>(shell)->Release(); };
    if (references_ == 1)
        win32::afterCall(letGo, this); // when it cannot be put off it is never freed: freed here it could crash
    else
        --references_;
}

void Shell::end() noexcept
{
    if (std::exchange(ended_, true))
        return;
    if (content_)
        content_->terminate(); // first, so that the end of its window does not run the field's exit
    activation_.deactivate();
    connections_.clear();
    site_.put(nullptr);
}

Content& Shell::bareContent()
{
    if (ended_)
        engine::raise(engine::error_number::objectNotSet);
    if (!content_) {
        content_ = make_(*this);
        content_->resize(toPixels(extent_, content_->dpi()));
    }
    return *content_;
}

Content& Shell::content()
{
    Content& content = bareContent();
    if (!std::exchange(initialised_, true))
        content.initNew();
    return content;
}

void Shell::initNew()
{
    Content& content = bareContent();
    initialised_ = true;
    content.initNew();
}

void Shell::load(platform::PropertyBag& bag)
{
    Content& content = bareContent();
    initialised_ = true;
    const Hold hold(*this);
    content.load(bag);
    dirty_ = false;
    looksChanged();
}

void Shell::putSite(IOleClientSite* client) noexcept
{
    const Hold hold(*this);
    if (client != site_.client())
        activation_.deactivate();
    site_.put(client);
}

void Shell::putExtent(SIZEL extent)
{
    if (extent.cx < 0 || extent.cy < 0)
        engine::raise(engine::error_number::invalidCall);
    extent_ = extent;
    if (content_ && !activation_.inPlace()) // in place the host follows with the rectangles
        content_->resize(toPixels(extent, content_->dpi()));
    looksChanged();
}

void Shell::followWindow() noexcept
{
    contained([&] {
        const int dpi = content_->dpi();
        const FieldSize size = content_->size();
        if (toPixels(extent_, dpi) != size) // an extent between two pixels is kept as the host gave it
            extent_ = {toHimetric(size.width, dpi), toHimetric(size.height, dpi)};
    });
}

void Shell::fire(DISPID event, std::initializer_list<std::int16_t*> arguments)
{
    if (frozen_ != 0 || ended_)
        return;
    const Hold hold(*this);
    connections_.fire(event, {arguments.begin(), arguments.size()});
}

void Shell::propertyChanged(DISPID property) noexcept
{
    dirty_ = true;
    boundChanged(property);
}

void Shell::boundChanged(DISPID property) noexcept
{
    if (ended_)
        return;
    const Hold hold(*this);
    connections_.changed(property);
    looksChanged();
}

void Shell::requestEdit(const Member& member)
{
    if (!connections_.mayChange(member.id))
        throw engine::Error{setNotPermitted, u"Set not permitted"};
}

void Shell::focusMoved(bool has) noexcept
{
    if (ended_)
        return;
    const Hold hold(*this);
    if (has && activation_.inPlace())
        guarded([&] { return activation_.activateInterface(false); });
    site_.focusChanged(has);
}

void Shell::windowLost() noexcept
{
    const Hold hold(*this);
    activation_.deactivate();
}

void Shell::looksChanged() noexcept
{
    view_.changed();
    data_.changed();
}

} // namespace vela::activex
