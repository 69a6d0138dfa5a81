#pragma once

#include "Platform/Controls/MenuDelegate.h"

#include <QString>

#include <memory>
#include <utility>
#include <variant>

namespace tidepool {

/// What kind of item a description makes.
class TPMenuType {
public:
    struct SectionHeader {
        QString title;
    };

    /// The delegate fills the submenu on demand. The description and the submenu keep
    /// it alive.
    struct DocumentTemplates {
        std::shared_ptr<platform::MenuDelegate> delegate;
    };

    struct RecentDocuments {
        std::shared_ptr<platform::MenuDelegate> delegate;
    };

    struct Standard {};

    struct Separator {};

    struct Services {};

    using Kind =
        std::variant<Standard, SectionHeader, DocumentTemplates, RecentDocuments, Separator, Services>;

    static TPMenuType sectionHeader(QString title) { return Kind(SectionHeader{std::move(title)}); }

    static TPMenuType documentTemplates(std::shared_ptr<platform::MenuDelegate> delegate) {
        return Kind(DocumentTemplates{std::move(delegate)});
    }

    /// Usually with a `RecentDocumentsMenuDelegate`.
    static TPMenuType recentDocuments(std::shared_ptr<platform::MenuDelegate> delegate) {
        return Kind(RecentDocuments{std::move(delegate)});
    }

    static TPMenuType standard() { return Kind(Standard{}); }

    static TPMenuType separator() { return Kind(Separator{}); }

    /// The item with the application's services menu, of which there should be one.
    static TPMenuType services() { return Kind(Services{}); }

    const Kind& kind() const { return m_kind; }

private:
    TPMenuType(Kind kind) : m_kind(std::move(kind)) {}

    Kind m_kind;
};

} // namespace tidepool
