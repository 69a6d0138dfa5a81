// What hosts read of the control ports, and what the code knows of them.
#include "InstalledPlugin.h"

#include "Plugin/ControlPorts.h"

#include <lv2/presets/presets.h>

#include <gtest/gtest.h>

#include <cmath>
#include <map>
#include <string>

using namespace noteloft::plugin;

namespace {

using Points = std::unique_ptr<LilvScalePoints, Free<lilv_scale_points_free>>;

class ControlPortsTest : public testing::Test {
protected:
    bool has(const LilvPort* port, const char* property) const {
        const Node node(lilv_new_uri(m_world, property));
        return lilv_port_has_property(m_plugin, port, node.get());
    }

    using Values = std::map<std::string, float>;

    /// The values of all presets, by their labels and by the ports' symbols.
    std::map<std::string, Values> presets() const {
        const Node kind(lilv_new_uri(m_world, LV2_PRESETS__Preset));
        const Node labelKey(lilv_new_uri(m_world, LILV_NS_RDFS "label"));
        const Node portKey(lilv_new_uri(m_world, LV2_CORE__port));
        const Node symbolKey(lilv_new_uri(m_world, LV2_CORE__symbol));
        const Node valueKey(lilv_new_uri(m_world, LV2_PRESETS__value));
        const Nodes found(lilv_plugin_get_related(m_plugin, kind.get()));
        std::map<std::string, Values> all;
        LILV_FOREACH(nodes, i, found.get()) {
            const LilvNode* const preset = lilv_nodes_get(found.get(), i);
            lilv_world_load_resource(m_world, preset);
            const Node label(lilv_world_get(m_world, preset, labelKey.get(), nullptr));
            Values& values = all[lilv_node_as_string(label.get())];
            const Nodes ports(lilv_world_find_nodes(m_world, preset, portKey.get(), nullptr));
            LILV_FOREACH(nodes, j, ports.get()) {
                const LilvNode* const port = lilv_nodes_get(ports.get(), j);
                const Node symbol(lilv_world_get(m_world, port, symbolKey.get(), nullptr));
                const Node value(lilv_world_get(m_world, port, valueKey.get(), nullptr));
                values[lilv_node_as_string(symbol.get())] = lilv_node_as_float(value.get());
            }
        }
        return all;
    }

    const InstalledPlugin m_installed;
    LilvWorld* const m_world = m_installed.world.get();
    const LilvPlugin* const m_plugin = m_installed.plugin;
};

float number(const LilvNode* node) {
    return node == nullptr ? std::nanf("") : lilv_node_as_float(node);
}

} // namespace

TEST_F(ControlPortsTest, AreWhatTheHostIsTold) {
    ASSERT_NE(m_plugin, nullptr);
    ASSERT_EQ(lilv_plugin_get_num_ports(m_plugin), Ports::count);
    for (const ControlPort& known : controlPorts()) {
        SCOPED_TRACE(known.symbol);
        const LilvPort* const port = lilv_plugin_get_port_by_index(m_plugin, known.index);
        EXPECT_STREQ(lilv_node_as_string(lilv_port_get_symbol(m_plugin, port)), known.symbol);
        EXPECT_STREQ(lilv_node_as_string(Node(lilv_port_get_name(m_plugin, port)).get()), known.name);
        LilvNode* range[3] = {};
        lilv_port_get_range(m_plugin, port, &range[0], &range[1], &range[2]);
        const Node initial(range[0]), lower(range[1]), upper(range[2]);
        EXPECT_EQ(number(initial.get()), known.initial);
        EXPECT_EQ(number(lower.get()), known.lower);
        EXPECT_EQ(number(upper.get()), known.upper);
        EXPECT_EQ(has(port, LV2_CORE__toggled), known.unit == ControlUnit::onOff);
        EXPECT_EQ(has(port, LV2_CORE__integer) || has(port, LV2_CORE__toggled), known.isWhole());
        EXPECT_EQ(has(port, LV2_CORE__enumeration), known.unit == ControlUnit::index);

        std::map<float, std::string> points;
        const Points list(lilv_port_get_scale_points(m_plugin, port));
        LILV_FOREACH(scale_points, i, list.get()) {
            const LilvScalePoint* const point = lilv_scale_points_get(list.get(), i);
            points[number(lilv_scale_point_get_value(point))] =
                lilv_node_as_string(lilv_scale_point_get_label(point));
        }
        EXPECT_EQ(points.size(), known.labels.size());
        for (std::size_t i = 0; i < known.labels.size(); ++i)
            EXPECT_EQ(points[static_cast<float>(i)], known.labels[i]);
    }
}

TEST_F(ControlPortsTest, ValuesOfTheHostBecomeOnesThatThePortHas) {
    const auto nearest = [](Ports::Index port, float value) { return controlPort(port).nearest(value); };
    EXPECT_EQ(nearest(Ports::transpose, -2.5F), -3);
    EXPECT_EQ(nearest(Ports::transpose, 1e30F), 24);
    EXPECT_EQ(nearest(Ports::scale, 1.6F), 2);
    EXPECT_EQ(nearest(Ports::scale, std::nanf("")), 0);
    EXPECT_EQ(nearest(Ports::strum, 1.6F), 1.6F);
    EXPECT_EQ(nearest(Ports::hold, 0.2F), 1);
    EXPECT_EQ(nearest(Ports::hold, -1), 0);
}

TEST_F(ControlPortsTest, PresetsSetAllThatIsHeardWithinItsRange) {
    const auto all = presets();
    EXPECT_EQ(all.size(), 5U);
    for (auto [name, values] : all) {
        SCOPED_TRACE(name);
        for (const ControlPort& known : controlPorts()) {
            if (known.index == Ports::enabled || known.index == Ports::page)
                continue;
            ASSERT_TRUE(values.contains(known.symbol)) << known.symbol;
            EXPECT_EQ(values[known.symbol], known.nearest(values[known.symbol])) << known.symbol;
            values.erase(known.symbol);
        }
        EXPECT_TRUE(values.empty()) << values.begin()->first;
    }
}
