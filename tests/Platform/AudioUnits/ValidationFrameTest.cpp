#include "Platform/AudioUnits/ValidationFrame.h"

#include <gtest/gtest.h>

using platform::ValidationFrame;
using platform::ValidationFrameReader;
using Kind = ValidationFrame::Kind;

TEST(ValidationFrame, ArrivesInPieces) {
    const ValidationFrame frames[] = {{Kind::line, std::string(300, 'x')},
                                      {Kind::line, ""},
                                      {Kind::verdict, std::string(1, '\1')},
                                      {Kind::end, ""}};
    std::string stream;
    for (const auto& frame : frames)
        stream += frame.encoded();
    ValidationFrameReader reader;
    std::size_t count = 0;
    for (const char byte : stream) {
        reader.append({&byte, 1});
        while (const auto frame = reader.next())
            EXPECT_EQ(*frame, frames[count++]);
    }
    EXPECT_EQ(count, std::size(frames));
}

TEST(ValidationFrame, NothingFollowsWhatIsNoFrame) {
    const std::string good = ValidationFrame{Kind::line, "good"}.encoded();
    ValidationFrameReader unknownKind;
    unknownKind.append(good + "Z" + good);
    EXPECT_TRUE(unknownKind.next());
    EXPECT_FALSE(unknownKind.next());

    ValidationFrameReader tooLong;
    tooLong.append(
        ValidationFrame{Kind::line, std::string(ValidationFrameReader::maximumPayload + 1, 'x')}.encoded());
    tooLong.append(good);
    EXPECT_FALSE(tooLong.next());
}
