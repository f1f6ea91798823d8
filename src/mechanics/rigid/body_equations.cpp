#include "mechanics/rigid/body_equations.h"

#include <algorithm>
#include <array>
#include <utility>

#include "numeric/checked.h"
#include "text/symbols.h"
#include "text/utf8.h"

namespace tavrelo::mechanics::rigid {
namespace {

using notation::ForceComponent;
using notation::UnknownTerm;
using numeric::CheckedAdd;
using numeric::CheckedMultiply;
using numeric::CheckedSubtract;

constexpr std::array<BodySum, 3> kSums = {BodySum::X, BodySum::Y, BodySum::M};

constexpr const char* kNoUnknowns = "No hay incógnitas.";
constexpr const char* kTooManyAngles = "El programa resuelve un sólo cuerpo con un ángulo desconocido.";
constexpr const char* kTooManyBodies = "Con ángulo desconocido la rutina es aplicable a un sólo cuerpo.";

// The equations of one body while its forces are added.
struct BodySums {
    BodyEquation x;
    BodyEquation y;
    BodyEquation m;
};

void AddTerm(BodyEquation& sum, double coef, const UnknownTerm& unknown) {
    for (BodyTerm& term : sum.terms)
        if (notation::SameUnknown(term.unknown, unknown)) {
            term.coef = CheckedAdd(term.coef, coef);
            return;
        }
    sum.terms.push_back({coef, unknown});
}

void AddConstant(BodyEquation& sum, double value) { sum.constant = CheckedAdd(sum.constant, value); }

// Adds a component times `arm`: 1 in its own sum, the lever in the sum of moments.
void AddComponent(BodyEquation& sum, double arm, const ForceComponent& component) {
    if (component.unknown.IsNone())
        AddConstant(sum, CheckedMultiply(arm, component.number.value_or(0)));
    else
        AddTerm(sum, CheckedMultiply(arm, component.coefficient), component.unknown);
}

void AddCouple(BodyEquation& moments, const Couple& couple) {
    if (couple.IsKnown())
        AddConstant(moments, *couple.value);
    else
        AddTerm(moments, couple.sign, {.magnitude = couple.symbol});
}

// The moment of a force is rx Fy - ry Fx.
void AddForceMoment(BodyEquation& moments, const ChosenBody& body, const BodyForce& row) {
    AddComponent(moments, CheckedSubtract(body.y0, row.y), row.force->x);
    AddComponent(moments, CheckedSubtract(row.x, body.x0), row.force->y);
}

void AddRow(BodySums& sums, const ChosenBody& body, const BodyForce& row) {
    if (row.force) {
        AddComponent(sums.x, 1, row.force->x);
        AddComponent(sums.y, 1, row.force->y);
    }
    if (body.is_particle)
        return;
    if (row.force)
        AddForceMoment(sums.m, body, row);
    if (row.couple)
        AddCouple(sums.m, *row.couple);
}

BodySums SumsOf(const BodyForces& forces, const ChosenBody& body) {
    BodySums sums = {
        {body.number, BodySum::X, {}}, {body.number, BodySum::Y, {}}, {body.number, BodySum::M, {}}};
    for (const BodyForce& row : forces)
        if (row.body == body.number)
            AddRow(sums, body, row);
    return sums;
}

// Whether "1x" or "1X" stands in the list for that equation.
bool IsSuppressed(const BodyEquation& equation, std::string_view list) {
    const std::string name = std::to_string(equation.body) + std::string(LetterOf(equation.sum));
    for (std::size_t start = 0; start < list.size();) {
        const std::size_t end = std::min(list.find(',', start), list.size());
        if (text::EqualIgnoringCase(text::Trim(list.substr(start, end - start)), name))
            return true;
        start = end + 1;
    }
    return false;
}

void DropZeros(BodyEquation& equation) {
    std::erase_if(equation.terms, [](const BodyTerm& term) { return term.coef == 0; });
}

std::vector<BodyEquation> EquationsOf(const BodyForces& forces, const ChosenBody& body,
                                      std::string_view suppressed) {
    BodySums sums = SumsOf(forces, body);
    std::vector<BodyEquation> equations = {std::move(sums.x), std::move(sums.y)};
    if (!body.is_particle)
        equations.push_back(std::move(sums.m));
    std::erase_if(equations,
                  [&](const BodyEquation& equation) { return IsSuppressed(equation, suppressed); });
    std::for_each(equations.begin(), equations.end(), DropZeros);
    return equations;
}

// Adds a name to its own list and to that of all unknowns, unless its own holds it.
void ListName(std::vector<std::string>& own, std::vector<std::string>& all, const std::string& name) {
    if (name.empty() ||
        std::any_of(own.begin(), own.end(), [&](const auto& known) { return text::SameSymbol(known, name); }))
        return;
    own.push_back(name);
    all.push_back(name);
}

void ListUnknowns(BodyEquations& result) {
    for (BodySum sum : kSums)
        for (const BodyEquation& equation : result.equations)
            if (equation.sum == sum)
                for (const BodyTerm& term : equation.terms) {
                    ListName(result.magnitudes, result.unknowns, term.unknown.magnitude);
                    ListName(result.angles, result.unknowns, term.unknown.angle);
                }
}

}  // namespace

std::string_view LetterOf(BodySum sum) {
    switch (sum) {
        case BodySum::X:
            return "x";
        case BodySum::Y:
            return "y";
        case BodySum::M:
            return "m";
    }
    return "";
}

std::variant<text::Refusal, BodyEquations> BuildEquations(const BodyForces& forces,
                                                          std::span<const ChosenBody> bodies,
                                                          std::string_view suppressed) {
    BodyEquations result;
    for (const ChosenBody& body : bodies)
        for (BodyEquation& equation : EquationsOf(forces, body, suppressed))
            result.equations.push_back(std::move(equation));
    ListUnknowns(result);
    if (result.unknowns.empty())
        return text::Refusal{kNoUnknowns};
    return result;
}

std::optional<text::Refusal> CheckAngles(const BodyEquations& equations, std::size_t bodies) {
    if (equations.angles.size() > 1)
        return text::Refusal{kTooManyAngles};
    if (!equations.angles.empty() && bodies > 1)
        return text::Refusal{kTooManyBodies};
    return {};
}

}  // namespace tavrelo::mechanics::rigid
