#include "tools/calculator/vector_routines.h"

#include "text/utf8.h"
#include "tools/calculator/arrow_drawing.h"
#include "tools/calculator/report.h"
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

void DrawWithSum(Task& task, const Vectors& given, const std::string& name, const PlaneVector& sum) {
    std::vector<DrawnVector> drawn = DrawnList(given, name);
    drawn.push_back(Drawn(sum, "S", kResultColor));
    DrawFromCenter(task, drawn);
}

std::string SumLine(const Task& task, const PlaneVector& sum) { return "/3Suma/:  " + VectorText(task, sum); }

/// The true minus, for texts inside a style mark, where its markup is not scanned.
std::string WithTrueMinus(const std::string& text) { return text::ReplaceAll(text, "-", "\u2212"); }

/// Report and picture of a list of vectors and their weighted sum.
void ShowFactorsSum(Task& task, const std::vector<mechanics::forces::WeightedVector>& weighted) {
    Lines lines = {"Factores y vectores dados:"};
    Vectors products;
    for (const auto& [factor, vector] : weighted) {
        lines.push_back(task.Bare(factor) + ",    " + VectorText(task, vector));
        products.push_back(mechanics::forces::VectorFromComponents(
            numeric::CheckedMultiply(factor, vector.x), numeric::CheckedMultiply(factor, vector.y)));
    }
    const PlaneVector sum = mechanics::forces::VectorListSum(weighted);
    lines.push_back(SumLine(task, sum));
    DrawWithSum(task, products, "F", sum);
    task.Report(lines);
}

bool TurnsVector(const Arguments& arguments) {
    constexpr int kKindArgument = 2;
    if (arguments.Count() <= kKindArgument)
        return false;
    const std::string kind = text::ReplaceAll(arguments.Text(kKindArgument), "\"", "");
    return text::EqualIgnoringCase(text::Trim(kind), "v");
}

std::string TitledVector(const Task& task, const std::string& title, const PlaneVector& vector) {
    return title + "  " + PointText(task, vector) + "  ó  " + PolarText(task, vector);
}

}  // namespace

Outcome SumAndProducts(Task& task) {
    const ReadVectors read = VectorsAt(task.arguments, {0, 1});
    if (const auto* refusal = std::get_if<text::Refusal>(&read))
        return *refusal;
    const auto& given = std::get<Vectors>(read);
    const mechanics::forces::SumAndProducts result = mechanics::forces::VectorSum2(given[0], given[1]);
    DrawWithSum(task, given, "V", result.sum);
    task.Report({
        "Vectores dados:",
        VectorText(task, given[0]),
        VectorText(task, given[1]),
        SumLine(task, result.sum),
        "/8Resta/:  " + VectorText(task, result.difference),
        "Ángulo entre los vectores:  " + task.Bare(result.angle) + "°",
        "Producto Escalar:  " + task.Bare(result.dot),
        "Producto Vectorial: " + task.Bare(result.cross) + " $k",
    });
    return std::nullopt;
}

Outcome VectorListSum(Task& task) {
    const ReadVectors read = VectorsFrom(task.arguments, 0, 1, task.arguments.Count());
    if (const auto* refusal = std::get_if<text::Refusal>(&read))
        return *refusal;
    const auto& given = std::get<Vectors>(read);
    const PlaneVector sum = mechanics::forces::VectorListSum(std::span<const PlaneVector>(given));
    Lines lines = {"Vectores dados:"};
    for (const PlaneVector& vector : given)
        lines.push_back(VectorText(task, vector));
    lines.push_back(SumLine(task, sum));
    DrawWithSum(task, given, "F", sum);
    task.Report(lines);
    return std::nullopt;
}

Outcome FactorsSum(Task& task) {
    // The end past the last argument makes a factor without its vector fail.
    const ReadVectors read = VectorsFrom(task.arguments, 1, 2, task.arguments.Count() + 1);
    if (const auto* refusal = std::get_if<text::Refusal>(&read))
        return *refusal;
    std::vector<mechanics::forces::WeightedVector> weighted;
    int position = 0;
    for (const PlaneVector& vector : std::get<Vectors>(read)) {
        weighted.push_back({task.arguments.Number(position), vector});
        position += 2;
    }
    ShowFactorsSum(task, weighted);
    return std::nullopt;
}

