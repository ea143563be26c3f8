// Pictures of the control: in bitmaps, in metafiles, as data on the clipboard's terms.
#include "container.h"

#include <gtest/gtest.h>

#include <set>

namespace vela::test {

namespace {

// A 32-bit picture in memory.
class Picture {
public:
    Picture(int width, int height) : width_(width), dc_(CreateCompatibleDC(nullptr))
    {
        BITMAPINFO info{};
        info.bmiHeader = {sizeof info.bmiHeader, width, -height, 1, 32, BI_RGB, 0, 0, 0, 0, 0};
        void* bits = nullptr;
        bitmap_ = CreateDIBSection(dc_, &info, DIB_RGB_COLORS, &bits, nullptr, 0);
        before_ = SelectObject(dc_, bitmap_);
        pixels_ = static_cast<DWORD*>(bits);
        size_ = static_cast<std::size_t>(width) * static_cast<std::size_t>(height);
        clear();
    }
    Picture(const Picture&) = delete;
    Picture& operator=(const Picture&) = delete;
    ~Picture()
    {
        SelectObject(dc_, before_);
        DeleteObject(bitmap_);
        DeleteDC(dc_);
    }
    void clear() { std::fill_n(pixels_, size_, background); }
    [[nodiscard]] HDC dc() const { return dc_; }
    [[nodiscard]] DWORD at(int x, int y) const
    {
        GdiFlush();
        return pixels_[y * width_ + x] & 0xFFFFFF;
    }
    [[nodiscard]] int count(DWORD colour, RECT in) const // 0x00RRGGBB
    {
        int found = 0;
        for (LONG y = in.top; y < in.bottom; ++y)
            for (LONG x = in.left; x < in.right; ++x)
                found += at(static_cast<int>(x), static_cast<int>(y)) == colour;
        return found;
    }
    static constexpr DWORD background = 0x00FF00FF;

private:
    int width_;
    std::size_t size_ = 0;
    HDC dc_;
    HBITMAP bitmap_ = nullptr;
    HGDIOBJ before_ = nullptr;
    DWORD* pixels_ = nullptr;
};

ComPtr<IUnknown> redField()
{
    ComPtr<IUnknown> control = create();
    const Automation field(control.get());
    field.put(u"BackColor", number(0x000000FF)); // red
    field.put(u"Text", text(u"MMMMM"));
    SIZEL extent{2646, 635}; // 100 x 24 pixels
    ComPtr<IOleObject>::from(control.get())->SetExtent(DVASPECT_CONTENT, &extent);
    return control;
}

constexpr DWORD red = 0x00FF0000;

TEST(View, DrawsWhereItIsToldWithoutAWindow)
{
    const ComPtr<IUnknown> control = redField();
    const auto view = ComPtr<IViewObject2>::from(control.get());
    Picture picture(300, 100);
    const RECTL bounds{50, 20, 250, 68}; // twice the size
    ASSERT_EQ(view->Draw(DVASPECT_CONTENT, -1, nullptr, nullptr, nullptr, picture.dc(), &bounds, nullptr, nullptr, 0),
              S_OK);
    EXPECT_GT(picture.count(red, {60, 30, 240, 60}), 180 * 30 / 3) << "background";
    EXPECT_LT(picture.count(red, {60, 30, 240, 60}), 180 * 30) << "and text on it";
    EXPECT_EQ(picture.count(Picture::background, {0, 0, 300, 20}), 300 * 20) << "nothing above";
    EXPECT_EQ(picture.count(Picture::background, {250, 0, 300, 100}), 50 * 100) << "nothing beside";
    EXPECT_EQ(picture.count(Picture::background, {52, 22, 248, 66}), 0) << "opaque";

    EXPECT_EQ(view->Draw(DVASPECT_ICON, -1, nullptr, nullptr, nullptr, picture.dc(), &bounds, nullptr, nullptr, 0),
              DV_E_DVASPECT);
    EXPECT_EQ(view->Draw(DVASPECT_CONTENT, -1, nullptr, nullptr, nullptr, picture.dc(), nullptr, nullptr, nullptr, 0),
              E_INVALIDARG);
    SIZEL extent{};
    EXPECT_EQ(view->GetExtent(DVASPECT_CONTENT, -1, nullptr, &extent), S_OK);
    EXPECT_EQ(extent.cx, 2646);
}

TEST(View, DrawsThroughAMetafile)
{
    const LeakCheck leaks;
    const ComPtr<IUnknown> control = redField();
    const auto data = ComPtr<IDataObject>::from(control.get());
    FORMATETC enhanced{CF_ENHMETAFILE, nullptr, DVASPECT_CONTENT, -1, TYMED_ENHMF};
    STGMEDIUM medium{};
    ASSERT_EQ(data->GetData(&enhanced, &medium), S_OK);
    ENHMETAHEADER header{};
    GetEnhMetaFileHeader(medium.hEnhMetaFile, sizeof header, &header);
    EXPECT_NEAR(static_cast<double>(header.rclFrame.right - header.rclFrame.left), 2646, 60);
    Picture picture(300, 100);
    const RECT place{0, 0, 300, 100};
    EXPECT_TRUE(PlayEnhMetaFile(picture.dc(), medium.hEnhMetaFile, &place));
    EXPECT_GT(picture.count(red, {20, 20, 280, 80}), 260 * 60 / 3);
    ReleaseStgMedium(&medium);

    FORMATETC classic{CF_METAFILEPICT, nullptr, DVASPECT_CONTENT, -1, TYMED_MFPICT};
    ASSERT_EQ(data->GetData(&classic, &medium), S_OK);
    const auto* const metafile = static_cast<const METAFILEPICT*>(GlobalLock(medium.hMetaFilePict));
    EXPECT_EQ(metafile->mm, MM_ANISOTROPIC);
    EXPECT_EQ(metafile->xExt, 2646);
    picture.clear();
    SetMapMode(picture.dc(), MM_ANISOTROPIC);
    SetViewportExtEx(picture.dc(), 300, 100, nullptr);
    EXPECT_TRUE(PlayMetaFile(picture.dc(), metafile->hMF));
    EXPECT_GT(picture.count(red, {20, 20, 280, 80}), 260 * 60 / 3);
    GlobalUnlock(medium.hMetaFilePict);
    ReleaseStgMedium(&medium);
}

std::u16string textData(IUnknown* control)
{
    FORMATETC format{CF_UNICODETEXT, nullptr, DVASPECT_CONTENT, -1, TYMED_HGLOBAL};
    STGMEDIUM medium{};
    if (ComPtr<IDataObject>::from(control)->GetData(&format, &medium) != S_OK)
        return u"?";
    const auto* const given = static_cast<const wchar_t*>(GlobalLock(medium.hGlobal));
    std::u16string result(asText(given, wcslen(given)));
    GlobalUnlock(medium.hGlobal);
    ReleaseStgMedium(&medium);
    return result;
}

TEST(View, GivesItsTextButNoPassword)
{
    const ComPtr<IUnknown> control = create();
    const Automation field(control.get());
    field.put(u"Text", text(u"a\u00E7\u00E3o"));
    EXPECT_EQ(textData(control.get()), u"a\u00E7\u00E3o");
    field.put(u"PasswordChar", text(u"*"));
    EXPECT_EQ(textData(control.get()), u"****");
    FORMATETC other{CF_BITMAP, nullptr, DVASPECT_CONTENT, -1, TYMED_GDI};
    EXPECT_EQ(ComPtr<IDataObject>::from(control.get())->QueryGetData(&other), DV_E_FORMATETC);
}

TEST(View, TellsWhenItsPictureIsAnother)
{
    class Sink final : public ComObject<IAdviseSink> {
    public:
        int views = 0;
        void STDMETHODCALLTYPE OnDataChange(FORMATETC*, STGMEDIUM*) override {}
        void STDMETHODCALLTYPE OnViewChange(DWORD, LONG) override { ++views; }
        void STDMETHODCALLTYPE OnRename(IMoniker*) override {}
        void STDMETHODCALLTYPE OnSave() override {}
        void STDMETHODCALLTYPE OnClose() override {}
    };
    const LeakCheck leaks;
    const ComPtr<IUnknown> control = create();
    const auto view = ComPtr<IViewObject>::from(control.get());
    const auto sink = make<Sink>();
    ASSERT_EQ(view->SetAdvise(DVASPECT_CONTENT, 0, sink.get()), S_OK);
    Automation(control.get()).put(u"Text", text(u"x"));
    EXPECT_GE(sink->views, 1);
    ComPtr<IAdviseSink> kept;
    DWORD aspects = 0;
    EXPECT_EQ(view->GetAdvise(&aspects, nullptr, kept.put()), S_OK);
    EXPECT_EQ(kept.get(), sink.get());
    kept.reset();
    view->SetAdvise(DVASPECT_CONTENT, 0, nullptr);
}

TEST(View, TheCalendarDrawsItsMonth)
{
    const ComPtr<IUnknown> control = create(L"Vela.cCalendar");
    const auto view = ComPtr<IViewObject>::from(control.get());
    Picture picture(200, 200);
    const RECTL bounds{0, 0, 200, 200};
    ASSERT_EQ(view->Draw(DVASPECT_CONTENT, -1, nullptr, nullptr, nullptr, picture.dc(), &bounds, nullptr, nullptr, 0),
              S_OK);
    EXPECT_EQ(picture.count(Picture::background, {0, 0, 200, 200}), 0);
    std::set<DWORD> colours;
    for (int x = 0; x < 200; ++x)
        for (int y = 0; y < 200; ++y)
            colours.insert(picture.at(x, y));
    EXPECT_GT(colours.size(), 3u) << "more than a plain panel";
}

} // namespace

} // namespace vela::test
