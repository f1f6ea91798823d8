#include <gtest/gtest.h>

#include "../forces/force_lists.h"
#include "mechanics/forces/force_sums.h"
#include "mechanics/particle/particle_solver.h"
#include "numeric/checked.h"

namespace tavrelo::mechanics::particle {
namespace {

constexpr int kDecimals = 3;

using Texts = std::vector<std::string>;

Equilibrium Solved(const Texts& forces) { return SolveEquilibrium(forces::Forces(forces), kDecimals); }

std::string Joined(const Texts& texts) {
    std::string joined;
    for (const std::string& text : texts)
        joined += text + "  ";
    return joined;
}

void ExpectRefusals(const std::string& message, const std::vector<Texts>& problems) {
    for (const Texts& forces : problems) {
        const Equilibrium outcome = Solved(forces);
        ASSERT_TRUE(std::holds_alternative<text::Refusal>(outcome)) << Joined(forces);
        EXPECT_EQ(std::get<text::Refusal>(outcome).text, message) << Joined(forces);
    }
}

TEST(SolveEquilibriumRefuses, UnknownsOfOneSumOnly) {
    ExpectRefusals("No resuelvo este caso.",
                   {{"vF", "h5"}, {"hF", "v5"}, {"vF", "vQ", "h5"}, {"hF", "h-Q", "v5"}, {"0,F", "3,0"}});
}

TEST(SolveEquilibriumRefuses, ADirectionAlone) {
    ExpectRefusals("No resuelvo este caso.",
                   {{"20<a"}, {"20<a", "h5"}, {"ua", "3,4"}, {"20<a", "30<a", "h5"}});
}

TEST(SolveEquilibriumRefuses, MoreUnknownsThanEquations) {
    ExpectRefusals(forces::kTooManyUnknowns, {{"hF", "hQ", "hR"},
                                              {"p30x,F", "s30x,Q", "v-R"},
                                              {"10<a", "20<b", "30<c"},
                                              {"p30x,F2", "F1<a", "v-10"},
                                              {"F1<a", "p30x,F2", "v-10"},
                                              {"F1<a", "F2<b", "v-10"},
                                              {"F1<a", "20<b", "v-10"},
                                              {"20<b", "F1<a", "v-10"}});
}

TEST(SolveEquilibriumRefuses, OneUnknownInBothSums) {
    ExpectRefusals("Misma incógnita en ambas ecuaciones.",
                   {{"p30x,F", "v-100"}, {"p30x,F", "v-100", "s30x,F"}, {"p30x,ab", "hAB"}});
}

TEST(SolveEquilibriumRefuses, SystemsWithoutADeterminant) {
    ExpectRefusals(
        "El determinante del sistema es cero.",
        {{"p30x,F", "t30x,Q", "v-10"}, {"hF", "hQ", "vR", "vS"}, {"hF", "vQ", "vR"}, {"hF", "hQ", "vR"}});
}

TEST(SolveEquilibriumRefuses, TrigonometricSystemsWithoutARoot) {
    ExpectRefusals("No existe solución.", {{"v-F1", "20<a", "h30"},
                                           {"hF1", "20<a", "v30"},
                                           {"p30x,F1", "1<a", "3,-100"},
                                           {"1<a", "2<b", "h10"}});
    ExpectRefusals("Error en los datos.", {{"hF", "h-F", "20<a", "v-10"}});
    ExpectRefusals("No resuelvo este caso.", {{"hF", "0.0000001<a", "v-10"}});
}

TEST(SolveEquilibriumRefuses, CandidatesThatDoNotHold) {
    ExpectRefusals("No se pueden cumplir las ecuaciones de equilibrio.",
                   {
                       {"s30x,F", "F<a", "v-100"},    // a symmetrical pulley
                       {"hF1", "20<a", "30,-10"},     // F1 would have to be negative
                       {"50<a", "40<b", "v-89.998"},  // a hair from the tangent case
                   });
}

TEST(SolveEquilibrium, EndsInSilenceOnShapesThatFitNoCase) {
    for (const Texts& forces : std::vector<Texts>{{"hFuerza", "vQ", "3,4"},
                                                  {"hFuerza", "vTension", "3,4"},
                                                  {"hFuerza", "20<a", "v-10"},
                                                  {"hFuerza", "20<a", "vFuerza", "v-10"}})
        EXPECT_TRUE(std::holds_alternative<SilentEnd>(Solved(forces))) << Joined(forces);
}

TEST(SolveEquilibrium, FailsWhereACoefficientVanishes) {
    EXPECT_THROW(Solved({"0F<a", "3,4"}), numeric::RuntimeFailure);
    EXPECT_THROW(Solved({"h1E308", "h1E308"}), numeric::RuntimeFailure);
}

TEST(SolveEquilibrium, ManagesAnEmptyTable) {
    EXPECT_TRUE(std::holds_alternative<NothingToSolve>(SolveEquilibrium({}, kDecimals)));
}

}  // namespace
}  // namespace tavrelo::mechanics::particle
