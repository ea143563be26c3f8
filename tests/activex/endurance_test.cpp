// Thousands of controls in one process: windows, drawing objects, memory and references are flat at the end.
#include "container.h"

#include <gtest/gtest.h>
#include <olectl.h>
#include <psapi.h>

#include <cstdlib>

namespace vela::test {

namespace {

struct Usage {
    DWORD windows = GetGuiResources(GetCurrentProcess(), GR_USEROBJECTS);
    DWORD drawing = GetGuiResources(GetCurrentProcess(), GR_GDIOBJECTS);
    DWORD handles = 0;
    SIZE_T memory = 0;

    Usage()
    {
        GetProcessHandleCount(GetCurrentProcess(), &handles);
        PROCESS_MEMORY_COUNTERS_EX counters{};
        GetProcessMemoryInfo(GetCurrentProcess(), reinterpret_cast<PROCESS_MEMORY_COUNTERS*>(&counters),
                             sizeof counters);
        memory = counters.PrivateUsage;
    }
};

int rounds()
{
    const char* const asked = std::getenv("VELA_TEST_COUNT"); // 10000 takes minutes
    const int count = asked ? std::atoi(asked) : 0;
    return count > 0 ? count : 1000;
}

void live(Form& form, int round)
{
    Site& site = form.addActive();
    const Automation field = site.automation();
    field.put(u"QtdCasasDec", number(2));
    field.put(u"TextType", number(round % 2));
    field.put(u"BorderStyle", number(round % 6)); // last: the XP style answers a type with a box
    form.focus(site);
    form.type(u"12,5");
    field.get(u"Value");
    field.get(u"Font");
    form.remove(site);
}

TEST(Endurance, ManyControlsLeaveNothingBehind)
{
    const LeakCheck leaks;
    Form form;
    for (int round = 0; round < 50; ++round) // caches fill
        live(form, round);
    const Usage before;
    const int count = rounds();
    for (int round = 0; round < count; ++round)
        live(form, round);
    const Usage after;
    EXPECT_LE(after.windows, before.windows + 2);
    EXPECT_LE(after.drawing, before.drawing + 2);
    EXPECT_LE(after.handles, before.handles + 8);
    EXPECT_LE(after.memory, before.memory + 64 * 1024 + static_cast<SIZE_T>(count) * 200)
        << "beyond " << (after.memory - before.memory) / static_cast<SIZE_T>(count) << " bytes a control";
}

TEST(Endurance, ManyControlsWithoutAWindow)
{
    const LeakCheck leaks;
    const auto once = [] {
        const Automation field(create().get());
        field.put(u"Mask", text(u"__/__"));
        field.get(u"Text");
    };
    for (int round = 0; round < 50; ++round)
        once();
    const Usage before;
    const int count = rounds() * 5;
    for (int round = 0; round < count; ++round)
        once();
    const Usage after;
    EXPECT_LE(after.windows, before.windows + 2);
    EXPECT_LE(after.memory, before.memory + 64 * 1024 + static_cast<SIZE_T>(count) * 50);
}

} // namespace

} // namespace vela::test
