// A whole control on a form in memory: one key with everything that answers it, creating, saving and loading.
#include "benchmarks/allocations.h"

#include "control/property_table.h"
#include "control/vela.h"
#include "platform/headless/control_host.h"
#include "platform/headless/control_surface.h"
#include "platform/headless/environment.h"
#include "platform/headless/form_window.h"
#include "platform/headless/property_bag.h"
#include "popups/popups.h"

#include <memory>
#include <vector>

namespace vela::control {

namespace {

using bench::AllocationsPerTurn;

struct Field {
    Field(headless::FormWindow& form, headless::Machine& machine, popups::Popups& popups)
        : surface(form, u"f", 0), host(surface), vela(host, surface, machine.environment, popups)
    {
        surface.connect(vela, vela);
    }
    Field(const Field&) = delete;
    Field& operator=(const Field&) = delete;
    ~Field() { surface.disconnect(); }

    headless::ControlSurface surface;
    headless::ControlHost host;
    Vela vela;
};

struct Form {
    Form()
        : machine(headless::noTrace()), form(machine.desktop, headless::noTrace(), machine.faults),
          popups(machine.environment, machine.forms)
    {
    }
    std::unique_ptr<Field> make() { return std::make_unique<Field>(form, machine, popups); }

    headless::Machine machine;
    headless::FormWindow form;
    popups::Popups popups;
};

// Key down, filter, engine, change and key up: seven keys fill a licence plate, seven Backspaces empty it.
void wholeMaskKey(benchmark::State& state)
{
    Form form;
    const auto field = form.make();
    field->vela.initNew();
    const auto put = [&](std::u16string_view name, engine::Value value) { putProperty(field->vela, name, value); };
    put(u"Mask", u"___-____");
    put(u"TextType", std::int32_t{3});
    put(u"Mask", u"___-____");
    put(u"MaskRules", u"@@@-####");
    form.form.focus(field->surface);
    std::vector<headless::Key> keys;
    for (const char16_t character : std::u16string_view(u"abc1234"))
        keys.push_back(headless::keyOf(character));
    keys.insert(keys.end(), 7, headless::namedKey(headless::virtual_key::backspace));
    for (const headless::Key key : keys)
        form.form.key(key);
    std::size_t next = 0;
    const AllocationsPerTurn count(state);
    for (auto _ : state) {
        form.form.key(keys[next]);
        next = next + 1 == keys.size() ? 0 : next + 1;
        if (next == 7 && field->surface.activeBox().shownText() != u"ABC-1234")
            state.SkipWithError("the plate was not typed");
    }
}
BENCHMARK(wholeMaskKey);

// Ten thousand at a time stand on the form, as many as a large application has.
void createControl(benchmark::State& state)
{
    constexpr std::size_t together = 10'000;
    Form form;
    std::vector<std::unique_ptr<Field>> fields;
    fields.reserve(together);
    std::uint64_t bytes = 0;
    for (auto _ : state) {
        for (std::size_t i = 0; i < together; ++i)
            fields.emplace_back(form.make())->vela.initNew();
        state.PauseTiming();
        bytes = bench::bytesHeld();
        while (!fields.empty()) // the last first: the form looks for each from its end
            fields.pop_back();
        bytes -= bench::bytesHeld();
        state.ResumeTiming();
    }
    state.counters["bytes"] = static_cast<double>(bytes) / together;
    state.counters["turns"] = together;
}
BENCHMARK(createControl);

void saveControl(benchmark::State& state)
{
    Form form;
    const auto field = form.make();
    field->vela.initNew();
    for (auto _ : state) {
        headless::PropertyBag bag;
        field->vela.save(bag);
        benchmark::DoNotOptimize(&bag);
    }
}
BENCHMARK(saveControl);

void loadControl(benchmark::State& state)
{
    Form form;
    const auto field = form.make();
    field->vela.initNew();
    headless::PropertyBag bag; // every key, whatever its default
    struct Keeping final : platform::PropertyBag {
        explicit Keeping(headless::PropertyBag& bag) : kept(bag) {}
        engine::Value read(std::u16string_view, const engine::Value& defaultValue) override { return defaultValue; }
        void write(std::u16string_view key, const engine::Value& value, const std::optional<engine::Value>&) override
        {
            kept.put(key, value);
        }
        headless::PropertyBag& kept;
    } keeping(bag);
    field->vela.save(keeping);
    if (bag.entries().size() != control::writingOrder().size())
        state.SkipWithError("not every key");
    constexpr std::size_t together = 1'000;
    std::vector<std::unique_ptr<Field>> fields;
    for (auto _ : state) {
        state.PauseTiming();
        while (!fields.empty())
            fields.pop_back();
        while (fields.size() < together)
            fields.push_back(form.make());
        state.ResumeTiming();
        for (const auto& fresh : fields)
            fresh->vela.load(bag);
    }
    state.counters["turns"] = together;
}
BENCHMARK(loadControl);

} // namespace

} // namespace vela::control
