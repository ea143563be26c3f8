// Which category an entry of the trace belongs to, and the sink that keeps nothing.
#include "platform/headless/trace.h"

namespace vela::headless {

namespace {

struct Category {
    TraceCategory operator()(const trace::Event&) const { return TraceCategory::events; }
    TraceCategory operator()(const trace::Changed&) const { return TraceCategory::changed; }
    TraceCategory operator()(const trace::MessageBox&) const { return TraceCategory::dialogs; }
    TraceCategory operator()(const trace::InputBox&) const { return TraceCategory::dialogs; }
    TraceCategory operator()(const trace::Palette&) const { return TraceCategory::dialogs; }
    TraceCategory operator()(const trace::About&) const { return TraceCategory::dialogs; }
    TraceCategory operator()(const trace::KeysSent&) const { return TraceCategory::keys; }
    TraceCategory operator()(const trace::KeyInjected&) const { return TraceCategory::keys; }
    TraceCategory operator()(const trace::Logged&) const { return TraceCategory::log; }
    TraceCategory operator()(const trace::Tip&) const { return TraceCategory::tooltip; }
    TraceCategory operator()(const trace::Balloon&) const { return TraceCategory::tooltip; }
    TraceCategory operator()(const trace::Focus&) const { return TraceCategory::focus; }
    TraceCategory operator()(const trace::Opened&) const { return TraceCategory::window; }
    TraceCategory operator()(const trace::Closed&) const { return TraceCategory::window; }
};

class DeafSink final : public TraceSink {
public:
    void trace(const TraceEntry&) override {}
};

} // namespace

TraceCategory categoryOf(const TraceEntry& entry) noexcept
{
    return std::visit(Category{}, entry);
}

TraceSink& noTrace() noexcept
{
    static DeafSink sink;
    return sink;
}

} // namespace vela::headless