Outcome VectorListMoments(Task& task) {
    const ReadVectors read = VectorsFrom(task.arguments, 0, 1, task.arguments.Count());
    if (const auto* refusal = std::get_if<text::Refusal>(&read))
        return *refusal;
    const auto& given = std::get<Vectors>(read);
    if (given.size() < 2)
        throw numeric::RuntimeFailure(numeric::FailureCode::SubscriptRange, "position without a force");
    Lines lines;
    std::vector<mechanics::forces::PlacedForce> forces;
    std::vector<DrawnVector> drawn;
    for (std::size_t k = 0; k + 1 < given.size(); k += 2) {
        const std::size_t number = k / 2 + 1;
        forces.push_back({given[k], given[k + 1]});
        lines.push_back(VectorText(task, given[k]));
        lines.push_back(VectorText(task, given[k + 1]));
        drawn.push_back({given[k + 1].x,
                         given[k + 1].y,
                         Subscripted("F", number),
                         kGivenColor,
                         {given[k].x, given[k].y}});
    }
    if (given.size() % 2 == 0) {
        lines.push_back("/3Suma de momentos con respecto al origen:/  " +
                        task.Bare(mechanics::forces::VectorListMoments(forces)));
    } else {
        const PlaneVector& about = given.back();
        lines.push_back("/3Suma de momentos con respecto al punto " + WithTrueMinus(PointText(task, about)) +
                        ":/  " + task.Bare(mechanics::forces::VectorListMoments(forces, {about.x, about.y})));
    }
    DrawAtPoints(task, drawn);
    task.Report(lines);
    return std::nullopt;
}

Outcome RotateVector(Task& task) {
    const ReadVectors read = VectorsAt(task.arguments, {0});
    if (const auto* refusal = std::get_if<text::Refusal>(&read))
        return *refusal;
    const PlaneVector& given = std::get<Vectors>(read).front();
    const double degrees = task.arguments.Number(1);
    if (TurnsVector(task.arguments)) {
        const PlaneVector turned =
            mechanics::forces::RotateVector(given, degrees, mechanics::forces::RotationKind::Vector);
        DrawFromCenter(task, {Drawn(given, "V"), Drawn(turned, "R", kResultColor)});
        task.Report(
            {TitledVector(task, "Vector a rotar:", given), TitledVector(task, "Vector rotado:", turned)});
    } else {
        const PlaneVector seen =
            mechanics::forces::RotateVector(given, degrees, mechanics::forces::RotationKind::Axes);
        DrawFromCenter(task, {Drawn(given, "V")}, {.degrees = degrees, .turned = true});
        task.Report(
            {TitledVector(task, "Vector en XY:", given), TitledVector(task, "Vector en X'Y':", seen)});
    }
    return std::nullopt;
}

Outcome BaseDecompose(Task& task) {
    const ReadVectors read = VectorsAt(task.arguments, {0, 1, 2});
    if (const auto* refusal = std::get_if<text::Refusal>(&read))
        return *refusal;
    const auto& given = std::get<Vectors>(read);
    const PlaneVector& a = given[0];
    const PlaneVector& b = given[1];
    const PlaneVector& v = given[2];
    const auto factors = mechanics::forces::BaseDecompose(v, a, b);
    if (!factors)
        return text::Refusal{std::string(mechanics::forces::kNoBase)};
    DrawFromCenter(task, {Drawn(v, "V", kResultColor), Drawn(a, "a"), Drawn(b, "b")});
    task.Report({
        "$V = ;l $a + ;m $b = " + VectorText(task, v),
        "$a = " + PointText(task, a) + ",  $b = " + PointText(task, b),
        ";l = " + task.Bare(factors->lambda) + ", ;m = " + task.Bare(factors->mu),
    });
    return std::nullopt;
}

Outcome VectorFromProjections(Task& task) {
    constexpr int kSecondVector = 2;
    const ReadVectors read = VectorsAt(task.arguments, {0, kSecondVector});
    if (const auto* refusal = std::get_if<text::Refusal>(&read))
        return *refusal;
    const auto& given = std::get<Vectors>(read);
    const auto found = mechanics::forces::VectorFromProjections(given[0], task.arguments.Number(1), given[1],
                                                                task.arguments.Number(kSecondVector + 1));
    if (!found)
        return text::Refusal{std::string(mechanics::forces::kDependentVectors)};
    DrawFromCenter(task, {Drawn(*found, "V", kResultColor), Drawn(given[0], "a"), Drawn(given[1], "b")});
    task.Report({
        "El vector buscado es:",
        "$V = " + PointText(task, *found),
        "$V = " + PolarText(task, *found),
    });
    return std::nullopt;
}

}  // namespace tavrelo::tools::calculator
