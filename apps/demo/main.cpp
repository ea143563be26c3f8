// The demonstration: opens the form, or says why it cannot. `demo --design` opens a field's property pages first.
#include "apps/demo/demo_form.h"

#include <cstdio>
#include <cstdlib>
#include <cstring>

namespace {

struct OleSession {
    OleSession() : started(SUCCEEDED(OleInitialize(nullptr))) {}
    ~OleSession()
    {
        if (started)
            OleUninitialize();
    }
    OleSession(const OleSession&) = delete;
    OleSession& operator=(const OleSession&) = delete;
    bool started;
};

} // namespace

int main(int argc, char** argv)
{
    SetProcessDPIAware();
    const OleSession ole;
    vela::demo::DemoForm form;
    const std::wstring failure = form.open(GetModuleHandleW(nullptr));
    if (!failure.empty()) {
        std::fprintf(stderr, "%ls\n", failure.c_str());
        return 1;
    }
    form.printPlaces();
    std::puts("ready");
    std::fflush(stdout);
    if (argc > 1 && std::strcmp(argv[1], "--design") == 0)
        form.showProperties(argc > 2 ? static_cast<std::size_t>(std::atoi(argv[2])) : form.indexOf(L"Preco"));
    form.run();
    return 0;
}
