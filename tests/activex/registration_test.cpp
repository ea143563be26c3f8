// The registry after registering and unregistering, per machine and per user, and activation without a registry.
#include "automation.h"
#include "library.h"

#include "activex/guids.h"
#include "tests/windows/child.h"

#include <gtest/gtest.h>

#include <cstdlib>
#include <cwchar>
#include <fstream>
#include <string>
#include <utility>

namespace vela::test {

namespace {

using activex::identity::calendarClass;
using activex::identity::library;
using activex::identity::velaClass;
using activex::identity::velaEvents;
using activex::identity::velaInterface;

const HKEY roots[] = {HKEY_LOCAL_MACHINE, HKEY_CURRENT_USER};

std::wstring valueOf(HKEY root, const std::wstring& key, const wchar_t* name = nullptr)
{
    wchar_t text[512]{};
    DWORD size = sizeof text;
    if (RegGetValueW(root, (L"Software\\Classes\\" + key).c_str(), name, RRF_RT_REG_SZ, nullptr, text, &size) !=
        ERROR_SUCCESS)
        return L"-";
    return text;
}

bool exists(HKEY root, const std::wstring& key)
{
    HKEY opened = nullptr;
    const LSTATUS found = RegOpenKeyExW(root, (L"Software\\Classes\\" + key).c_str(), 0, KEY_READ, &opened);
    RegCloseKey(opened);
    return found == ERROR_SUCCESS;
}

std::wstring classKey(std::string_view id)
{
    return L"CLSID\\" + activex::keyOf(id);
}

const std::wstring everyKey[] = {
    classKey(velaClass),
    classKey(calendarClass),
    classKey(activex::identity::principalPage),
    classKey(activex::identity::geralPage),
    classKey(activex::identity::errosPage),
    classKey(activex::identity::fontePage),
    classKey(activex::identity::calendarioPage),
    L"Interface\\" + activex::keyOf(velaInterface),
    L"Interface\\" + activex::keyOf(velaEvents),
    L"TypeLib\\" + activex::keyOf(library),
    L"Vela.Vela",
    L"Vela.Vela.1",
    L"Vela.cCalendar",
    L"Vela.cCalendar.1",
};

void expectRegistered(HKEY root)
{
    const std::wstring control = classKey(velaClass);
    EXPECT_EQ(valueOf(root, control + L"\\InprocServer32"), libraryPath());
    EXPECT_EQ(valueOf(root, control + L"\\InprocServer32", L"ThreadingModel"), L"Apartment");
    EXPECT_EQ(valueOf(root, control + L"\\ProgID"), L"Vela.Vela.1");
    EXPECT_EQ(valueOf(root, control + L"\\VersionIndependentProgID"), L"Vela.Vela");
    EXPECT_EQ(valueOf(root, control + L"\\MiscStatus\\1"), L"131473"); // 0x20191
    EXPECT_EQ(valueOf(root, control + L"\\ToolboxBitmap32"), libraryPath() + L", 101");
    EXPECT_EQ(valueOf(root, control + L"\\Version"), L"1.0");
    EXPECT_EQ(valueOf(root, control + L"\\TypeLib"), activex::keyOf(library));
    EXPECT_TRUE(exists(root, control + L"\\Control"));
    EXPECT_FALSE(exists(root, control + L"\\Insertable"));
    EXPECT_TRUE(exists(root, control + L"\\Implemented Categories\\{40FC6ED4-2438-11CF-A3DB-080036F12502}"));
    EXPECT_EQ(valueOf(root, L"Vela.Vela\\CurVer"), L"Vela.Vela.1");
    const std::wstring bitness = sizeof(void*) == 8 ? L"win64" : L"win32";
    EXPECT_EQ(valueOf(root, L"TypeLib\\" + activex::keyOf(library) + L"\\1.0\\0\\" + bitness), libraryPath());
    for (const std::wstring& key : everyKey)
        EXPECT_TRUE(exists(root, key)) << std::string(key.begin(), key.end());
}

void expectNothing(HKEY root)
{
    for (const std::wstring& key : everyKey)
        EXPECT_FALSE(exists(root, key)) << std::string(key.begin(), key.end());
}

// Wine 8 looks for classes among the machine's only.
bool usersClassesAreSeen()
{
    CLSID found{};
    return SUCCEEDED(CLSIDFromProgID(L"Vela.Vela", &found));
}

class Registration : public testing::Test {
protected:
    void TearDown() override { ASSERT_EQ(callServer("DllRegisterServer"), S_OK); } // the other tests need it
};

TEST_F(Registration, ForTheMachineAndBack)
{
    expectRegistered(HKEY_LOCAL_MACHINE);
    ASSERT_EQ(callInstall(true, L"user"), S_OK);
    ASSERT_EQ(callInstall(false, L"user"), S_OK); // for one user; it stays for the machine
    expectNothing(HKEY_CURRENT_USER);
    expectRegistered(HKEY_LOCAL_MACHINE);
    ASSERT_EQ(callInstall(true, L"USER"), S_OK);
    ASSERT_EQ(callServer("DllUnregisterServer"), S_OK); // for both
    for (const HKEY root : roots)
        expectNothing(root);
    ASSERT_EQ(callInstall(false, nullptr), S_OK) << "a second time there is nothing to do";
    EXPECT_FALSE(create());
}

TEST_F(Registration, ForOneUserAndBack)
{
    ASSERT_EQ(callServer("DllUnregisterServer"), S_OK);
    EXPECT_FALSE(exists(HKEY_CURRENT_USER, L"TypeLib"));
    ASSERT_EQ(callInstall(true, L"user"), S_OK);
    expectNothing(HKEY_LOCAL_MACHINE);
    expectRegistered(HKEY_CURRENT_USER);
    if (usersClassesAreSeen()) {
        EXPECT_TRUE(create(L"Vela.Vela"));
        ComPtr<ITypeLib> found;
        EXPECT_EQ(LoadRegTypeLib(activex::libraryId, 1, 0, 0, &found), S_OK);
    }
    ASSERT_EQ(callInstall(false, L"user"), S_OK);
    expectNothing(HKEY_CURRENT_USER);
    for (const wchar_t* const key : {L"CLSID", L"Interface", L"TypeLib"})
        EXPECT_FALSE(exists(HKEY_CURRENT_USER, key)) << "no empty key is left";
}

// A key in the way that takes no lasting keys below it; what was registered before says so by another path.
TEST_F(Registration, AFailedOneLeavesTheOneThatWorked)
{
    const std::wstring server = L"Software\\Classes\\" + classKey(velaClass) + L"\\InprocServer32";
    const std::wstring inTheWay = L"Software\\Classes\\Vela.cCalendar";
    constexpr wchar_t other[] = L"C:\\antes\\Vela.ocx";
    RegSetKeyValueW(HKEY_LOCAL_MACHINE, server.c_str(), nullptr, REG_SZ, other, sizeof other);
    RegDeleteTreeW(HKEY_LOCAL_MACHINE, inTheWay.c_str());
    RegDeleteTreeW(HKEY_LOCAL_MACHINE, L"Software\\Classes\\Vela.Vela.1");
    HKEY key = nullptr;
    RegCreateKeyExW(HKEY_LOCAL_MACHINE, inTheWay.c_str(), 0, nullptr, REG_OPTION_VOLATILE, KEY_ALL_ACCESS, nullptr,
                    &key, nullptr);
    {
        const AnsweredBoxes boxes;
        EXPECT_TRUE(FAILED(callServer("DllRegisterServer")));
        EXPECT_EQ(boxes.texts().size(), 1u);
    }
    RegCloseKey(key);
    EXPECT_EQ(valueOf(HKEY_LOCAL_MACHINE, classKey(velaClass) + L"\\InprocServer32"), other);
    EXPECT_EQ(valueOf(HKEY_LOCAL_MACHINE, L"Vela.Vela\\CLSID"), activex::keyOf(velaClass));
    EXPECT_EQ(valueOf(HKEY_LOCAL_MACHINE, L"Vela.cCalendar"), L"-") << "what it had written is taken back";
    EXPECT_FALSE(exists(HKEY_LOCAL_MACHINE, L"Vela.Vela.1")) << "so is the key that it had made";
    RegDeleteTreeW(HKEY_LOCAL_MACHINE, inTheWay.c_str());
}

// No message where nobody sees it, as a service has it: a box would wait for ever.
TEST_F(Registration, AnUnknownWordIsRefusedWithAMessage)
{
    ASSERT_EQ(callServer("DllUnregisterServer"), S_OK);
    const AnsweredBoxes boxes;
    const HWINSTA before = GetProcessWindowStation();
    const HWINSTA unseen = CreateWindowStationW(nullptr, 0, GENERIC_ALL, nullptr);
    ASSERT_TRUE(SetProcessWindowStation(unseen));
    EXPECT_EQ(callInstall(true, L"usuario"), E_INVALIDARG);
    EXPECT_TRUE(boxes.texts().empty());
    SetProcessWindowStation(before);
    CloseWindowStation(unseen);
    EXPECT_EQ(callInstall(true, L"usuario"), E_INVALIDARG);
    ASSERT_EQ(boxes.texts().size(), 1u);
    EXPECT_NE(boxes.texts()[0].find(u"/i:usuario"), std::u16string::npos);
    for (const HKEY root : roots)
        expectNothing(root);
}

std::string assembly(const std::string& name)
{
    return R"(<assemblyIdentity type="win32" name=")" + name + R"(" version="1.0.0.0" processorArchitecture=")" +
           (sizeof(void*) == 8 ? "amd64" : "x86") + R"("/>)";
}

