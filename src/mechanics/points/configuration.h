#pragma once

#include <array>
#include <optional>
#include <vector>

#include "mechanics/points/table.h"
#include "text/refusal.h"

namespace tavrelo::mechanics::points {

inline constexpr int kMostMovers = 2;
inline constexpr int kMostStretches = 3;

/// A stretch of a mover, one acceleration throughout: its first and last point, counted from 0 in the mover.
/// The last point of a stretch is the first of the next.
struct Stretch {
    int first = 0;
    int last = 0;

    int Points() const { return last - first + 1; }
    friend bool operator==(const Stretch&, const Stretch&) = default;
};

/// The columns of a mover and its stretches in order; mover 1 stands at the left.
struct Mover {
    int points = 0;
    std::vector<Stretch> stretches;

    friend bool operator==(const Mover&, const Mover&) = default;
};

/// What a button of the configuration divides: how many movers, and whether the first has stretches.
struct Variant {
    int movers;
    bool has_stretches;
};
/// By the index of the button.
inline constexpr std::array<Variant, 4> kMotionVariants = {{{1, false}, {1, true}, {2, false}, {2, true}}};
inline constexpr std::array<Variant, 2> kProjectileVariants = {{{1, false}, {2, false}}};

enum class Stage {
    Unconfigured,  // no variant chosen yet
    Pending,       // waits for the click that sets the movers
    Limits,        // clicks define limits of stretches
    Configured,
};

struct Configuration {
    Stage stage = Stage::Unconfigured;
    /// Movers chosen by the variant, and whether the first is to be divided.
    int chosen_movers = 0;
    bool chosen_stretches = false;
    /// Filled from the click that sets the movers on; a mover that there is not has no points.
    std::array<Mover, kMostMovers> movers;

    bool IsConfigured() const { return stage == Stage::Configured; }
    /// 0 before the movers are set.
    int MoverCount() const;
    /// Movers and stretches count from 1; fails with SubscriptRange when there is no such one.
    const Mover& MoverAt(int mover) const;
    const Stretch& StretchAt(int mover, int stretch) const;
    bool HasStretch(int mover, int stretch) const;

    friend bool operator==(const Configuration&, const Configuration&) = default;
};

/// The configuration after the press of a button: one undivided mover is configured at once with all nine
/// points, any other variant waits for clicks.
Configuration Begin(const Variant& variant);

/// The configuration after a click, and what is said against the click. A click may set the movers and still
/// be refused as a limit.
struct ConfigurationStep {
    Configuration configuration;
    std::optional<text::Refusal> refusal;
};
/// A click in the grey band; `position` in columns from the left edge of column 1 (x / 64). It sets the
/// movers when they are pending, else the next limit of a stretch of mover 1; the rest closes by itself when
/// a second limit is set or one column remains. Nothing happens in any other stage and beyond mover 1.
ConfigurationStep ClickBand(const Configuration& configuration, double position);

/// A point of a mover, seen from one of its stretches. Movers and stretches count from 1, points from 0.
struct PointPlace {
    int mover = 1;
    int stretch = 1;
    int point = 0;

    friend bool operator==(const PointPlace&, const PointPlace&) = default;
};

/// The point at a place of the strip, in columns as for ClickBand. A point between two stretches belongs to
/// the earlier one on its left half, middle included. Nothing outside the columns or before the movers are
/// set.
std::optional<PointPlace> Locate(const Configuration& configuration, double position);

/// The column of a point, from 1.
int ColumnOfPoint(const Configuration& configuration, int mover, int point);
inline int ColumnOfPoint(const Configuration& configuration, const PointPlace& place) {
    return ColumnOfPoint(configuration, place.mover, place.point);
}

/// Why a point may not refer to another one, `referred`, of its stretch; nothing when it may. A point may
/// refer to itself.
std::optional<text::Refusal> CheckPointPair(const Configuration& configuration, int mover, int stretch,
                                            int referred, int point);

}  // namespace tavrelo::mechanics::points
