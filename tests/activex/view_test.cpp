// Pictures of the control: in bitmaps, in metafiles, as data on the clipboard's terms.
#include "container.h"
#include "host_objects.h"
#include "picture.h"

#include <gtest/gtest.h>

namespace vela::test {

namespace {

ComPtr<IUnknown> redField()
{
    ComPtr<IUnknown> control = create();
    const Automation field(control.Get());
    field.put(u"BackColor", number(0x000000FF)); // red
    field.put(u"Text", text(u"MMMMM"));
    SIZEL extent{2646, 635}; // 100 x 24 pixels
    query<IOleObject>(control.Get())->SetExtent(DVASPECT_CONTENT, &extent);
    return control;
}

constexpr DWORD red = 0x00FF0000;

TEST(View, DrawsWhereItIsToldWithoutAWindow)
{
    const ComPtr<IUnknown> control = redField();
    const auto view = query<IViewObjectEx>(control.Get());
    Picture picture(300, 100);
    const RECTL bounds{50, 20, 250, 68}; // twice the size
    ASSERT_EQ(drawn(*view.Get(), picture.dc(), &bounds), S_OK);
    EXPECT_GT(picture.count(red, {60, 30, 240, 60}), 180 * 30 / 3) << "background";
    EXPECT_LT(picture.count(red, {60, 30, 240, 60}), 180 * 30) << "and text on it";
    EXPECT_EQ(picture.count(Picture::background, {0, 0, 300, 20}), 300 * 20) << "nothing above";
    EXPECT_EQ(picture.count(Picture::background, {250, 0, 300, 100}), 50 * 100) << "nothing beside";
    EXPECT_EQ(picture.count(Picture::background, {52, 22, 248, 66}), 0) << "opaque";

    EXPECT_EQ(drawn(*view.Get(), picture.dc(), &bounds, -1, DVASPECT_ICON), DV_E_DVASPECT);
    EXPECT_EQ(drawn(*view.Get(), picture.dc(), nullptr), E_INVALIDARG);
    SIZEL extent{};
    EXPECT_EQ(view->GetExtent(DVASPECT_CONTENT, -1, nullptr, &extent), S_OK);
    EXPECT_EQ(extent.cx, 2646);
    DVEXTENTINFO info{sizeof info, DVEXTENT_CONTENT, {5000, 700}};
    EXPECT_EQ(view->GetNaturalExtent(DVASPECT_CONTENT, -1, nullptr, nullptr, &info, &extent), E_NOTIMPL);
    EXPECT_EQ(extent.cx, -1) << "not adjusted";
    EXPECT_EQ(view->GetNaturalExtent(DVASPECT_CONTENT, -1, nullptr, nullptr, &info, nullptr), E_POINTER);
}

// The field is one picture: hosts that number its parts from 0, or from 1, mean the whole.
TEST(View, EveryPartNumberMeansTheWhole)
{
    const ComPtr<IUnknown> control = redField();
    const auto view = query<IViewObject>(control.Get());
    const auto data = query<IDataObject>(control.Get());
    for (const LONG part : {-1, 0, 1, 7}) {
        SCOPED_TRACE(part);
        Picture picture(100, 24);
        const RECTL bounds{0, 0, 100, 24};
        EXPECT_EQ(drawn(*view.Get(), picture.dc(), &bounds, part), S_OK);
        EXPECT_GT(picture.count(red, {0, 0, 100, 24}), 100 * 24 / 3);
        FORMATETC format{CF_UNICODETEXT, nullptr, DVASPECT_CONTENT, part, TYMED_HGLOBAL};
        EXPECT_EQ(data->QueryGetData(&format), S_OK);
        STGMEDIUM medium{};
        EXPECT_EQ(data->GetData(&format, &medium), S_OK);
        ReleaseStgMedium(&medium);
        LOGPALETTE* colours = nullptr;
        EXPECT_EQ(view->GetColorSet(DVASPECT_CONTENT, part, nullptr, nullptr, nullptr, &colours), S_FALSE);
    }
}

struct Mapping {
    const char* what;
    void (*set)(HDC dc);
};
const Mapping mappings[] = {
    {"hundredths of a millimetre, upwards", [](HDC dc) { SetMapMode(dc, MM_HIMETRIC); }},
    {"twips, upwards, from another origin",
     [](HDC dc) {
         SetMapMode(dc, MM_TWIPS);
         SetViewportOrgEx(dc, 30, 90, nullptr);
         SetWindowOrgEx(dc, 200, -100, nullptr);
     }},
    {"a container's own units",
     [](HDC dc) {
         SetMapMode(dc, MM_ANISOTROPIC);
         SetWindowExtEx(dc, 2646, 635, nullptr);
         SetViewportExtEx(dc, 200, 48, nullptr);
     }},
    {"few units, many pixels",
     [](HDC dc) {
         SetMapMode(dc, MM_ANISOTROPIC);
         SetWindowExtEx(dc, 30, 10, nullptr);
         SetViewportExtEx(dc, 300, 100, nullptr);
     }},
    {"a world twice as large",
     [](HDC dc) {
         const XFORM twice{2, 0, 0, 2, 10, 4};
         SetGraphicsMode(dc, GM_ADVANCED);
         SetWorldTransform(dc, &twice);
     }},
};

// The same pixels as in a context of pixels, and the context is left as it was.
TEST(View, DrawsInAnyUnits)
{
    const ComPtr<IUnknown> control = redField();
    const auto view = query<IViewObject>(control.Get());
    const auto draw = [&](HDC dc, const POINT(&corners)[2]) {
        const RECTL bounds{corners[0].x, corners[0].y, corners[1].x, corners[1].y};
        return drawn(*view.Get(), dc, &bounds);
    };
    for (const Mapping& mapping : mappings) {
        SCOPED_TRACE(mapping.what);
        Picture mapped(300, 100);
        mapping.set(mapped.dc());
        const int mode = GetMapMode(mapped.dc());
        POINT logical[2]{{40, 20}, {240, 70}};
        DPtoLP(mapped.dc(), logical, 2);
        POINT pixels[2]{logical[0], logical[1]};
        LPtoDP(mapped.dc(), pixels, 2);
        EXPECT_EQ(draw(mapped.dc(), logical), S_OK);
        EXPECT_EQ(GetMapMode(mapped.dc()), mode);
        POINT after[2]{logical[0], logical[1]};
        LPtoDP(mapped.dc(), after, 2);
        EXPECT_EQ(after[0].x, pixels[0].x);
        EXPECT_EQ(after[1].y, pixels[1].y);

        Picture plain(300, 100);
        EXPECT_EQ(draw(plain.dc(), pixels), S_OK);
        EXPECT_TRUE(mapped.pixels() == plain.pixels());
        EXPECT_GT(plain.count(red, {50, 30, 230, 60}), 180 * 30 / 3);
    }
}

TEST(View, DrawsThroughAMetafile)
{
    const LeakCheck leaks;
    const ComPtr<IUnknown> control = redField();
    const auto data = query<IDataObject>(control.Get());
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
    if (query<IDataObject>(control)->GetData(&format, &medium) != S_OK)
        return u"?";
    const auto* const given = static_cast<const wchar_t*>(GlobalLock(medium.hGlobal));
    std::u16string result(asText(given));
    GlobalUnlock(medium.hGlobal);
    ReleaseStgMedium(&medium);
    return result;
}

TEST(View, GivesItsTextButNoPassword)
{
    const ComPtr<IUnknown> control = create();
    const Automation field(control.Get());
    field.put(u"Text", text(u"a\u00E7\u00E3o"));
    EXPECT_EQ(textData(control.Get()), u"a\u00E7\u00E3o");
    field.put(u"PasswordChar", text(u"*"));
    EXPECT_EQ(textData(control.Get()), u"****");
    FORMATETC other{CF_BITMAP, nullptr, DVASPECT_CONTENT, -1, TYMED_GDI};
    EXPECT_EQ(query<IDataObject>(control.Get())->QueryGetData(&other), DV_E_FORMATETC);
}

TEST(View, TellsWhenItsPictureIsAnother)
{
    const LeakCheck leaks;
    const ComPtr<IUnknown> control = create();
    const auto view = query<IViewObject>(control.Get());
    const auto sink = make<AdviseSink>();
    ASSERT_EQ(view->SetAdvise(DVASPECT_CONTENT, 0, sink.Get()), S_OK);
    Automation(control.Get()).put(u"Text", text(u"x"));
    EXPECT_GE(sink->views, 1);
    ComPtr<IAdviseSink> kept;
    DWORD aspects = 0;
    EXPECT_EQ(view->GetAdvise(&aspects, nullptr, &kept), S_OK);
    EXPECT_EQ(kept.Get(), sink.Get());
    kept.Reset();
    view->SetAdvise(DVASPECT_CONTENT, ADVF_ONLYONCE | ADVF_PRIMEFIRST, sink.Get());
    const int views = sink->views;
    Automation(control.Get()).put(u"Text", text(u"y"));
    EXPECT_EQ(sink->views, views) << "told once, and at once";
    view->SetAdvise(DVASPECT_CONTENT, 0, nullptr);
}

// Cell 19, framed from (125, 86) to (155, 106): the middle of its left end is marked, its corner is not.
TEST(View, TheCalendarDrawsItsMonthWithTheChosenDayRound)
{
    const ComPtr<IUnknown> field = create();
    Automation(field.Get()).set({{u"Calendar_BackColor", 0x00FFFFFF}, {u"Calendar_Selected", 0x00C0FFFF}});
    const ComPtr<IUnknown> control = create(L"Vela.cCalendar");
    ASSERT_EQ(Automation(control.Get()).call(u"IniciaCalendario", one(text(u"15/03/2024"))).result, S_OK);
    Picture picture(184, 167);
    const RECTL bounds{0, 0, 184, 167};
    ASSERT_EQ(drawn(*query<IViewObject>(control.Get()).Get(), picture.dc(), &bounds), S_OK);
    EXPECT_EQ(picture.count(Picture::background, {0, 0, 184, 167}), 0);
    const DWORD panel = picture.at(6, 120);
    EXPECT_EQ(picture.at(128, 96), 0x00FFFFC0u);
    EXPECT_EQ(picture.at(126, 87), panel);
    EXPECT_EQ(picture.at(153, 104), panel);
}

} // namespace

} // namespace vela::test
