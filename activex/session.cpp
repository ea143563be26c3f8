// One session a thread, so that windows are used only by the thread that made them; the calendar colours are of all.
#include "activex/session.h"

#include "platform/win32/locked.h"

#include <windows.h>

#include <map>

namespace vela::activex {

namespace {

struct Registry {
    SRWLOCK lock = SRWLOCK_INIT;
    std::map<DWORD, std::weak_ptr<Session>> sessions; // by thread
    std::shared_ptr<popups::SharedCalendarColours> colours = std::make_shared<popups::SharedCalendarColours>();
};

Registry& registry()
{
    static Registry one;
    return one;
}

} // namespace

std::shared_ptr<Session> Session::current()
{
    Registry& all = registry();
    const DWORD thread = GetCurrentThreadId();
    {
        const win32::Locked lock(all.lock);
        if (auto session = all.sessions[thread].lock())
            return session;
    }
    const std::shared_ptr<Session> session(new Session);
    const win32::Locked lock(all.lock);
    std::erase_if(all.sessions, [](const auto& entry) { return entry.second.expired(); });
    all.sessions[thread] = session;
    return session;
}

Session::Session()
    : environment{clock_, locales, log_, desktop_, system_}, popups(environment, forms, registry().colours)
{
}

} // namespace vela::activex
