#include "Platform/Controls/StyledControlState.h"

#include <QStringList>

namespace platform {

namespace {

constexpr std::array<const char*, 8> words{"default", "disabled", "selected", "highlighted",
                                           "focused", "on",       "mixed",    "invalid"};

} // namespace

QString StyledControlState::description() const {
    QStringList set;
    for (std::size_t i = 0; i < all.size(); ++i)
        if (contains(all[i]))
            set << QString::fromLatin1(words[i]);
    return set.join(QStringLiteral(", "));
}

std::vector<StyledControlState> StyledControlState::members() const {
    std::vector<StyledControlState> result{defaultState};
    for (const StyledControlState flag : all)
        if (flag != defaultState && contains(flag))
            result.push_back(flag);
    return result;
}

} // namespace platform
