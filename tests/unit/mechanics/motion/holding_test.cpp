#include "mechanics/motion/holding.h"

#include <gtest/gtest.h>

namespace tavrelo::mechanics::motion {
namespace {

TEST(TermsCancel, ToAThousandthOrToRounding) {
    EXPECT_TRUE(TermsCancel({0, 0}));
    EXPECT_TRUE(TermsCancel({3, -2, -1}));
    EXPECT_FALSE(TermsCancel({3, 2, 1}));
    // A thousandth at most, however large the terms ...
    EXPECT_TRUE(TermsCancel({1000, -1000.0005}));
    EXPECT_TRUE(TermsCancel({-1000, 1000.0005}));
    EXPECT_FALSE(TermsCancel({1000, -1000.002}));
    // ... and a thousandth of the largest, however small ...
    EXPECT_TRUE(TermsCancel({0.1, -0.10005}));
    EXPECT_FALSE(TermsCancel({0.1, -0.1002}));
    // ... but no more than rounding allows.
    EXPECT_TRUE(TermsCancel({1e9, -1e9 - 0.5}));
    EXPECT_FALSE(TermsCancel({1e9, -1e9 - 2}));
}

}  // namespace
}  // namespace tavrelo::mechanics::motion
