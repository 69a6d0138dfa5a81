#include "Tidepool/Styles/StateImages.h"
#include "tests/support/AllocationCounter.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <bit>
#include <random>

using platform::Image;
using tidepool::StateImages;
using State = tidepool::StyledControlState;

namespace {

/// An image that can be told from others by its width.
Image numbered(int number) {
    Image::Description description;
    description.size = QSizeF(number, 1);
    return Image(description);
}

int numberOf(const Image* image) {
    return image != nullptr ? static_cast<int>(image->size().width()) : 0;
}

/// The rule in other words: the candidates in order, stably sorted by what counts.
int expected(const std::vector<std::pair<State, int>>& map, State state) {
    const auto of = [&](State key) {
        for (const auto& [known, number] : map)
            if (known == key)
                return number;
        return 0;
    };
    if (of(state) != 0)
        return of(state);
    std::vector<std::pair<int, int>> candidates;
    for (const auto& [key, number] : map)
        if (state.rawValue != 0 && (key.rawValue | state.rawValue) == state.rawValue)
            candidates.emplace_back(-std::popcount(static_cast<unsigned>(key.rawValue & 0xfe)), number);
    std::stable_sort(candidates.begin(), candidates.end(), [](auto a, auto b) { return a.first < b.first; });
    return candidates.empty() ? of(State::defaultState) : candidates.front().second;
}

} // namespace

TEST(StateImages, FindTheBestSubsetInOrderOfInsertion) {
    std::mt19937 random(7);
    for (int round = 0; round < 200; ++round) {
        StateImages images;
        std::vector<std::pair<State, int>> map;
        for (int number = 1; number <= round % 9; ++number) {
            const State key{static_cast<std::int64_t>(random() % 256 & random())};
            const auto same =
                std::find_if(map.begin(), map.end(), [&](const auto& e) { return e.first == key; });
            images.set(key, numbered(number));
            if (same == map.end())
                map.emplace_back(key, number);
            else
                same->second = number;
        }
        for (std::int64_t raw = 0; raw < 256; ++raw)
            ASSERT_EQ(numberOf(images.image({raw})), expected(map, {raw}))
                << "round " << round << ", state " << raw;
    }
}

TEST(StateImages, ChangesAndCopiesDropTheTable) {
    StateImages images;
    images.set(State::defaultState, numbered(1));
    EXPECT_EQ(numberOf(images.image(State::on)), 1);
    const StateImages copy = images;
    images.set(State::on, numbered(2));
    EXPECT_EQ(numberOf(images.image(State::on)), 2);
    EXPECT_EQ(numberOf(copy.image(State::on)), 1) << "a copy goes its own way";
    images = copy;
    EXPECT_EQ(numberOf(images.image(State::on)), 1);
    EXPECT_NE(images.image(State::on), copy.image(State::on)) << "a copy has images of its own";
}

TEST(StateImages, LookUpsAfterTheFirstAllocateNothing) {
    StateImages images;
    images.set(State::defaultState, numbered(1));
    images.set(State::on, numbered(2));
    images.image({});
    const AllocationCounter counter;
    for (std::int64_t raw = 0; raw < 256; ++raw)
        images.image({raw});
    EXPECT_EQ(counter.allocations(), 0);
}
