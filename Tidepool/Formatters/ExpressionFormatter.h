#pragma once

#include "Platform/Formatters/NumberFormatter.h"

namespace tidepool {

/// For numeric fields that may also hold free text, such as an expression. A text that
/// `platform::plainNumber` takes is a number, which the number formatter shows, reads or refuses; it is
/// lenient from the start. Any other text, one with the locale's own decimal comma included, is a string,
/// which passes unchanged. Nothing is evaluated.
///
/// Every number is shown with `positiveSuffix`, a negative one as well, and edited without it, unless
/// `formatterBehavior` is the oldest.
class ExpressionFormatter : public platform::NumberFormatter {
public:
    ExpressionFormatter();

    std::optional<QString> stringForObjectValue(const QVariant& object) const override;
    std::optional<QString> editingStringForObjectValue(const QVariant& object) const override;
    ObjectValue getObjectValue(const QString& text) const override;
};

} // namespace tidepool
