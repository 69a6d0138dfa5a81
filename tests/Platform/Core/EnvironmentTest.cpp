#include "Platform/Core/Environment.h"

#include <gtest/gtest.h>

#include <optional>

using Depth = platform::Environment<int>;

TEST(Environment, ValueHoldsInsideUntilItsWidgetGoes) {
    std::optional<QWidget> outer(std::in_place);
    {
        QWidget inner(&*outer);
        EXPECT_EQ(Depth::find(&inner), nullptr);
        Depth::set(*outer, 1);
        ASSERT_NE(Depth::find(&inner), nullptr);
        EXPECT_EQ(*Depth::find(&inner), 1);
        Depth::set(inner, 2);
        EXPECT_EQ(*Depth::find(&inner), 2);
        EXPECT_EQ(*Depth::find(&*outer), 1);
        Depth::unset(inner);
        EXPECT_EQ(*Depth::find(&inner), 1);
    }
    outer.emplace(); // at the same address
    EXPECT_EQ(Depth::find(&*outer), nullptr);
}
