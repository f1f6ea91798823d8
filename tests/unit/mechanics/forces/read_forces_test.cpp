#include "mechanics/forces/read_forces.h"

#include <gtest/gtest.h>

#include "force_lists.h"

namespace tavrelo::mechanics::forces {
namespace {

TEST(ReadForces, ReadsEachText) {
    const std::vector<std::string> texts = {"h5", "p30x,2F1:"};
    const auto records = std::get<std::vector<notation::ForceRecord>>(ReadForces(texts, kDecimals));
    ASSERT_EQ(records.size(), 2u);
    EXPECT_EQ(records[0].given_text, "h5");
    EXPECT_EQ(records[1].label, "2 F!1");
    EXPECT_EQ(ForcesOf(records)[1], records[1].force);
    EXPECT_TRUE(Forces({}).empty());
}

TEST(ReadForces, TellsTheFirstTextThatIsNoForce) {
    const std::vector<std::string> texts = {"h5", "h", "xyz"};
    EXPECT_EQ(std::get<text::Refusal>(ReadForces(texts, kDecimals)).text,
              "Falta el valor de la componente X.");
}

}  // namespace
}  // namespace tavrelo::mechanics::forces
