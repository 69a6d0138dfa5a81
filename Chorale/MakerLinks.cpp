#include "Chorale/MakerLinks.h"

#include "Platform/Core/ConstantUrl.h"

namespace chorale {

const QUrl& MakerLinks::website() {
    static const QUrl url = platform::constantUrl(QStringLiteral(NOTELOFT_WEBSITE_URL));
    return url;
}

const QUrl& MakerLinks::socialProfile() {
    static const QUrl url = platform::constantUrl(QStringLiteral(NOTELOFT_SOCIAL_URL));
    return url;
}

const QUrl& MakerLinks::contactPage() {
    static const QUrl url = platform::constantUrl(QStringLiteral(NOTELOFT_CONTACT_URL));
    return url;
}

} // namespace chorale
