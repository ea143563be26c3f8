// The contract of the machine's services: settings, log file, tooltip windows, desktop questions.
#include "stage.h"

#include "tests/support/error_of.h"

#include <gtest/gtest.h>

#include <algorithm>

namespace vela::contract {
namespace {

class ServicesContract : public testing::Test {
protected:
    std::unique_ptr<Stage> stage = std::make_unique<Stage>();
};

constexpr std::u16string_view application = u"Vela contrato", section = u"Máscaras";

TEST_F(ServicesContract, SettingsAreSavedReadListedAndRemoved)
{
    platform::SettingsStore& store = stage->settings();
    EXPECT_EQ(store.get(application, section, u"nenhuma", u"padrão"), u"padrão");
    store.save(application, section, u"14:05:33", u"##/##");
    store.save(application, section, u"ção", u"");
    store.save(application, section, u"14:05:33", u"###.###");
    EXPECT_EQ(store.get(application, section, u"14:05:33", u""), u"###.###");
    EXPECT_EQ(store.get(application, section, u"ção", u"padrão"), u"");
    auto all = store.all(application, section);
    std::ranges::sort(all);
    EXPECT_EQ(all, (std::vector<platform::SettingsStore::Entry>{{u"14:05:33", u"###.###"}, {u"ção", u""}}));
    EXPECT_TRUE(store.all(application, u"Outra").empty());
    store.remove(application, section, u"ção");
    store.remove(application, section, u"14:05:33");
    EXPECT_TRUE(store.all(application, section).empty());
    EXPECT_EQ(engine::errorOf([&] { return store.remove(application, section, u"ção"), 0; }), 5);
}

TEST_F(ServicesContract, TheLogGrowsByTheRecordsBytes)
{
    const engine::LogRecord record{13, u"Tipo é inválido", u"Procedimento: ValidaData"};
    const std::u16string path = stage->writableFile();
    const std::string before = stage->logBytes(path);
    stage->environment().log.append(path, record);
    stage->environment().log.append(path, record);
    EXPECT_EQ(stage->logBytes(path), before + engine::encode(record) + engine::encode(record));
}

TEST_F(ServicesContract, ATooltipWindowIsMadeAndDestroyedAndTakesMessagesMeanwhile)
{
    const auto tip = stage->makeTooltip();
    tip->setTitle(1, u"sem janela");
    tip->trackActivate(true);
    EXPECT_FALSE(tip->exists());
    ASSERT_TRUE(tip->create(stage->field(0).window()));
    tip->addTool(u"Dica é útil");
    tip->setTitle(2, u"Título");
    tip->setDelay(2, 5000);
    tip->trackPosition(10 + 20 * 65536);
    tip->trackActivate(true);
    EXPECT_TRUE(tip->exists());
    tip->destroy();
    EXPECT_FALSE(tip->exists());
    tip->updateText(u"depois");
    const auto [x, y] = tip->clientToScreen(stage->field(0).window(), 3, 4);
    const engine::RectPixels place = stage->field(0).screenRect();
    EXPECT_EQ(std::pair(x, y), std::pair(place.left + 3, place.top + 4));
}

TEST_F(ServicesContract, TheMachineAnswers)
{
    platform::Environment& environment = stage->environment();
    EXPECT_GT(environment.clock.now().serial, 40000);
    EXPECT_FALSE(environment.locales.locale().decimal.empty());
    EXPECT_EQ(environment.locales.locale().days.size(), 7U);
    EXPECT_FALSE(environment.locales.locale().months[11].empty());
    ASSERT_TRUE(environment.system.windowsVersion());
    EXPECT_EQ(environment.system.windowsVersion()->platform, 2);
    EXPECT_FALSE(environment.system.libraryFolder().empty());
    EXPECT_FALSE(environment.system.fontNames().empty());
}

} // namespace
} // namespace vela::contract
