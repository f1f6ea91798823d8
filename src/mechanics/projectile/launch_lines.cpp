#include "mechanics/projectile/launch_lines.h"

#include <cmath>

#include "numeric/angles.h"
#include "text/number_text.h"

namespace tavrelo::mechanics::projectile {
namespace {

using Terms = std::vector<Term>;

const std::string kCosTheta = "cos ;q";
const std::string kSenTheta = "sen ;q";
const std::string kTanTheta = "tan ;q";

std::string Shown(double number, int decimals) { return text::NumText(number, decimals).Text(); }

/// "t", or "(t ;- 2)" for a start at 2: a variable counted from where it starts.
std::string CountedFrom(std::string_view variable, double start, int decimals) {
    const double shown = text::RoundTo(start, decimals);
    if (shown == 0.0)
        return std::string(variable);
    return "(" + std::string(variable) + text::TermText(true, false, -shown, 1) + ")";
}

/// Writes the lines of one launch; holds what all its lines name.
class LineWriter {
  public:
    LineWriter(int mover, const Equations& equations, int decimals)
        : m_symbols(SymbolsOf(mover)),
          m_equations(equations),
          m_start(*equations.launch.start),
          m_decimals(decimals),
          m_time(CountedFrom("t", m_start.t, decimals)),
          m_distance(CountedFrom(m_symbols.x, m_start.x, decimals)) {}

    std::vector<EquationLine> Lines() const;

  private:
    std::vector<EquationLine> CompleteLines() const;
    /// The five lines of a launch with parameters, its components of velocity given as terms without time.
    std::vector<EquationLine> ParameterLines(const Term& vx, const Term& vy,
                                             const EquationLine& trajectory) const;
    EquationLine Upright() const;
    EquationLine Trajectory(const Term& slope, const Term& square) const;

    std::vector<EquationLine> UnknownAngle(double speed) const;
    std::vector<EquationLine> UnknownSpeed(double angle) const;
    std::vector<EquationLine> UnknownSpeedAndAngle() const;
    std::vector<EquationLine> UnknownVy(double vx) const;
    std::vector<EquationLine> UnknownVx(double vy) const;

    Term Constant(double number) const { return {text::RoundTo(number, m_decimals), "1"}; }
    Term Multiple(double number, const std::string& factor) const {
        return {text::RoundTo(number, m_decimals), factor};
    }
    Term Times(Term term, const std::string& factor) const {
        term.factor = term.factor == "1" ? factor : term.factor + " " + factor;
        return term;
    }
    /// ";- (4.9/v!0¡2) (x ;- 5)¡2": a quotient as the coefficient of the square of the distance.
    Term Quotient(double numerator, const std::string& denominator) const {
        return {-1.0, "(" + text::NumberToText(ShownCoefficient(numerator, m_decimals)) + "/" + denominator +
                          ") " + m_distance + "¡2"};
    }
    Term PlainSquare(double k) const { return {-ShownCoefficient(k, m_decimals), m_distance + "¡2"}; }

