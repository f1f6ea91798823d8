#include "numeric/sampled_function.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <cmath>
#include <cstddef>
#include <variant>
#include <vector>

#include "../failure_code.h"
#include "numeric/checked.h"
#include "numeric/quadrature.h"
#include "numeric/root_search.h"

namespace tavrelo::numeric {
namespace {

using testing::FailureOf;

double Twice(SampledFunction f, double x) { return 2 * f(x); }

TEST(SampledFunction, PutsAnyCallableIntoALoop) {
    int calls = 0;
    const auto square = [&calls](double x) { return ++calls, x * x; };
    const SampledFunction f(square);
    std::vector<double> values(4);
    f.Column(std::vector<double>{1, 2, 3, 4}, values);
    EXPECT_EQ(values, (std::vector<double>{1, 4, 9, 16}));
    EXPECT_EQ(calls, 4);
    EXPECT_EQ(Twice(square, 5), 50);
    EXPECT_EQ(Twice([](double x) { return x + 1; }, 5), 12);
}

/// x (x - 7.25), and how it was asked for.
struct Counted {
    int values = 0;
    int columns = 0;
    std::size_t longest = 0;
    double bound = 1e300;  // it fails above

    double operator()(double x) {
        ++values;
        return x > bound ? throw RuntimeFailure(FailureCode::OutOfDomain) : x * (x - 7.25);
    }
    void Column(SampledFunction::Places places, SampledFunction::Values results) {
        ++columns;
        longest = std::max(longest, places.size());
        for (std::size_t k = 0; k < places.size(); ++k) {
            results[k] = places[k] > bound ? throw RuntimeFailure(FailureCode::OutOfDomain)
                                           : places[k] * (places[k] - 7.25);
        }
    }
};

TEST(SampledFunction, TakesTheColumnOfWhatHasOne) {
    Counted counted;
    std::vector<double> values(3);
    SampledFunction(counted).Column(std::vector<double>{0, 1, 2}, values);
    EXPECT_EQ(values, (std::vector<double>{0, -6.25, -10.5}));
    EXPECT_EQ(counted.columns, 1);
    EXPECT_EQ(counted.values, 0);
}

TEST(SampledFunction, SamplesOfARootSearchAreColumns) {
    Counted counted;
    const auto result = FindRoots(counted, 1, 10);
    ASSERT_TRUE(std::holds_alternative<FoundRoots>(result));
    EXPECT_NEAR(std::get<FoundRoots>(result).roots.at(0), 7.25, 1e-6);
    EXPECT_EQ(counted.columns, static_cast<int>((kRootCells + 1 + kSampleBlock - 1) / kSampleBlock));
    EXPECT_LE(counted.longest, kSampleBlock);
    EXPECT_LT(counted.values, 20);  // halvings of one cell, and the value at the root
}

TEST(SampledFunction, ASampleThatFailsEndsARootSearchOnlyWhereItIsReached) {
    Counted counted;
    counted.bound = 9;
    EXPECT_EQ(std::get<RootsRefusal>(FindRoots(counted, 1, 10)), RootsRefusal::Failed);
    // 51 changes of sign in the first half of a block whose second half fails.
    const auto saw = [](double x) {
        return x > 100 ? throw RuntimeFailure(FailureCode::OutOfDomain) : std::fmod(x, 2) < 1 ? 1.0 : -1.0;
    };
    const auto result = FindRoots(saw, 0.5, 490.5);
    ASSERT_TRUE(std::holds_alternative<FoundRoots>(result));
    EXPECT_EQ(std::get<FoundRoots>(result).roots.size(), 50U);
    EXPECT_TRUE(std::get<FoundRoots>(result).more);
}

TEST(SampledFunction, RoundsOfAnIntegralAreColumns) {
    Counted counted;
    // x^3/3 - 7.25 x^2/2 from 0 to 3
    EXPECT_NEAR(Integrate(counted, 0, 3), 9 - 32.625, 1e-12);
    EXPECT_EQ(counted.values, 2);
    EXPECT_EQ(counted.columns, 2);
    counted.bound = 2;
    EXPECT_EQ(FailureOf([&] { Integrate(counted, 0, 3); }), FailureCode::OutOfDomain);
}

}  // namespace
}  // namespace tavrelo::numeric
