#include "Platform/Formatters/LocalizedSearch.h"

#include "Platform/Formatters/IcuText.h"

#include <unicode/stsearch.h>
#include <unicode/tblcoll.h>

#include <memory>

namespace platform {

namespace {

/// Primary strength leaves case and accents out. Some locales leave out punctuation as well, unless told;
/// others would sort the marks on a letter, in a time that grows with the square of their number.
std::unique_ptr<icu::RuleBasedCollator> searchCollator(UErrorCode& status) {
    std::unique_ptr<icu::RuleBasedCollator> collator(
        dynamic_cast<icu::RuleBasedCollator*>(icu::Collator::createInstance(icuLocale(QLocale()), status)));
    if (!collator)
        return nullptr;
    collator->setStrength(icu::Collator::PRIMARY);
    collator->setAttribute(UCOL_ALTERNATE_HANDLING, UCOL_NON_IGNORABLE, status);
    collator->setAttribute(UCOL_NORMALIZATION_MODE, UCOL_OFF, status);
    return collator;
}

} // namespace

std::optional<TextRange> localizedStandardRange(const QString& text, const QString& wanted) {
    if (text.isEmpty() || wanted.isEmpty()) // which ICU refuses
        return {};
    UErrorCode status = U_ZERO_ERROR;
    const auto collator = searchCollator(status);
    if (!collator)
        return {};
    icu::StringSearch search(icuText(wanted), icuText(text), collator.get(), nullptr, status);
    const std::int32_t begin = search.first(status);
    if (U_FAILURE(status) || begin == USEARCH_DONE)
        return {};
    return TextRange{begin, begin + search.getMatchedLength()};
}

} // namespace platform
