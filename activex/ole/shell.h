// A control as hosts see it: one object with every interface they ask for, around a content that does the work.
#pragma once

#include "activex/com/guard.h"
#include "activex/ole/activation.h"
#include "activex/ole/browsing.h"
#include "activex/ole/class_info.h"
#include "activex/ole/connections.h"
#include "activex/ole/content.h"
#include "activex/ole/data_object.h"
#include "activex/ole/dispatch.h"
#include "activex/ole/in_place.h"
#include "activex/ole/ole_control.h"
#include "activex/ole/ole_object.h"
#include "activex/ole/persistence.h"
#include "activex/ole/quick_activate.h"
#include "activex/ole/site.h"
#include "activex/ole/view_object.h"
#include "platform/win32/module.h"
#include "platform/win32/thread.h"

#include <memory>
#include <span>

namespace vela::activex {

class Shell final : public IUnknown {
public:
    using Maker = std::unique_ptr<Content> (*)(Shell&);

    // `facts` outlive every shell; the content is made at its first use.
    Shell(const ClassFacts& facts, Maker make) noexcept;
    Shell(const Shell&) = delete;
    Shell& operator=(const Shell&) = delete;

    STDMETHODIMP QueryInterface(REFIID iid, void** object) noexcept override;
    STDMETHODIMP_(ULONG) AddRef() noexcept override;
    STDMETHODIMP_(ULONG) Release() noexcept override;

    // Keeps the shell alive for a scope that calls the host. When the host has released it meanwhile, it is closed at
    // once; its memory is freed when the outermost call into the library ends on this thread, because routines of the
    // content may still be on the stack.
    class Hold {
    public:
        explicit Hold(Shell& shell) noexcept : shell_(shell) { shell_.AddRef(); }
        Hold(const Hold&) = delete;
        Hold& operator=(const Hold&) = delete;
        ~Hold() { shell_.releaseLater(); }

    private:
        const win32::LibraryCall call_;
        Shell& shell_;
    };

    // The body of a host's call that may call the host back: the shell is kept while it runs, and its errors become
    // HRESULTs.
    template <class Call>
    HRESULT guarded(Call&& call) noexcept
    {
        const Hold hold(*this);
        return activex::guarded(call);
    }

    [[nodiscard]] const ClassFacts& facts() const noexcept { return facts_; }
    // Made at its first use; a new instance until a host loads it. Raises what that raises, 91 after the end.
    [[nodiscard]] Content& content();
    [[nodiscard]] const Member* member(DISPID id) { return findMember(content().members(), id); } // null: there is none
    void initNew();
    void load(platform::PropertyBag& bag);                                  // raises; the content stays usable
    [[nodiscard]] Content* made() const noexcept { return content_.get(); } // null before its first use

    [[nodiscard]] Site& site() noexcept { return site_; }
    void putSite(IOleClientSite* client) noexcept;
    [[nodiscard]] Activation& activation() noexcept { return activation_; }
    [[nodiscard]] Connections& connections() noexcept { return connections_; }
    [[nodiscard]] ViewObject& view() noexcept { return view_; }
    [[nodiscard]] DataObject& data() noexcept { return data_; }
    [[nodiscard]] OleObject& object() noexcept { return object_; }
    [[nodiscard]] const ActiveObject& activeObject() const noexcept { return active_; }

    [[nodiscard]] bool dirty() const noexcept { return dirty_; }
    void putDirty(bool dirty) noexcept { dirty_ = dirty; }
    void freeze(bool on) noexcept { frozen_ += on ? 1 : (frozen_ > 0 ? -1 : 0); }

    // HIMETRIC, of the content's own dots per inch.
    [[nodiscard]] SIZEL extent() const noexcept { return extent_; }
    void putExtent(SIZEL extent);
    void followWindow() noexcept; // the extent becomes the window's size

    // From the content.
    void fire(DISPID event, std::initializer_list<std::int16_t*> arguments = {}); // raises what a handler raised
    void propertyChanged(DISPID property) noexcept;                               // the settings are to be saved
    void boundChanged(DISPID property) noexcept;                                  // tells bound sinks only
    void requestEdit(const Member& member);                                       // raises 387 when a sink refuses
    void focusMoved(bool has) noexcept;
    void windowLost() noexcept;   // the host destroyed the window without a word
    void looksChanged() noexcept; // views are to be drawn again

private:
    ~Shell();
    void releaseLater() noexcept;
    void end() noexcept; // closes everything; the object is not to be used any more
    [[nodiscard]] Content& bareContent();
    [[nodiscard]] IUnknown* part(REFIID iid) noexcept;

    win32::ModuleUse use_;
    const ClassFacts& facts_;
    Maker make_;
    ULONG references_ = 1;
    int frozen_ = 0;
    bool dirty_ = false;
    bool initialised_ = false;
    bool ended_ = false;
    SIZEL extent_;

    Site site_;
    Connections connections_;
    Activation activation_;
    OleObject object_;
    OleControl control_;
    InPlaceObject inPlace_;
    ActiveObject active_;
    ViewObject view_;
    DataObject data_;
    StreamPersistence stream_;
    StoragePersistence storage_;
    BagPersistence bag_;
    Dispatch dispatch_;
    ClassInfo classInfo_;
    ErrorSupport errors_;
    PageList pages_;
    Browsing browsing_;
    Categories categories_;
    FastActivation quick_;
    std::unique_ptr<Content> content_;
};

} // namespace vela::activex
