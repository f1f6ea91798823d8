#include "text/font.h"

#include <gtest/gtest.h>

namespace tavrelo::text {
namespace {

constexpr double kSize = 72;  // points: an em of 96 pixels

/// Digits are half an em wide in the serif face and 1139 of 2048 units in the others, narrow 934; a sign that
/// no table holds half an em.
TEST(Font, MeasuresByItsFace) {
    const Font serif{std::string(kTextFont), kSize};
    EXPECT_NEAR(TextWidth("0", serif), 48, 0.1);
    EXPECT_NEAR(TextWidth("00", serif), 96, 0.1);
    EXPECT_NEAR(TextWidth("0", Font{std::string(kInterfaceFont), kSize}), 96 * 1139.0 / 2048, 0.1);
    EXPECT_NEAR(TextWidth("0", Font{std::string(kSmallFont), kSize}), 96 * 934.0 / 2048, 0.1);
    EXPECT_NEAR(TextWidth("\U0001D11E", serif), 48, 0.1);
    EXPECT_EQ(TextWidth("\n", serif), 0);
}

TEST(Font, StandsForAFamily) {
    EXPECT_EQ(FontFamily(kInterfaceFont), "Liberation Sans");
    EXPECT_EQ(FontFamily(kSmallFont), "Liberation Sans Narrow");
    EXPECT_EQ(FontFamily(kTextFont), "Liberation Serif");
}

}  // namespace
}  // namespace tavrelo::text