    const Symbols& m_symbols;
    const Equations& m_equations;
    Start m_start;
    int m_decimals;
    std::string m_time;
    std::string m_distance;
};

std::vector<EquationLine> LineWriter::Lines() const {
    const Launch& launch = m_equations.launch;
    switch (m_equations.kind) {
        case LaunchKind::None:
            return {};
        case LaunchKind::Complete:
            return CompleteLines();
        case LaunchKind::UnknownAngle:
            return UnknownAngle(*launch.first);
        case LaunchKind::UnknownSpeed:
            return UnknownSpeed(*launch.second);
        case LaunchKind::UnknownSpeedAndAngle:
            return UnknownSpeedAndAngle();
        case LaunchKind::UnknownVy:
            return UnknownVy(*launch.first);
        case LaunchKind::UnknownVx:
            return UnknownVx(*launch.second);
    }
    return {};
}

EquationLine LineWriter::Upright() const {
    return {"La trayectoria es la recta " + std::string(m_symbols.x), {Constant(m_start.x)}};
}

std::vector<EquationLine> LineWriter::CompleteLines() const {
    const std::string x(m_symbols.x);
    const std::string y(m_symbols.y);
    const Flight& flight = m_equations.flight;
    EquationLine trajectory = Upright();
    if (const auto& curve = flight.trajectory)
        trajectory = {
            y,
            {{ShownCoefficient(curve->a, m_decimals), x + "¡2"}, Multiple(curve->b, x), Constant(curve->c)}};
    return {{x, {Multiple(flight.launch.x, "t"), Constant(flight.x_at_zero)}},
            {y, {{-kHalfGravity, "t¡2"}, Multiple(flight.vy_at_zero, "t"), Constant(flight.y_at_zero)}},
            {m_symbols.Vx(), {Constant(flight.launch.x)}},
            {m_symbols.Vy(), {Constant(flight.vy_at_zero), {-kGravity, "t"}}},
            trajectory};
}

std::vector<EquationLine> LineWriter::ParameterLines(const Term& vx, const Term& vy,
                                                     const EquationLine& trajectory) const {
    return {
        {std::string(m_symbols.x), {Constant(m_start.x), Times(vx, m_time)}},
        {std::string(m_symbols.y), {Constant(m_start.y), Times(vy, m_time), {-kHalfGravity, m_time + "¡2"}}},
        {m_symbols.Vx(), {vx}},
        {m_symbols.Vy(), {vy, {-kGravity, m_time}}},
        trajectory};
}

EquationLine LineWriter::Trajectory(const Term& slope, const Term& square) const {
    return {std::string(m_symbols.y), {Constant(m_start.y), Times(slope, m_distance), square}};
}

std::vector<EquationLine> LineWriter::UnknownAngle(double speed) const {
    return ParameterLines(Multiple(speed, kCosTheta), Multiple(speed, kSenTheta),
                          Trajectory({1.0, kTanTheta}, Quotient(kHalfGravity / (speed * speed), "cos¡2 ;q")));
}

std::vector<EquationLine> LineWriter::UnknownSpeed(double angle) const {
    const std::string speed = m_symbols.InitialSpeed();
    const double cosine = numeric::CosD(angle);
    const Term vx = Multiple(cosine, speed);
    const Term vy = Multiple(numeric::SinD(angle), speed);
    if (IsZero(cosine))
        return ParameterLines(vx, vy, Upright());
    return ParameterLines(
        vx, vy,
        Trajectory(Constant(numeric::TanD(angle)), Quotient(kHalfGravity / (cosine * cosine), speed + "¡2")));
}

std::vector<EquationLine> LineWriter::UnknownSpeedAndAngle() const {
    const std::string speed = m_symbols.InitialSpeed();
    return ParameterLines({1.0, speed + " " + kCosTheta}, {1.0, speed + " " + kSenTheta},
                          Trajectory({1.0, kTanTheta}, Quotient(kHalfGravity, speed + "¡2 cos¡2 ;q")));
}

std::vector<EquationLine> LineWriter::UnknownVy(double vx) const {
    const std::string vy = m_symbols.InitialVy();
    if (IsZero(vx))
        return ParameterLines(Constant(0.0), {1.0, vy}, Upright());
    const Term slope = {1.0, "(" + vy + "/" + Shown(vx, m_decimals) + ")"};
    return ParameterLines(Constant(vx), {1.0, vy}, Trajectory(slope, PlainSquare(kHalfGravity / (vx * vx))));
}

std::vector<EquationLine> LineWriter::UnknownVx(double vy) const {
    const std::string vx = m_symbols.InitialVx();
    const Term slope = {vy == 0.0 ? 0.0 : 1.0, "(" + Shown(vy, m_decimals) + "/" + vx + ")"};
    return ParameterLines({1.0, vx}, Constant(vy), Trajectory(slope, Quotient(kHalfGravity, vx + "¡2")));
}

std::string Header(int mover, const Launch& launch, int decimals) {
    const Symbols& symbols = SymbolsOf(mover);
    const bool polar = launch.mode == SpeedMode::Polar;
    const auto datum = [decimals](const std::string& name, double number) {
        return ", " + name + " = " + Shown(number, decimals);
    };
    std::string header = "En t = " + Shown(launch.start->t, decimals) + ": " + std::string(symbols.x) +
                         " = " + Shown(launch.start->x, decimals) +
                         datum(std::string(symbols.y), launch.start->y);
    if (launch.first)
        header += datum(polar ? symbols.InitialSpeed() : symbols.InitialVx(), *launch.first);
    if (launch.second)
        header += polar ? datum(";q", *launch.second) + "°" : datum(symbols.InitialVy(), *launch.second);
    return header;
}

std::string ReachLine(const Reach& reach, int decimals) {
    return "R =  " + Shown(reach.range, decimals) + ",   t!v =  " + Shown(reach.time, decimals) +
           ",  h = " + Shown(reach.height, decimals);
}

}  // namespace

double ShownCoefficient(double coefficient, int decimals) {
    constexpr int kDigits = 3;
    for (const int places : {decimals, WorkingDecimals(decimals)}) {
        const double rounded = text::RoundTo(coefficient, places);
        if (rounded != 0.0)
            return rounded;
    }
    if (coefficient == 0.0)
        return 0.0;
    const int exponent = static_cast<int>(std::floor(std::log10(std::abs(coefficient))));
    return text::RoundTo(coefficient, kDigits - 1 - exponent);
}

std::vector<EquationLine> EquationLines(int mover, const Equations& equations, int decimals) {
    return LineWriter(mover, equations, decimals).Lines();
}

std::vector<std::string> LaunchReport(int mover, const Equations& equations,
                                      const std::vector<EquationLine>& lines, int decimals) {
    std::vector<std::string> report = {"Ecuaciones de movimiento, móvil " + std::to_string(mover),
                                       Header(mover, equations.launch, decimals)};
    for (const EquationLine& line : lines)
        report.push_back(ForReport(line));
    if (equations.IsComplete())
        if (const auto reach = ReachOf(equations.flight.launch))
            report.push_back(ReachLine(*reach, decimals));
    return report;
}

}  // namespace tavrelo::mechanics::projectile
