#include "tools/calculator/vector_routines.h"

#include "text/utf8.h"
#include "tools/calculator/arrow_drawing.h"
#include "tools/calculator/result_text.h"
#include "tools/calculator/vector_arguments.h"

namespace tavrelo::tools::calculator {
namespace {

using Lines = std::vector<std::string>;
using Vectors = std::vector<mechanics::forces::PlaneVector>;
using mechanics::forces::PlaneVector;

DrawnVector Drawn(const PlaneVector& vector, const std::string& label, text::Color color = kGivenColor) {
    return {vector.x, vector.y, label, color};
}

/// The given vectors by name and number.
std::vector<DrawnVector> DrawnList(const Vectors& vectors, const std::string& name) {
    std::vector<DrawnVector> drawn;
    for (const PlaneVector& vector : vectors)
        drawn.push_back(Drawn(vector, Subscripted(name, drawn.size() + 1)));
    return drawn;
}

void DrawWithSum(RoutineRun& run, const Vectors& given, const std::string& name, const PlaneVector& sum) {
    std::vector<DrawnVector> drawn = DrawnList(given, name);
    drawn.push_back(Drawn(sum, "S", kResultColor));
    DrawFromCenter(run, drawn);
}

std::string SumLine(const RoutineRun& run, const PlaneVector& sum) {
    return "/3Suma/:  " + VectorText(run, sum);
}

/// The true minus, for texts inside a style mark, where its markup is not scanned.
std::string WithTrueMinus(const std::string& text) { return text::ReplaceAll(text, "-", "\u2212"); }

/// Report and picture of a list of vectors and their weighted sum.
void ShowFactorsSum(RoutineRun& run, const std::vector<mechanics::forces::WeightedVector>& weighted) {
    Lines lines = {"Factores y vectores dados:"};
    Vectors products;
    for (const auto& [factor, vector] : weighted) {
        lines.push_back(run.Bare(factor) + ",    " + VectorText(run, vector));
        products.push_back(mechanics::forces::VectorFromComponents(
            numeric::CheckedMultiply(factor, vector.x), numeric::CheckedMultiply(factor, vector.y)));
    }
    const PlaneVector sum = mechanics::forces::VectorListSum(weighted);
    lines.push_back(SumLine(run, sum));
    DrawWithSum(run, products, "F", sum);
    run.Report(lines);
}

bool TurnsVector(const Arguments& arguments) {
    constexpr int kKindArgument = 2;
    if (arguments.Count() <= kKindArgument)
        return false;
    const std::string kind = text::ReplaceAll(arguments.Text(kKindArgument), "\"", "");
    return text::EqualIgnoringCase(text::Trim(kind), "v");
}

std::string TitledVector(const RoutineRun& run, const std::string& title, const PlaneVector& vector) {
    return title + "  " + PointText(run, vector) + "  ó  " + PolarText(run, vector);
}

}  // namespace

Outcome SumAndProducts(RoutineRun& run) {
    const ReadVectors read = VectorsAt(run.arguments, {0, 1});
    if (const auto* refusal = std::get_if<text::Refusal>(&read))
        return *refusal;
    const auto& given = std::get<Vectors>(read);
    const mechanics::forces::SumAndProducts result = mechanics::forces::VectorSum2(given[0], given[1]);
    DrawWithSum(run, given, "V", result.sum);
    run.Report({
        "Vectores dados:",
        VectorText(run, given[0]),
        VectorText(run, given[1]),
        SumLine(run, result.sum),
        "/8Resta/:  " + VectorText(run, result.difference),
        "Ángulo entre los vectores:  " + run.Bare(result.angle) + "°",
        "Producto Escalar:  " + run.Bare(result.dot),
        "Producto Vectorial: " + run.Bare(result.cross) + " $k",
    });
    return std::nullopt;
}

Outcome VectorListSum(RoutineRun& run) {
    const ReadVectors read = VectorsFrom(run.arguments, 0, 1, run.arguments.Count());
    if (const auto* refusal = std::get_if<text::Refusal>(&read))
        return *refusal;
    const auto& given = std::get<Vectors>(read);
    const PlaneVector sum = mechanics::forces::VectorListSum(std::span<const PlaneVector>(given));
    Lines lines = {"Vectores dados:"};
    for (const PlaneVector& vector : given)
        lines.push_back(VectorText(run, vector));
    lines.push_back(SumLine(run, sum));
    DrawWithSum(run, given, "F", sum);
    run.Report(lines);
    return std::nullopt;
}

Outcome FactorsSum(RoutineRun& run) {
    // The end past the last argument makes a factor without its vector fail.
    const ReadVectors read = VectorsFrom(run.arguments, 1, 2, run.arguments.Count() + 1);
    if (const auto* refusal = std::get_if<text::Refusal>(&read))
        return *refusal;
    std::vector<mechanics::forces::WeightedVector> weighted;
    int position = 0;
    for (const PlaneVector& vector : std::get<Vectors>(read)) {
        weighted.push_back({run.arguments.Number(position), vector});
        position += 2;
    }
    ShowFactorsSum(run, weighted);
    return std::nullopt;
}

Outcome VectorListMoments(RoutineRun& run) {
    const ReadVectors read = VectorsFrom(run.arguments, 0, 1, run.arguments.Count());
    if (const auto* refusal = std::get_if<text::Refusal>(&read))
        return *refusal;
    const auto& given = std::get<Vectors>(read);
    if (given.size() < 2)
        throw numeric::RuntimeFailure(numeric::FailureCode::SubscriptRange, "position without a force");
    Lines lines = {"Vectores dados:"};
    std::vector<mechanics::forces::PlacedForce> forces;
    std::vector<DrawnVector> drawn;
    for (std::size_t k = 0; k + 1 < given.size(); k += 2) {
        const std::size_t number = k / 2 + 1;
        forces.push_back({given[k], given[k + 1]});
        lines.push_back(VectorText(run, given[k]));
        lines.push_back(VectorText(run, given[k + 1]));
        drawn.push_back({given[k + 1].x,
                         given[k + 1].y,
                         Subscripted("F", number),
                         kGivenColor,
                         {given[k].x, given[k].y}});
    }
    if (given.size() % 2 == 0) {
        lines.push_back("/3Suma de momentos con respecto al origen:/  " +
                        run.Bare(mechanics::forces::VectorListMoments(forces)));
    } else {
        const PlaneVector& about = given.back();
        lines.push_back("/3Suma de momentos con respecto al punto " + WithTrueMinus(PointText(run, about)) +
                        ":/  " + run.Bare(mechanics::forces::VectorListMoments(forces, {about.x, about.y})));
    }
    DrawAtPoints(run, drawn);
    run.Report(lines);
    return std::nullopt;
}

Outcome RotateVector(RoutineRun& run) {
    const ReadVectors read = VectorsAt(run.arguments, {0});
    if (const auto* refusal = std::get_if<text::Refusal>(&read))
        return *refusal;
    const PlaneVector& given = std::get<Vectors>(read).front();
    const double degrees = run.arguments.Number(1);
    if (TurnsVector(run.arguments)) {
        const PlaneVector turned =
            mechanics::forces::RotateVector(given, degrees, mechanics::forces::RotationKind::Vector);
        DrawFromCenter(run, {Drawn(given, "V"), Drawn(turned, "R", kResultColor)});
        run.Report(
            {TitledVector(run, "Vector a rotar:", given), TitledVector(run, "Vector rotado:", turned)});
    } else {
        const PlaneVector seen =
            mechanics::forces::RotateVector(given, degrees, mechanics::forces::RotationKind::Axes);
        DrawFromCenter(run, {Drawn(given, "V")}, {.degrees = degrees, .turned = true});
        run.Report({TitledVector(run, "Vector en XY:", given), TitledVector(run, "Vector en X'Y':", seen)});
    }
    return std::nullopt;
}

Outcome BaseDecompose(RoutineRun& run) {
    const ReadVectors read = VectorsAt(run.arguments, {0, 1, 2});
    if (const auto* refusal = std::get_if<text::Refusal>(&read))
        return *refusal;
    const auto& given = std::get<Vectors>(read);
    const PlaneVector& a = given[0];
    const PlaneVector& b = given[1];
    const PlaneVector& v = given[2];
    const auto factors = mechanics::forces::BaseDecompose(v, a, b);
    if (!factors)
        return text::Refusal{std::string(mechanics::forces::kNoBase)};
    DrawFromCenter(run, {Drawn(v, "V", kResultColor), Drawn(a, "a"), Drawn(b, "b")});
    run.Report({
        "$V = ;l $a + ;m $b = " + VectorText(run, v),
        "$a = " + PointText(run, a) + ",  $b = " + PointText(run, b),
        ";l = " + run.Bare(factors->lambda) + ", ;m = " + run.Bare(factors->mu),
    });
    return std::nullopt;
}

Outcome VectorFromProjections(RoutineRun& run) {
    constexpr int kSecondVector = 2;
    const ReadVectors read = VectorsAt(run.arguments, {0, kSecondVector});
    if (const auto* refusal = std::get_if<text::Refusal>(&read))
        return *refusal;
    const auto& given = std::get<Vectors>(read);
    const auto found = mechanics::forces::VectorFromProjections(given[0], run.arguments.Number(1), given[1],
                                                                run.arguments.Number(kSecondVector + 1));
    if (!found)
        return text::Refusal{std::string(mechanics::forces::kDependentVectors)};
    DrawFromCenter(run, {Drawn(*found, "V", kResultColor), Drawn(given[0], "a"), Drawn(given[1], "b")});
    run.Report({
        "El vector buscado es:",
        "$V = " + PointText(run, *found),
        "$V = " + PolarText(run, *found),
    });
    return std::nullopt;
}

}  // namespace tavrelo::tools::calculator
