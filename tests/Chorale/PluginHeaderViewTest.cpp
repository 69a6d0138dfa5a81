#include "Chorale/PluginHeaderView.h"

#include "Chorale/TabButton.h"
#include "tests/Chorale/HostWatch.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

using chorale::PluginHeaderView;
using chorale::TabButton;
using testing::ElementsAre;

namespace {

const QUrl updatePage(QStringLiteral("https://updates.example/noteloft"));

HostWatch pages() {
    return HostWatch(platform::AudioUnitParameterUnit::indexed, 2, 0,
                     QStringList{QStringLiteral("Scale"), QStringLiteral("Chord"), QStringLiteral("Human")});
}

std::vector<bool> selection(const PluginHeaderView& header) {
    std::vector<bool> selected;
    for (const TabButton* tab : header.findChildren<TabButton*>())
        selected.push_back(tab->state() == platform::ControlState::on);
    return selected;
}

QStringList titles(const PluginHeaderView& header) {
    QStringList titles;
    for (const QAbstractButton* button : header.findChildren<QAbstractButton*>())
        titles << button->text();
    return titles;
}

} // namespace

TEST(PluginHeaderView, TabsAreAnOrdinaryParameter) {
    HostWatch host = pages();
    PluginHeaderView header(updatePage, QStringLiteral("1.0"), host.parameter, std::nullopt);
    EXPECT_EQ(header.height(), 46);
    EXPECT_EQ(titles(header).mid(1),
              (QStringList{QStringLiteral("SCALE"), QStringLiteral("CHORD"), QStringLiteral("HUMAN")}));
    EXPECT_THAT(selection(header), ElementsAre(true, false, false));
    header.findChildren<TabButton*>()[2]->click();
    EXPECT_THAT(host.take(), ElementsAre("value 2"));
    EXPECT_THAT(selection(header), ElementsAre(false, false, true));
    host.send(1);
    EXPECT_THAT(selection(header), ElementsAre(false, true, false));
    host.send(1.5);
    EXPECT_THAT(selection(header), ElementsAre(false, false, false));
}
