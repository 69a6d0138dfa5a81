#pragma once

#include <QStringView>

#include <compare>

namespace platform {

/// Compares two version texts by their runs of digits (as numbers) and of letters; whatever else stands
/// between them only separates. A run of letters comes before a number and before the end, so 1.0b1 is
/// below 1.0. Zeros at the end and before letters do not count: 1.0 equals 1.0.0. What follows a dash is
/// ignored.
std::weak_ordering compareVersions(QStringView left, QStringView right);

} // namespace platform
