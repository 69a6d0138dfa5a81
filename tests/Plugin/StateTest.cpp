// A host saves the plug-in in a session and finds it again.
#include "InstalledPlugin.h"

#include "Plugin/ControlPorts.h"

#include <lv2/atom/atom.h>
#include <lv2/urid/urid.h>

#include <gtest/gtest.h>

#include <cstdlib>
#include <map>
#include <string>
#include <vector>

using namespace noteloft::plugin;

namespace {

using State = std::unique_ptr<LilvState, Free<lilv_state_free>>;

class Uris {
public:
    LV2_URID_Map map{this, [](LV2_URID_Map_Handle uris, const char* uri) {
                         return static_cast<Uris*>(uris)->number(uri);
                     }};
    LV2_URID_Unmap unmap{this, [](LV2_URID_Unmap_Handle uris, LV2_URID number) {
                             return static_cast<Uris*>(uris)->m_known[number - 1].c_str();
                         }};

private:
    LV2_URID number(const std::string& uri) {
        for (std::size_t i = 0; i < m_known.size(); ++i)
            if (m_known[i] == uri)
                return static_cast<LV2_URID>(i + 1);
        m_known.push_back(uri);
        return static_cast<LV2_URID>(m_known.size());
    }

    std::vector<std::string> m_known;
};

/// The controls of a session, by their symbols.
struct Session {
    explicit Session(LV2_URID_Map& map) : floatType(map.map(map.handle, LV2_ATOM__Float)) {}

    std::map<std::string, float> controls;
    const LV2_URID floatType;
};

const void* get(const char* symbol, void* session, std::uint32_t* size, std::uint32_t* type) {
    auto& from = *static_cast<Session*>(session);
    *size = sizeof(float);
    *type = from.floatType;
    return &from.controls[symbol];
}

void set(const char* symbol, void* session, const void* value, std::uint32_t size, std::uint32_t type) {
    auto& to = *static_cast<Session*>(session);
    ASSERT_EQ(type, to.floatType);
    ASSERT_EQ(size, sizeof(float));
    to.controls[symbol] = *static_cast<const float*>(value);
}

} // namespace

TEST(State, AllControlsComeBackInANewSession) {
    const InstalledPlugin installed;
    ASSERT_NE(installed.plugin, nullptr);
    Uris uris;
    LV2_Feature mapFeature{LV2_URID__map, &uris.map};
    const LV2_Feature* const features[] = {&mapFeature, nullptr};
    LilvInstance* const instance = lilv_plugin_instantiate(installed.plugin, 48000, features);
    ASSERT_NE(instance, nullptr);

    Session saved(uris.map);
    for (const ControlPort& port : controlPorts())
        saved.controls[port.symbol] = port.lower + (port.upper - port.lower) * 0.75F;
    const State state(lilv_state_new_from_instance(installed.plugin, instance, &uris.map, nullptr, nullptr,
                                                   nullptr, nullptr, get, &saved, 0, nullptr));
    char* const text = lilv_state_to_string(installed.world.get(), &uris.map, &uris.unmap, state.get(),
                                            "http://quillfen.example/session", nullptr);
    ASSERT_NE(text, nullptr);

    const State found(lilv_state_new_from_string(installed.world.get(), &uris.map, text));
    Session restored(uris.map);
    lilv_state_restore(found.get(), instance, set, &restored, 0, features);
    EXPECT_EQ(restored.controls, saved.controls);
    std::free(text);
    lilv_instance_free(instance);
}
