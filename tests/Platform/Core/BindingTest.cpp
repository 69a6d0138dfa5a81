#include "Platform/Core/Binding.h"

#include <gtest/gtest.h>

#include <string>

using platform::Binding;

TEST(Binding, CopiesReferToOneValue) {
    std::string owner = "a";
    const Binding<std::string> binding([&owner] { return owner; },
                                       [&owner](const auto& value) { owner = value; });
    const Binding<std::string> copy = binding; // NOLINT(performance-unnecessary-copy-initialization)
    copy.set("b");
    EXPECT_EQ(owner, "b");
    owner = "c";
    EXPECT_EQ(binding.get(), "c");
    EXPECT_EQ(copy.get(), "c");
}
