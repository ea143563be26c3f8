// Settings saved and loaded through every interface of persistence, and what happens to bad ones.
#include "automation.h"
#include "host_objects.h"
#include "kept_lines.h"
#include "library.h"

#include "activex/guids.h"
#include "control/property_table.h"
#include "engine/error.h"

#include <gtest/gtest.h>
#include <olectl.h>

#include <fstream>
#include <iterator>
#include <random>
#include <string>

namespace vela::test {

namespace {

ComPtr<Stream> streamOf(const std::string& bytes)
{
    auto stream = make<Stream>();
    stream->bytes = bytes;
    return stream;
}

// Every writable property away from its default, save those whose loading is a rule of its own.
ComPtr<IUnknown> configured()
{
    ComPtr<IUnknown> control = create();
    const Automation field(control.Get());
    field.set({{u"AceitaNegativos", true},
               {u"Alignment", 1},
               {u"AutoSelect", false},
               {u"BackColorLostFocus", 0x00C0FFC0},
               {u"BorderStyle", 2},
               {u"CaractLiberados", u"a\u00E7\u00E3o"},
               {u"DateFormat", u"dd/mm/yy"},
               {u"Delimitador03", u"#"},
               {u"FontBold", true},
               {u"FontSize", 11},
               {u"FontUnderline", true},
               {u"Mask", u"__-__"},
               {u"PasswordChar", u"*"},
               {u"QtdCasasDec", 3},
               {u"Calendar_Selected", 0x0000FF00},
               {u"Text", u"segredo"}});
    return control;
}

void expectSame(IUnknown* left, IUnknown* right)
{
    const Automation first(left);
    const Automation second(right);
    for (const control::Property& property : control::properties())
        if (property.type() != control::PropertyType::font && property.name != u"hwnd" && property.name != u"HwndCtl" &&
            property.name != u"SelStart") {
            EXPECT_EQ(first.textOf(property.name), second.textOf(property.name)) << Bstr(property.name).get();
        }
}

TEST(Persistence, StreamGivesEverythingBack)
{
    const ComPtr<IUnknown> saved = configured();
    const auto source = query<IPersistStreamInit>(saved.Get());
    EXPECT_EQ(source->IsDirty(), S_OK);
    const auto full = make<Stream>();
    full->room = 100; // a medium that is full may say so by what it took alone
    EXPECT_EQ(source->Save(full.Get(), TRUE), STG_E_MEDIUMFULL);
    EXPECT_EQ(source->IsDirty(), S_OK) << "not saved";

    const auto stream = make<Stream>();
    ULARGE_INTEGER size{};
    ASSERT_EQ(source->GetSizeMax(&size), S_OK);
    ASSERT_EQ(source->Save(stream.Get(), TRUE), S_OK);
    EXPECT_EQ(source->IsDirty(), S_FALSE);
    EXPECT_GE(size.QuadPart, stream->bytes.size());
    const ComPtr<IUnknown> loaded = create();
    const auto target = query<IPersistStreamInit>(loaded.Get());
    stream->position = 0;
    ASSERT_EQ(target->Load(stream.Get()), S_OK);
    EXPECT_EQ(target->IsDirty(), S_FALSE);
    expectSame(saved.Get(), loaded.Get());
}

// With the defaults left out, and with all that is written.
TEST(Persistence, BagGivesEverythingBack)
{
    const ComPtr<IUnknown> saved = configured();
    for (const BOOL all : {FALSE, TRUE}) {
        const auto bag = make<Bag>();
        ASSERT_EQ(query<IPersistPropertyBag>(saved.Get())->Save(bag.Get(), TRUE, all), S_OK);
        EXPECT_TRUE(bag->values.contains(u"FontUnderLine"));
        EXPECT_TRUE(bag->values.contains(u"MultLine"));
        EXPECT_EQ(bag->values.contains(u"ErrorAlert"), all != FALSE) << "a default";
        EXPECT_EQ(bag->values.size() == control::writingOrder().size(), all != FALSE);
        EXPECT_EQ(bag->values[u"QtdCasasDec"].get().lVal, 3);
        EXPECT_EQ(bag->values[u"FontBold"].get().vt, VT_BOOL);
        const ComPtr<IUnknown> loaded = create();
        ASSERT_EQ(query<IPersistPropertyBag>(loaded.Get())->Load(bag.Get(), nullptr), S_OK);
        expectSame(saved.Get(), loaded.Get());
    }
}

TEST(Persistence, StorageGivesEverythingBack)
{
    const ComPtr<IUnknown> saved = configured();
    ComPtr<IStorage> storage;
    ASSERT_EQ(StgCreateDocfile(nullptr, STGM_CREATE | STGM_READWRITE | STGM_SHARE_EXCLUSIVE | STGM_DELETEONRELEASE, 0,
                               &storage),
              S_OK);
    const auto source = query<IPersistStorage>(saved.Get());
    ASSERT_EQ(source->Save(storage.Get(), FALSE), S_OK);
    EXPECT_EQ(source->IsDirty(), S_OK) << "until the host says that the saving is complete";
    ASSERT_EQ(source->SaveCompleted(nullptr), S_OK);
    EXPECT_EQ(source->IsDirty(), S_FALSE);
    CLSID written{};
    EXPECT_EQ(ReadClassStg(storage.Get(), &written), S_OK);
    EXPECT_EQ(written, activex::velaClass);

    const ComPtr<IUnknown> loaded = create();
    ASSERT_EQ(query<IPersistStorage>(loaded.Get())->Load(storage.Get()), S_OK);
    expectSame(saved.Get(), loaded.Get());
}

// "saved.QtdCasasDec = 3" of a control that has loaded these bytes.
void addLoaded(std::vector<std::string>& lines, const std::string& source, const std::string& bytes)
{
    const ComPtr<IUnknown> control = create();
    ASSERT_EQ(query<IPersistStreamInit>(control.Get())->Load(streamOf(bytes).Get()), S_OK) << source;
    const Automation field(control.Get());
    for (const control::Property& property : control::properties())
        if (property.type() != control::PropertyType::font && property.name != u"hwnd" && property.name != u"HwndCtl")
            lines.push_back(source + "." + narrow(property.name) + " = " + narrow(field.textOf(property.name)));
}

// A stream with seventy-two keys, written by version 1.0.0, and one with none: forms that were saved open as they did.
TEST(Persistence, ReadsWhatVersion1Saved)
{
    const auto bytesOfFile = [](const char* path) {
        std::ifstream file(path, std::ios::binary);
        return std::string(std::istreambuf_iterator<char>(file), {});
    };
    std::vector<std::string> lines;
    addLoaded(lines, "saved", bytesOfFile(VELA_TEST_DIR "/kept/settings-1.0.bin"));
    addLoaded(lines, "missing", std::string("VelaSet\x1A\x01\0\0\0\x04\0\0\0\x1C\xDF\x44\x21\0\0\0\0", 24));
    writeLines(VELA_BINARY_DIR "/settings.txt", lines);
    EXPECT_EQ(lost(linesOf(VELA_TEST_DIR "/kept/settings-1.0.txt"), lines), std::vector<std::string>{});
}

TEST(Persistence, BadStreamsAreRefusedWholeAndTheControlStaysAsItWas)
{
    const auto good = make<Stream>();
    ASSERT_EQ(query<IPersistStreamInit>(configured().Get())->Save(good.Get(), TRUE), S_OK);
    const std::string& bytes = good->bytes;

    std::vector<std::string> bad{"", "V", std::string(19, '\0'), std::string(4096, 'x'), "VelaSet\x1A"};
    for (const std::size_t length :
         {std::size_t{8}, std::size_t{20}, std::size_t{24}, bytes.size() / 2, bytes.size() - 1})
        bad.push_back(bytes.substr(0, length));
    std::mt19937 random(7);
    for (int i = 0; i < 300; ++i) { // one byte changed anywhere
        std::string changed = bytes;
        changed[random() % changed.size()] ^= static_cast<char>(1 + random() % 255);
        bad.push_back(changed);
    }
    std::string longer = bytes; // a body that claims 4 GB
    longer.replace(12, 4, "\xFF\xFF\xFF\xFF");
    bad.push_back(longer);

    const ComPtr<IUnknown> control = create();
    const Automation field(control.Get());
    ASSERT_EQ(field.put(u"NomeCampo", text(u"antes")).result, S_OK);
    for (const std::string& one : bad) {
        const HRESULT result = query<IPersistStreamInit>(control.Get())->Load(streamOf(one).Get());
        ASSERT_EQ(result, static_cast<HRESULT>(0x800A0141)) << one.size();
        ASSERT_TRUE(errorText().starts_with(u"Invalid file format"));
        ASSERT_EQ(field.textOf(u"NomeCampo"), u"antes");
    }
    ASSERT_EQ(field.put(u"Text", text(u"usable")).result, S_OK);
}

// 60 MB of empty entries would be kept in more than a gigabyte.
TEST(Persistence, ACountOfMillionsIsRefusedBeforeMoreIsRead)
{
    std::string bytes("VelaSet\x1A\x01\0\0\0\x04\0\x94\x03\0\0\0\0\0\0\x80\0", 24);
    bytes.resize(20 + 0x3940004);
    const auto stream = streamOf(bytes);
    const ComPtr<IUnknown> control = create();
    EXPECT_EQ(query<IPersistStreamInit>(control.Get())->Load(stream.Get()), static_cast<HRESULT>(0x800A0141));
    EXPECT_EQ(stream->position, 24u);
    EXPECT_EQ(Automation(control.Get()).put(u"Text", text(u"usable")).result, S_OK);
}

TEST(Persistence, ABagThatFailsIsReportedAsTheHostSaidIt)
{
    const auto full = make<Bag>();
    ASSERT_EQ(query<IPersistPropertyBag>(configured().Get())->Save(full.Get(), TRUE, TRUE), S_OK);
    for (int reads = 0; reads < 80; reads += 13) {
        full->failAfter = reads;
        const ComPtr<IUnknown> control = create();
        const Automation field(control.Get());
        EXPECT_EQ(query<IPersistPropertyBag>(control.Get())->Load(full.Get(), nullptr),
                  reads < 79 ? STG_E_READFAULT : S_OK)
            << reads;
        EXPECT_EQ(field.put(u"Text", text(u"usable")).result, S_OK) << reads;
    }
    full->failAfter = -1;
    *full->values[u"Mask"].put() = number(12).release();
    *full->values[u"QtdCasasDec"].put() = text(u"dois").release();
    const ComPtr<IUnknown> control = create();
    EXPECT_EQ(query<IPersistPropertyBag>(control.Get())->Load(full.Get(), nullptr), static_cast<HRESULT>(0x800A000D))
        << "type mismatch";
    *full->values[u"QtdCasasDec"].put() = text(u"2").release();
    EXPECT_EQ(query<IPersistPropertyBag>(control.Get())->Load(full.Get(), nullptr), S_OK);
    EXPECT_EQ(Automation(control.Get()).textOf(u"Mask"), u"12") << "converted";
    full->failAfter = 5;
    full->failure = STG_E_MEDIUMFULL;
    EXPECT_EQ(query<IPersistPropertyBag>(configured().Get())->Save(full.Get(), TRUE, TRUE), STG_E_MEDIUMFULL);
}

// A bag that says nothing of error information has left none: what the thread has is of an older call.
TEST(Persistence, TheTextOfAnOlderErrorIsNotTheBags)
{
    ComPtr<ICreateErrorInfo> older;
    ASSERT_EQ(CreateErrorInfo(&older), S_OK);
    older->SetDescription(const_cast<wchar_t*>(L"de antes"));
    SetErrorInfo(0, query<IErrorInfo>(older.Get()).Get());
    const auto bag = make<Bag>();
    bag->failAfter = 0;
    EXPECT_EQ(query<IPersistPropertyBag>(create().Get())->Load(bag.Get(), nullptr), STG_E_READFAULT);
    EXPECT_EQ(errorText(), engine::errorDescription(engine::error_number::invalidCall));
}

} // namespace

} // namespace vela::test
