#include "mechanics/forces/unknowns.h"

#include <gtest/gtest.h>

namespace tavrelo::mechanics::forces {
namespace {

struct TermRow {
    const char* text;
    const char* magnitude;
    AngleFunction function;
    const char* angle;
};

TEST(ReadUnknown, PartsMagnitudeFunctionAndAngle) {
    const TermRow rows[] = {
        {"F1", "F1", AngleFunction::None, ""},
        {"cos A1", "", AngleFunction::Cos, "A1"},
        {"sen A1", "", AngleFunction::Sen, "A1"},
        {"F1 cos A1", "F1", AngleFunction::Cos, "A1"},
        {"f sen Alfa", "f", AngleFunction::Sen, "Alfa"},
        {"fcos", "fcos", AngleFunction::None, ""},
        {"cos Al fa", "", AngleFunction::Cos, "Al fa"},
        {"F sen B cos c", "F", AngleFunction::Sen, "B cos c"},
        {"", "", AngleFunction::None, ""},
    };
    for (const TermRow& row : rows) {
        const UnknownTerm term = ReadUnknown(row.text);
        EXPECT_EQ(term.magnitude, row.magnitude) << row.text;
        EXPECT_EQ(term.function, row.function) << row.text;
        EXPECT_EQ(term.angle, row.angle) << row.text;
    }
}

}  // namespace
}  // namespace tavrelo::mechanics::forces
