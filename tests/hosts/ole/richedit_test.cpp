// A rich text box as container: the field is made, stored, loaded and drawn by the system's OLE helpers.
#include "tests/activex/automation.h"
#include "tests/activex/library.h"

#include <gtest/gtest.h>

#include <initguid.h>

#include <richole.h>

#include <algorithm>
#include <memory>
#include <vector>

namespace vela::test {

namespace {

DEFINE_GUID(richEditOleId, 0x00020D00, 0, 0, 0xC0, 0, 0, 0, 0, 0, 0, 0x46);

ComPtr<IStorage> storageInMemory()
{
    ComPtr<ILockBytes> bytes;
    ComPtr<IStorage> storage;
    EXPECT_EQ(CreateILockBytesOnHGlobal(nullptr, TRUE, &bytes), S_OK);
    EXPECT_EQ(
        StgCreateDocfileOnILockBytes(bytes.Get(), STGM_SHARE_EXCLUSIVE | STGM_CREATE | STGM_READWRITE, 0, &storage),
        S_OK);
    return storage;
}

std::size_t inkOf(HDC dc, RECT in) // points that are not white
{
    std::size_t ink = 0;
    for (int y = in.top; y < in.bottom; ++y)
        for (int x = in.left; x < in.right; ++x)
            ink += GetPixel(dc, x, y) != RGB(255, 255, 255);
    return ink;
}

class RichBox {
public:
    RichBox()
        : module_(LoadLibraryW(L"riched20.dll")),
          window_(CreateWindowExW(0, L"RichEdit20W", nullptr, WS_POPUP | WS_VISIBLE | ES_MULTILINE, 40, 40, 400, 120,
                                  nullptr, nullptr, nullptr, nullptr))
    {
        SendMessageW(window_, EM_GETOLEINTERFACE, 0, reinterpret_cast<LPARAM>(rich_.ReleaseAndGetAddressOf()));
        if (rich_)
            rich_->GetClientSite(&site_);
        storage_ = storageInMemory();
    }
    RichBox(const RichBox&) = delete;
    RichBox& operator=(const RichBox&) = delete;
    ~RichBox()
    {
        site_.Reset();
        rich_.Reset();
        DestroyWindow(window_);
        FreeLibrary(module_);
    }

