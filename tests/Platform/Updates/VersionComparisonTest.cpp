#include "Platform/Updates/VersionComparison.h"

#include <QString>

#include <gtest/gtest.h>

using platform::compareVersions;

// From the lowest to the highest; the texts of one row are equal.
TEST(VersionComparison, OrdersEveryPair) {
    const std::vector<std::vector<const char16_t*>> rows = {
        {u"b1"},
        {u"", u"0", u"0.0", u"-1", u"..."},
        {u"0.0.1"},
        {u"0.9"},
        {u"1.0a1", u"1a1", u"1.0.0a1", u"1.0 a 1"},
        {u"1.0b"},
        {u"1.0b1", u"1.0.0b01"},
        {u"1.0b2"},
        {u"1.0b10"},
        {u"1.0", u"1.0.0", u"1", u"01.0", u"1.0-rc1", u"1-0.5", u"1_0"},
        {u"1.0.1b1"},
        {u"1.0.1"},
        {u"1.0.10"},
        {u"1.1"},
        {u"1.2.0", u"1.2"},
        {u"1.10"},
        {u"2.0.0-beta.3", u"2"},
        {u"20240131"},
        {u"99999999999999999999999"},
        {u"100000000000000000000000"},
    };
    for (std::size_t i = 0; i < rows.size(); ++i)
        for (std::size_t k = 0; k < rows.size(); ++k)
            for (const auto* left : rows[i])
                for (const auto* right : rows[k])
                    EXPECT_EQ(compareVersions(left, right), std::weak_ordering(i <=> k))
                        << QString::fromUtf16(left).toStdString() << " and "
                        << QString::fromUtf16(right).toStdString();
}
