#include "Platform/Updates/VersionComparison.h"

#include <algorithm>
#include <vector>

namespace platform {

namespace {

// Texts of the Unicode tables are letters too, but digits are only those of ASCII.
bool isDigit(QChar character) {
    return character >= u'0' && character <= u'9';
}

// A run of digits without leading zeros, or a run of letters.
struct Part {
    bool isNumber;
    QStringView text;

    bool isZero() const { return isNumber && text.isEmpty(); }
};

QStringView withoutLeadingZeros(QStringView digits) {
    while (digits.startsWith(u'0'))
        digits = digits.mid(1);
    return digits;
}

void dropZerosAtEnd(std::vector<Part>& parts) {
    while (!parts.empty() && parts.back().isZero())
        parts.pop_back();
}

std::vector<Part> parts(QStringView version) {
    version = version.left(version.indexOf(u'-'));
    std::vector<Part> result;
    while (!version.isEmpty()) {
        const bool isNumber = isDigit(version.front());
        const auto belongs = [isNumber](QChar character) {
            return isNumber ? isDigit(character) : character.isLetter();
        };
        const auto end = std::find_if_not(version.begin(), version.end(), belongs);
        const qsizetype length = end - version.begin();
        if (length > 0 && !isNumber)
            dropZerosAtEnd(result);
        const QStringView run = version.left(length);
        if (length > 0)
            result.push_back({isNumber, isNumber ? withoutLeadingZeros(run) : run});
        version = version.mid(std::max<qsizetype>(length, 1));
    }
    dropZerosAtEnd(result);
    return result;
}

std::weak_ordering compare(const Part& left, const Part& right) {
    if (left.isNumber != right.isNumber)
        return left.isNumber ? std::weak_ordering::greater : std::weak_ordering::less;
    if (left.isNumber && left.text.size() != right.text.size())
        return left.text.size() <=> right.text.size();
    return left.text.compare(right.text) <=> 0;
}

} // namespace

std::weak_ordering compareVersions(QStringView left, QStringView right) {
    const auto leftParts = parts(left);
    const auto rightParts = parts(right);
    const std::size_t common = std::min(leftParts.size(), rightParts.size());
    for (std::size_t i = 0; i < common; ++i)
        if (const auto order = compare(leftParts[i], rightParts[i]); order != 0)
            return order;
    if (leftParts.size() > common)
        return leftParts[common].isNumber ? std::weak_ordering::greater : std::weak_ordering::less;
    if (rightParts.size() > common)
        return rightParts[common].isNumber ? std::weak_ordering::less : std::weak_ordering::greater;
    return std::weak_ordering::equivalent;
}

} // namespace platform
