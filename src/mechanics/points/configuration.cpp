#include "mechanics/points/configuration.h"

#include <string>

#include "numeric/checked.h"

namespace tavrelo::mechanics::points {
namespace {

constexpr int kFewestPoints = 2;
constexpr const char* kTooFewPoints = "Mínimo 2 puntos para cada móvil.";
constexpr const char* kShortStretch = "Cada tramo debe tener al mínimo 2 puntos.";
constexpr const char* kInvalidPoint = "Punto inválido.";

std::size_t IndexOf(int number) { return static_cast<std::size_t>(number - 1); }

/// The column, from 0, that holds a place; -1 outside the table.
int ColumnIndexAt(double position) {
    return position >= 0.0 && position < kMostPoints ? static_cast<int>(position) : -1;
}

void SetMovers(Configuration& configuration, int first_points) {
    configuration.movers = {};
    configuration.movers[0].points = first_points;
    const int rest = kMostPoints - first_points;
    if (rest > 0)
        configuration.movers[1] = {rest, {{0, rest - 1}}};
}

void CloseWithOneStretch(Configuration& configuration) {
    Mover& mover = configuration.movers[0];
    mover.stretches = {{0, mover.points - 1}};
    configuration.stage = Stage::Configured;
}

/// Adds the stretch that ends at `point`, and the one behind it when there is nothing left to choose.
std::optional<text::Refusal> AddLimit(Configuration& configuration, int point) {
    Mover& mover = configuration.movers[0];
    const int first = mover.stretches.empty() ? 0 : mover.stretches.back().last;
    if (point == 0)
        return text::Refusal{kShortStretch};
    if (point <= first)
        return text::Refusal{kInvalidPoint};
    mover.stretches.push_back({first, point});
    const int last = mover.points - 1;
    const bool is_second_limit = mover.stretches.size() == kMostStretches - 1;
    if (point < last && (is_second_limit || point == last - 1))
        mover.stretches.push_back({point, last});
    if (mover.stretches.back().last == last)
        configuration.stage = Stage::Configured;
    return std::nullopt;
}

ConfigurationStep SetLimit(const Configuration& configuration, int column_index) {
    ConfigurationStep step = {configuration, std::nullopt};
    if (column_index < configuration.movers[0].points)
        step.refusal = AddLimit(step.configuration, column_index);
    return step;
}

ConfigurationStep SetSplit(const Configuration& configuration, int first_points) {
    if (first_points < kFewestPoints || kMostPoints - first_points < kFewestPoints)
        return {configuration, text::Refusal{kTooFewPoints}};
    ConfigurationStep step = {configuration, std::nullopt};
    SetMovers(step.configuration, first_points);
    if (configuration.chosen_stretches)
        step.configuration.stage = Stage::Limits;
    else
        CloseWithOneStretch(step.configuration);
    return step;
}

int StretchOfFirstMover(const Mover& mover, double position) {
    constexpr double kMiddle = 0.5;
    int stretch = 1;
    for (std::size_t i = 0; i + 1 < mover.stretches.size(); ++i) {
        if (position > mover.stretches[i].last + kMiddle)
            stretch = static_cast<int>(i) + 2;
    }
    return stretch;
}

}  // namespace

int Configuration::MoverCount() const {
    int count = 0;
    for (const Mover& mover : movers)
        count += mover.points > 0 ? 1 : 0;
    return count;
}

const Mover& Configuration::MoverAt(int mover) const {
    if (mover < 1 || mover > kMostMovers)
        throw numeric::RuntimeFailure(numeric::FailureCode::SubscriptRange, "mover");
    return movers[IndexOf(mover)];
}

bool Configuration::HasStretch(int mover, int stretch) const {
    return mover >= 1 && mover <= kMostMovers && stretch >= 1 &&
           stretch <= static_cast<int>(movers[IndexOf(mover)].stretches.size());
}

const Stretch& Configuration::StretchAt(int mover, int stretch) const {
    if (!HasStretch(mover, stretch))
        throw numeric::RuntimeFailure(numeric::FailureCode::SubscriptRange, "stretch");
    return movers[IndexOf(mover)].stretches[IndexOf(stretch)];
}

Configuration Begin(const Variant& variant) {
    Configuration configuration;
    configuration.chosen_movers = variant.movers;
    configuration.chosen_stretches = variant.has_stretches;
    configuration.stage = Stage::Pending;
    if (variant.movers == 1 && !variant.has_stretches) {
        SetMovers(configuration, kMostPoints);
        CloseWithOneStretch(configuration);
    }
    return configuration;
}

ConfigurationStep ClickBand(const Configuration& configuration, double position) {
    const int column_index = ColumnIndexAt(position);
    if (column_index < 0)
        return {configuration, std::nullopt};
    if (configuration.stage == Stage::Limits)
        return SetLimit(configuration, column_index);
    if (configuration.stage != Stage::Pending)
        return {configuration, std::nullopt};
    if (configuration.chosen_movers == kMostMovers)
        return SetSplit(configuration, column_index + 1);
    Configuration with_limits = configuration;
    SetMovers(with_limits, kMostPoints);
    with_limits.stage = Stage::Limits;
    return SetLimit(with_limits, column_index);
}

std::optional<PointPlace> Locate(const Configuration& configuration, double position) {
    const int column_index = ColumnIndexAt(position);
    const int first_points = configuration.movers[0].points;
    if (column_index < 0 || first_points == 0)
        return std::nullopt;
    if (column_index >= first_points)
        return PointPlace{2, 1, column_index - first_points};
    return PointPlace{1, StretchOfFirstMover(configuration.movers[0], position), column_index};
}

int ColumnOfPoint(const Configuration& configuration, int mover, int point) {
    return point + 1 + (mover == 2 ? configuration.movers[0].points : 0);
}

std::optional<text::Refusal> CheckPointPair(const Configuration& configuration, int mover, int stretch,
                                            int referred, int point) {
    const Stretch& limits = configuration.StretchAt(mover, stretch);
    const auto points = [&] { return std::to_string(referred) + " y " + std::to_string(point); };
    if (referred < limits.first || point > limits.last)
        return text::Refusal{"Los puntos " + points() + " no pertenecen al mismo tramo."};
    if (referred > point)
        return text::Refusal{"Los puntos " + points() + " no están ordenados."};
    return std::nullopt;
}

}  // namespace tavrelo::mechanics::points
