#include "projectile/projectile_sheet.h"

#include "numeric/checked.h"

namespace tavrelo::physics {
namespace {

namespace projectile = mechanics::projectile;

constexpr int kFirstPoints = 4;

template <class Action>
projectile::Step Guarded(const Action& action) {
    try {
        return action();
    } catch (const numeric::RuntimeFailure&) {
        return text::Refusal{"No pude ejecutar la instrucción."};
    }
}

KnownThrow ThrowOf(const projectile::Launch& launch) {
    const KnownThrow start = {launch.start->t, launch.start->x, launch.start->y};
    const bool is_polar = launch.mode == projectile::SpeedMode::Polar;
    return ThrowFrom(start, is_polar ? SpeedForm::Polar : SpeedForm::Components, *launch.first,
                     *launch.second);
}

}  // namespace

ProjectileSheet::ProjectileSheet(Problem& problem, int movers) : m_problem(problem) {
    m_projectile = projectile::Reconfigured(m_projectile, movers - 1);
    if (movers == 2)
        m_projectile = std::get<projectile::Problem>(
            projectile::WithBandClicked(m_projectile, kFirstPoints - 0.5, kDecimals));
}

void ProjectileSheet::TypeCells(int mover, int point, SpeedForm form, const std::vector<std::string>& cells) {
    std::string told = "mover " + std::to_string(mover) + ", point " + std::to_string(point) + ":";
    const int column = m_projectile.ColumnOf(mover, point);
    m_projectile.modes[static_cast<std::size_t>(column - 1)] =
        form == SpeedForm::Polar ? projectile::SpeedMode::Polar : projectile::SpeedMode::Components;
    for (std::size_t row = 0; row < cells.size(); ++row) {
        m_projectile.table.At(static_cast<int>(row), column) = mechanics::points::TextCell(cells[row]);
        told += " " + cells[row] + " |";
    }
    m_problem.Type(told + (form == SpeedForm::Polar ? " md" : " cs"));
}

void ProjectileSheet::TypeLaunch(int mover, const TypedThrow& launch, Given given) {
    const auto text = [](double number) { return Significant(number, 15).text; };
    TypeCells(mover, 0, launch.form,
              {text(launch.law.t0), text(launch.law.x0), text(launch.law.y0),
               given.first ? launch.first.text : "", given.second ? launch.second.text : ""});
}

void ProjectileSheet::TypePoint(int mover, int point, const TypedPoint& data) {
    const auto text = [](const std::optional<Typed>& datum) { return datum ? datum->text : std::string(); };
    TypeCells(mover, point, SpeedForm::Polar,
              {text(data.t), text(data.x), text(data.y), text(data.speed), text(data.angle)});
}

projectile::Step ProjectileSheet::Click(projectile::Procedure procedure, int point, int mover) const {
    return Guarded([&] {
        return projectile::ClickPoint(m_projectile, procedure, {mover, point}, kDecimals);
    });
}

projectile::Step ProjectileSheet::ClickInterval(int first_point, int last_point) const {
    return Guarded([&] {
        return projectile::ClickInterval(m_projectile, {1, first_point}, {1, last_point}, false, kDecimals);
    });
}

projectile::Step ProjectileSheet::Run(projectile::Special special, const std::string& text) {
    m_problem.Type("procedure " + std::to_string(static_cast<int>(special)) + ": " + text);
    return Guarded([&] { return projectile::RunSpecial(m_projectile, special, text, kDecimals); });
}

projectile::Step ProjectileSheet::Continue(const projectile::LimitRequest& request,
                                           const std::string& limit) {
    m_problem.Type("limit " + limit);
    return Guarded([&] { return projectile::ContinueWithLimit(m_projectile, request, limit, kDecimals); });
}

std::optional<std::string> ProjectileSheet::Plant(int mover) {
    const projectile::Step step = Click(projectile::Procedure::Plant, 0, mover);
    if (const auto message = MessageOf(step))
        return message;
    Take(std::get<projectile::Outcome>(step));
    return std::nullopt;
}

std::optional<std::string> MessageOf(const ProjectileStep& step) {
    if (const auto* refusal = std::get_if<text::Refusal>(&step))
        return refusal->text;
    const auto* box = EventOf<projectile::Box>(step);
    return box && ReportOf(step).empty() ? std::optional(box->text) : std::nullopt;
}

std::string HeadOf(const std::string& message) {
    const std::string line = message.substr(0, message.find('\n'));
    return line.substr(0, line.find(" = "));
}

std::vector<std::string> ReportOf(const ProjectileStep& step) {
    std::vector<std::string> lines;
    if (const auto* outcome = std::get_if<projectile::Outcome>(&step))
        for (const projectile::Event& event : outcome->events)
            if (const auto* report = std::get_if<projectile::WriteLines>(&event))
                lines.insert(lines.end(), report->lines.begin(), report->lines.end());
    return lines;
}

std::vector<KnownThrow> OffersOf(const ProjectileStep& step) {
    std::vector<KnownThrow> offers;
    if (const auto* question = EventOf<projectile::Question>(step))
        for (const auto& answer : {question->yes, question->no})
            if (const auto* plant = answer ? std::get_if<projectile::PlantRequest>(&*answer) : nullptr)
                offers.push_back(ThrowOf(plant->launch));
    return offers;
}

}  // namespace tavrelo::physics
