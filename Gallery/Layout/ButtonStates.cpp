#include "Gallery/Layout/ButtonStates.h"

namespace gallery {

QStringList ButtonStates::titles() const {
    QStringList titles{QStringLiteral("Normal"), QStringLiteral("Pressed"), QStringLiteral("Focused")};
    if (hasState)
        titles << QStringLiteral("On") << QStringLiteral("On, pressed");
    if (hasMixed)
        titles << QStringLiteral("Mixed");
    titles << QStringLiteral("Disabled");
    if (hasState)
        titles << QStringLiteral("On, disabled");
    return titles;
}

} // namespace gallery
