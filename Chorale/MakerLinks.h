#pragma once

#include <QUrl>

namespace chorale {

/// The maker's web addresses. Constants of the build; a malformed one stops the program when it is first
/// read.
struct MakerLinks {
    static const QUrl& website();
    static const QUrl& socialProfile();
    static const QUrl& contactPage();
};

} // namespace chorale