// A program beside the library whose manifest names the library's as a dependency, as the manual tells.
TEST_F(Registration, AProgramThatDependsOnTheAssembly)
{
    std::string program;
    for (const wchar_t unit : libraryPath().substr(0, libraryPath().rfind(L'\\')) + L"\\without_registry.exe")
        program += static_cast<char>(unit);
    const std::string manifest = program + ".manifest";
    const AtEnd remove([&] {
        DeleteFileA(program.c_str());
        DeleteFileA(manifest.c_str());
    });
    ASSERT_TRUE(CopyFileA(thisProgram().c_str(), program.c_str(), FALSE));
    std::ofstream(manifest) << R"(<?xml version="1.0" encoding="UTF-8" standalone="yes"?>)"
                            << R"(<assembly xmlns="urn:schemas-microsoft-com:asm.v1" manifestVersion="1.0">)"
                            << assembly("Program") << "<dependency><dependentAssembly>" << assembly("Vela.ocx")
                            << "</dependentAssembly></dependency></assembly>";
    runApart(program, "WithoutRegistry.*", "VELA_TEST_MANIFEST");
}

// Classes, names, library and status are found by the manifest alone.
TEST(WithoutRegistry, TheProgramsManifestIsEnough)
{
    if (!std::getenv("VELA_TEST_MANIFEST"))
        GTEST_SKIP() << "a part of Registration.AProgramThatDependsOnTheAssembly";
    ASSERT_EQ(callServer("DllUnregisterServer"), S_OK);
    expectNothing(HKEY_LOCAL_MACHINE);
    const ComPtr<IUnknown> control = create();
    ASSERT_TRUE(control);
    const Automation field(control.Get());
    EXPECT_EQ(field.put(u"Text", text(u"sem registro")).result, S_OK);
    EXPECT_EQ(field.textOf(u"Text"), u"sem registro");
    EXPECT_TRUE(create(L"Vela.cCalendar"));
    ComPtr<ITypeInfo> info;
    EXPECT_EQ(field.dispatch()->GetTypeInfo(0, 0, &info), S_OK);
    DWORD status = 0;
    EXPECT_EQ(OleRegGetMiscStatus(activex::velaClass, DVASPECT_CONTENT, &status), S_OK);
    EXPECT_EQ(status, 0x20191u);
    ComPtr<ITypeLib> found;
    EXPECT_EQ(LoadRegTypeLib(activex::libraryId, 1, 0, 0, &found), S_OK);
}

