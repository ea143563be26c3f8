// The records of all threads, one slot for the module.
#include "platform/win32/thread.h"

#include "platform/win32/focus_arbiter.h"
#include "platform/win32/locked.h"
#include "platform/win32/modal.h"

#include <cstdlib>
#include <utility>

namespace vela::win32 {
namespace {

// Constant from the loading of the module to its unloading, when the records of threads that live on go too.
class Slot {
public:
    Slot() noexcept : index_(TlsAlloc()) {}
    Slot(const Slot&) = delete;
    Slot& operator=(const Slot&) = delete;
    ~Slot()
    {
        while (first_)
            delete std::exchange(first_, first_->next);
        TlsFree(index_);
    }
    [[nodiscard]] ThreadRecord* get() const noexcept { return static_cast<ThreadRecord*>(TlsGetValue(index_)); }
    [[nodiscard]] ThreadRecord* make() noexcept
    {
        auto* const record = new (std::nothrow) ThreadRecord;
        if (!record)
            return nullptr;
        TlsSetValue(index_, record);
        const Locked lock(lock_);
        record->next = std::exchange(first_, record);
        return record;
    }
    void remove(ThreadRecord& record) noexcept
    {
        TlsSetValue(index_, nullptr);
        {
            const Locked lock(lock_);
            ThreadRecord** link = &first_;
            while (*link != &record)
                link = &(*link)->next;
            *link = record.next;
        }
        delete &record;
    }

private:
    DWORD index_;
    SRWLOCK lock_ = SRWLOCK_INIT;
    ThreadRecord* first_ = nullptr;
};

Slot slot;

} // namespace

ThreadRecord::~ThreadRecord()
{
    for (void* const variable : variables)
        std::free(variable);
}

ThreadRecord* threadRecord() noexcept
{
    return slot.get();
}

ThreadRecord* madeThreadRecord(std::nothrow_t) noexcept
{
    ThreadRecord* const record = slot.get();
    return record ? record : slot.make();
}

ThreadRecord& madeThreadRecord()
{
    ThreadRecord* const record = madeThreadRecord(std::nothrow);
    if (!record)
        throw std::bad_alloc();
    return *record;
}

// An object that a host never released keeps the module loaded, and the record with it.
void endThread() noexcept
{
    ThreadRecord* const record = slot.get();
    if (!record)
        return;
    if (record->arbiter)
        FocusArbiter::abandon();
    if (record->calls == 0)
        slot.remove(*record);
}

// When no record can be made, work for the end of the call is done at once, or its object is never freed.
LibraryCall::LibraryCall() noexcept : record_(madeThreadRecord(std::nothrow))
{
    if (record_ && record_->calls++ == 0)
        useModule();
}

LibraryCall::~LibraryCall()
{
    if (!record_)
        return;
    if (record_->calls == 1) {
        while (!record_->afterwards.empty())
            for (const ThreadRecord::Act& act : std::exchange(record_->afterwards, {}))
                act.run(act.object);
    }
    if (--record_->calls == 0)
        leaveModule();
}

bool afterCall(void (*run)(void* object) noexcept, void* object) noexcept
{
    ThreadRecord* const record = slot.get();
    if (!record || record->calls == 0) {
        run(object);
        return true;
    }
    try {
        record->afterwards.push_back({run, object});
        return true;
    } catch (...) {
        return false;
    }
}

void putModalListener(ModalListener* listener)
{
    madeThreadRecord().modal = listener;
}

ModalListener* modalListener() noexcept
{
    const ThreadRecord* const record = slot.get();
    return record ? record->modal : nullptr;
}

} // namespace vela::win32