    ComPtr<IOleObject> create()
    {
        CLSID id;
        ComPtr<IOleObject> object;
        EXPECT_EQ(CLSIDFromProgID(L"Vela.Vela", &id), S_OK);
        EXPECT_EQ(OleCreate(id, IID_IOleObject, OLERENDER_DRAW, nullptr, site_.Get(), storage_.Get(), &object), S_OK);
        return object;
    }
    ComPtr<IOleObject> load(IStorage* from)
    {
        ComPtr<IOleObject> object;
        EXPECT_EQ(OleLoad(from, IID_IOleObject, site_.Get(), &object), S_OK);
        return object;
    }
    HRESULT insert(IOleObject* object)
    {
        REOBJECT entry{};
        entry.cbStruct = sizeof entry;
        entry.cp = REO_CP_SELECTION;
        entry.poleobj = object;
        entry.pstg = storage_.Get();
        entry.polesite = site_.Get();
        entry.dvaspect = DVASPECT_CONTENT;
        entry.dwFlags = REO_RESIZABLE | REO_BELOWBASELINE;
        EXPECT_EQ(object->GetUserClassID(&entry.clsid), S_OK);
        EXPECT_EQ(OleSetContainedObject(object, TRUE), S_OK);
        return rich_->InsertObject(&entry);
    }
    [[nodiscard]] std::size_t ink() const
    {
        RedrawWindow(window_, nullptr, nullptr, RDW_INVALIDATE | RDW_ERASE | RDW_UPDATENOW);
        const HDC dc = GetDC(window_);
        RECT client;
        GetClientRect(window_, &client);
        const std::size_t seen = inkOf(dc, client);
        ReleaseDC(window_, dc);
        return seen;
    }
    [[nodiscard]] IRichEditOle* ole() const { return rich_.Get(); }
    [[nodiscard]] IOleClientSite* site() const { return site_.Get(); }
    [[nodiscard]] IStorage* storage() const { return storage_.Get(); }
    [[nodiscard]] HWND window() const { return window_; }

private:
    HMODULE module_;
    HWND window_;
    ComPtr<IRichEditOle> rich_;
    ComPtr<IOleClientSite> site_;
    ComPtr<IStorage> storage_;
};

// What OleDraw paints of an object: its pixels, row by row.
std::vector<COLORREF> drawn(IUnknown* object)
{
    constexpr int width = 120, height = 24;
    const HDC dc = CreateCompatibleDC(nullptr);
    const HDC screen = GetDC(nullptr);
    const HBITMAP bitmap = CreateCompatibleBitmap(screen, width, height);
    ReleaseDC(nullptr, screen);
    const HGDIOBJ before = SelectObject(dc, bitmap);
    const RECT place{0, 0, width, height};
    FillRect(dc, &place, static_cast<HBRUSH>(GetStockObject(WHITE_BRUSH)));
    EXPECT_EQ(OleDraw(object, DVASPECT_CONTENT, dc, &place), S_OK);
    std::vector<COLORREF> pixels;
    for (int y = 0; y < height; ++y)
        for (int x = 0; x < width; ++x)
            pixels.push_back(GetPixel(dc, x, y));
    SelectObject(dc, before);
    DeleteObject(bitmap);
    DeleteDC(dc);
    return pixels;
}

std::size_t darkOf(const std::vector<COLORREF>& pixels)
{
    return static_cast<std::size_t>(std::count(pixels.begin(), pixels.end(), RGB(0, 0, 0)));
}

} // namespace

TEST(RichEdit, AFieldInsertedIsDrawnAmongTheText)
{
    const LeakCheck leaks;
    RichBox box;
    ASSERT_NE(box.ole(), nullptr);
    const std::size_t empty = box.ink();
    const ComPtr<IOleObject> object = box.create();
    ASSERT_TRUE(object);
    const Automation field(object.Get());
    field.set({{u"Text", u"valor da nota"}});
    ASSERT_EQ(box.insert(object.Get()), S_OK);
    EXPECT_EQ(box.ole()->GetObjectCount(), 1);

    REOBJECT entry{};
    entry.cbStruct = sizeof entry;
    ASSERT_EQ(box.ole()->GetObject(0, &entry, REO_GETOBJ_POLEOBJ), S_OK);
    const auto kept = adopt<IOleObject>(entry.poleobj);
    EXPECT_EQ(Automation(kept.Get()).textOf(u"Text"), u"valor da nota");
    EXPECT_GT(box.ink(), empty + 100) << "the box draws the field in its place";
    SendMessageW(box.window(), WM_SETTEXT, 0, reinterpret_cast<LPARAM>(L""));
    EXPECT_EQ(box.ole()->GetObjectCount(), 0);
    EXPECT_EQ(field.textOf(u"Text"), u"valor da nota") << "whoever holds the object still has it";
}

TEST(RichEdit, StoredAndLoadedTheFieldIsDrawnAlike)
{
    const LeakCheck leaks;
    RichBox box;
    ASSERT_NE(box.ole(), nullptr);
    std::vector<COLORREF> before;
    {
        const ComPtr<IOleObject> object = box.create();
        const Automation field(object.Get());
        field.set({{u"tipoLetra", 1}, {u"Alignment", 1}, {u"ValorPadrao", u"NOTA"}, {u"Text", u"NOTA"}});
        ASSERT_EQ(box.insert(object.Get()), S_OK);
        before = drawn(object.Get());
        EXPECT_GT(darkOf(before), 20u) << "the text is drawn";
        const auto persistent = query<IPersistStorage>(object.Get());
        ASSERT_EQ(OleSave(persistent.Get(), box.storage(), TRUE), S_OK);
        EXPECT_EQ(persistent->SaveCompleted(nullptr), S_OK);
    }
    RichBox other;
    const ComPtr<IOleObject> loaded = other.load(box.storage());
    ASSERT_TRUE(loaded);
    EXPECT_EQ(Automation(loaded.Get()).textOf(u"tipoLetra"), u"1");
    ASSERT_EQ(other.insert(loaded.Get()), S_OK);
    EXPECT_EQ(Automation(loaded.Get()).textOf(u"Text"), u"NOTA");
    EXPECT_EQ(drawn(loaded.Get()), before);
}

// The box's site refuses in-place activation, each verb with an answer of its own; none may hurt.
TEST(RichEdit, VerbsInASiteThatDoesNotActivate)
{
    const LeakCheck leaks;
    RichBox box;
    ASSERT_NE(box.ole(), nullptr);
    const ComPtr<IOleObject> object = box.create();
    ASSERT_EQ(box.insert(object.Get()), S_OK);
    for (const LONG verb : {OLEIVERB_PRIMARY, OLEIVERB_SHOW, OLEIVERB_OPEN, OLEIVERB_UIACTIVATE,
                            OLEIVERB_INPLACEACTIVATE, OLEIVERB_HIDE}) {
        const RECT place{0, 0, 100, 20};
        const HRESULT result = object->DoVerb(verb, nullptr, box.site(), 0, box.window(), &place);
        std::printf("verb %ld: %08lX\n", verb, static_cast<unsigned long>(result));
        pump();
    }
    Automation(object.Get()).set({{u"Text", u"depois"}});
    EXPECT_EQ(Automation(object.Get()).textOf(u"Text"), u"depois");
    EXPECT_EQ(object->Close(OLECLOSE_NOSAVE), S_OK);
}

} // namespace vela::test
