#include "Gallery/Pages/NoteLength.h"

namespace tidepool {

QString Presentation<gallery::NoteLength>::displayName(NoteLength value) {
    static const std::array names{QStringLiteral("Whole"),           QStringLiteral("Half"),
                                  QStringLiteral("Quarter"),         QStringLiteral("Eighth"),
                                  QStringLiteral("Quarter triplet"), QStringLiteral("Eighth triplet")};
    return names.at(static_cast<std::size_t>(value));
}

MenuStructure<gallery::NoteLength> Presentation<gallery::NoteLength>::menuStructure() {
    std::vector<Structure> items{Structure::inlineTitle(QStringLiteral("Straight"))};
    for (const NoteLength length : allCases) {
        if (length == NoteLength::quarterTriplet) {
            items.push_back(Structure::separator());
            items.push_back(Structure::inlineTitle(QStringLiteral("Triplets")));
        }
        items.push_back(Structure::item(length));
    }
    return Structure::submenu(typeTitle(), std::move(items));
}

} // namespace tidepool