TEST_F(Registration, VersionAndToolboxPictureAreInTheFile)
{
    const std::wstring path = libraryPath();
    DWORD ignored = 0;
    std::vector<BYTE> block(GetFileVersionInfoSizeW(path.c_str(), &ignored));
    ASSERT_FALSE(block.empty());
    ASSERT_TRUE(GetFileVersionInfoW(path.c_str(), 0, static_cast<DWORD>(block.size()), block.data()));
    void* found = nullptr;
    UINT size = 0;
    ASSERT_TRUE(VerQueryValueW(block.data(), L"\\", &found, &size));
    const auto& version = *static_cast<const VS_FIXEDFILEINFO*>(found);
    EXPECT_EQ(version.dwFileVersionMS, 0x00010000u);
    EXPECT_EQ(version.dwProductVersionMS, version.dwFileVersionMS);
    for (const auto& [name, expected] :
         {std::pair{L"FileDescription", L"Vela: campo de entrada de dados para formul\u00E1rios"},
          {L"OLESelfRegister", L""},
          {L"OriginalFilename", L"Vela.ocx"}}) {
        ASSERT_TRUE(VerQueryValueW(block.data(), (L"\\StringFileInfo\\041604B0\\" + std::wstring(name)).c_str(), &found,
                                   &size));
        EXPECT_STREQ(static_cast<const wchar_t*>(found), expected);
    }
    const HMODULE module = LoadLibraryExW(path.c_str(), nullptr, LOAD_LIBRARY_AS_DATAFILE);
    const HANDLE picture = LoadImageW(module, MAKEINTRESOURCEW(101), IMAGE_BITMAP, 0, 0, LR_CREATEDIBSECTION);
    BITMAP bitmap{};
    EXPECT_NE(GetObjectW(picture, sizeof bitmap, &bitmap), 0);
    EXPECT_EQ(bitmap.bmWidth, 16);
    EXPECT_EQ(bitmap.bmHeight, 16);
    DeleteObject(picture);
    FreeLibrary(module);
}

} // namespace

} // namespace vela::test
