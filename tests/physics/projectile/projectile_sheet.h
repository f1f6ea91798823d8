#pragma once

#include <string>
#include <vector>

#include "mechanics/projectile/procedures.h"
#include "problem.h"
#include "projectile/point_data.h"

namespace tavrelo::physics {

/// A problem of projectiles as a student fills it in: cells are typed, labels clicked, texts typed in the
/// box. What fails for a reason of its own is told as the tool tells it.
class ProjectileSheet {
  public:
    /// Decimals asked for, so that nothing that is judged is rounded.
    static constexpr int kDecimals = 12;

    explicit ProjectileSheet(Problem& problem, int movers = 1);

    void TypeCells(int mover, int point, SpeedForm form, const std::vector<std::string>& cells);
    /// The launch of a mover in its point 0; what is not `given` is left out.
    struct Given {
        bool first = true;
        bool second = true;
    };
    void TypeLaunch(int mover, const TypedThrow& launch, Given given);
    void TypePoint(int mover, int point, const TypedPoint& data);

    mechanics::projectile::Step Click(mechanics::projectile::Procedure procedure, int point,
                                      int mover = 1) const;
    mechanics::projectile::Step ClickInterval(int first_point, int last_point) const;
    mechanics::projectile::Step Run(mechanics::projectile::Special special, const std::string& text);
    mechanics::projectile::Step Continue(const mechanics::projectile::LimitRequest& request,
                                         const std::string& limit);
    /// Plants a typed launch; gives the message where that is refused.
    std::optional<std::string> Plant(int mover = 1);
    void Take(const mechanics::projectile::Outcome& outcome) { m_projectile = outcome.problem; }

    const mechanics::projectile::Problem& TheProjectile() const { return m_projectile; }

  private:
    Problem& m_problem;
    mechanics::projectile::Problem m_projectile;
};

using ProjectileStep = mechanics::projectile::Step;

/// The message of a step, when it is one: of a box too that is all that is shown.
std::optional<std::string> MessageOf(const ProjectileStep& step);
/// The same without numbers of its own: its first line up to an equals sign.
std::string HeadOf(const std::string& message);
/// The lines of the report.
std::vector<std::string> ReportOf(const ProjectileStep& step);
/// The event of a kind; null when there is none.
template <class Event>
const Event* EventOf(const ProjectileStep& step) {
    if (const auto* outcome = std::get_if<mechanics::projectile::Outcome>(&step))
        for (const auto& event : outcome->events)
            if (const auto* wanted = std::get_if<Event>(&event))
                return wanted;
    return nullptr;
}
/// The launches that a step offers to plant.
std::vector<KnownThrow> OffersOf(const ProjectileStep& step);

}  // namespace tavrelo::physics
