// One interface of a control's shell: its references and its other interfaces are the shell's.
#pragma once

#include <unknwn.h>

namespace vela::activex {

class Shell;

template <class Interface, class Whole = Shell>
class Part : public Interface {
public:
    explicit Part(Whole& shell) noexcept : shell_(shell) {}
    Part(const Part&) = delete;
    Part& operator=(const Part&) = delete;

    STDMETHODIMP QueryInterface(REFIID iid, void** object) noexcept final { return shell_.QueryInterface(iid, object); }
    STDMETHODIMP_(ULONG) AddRef() noexcept final { return shell_.AddRef(); }
    STDMETHODIMP_(ULONG) Release() noexcept final { return shell_.Release(); }

protected:
    ~Part() = default;

    Whole& shell_;
};

} // namespace vela::activex
