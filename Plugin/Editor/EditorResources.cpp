#include "Plugin/Editor/EditorResources.h"

#include "Platform/Core/Bundle.h"

#include <QFontDatabase>

namespace noteloft::plugin {

const platform::Bundle& editorBundle() {
    static const char marker = 0;
    static const auto bundle = platform::Bundle::module(QStringLiteral("Plugin_Plugin"), &marker);
    return bundle;
}

void loadDisplayFont(const QString& folder) {
    static const int font = QFontDatabase::addApplicationFont(folder + QStringLiteral("/Fonts/Rocket.ttf"));
    Q_UNUSED(font);
}

} // namespace noteloft::plugin
