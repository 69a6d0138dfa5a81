#include "Plugin/Editor/EditorResources.h"

#include "Platform/Core/Bundle.h"
#include "Plugin/Assets.h"

#include <QFontDatabase>

namespace noteloft::plugin {

/// The bundle with the editor's own colours and images.
const platform::Bundle& resourceBundle() {
    static const char marker = 0;
    static const auto bundle = platform::Bundle::module(QStringLiteral("Plugin_Plugin"), &marker);
    return bundle;
}

void loadDisplayFont(const QString& folder) {
    static const int font = QFontDatabase::addApplicationFont(folder + QStringLiteral("/Fonts/Rocket.ttf"));
    Q_UNUSED(font);
}

} // namespace noteloft::plugin
