// Thousands of motions with small halves for numbers, so that the special cases meet too: each pair of data
// is taken from a motion, and the procedures must find that motion again or refuse for a reason that the data
// show.
#include <gtest/gtest.h>

#include <array>
#include <cmath>
#include <functional>
#include <random>

#include "motion_problem.h"
#include "text/number_text.h"
#include "text/utf8.h"

namespace tavrelo::mechanics::motion {
namespace {

using namespace testing;

constexpr int kMotions = 3000;
constexpr unsigned kSeed = 20260;

/// A motion from a base, and two moments of it.
struct Sample {
    double tn, xn, vn, a;
    double ti, tf;

    double X(double t) const { return xn + vn * (t - tn) + 0.5 * a * (t - tn) * (t - tn); }
    double V(double t) const { return vn + a * (t - tn); }
    double xi() const { return X(ti); }
    double xf() const { return X(tf); }
    double vi() const { return V(ti); }
    double vf() const { return V(tf); }
};

class Chance {
  public:
    /// A half between -limit/2 and limit/2.
    double Half(int limit) { return 0.5 * std::uniform_int_distribution(-limit, limit)(m_engine); }
    Sample Next() {
        Sample sample = {Half(4), Half(12), Half(12), Half(8), Half(10), Half(10)};
        if (std::uniform_int_distribution(0, 1)(m_engine) == 0)
            sample.tn = 0;
        return sample;
    }

  private:
    std::mt19937 m_engine{kSeed};
};

std::string Text(double number) { return text::NumberToText(number); }

std::string Plus(const char* letter, double increment) {
    return std::string(letter) + "1" + (increment < 0 ? "-" : "+") + Text(std::abs(increment));
}

std::string Times(double factor, const char* letter) { return Text(factor) + "*" + letter + "1"; }

void SetCell(Problem& problem, int row, int column, const std::string& text) {
    points::Cell& cell = problem.table.At(row, column);
    cell = {};
    if (!text.empty())
        cell = {text, text};
}

void SetColumn(Problem& problem, int point, const Column& column) {
    SetCell(problem, points::kTimeRow, point + 1, column.t);
    SetCell(problem, points::kPositionRow, point + 1, column.x);
    SetCell(problem, points::kSpeedRow, point + 1, column.v);
}

Problem PlantedOn(const Sample& sample, bool has_speed, bool has_acceleration) {
    Problem problem = OneMover(has_acceleration ? Text(sample.a) : "");
    SetColumn(problem, 0, {Text(sample.tn), Text(sample.xn), has_speed ? Text(sample.vn) : ""});
    return After(ClickPoint(problem, Procedure::Plant, {1, 1, 0}, kDecimals));
}

constexpr double kClose = 1e-4;
bool IsClose(double found, double wanted) {
    return std::abs(found - wanted) <= kClose * std::max(1.0, std::abs(wanted));
}

/// A number that the data leave out: a factor over 0.
bool HasFactor(double end, double start) { return start != 0.0 && end != 0.0; }

TEST(RandomMotion, PlantedEquationsAreThoseOfTheMotion) {
    Chance chance;
    for (int k = 0; k < kMotions; ++k) {
        const Sample s = chance.Next();
        const Motion motion = PlantedOn(s, true, true).EquationsOf(1, 1).Expanded();
        EXPECT_NEAR(motion.PositionAt(s.ti), s.xi(), 1e-9);
        EXPECT_NEAR(motion.SpeedAt(s.ti), s.vi(), 1e-9);
    }
}

TEST(RandomMotion, ThreePointsGiveTheirMotion) {
    Chance chance;
    for (int k = 0; k < kMotions; ++k) {
        const Sample s = chance.Next();
        Problem problem = OneMover();
        SetColumn(problem, 0, {Text(s.tn), Text(s.xn), ""});
        SetColumn(problem, 1, {Text(s.ti), Text(s.xi()), ""});
        SetColumn(problem, 2, {Text(s.tf), Text(s.xf()), ""});
        const Step step = RunThreePoints(problem, "1, 1, 0, 1, 2", kDecimals);
        if (s.tn == s.ti || s.ti == s.tf || s.tn == s.tf) {
            EXPECT_NE(RefusalOf(step), "");
            continue;
        }
        const Question* question = QuestionOf(step);
        ASSERT_TRUE(question);
        const Motion& motion = std::get<AwaitBaseRequest>(*question->yes).awaited.motion;
        EXPECT_NEAR(motion.x0, s.X(0), 1e-8);
        EXPECT_NEAR(motion.v0, s.V(0), 1e-8);
        EXPECT_NEAR(motion.a, s.a, 1e-8);
    }
}

struct IntervalSet {
    const char* name;
    std::function<bool(const Sample&)> is_possible;
    std::function<Column(const Sample&)> column;
    /// Whether the data show why they are refused.
    std::function<bool(const Sample&)> is_refused;
};

const std::vector<IntervalSet>& IntervalSets() {
    static const std::vector<IntervalSet> sets = {
        {"Dt, Dx", [](const Sample&) { return true; },
         [](const Sample& s) {
             return Column{Plus("t", s.tf - s.ti), Plus("x", s.xf() - s.xi()), ""};
         },
         [](const Sample& s) { return s.a == 0 || s.ti == s.tf; }},
        {"Dx, Dv", [](const Sample&) { return true; },
         [](const Sample& s) {
             return Column{"", Plus("x", s.xf() - s.xi()), Plus("v", s.vf() - s.vi())};
         },
         [](const Sample& s) { return s.a == 0 || s.vi() == s.vf(); }},
        {"Dt, C[x]", [](const Sample& s) { return HasFactor(s.xf(), s.xi()); },
         [](const Sample& s) {
             return Column{Plus("t", s.tf - s.ti), Times(s.xf() / s.xi(), "x"), ""};
         },
         [](const Sample& s) { return s.ti == s.tf || (s.a == 0 && s.vn == 0); }},
        {"Dt, C[v]", [](const Sample& s) { return HasFactor(s.vf(), s.vi()); },
         [](const Sample& s) {
             return Column{Plus("t", s.tf - s.ti), "", Times(s.vf() / s.vi(), "v")};
         },
         [](const Sample& s) { return s.vf() == s.vi(); }},
        {"Dx, C[t]", [](const Sample& s) { return HasFactor(s.tf, s.ti); },
         [](const Sample& s) {
             return Column{Times(s.tf / s.ti, "t"), Plus("x", s.xf() - s.xi()), ""};
         },
         [](const Sample& s) {
             const double v0 = s.V(0);
             return s.ti == s.tf || (v0 == 0 && (s.a == 0 || s.tf == -s.ti));
         }},
        {"Dx, C[v]", [](const Sample& s) { return HasFactor(s.vf(), s.vi()); },
         [](const Sample& s) {
             return Column{"", Plus("x", s.xf() - s.xi()), Times(s.vf() / s.vi(), "v")};
         },
         [](const Sample& s) { return s.a == 0 || std::abs(s.vf()) == std::abs(s.vi()); }},
        {"Dv, C[t]", [](const Sample& s) { return HasFactor(s.tf, s.ti); },
         [](const Sample& s) {
             return Column{Times(s.tf / s.ti, "t"), "", Plus("v", s.vf() - s.vi())};
         },
         [](const Sample& s) { return s.a == 0 || s.ti == s.tf; }},
        {"Dv, C[x]", [](const Sample& s) { return HasFactor(s.xf(), s.xi()); },
         [](const Sample& s) {
             return Column{"", Times(s.xf() / s.xi(), "x"), Plus("v", s.vf() - s.vi())};
         },
         [](const Sample& s) { return s.a == 0 || s.ti == s.tf; }},
    };
    return sets;
}

/// Whether a found interval has the relations from which it was found, reckoned from its own times.
bool IsIntervalOf(const Sample& s, const Column& column, const FoundSolution& found) {
    const auto holds = [&](const std::string& text, double start, double end) {
        if (text.empty())
            return true;
        const std::size_t times = text.find('*');
        const double wanted = times != std::string::npos ? std::stod(text.substr(0, times)) * start
                                                         : start + std::stod(text.substr(2));
        return std::abs(end - wanted) <= 1e-6 * std::max({1.0, std::abs(start), std::abs(end)});
    };
    const double ti = found.first.t;
    const double tf = found.second->t;
    return holds(column.t, ti, tf) && holds(column.x, s.X(ti), s.X(tf)) &&
           holds(column.v, s.V(ti), s.V(tf)) && std::abs(found.first.x - s.X(ti)) < 1e-6 &&
           std::abs(found.second->v - s.V(tf)) < 1e-6;
}

TEST(RandomMotion, EveryIntervalOfACompleteMotionIsFoundAgain) {
    for (const IntervalSet& set : IntervalSets()) {
        SCOPED_TRACE(set.name);
        Chance chance;
        int found_again = 0;
        for (int k = 0; k < kMotions; ++k) {
            const Sample s = chance.Next();
            if (!set.is_possible(s))
                continue;
            Problem problem = PlantedOn(s, true, true);
            problem.table.ClearColumn(1);
            const Column column = set.column(s);
            SetColumn(problem, 2, column);
            const Step step = ClickPoint(problem, Procedure::Substitute, {1, 1, 2}, kDecimals);
            const std::string where = Text(s.tn) + " " + Text(s.xn) + " " + Text(s.vn) + " " + Text(s.a) +
                                      " | " + Text(s.ti) + " " + Text(s.tf) + " " + RefusalOf(step);
            if (std::holds_alternative<text::Refusal>(step)) {
                EXPECT_TRUE(set.is_refused(s)) << where;
                continue;
            }
            bool is_found = false;
            for (const FoundSolution& found : After(step).results.solutions) {
                EXPECT_TRUE(IsIntervalOf(s, column, found)) << where;
                is_found = is_found || (IsClose(found.first.t, s.ti) && IsClose(found.second->t, s.tf));
            }
            EXPECT_TRUE(is_found || set.is_refused(s)) << where;
            ++found_again;
        }
        EXPECT_GT(found_again, kMotions / 3);
    }
}

TEST(RandomMotion, EveryPointOfACompleteMotionIsFoundAgain) {
    Chance chance;
    for (int k = 0; k < kMotions; ++k) {
        const Sample s = chance.Next();
        const std::array<Column, 3> data = {Column{Text(s.tf), "", ""}, Column{"", Text(s.xf()), ""},
                                            Column{"", "", Text(s.vf())}};
        for (std::size_t given = 0; given < data.size(); ++given) {
            Problem problem = PlantedOn(s, true, true);
            SetColumn(problem, 2, data[given]);
            const Step step = ClickPoint(problem, Procedure::Substitute, {1, 1, 2}, kDecimals);
            const std::string where = std::to_string(given) + ": " + Text(s.tn) + " " + Text(s.xn) + " " +
                                      Text(s.vn) + " " + Text(s.a) + " | " + Text(s.tf);
            if (std::holds_alternative<text::Refusal>(step)) {
                EXPECT_TRUE(s.a == 0 && (given == 2 || s.vn == 0)) << where;
                continue;
            }
            const Problem after = After(step);
            bool is_found = false;
            for (const FoundSolution& found : after.results.solutions) {
                EXPECT_NEAR(found.first.x, s.X(found.first.t), 1e-6) << where;
                EXPECT_NEAR(found.first.v, s.V(found.first.t), 1e-6) << where;
                is_found = is_found || IsClose(found.first.t, s.tf);
            }
            EXPECT_TRUE(is_found) << where;
            const double t = after.table.Stored(points::kTimeRow, 3).Number();
            EXPECT_NEAR(after.table.Stored(points::kPositionRow, 3).Number(), s.X(t), 1e-6) << where;
            EXPECT_NEAR(after.table.Stored(points::kSpeedRow, 3).Number(), s.V(t), 1e-6) << where;
        }
    }
}

/// A data set of equations with parameters: the columns of both points, and when each kind refuses.
struct ParameterSet {
    const char* name;
    std::function<bool(const Sample&)> is_possible;
    std::function<Column(const Sample&)> start;
    std::function<Column(const Sample&)> end;
    std::function<bool(const Sample&)> speed_is_refused;
    std::function<bool(const Sample&)> acceleration_is_refused;
};

Column None(const Sample&) { return {}; }
bool Always(const Sample&) { return true; }
bool Never(const Sample&) { return false; }
bool HasNearlyNo(double difference, double scale) { return std::abs(difference) <= 1e-9 * std::abs(scale); }

const std::vector<ParameterSet>& ParameterSets() {
    static const auto start_time = [](const Sample& s) { return Column{Text(s.ti), "", ""}; };
    static const auto start_position = [](const Sample& s) { return Column{"", Text(s.xi()), ""}; };
    static const auto start_speed = [](const Sample& s) { return Column{"", "", Text(s.vi())}; };
    static const auto has_x_factor = [](const Sample& s) { return HasFactor(s.xf(), s.xi()); };
    static const auto has_v_factor = [](const Sample& s) { return HasFactor(s.vf(), s.vi()); };
    static const auto has_t_factor = [](const Sample& s) { return HasFactor(s.tf, s.ti); };
    static const std::vector<ParameterSet> sets = {
        {"t, x", Always, None,
         [](const Sample& s) {
             return Column{Text(s.tf), Text(s.xf()), ""};
         },
         [](const Sample& s) { return s.tf == s.tn; }, [](const Sample& s) { return s.tf == s.tn; }},
        {"t, v", Always, None,
         [](const Sample& s) {
             return Column{Text(s.tf), "", Text(s.vf())};
         },
         Never, [](const Sample& s) { return s.tf == s.tn; }},
        {"x, v", Always, None,
         [](const Sample& s) {
             return Column{"", Text(s.xf()), Text(s.vf())};
         },
         Never, [](const Sample& s) { return s.xf() == s.xn; }},
        {"ti, tf, Dx", Always, start_time,
         [](const Sample& s) {
             return Column{Text(s.tf), Plus("x", s.xf() - s.xi()), ""};
         },
         [](const Sample& s) { return s.ti == s.tf; },
         [](const Sample& s) {
             return s.ti == s.tf || s.xi() == s.xf() || std::abs(s.ti - s.tn) == std::abs(s.tf - s.tn);
         }},
        {"xi, xf, Dt", Always, start_position,
         [](const Sample& s) {
             return Column{Plus("t", s.tf - s.ti), Text(s.xf()), ""};
         },
         [](const Sample& s) { return s.ti == s.tf; }, [](const Sample& s) { return s.ti == s.tf; }},
        {"xi, xf, Dv", Always, start_position,
         [](const Sample& s) {
             return Column{"", Text(s.xf()), Plus("v", s.vf() - s.vi())};
         },
         Always,
         [](const Sample& s) {
             return s.vi() == s.vf() || (s.xi() == s.xf() && s.xi() + s.xf() == 2 * s.xn);
         }},
        {"ti, tf, C[x]", has_x_factor, start_time,
         [](const Sample& s) {
             return Column{Text(s.tf), Times(s.xf() / s.xi(), "x"), ""};
         },
         [](const Sample& s) {
             const double c = s.xf() / s.xi();
             return s.ti == s.tf || HasNearlyNo(s.tf - s.tn - c * (s.ti - s.tn), s.tf - s.tn);
         },
         [](const Sample& s) {
             const double c = s.xf() / s.xi();
             const double df = s.tf - s.tn;
             const double di = s.ti - s.tn;
             return s.ti == s.tf || HasNearlyNo(df * df - c * di * di, df * df);
         }},
        {"ti, tf, C[v]", has_v_factor, start_time,
         [](const Sample& s) {
             return Column{Text(s.tf), "", Times(s.vf() / s.vi(), "v")};
         },
         [](const Sample& s) { return s.ti == s.tf || s.vi() == s.vf(); },
         [](const Sample& s) {
             const double c = s.vf() / s.vi();
             return s.ti == s.tf || HasNearlyNo(s.tf - s.tn - c * (s.ti - s.tn), s.tf - s.tn);
         }},
        {"xi, xf, C[t]", has_t_factor, start_position,
         [](const Sample& s) {
             return Column{Times(s.tf / s.ti, "t"), Text(s.xf()), ""};
         },
         [](const Sample& s) { return s.ti == s.tf || s.tn != 0 || s.a == 0; },
         [](const Sample& s) { return s.ti == s.tf || s.tn != 0 || s.vn == 0; }},
        {"xi, xf, C[v]", has_v_factor, start_position,
         [](const Sample& s) {
             return Column{"", Text(s.xf()), Times(s.vf() / s.vi(), "v")};
         },
         [](const Sample& s) { return std::abs(s.vi()) == std::abs(s.vf()); },
         [](const Sample& s) { return std::abs(s.vi()) == std::abs(s.vf()) || s.vn == 0; }},
        {"vi, vf, C[t]", has_t_factor, start_speed,
         [](const Sample& s) {
             return Column{Times(s.tf / s.ti, "t"), "", Text(s.vf())};
         },
         [](const Sample& s) { return s.a == 0 || std::abs(s.ti) == std::abs(s.tf); },
         [](const Sample& s) { return s.ti == s.tf || s.vi() == s.vf() || s.tn == 0; }},
        {"vi, vf, C[x]", has_x_factor, start_speed,
         [](const Sample& s) {
             return Column{"", Times(s.xf() / s.xi(), "x"), Text(s.vf())};
         },
         [](const Sample& s) { return s.a == 0 || std::abs(s.xi()) == std::abs(s.xf()); },
         [](const Sample& s) { return s.xi() == s.xf() || s.vi() == s.vf() || s.xn == 0; }},
    };
    return sets;
}

/// The moments of a motion at which x or v has a value, to be compared with the data; nothing when it has it
/// always.
std::optional<std::vector<double>> MomentsOf(const Sample& s, char letter, double value) {
    if (letter == 'v') {
        if (s.a == 0)
            return s.vn == value ? std::nullopt : std::optional(std::vector<double>{});
        return std::vector{s.tn + (value - s.vn) / s.a};
    }
    const double p = value - s.xn;
    if (std::abs(s.a) < 1e-9) {
        if (s.vn == 0)
            return std::abs(p) < 1e-9 ? std::nullopt : std::optional(std::vector<double>{});
        return std::vector{s.tn + p / s.vn};
    }
    const double square = s.vn * s.vn + 2 * s.a * p;
    if (square < -1e-7)
        return std::vector<double>{};
    const double root = std::sqrt(std::max(0.0, square));
    return std::vector{s.tn + (-s.vn + root) / s.a, s.tn + (-s.vn - root) / s.a};
}

bool IsRelated(const std::string& text, double start, double end) {
    const std::size_t times = text.find('*');
    const double wanted = times != std::string::npos ? std::stod(text.substr(0, times)) * start
                                                     : start + std::stod(text.substr(2));
    return std::abs(end - wanted) <= 1e-5 * std::max({1.0, std::abs(start), std::abs(end)});
}

bool IsPlain(const std::string& text) { return !text.empty() && text::IsNum(text); }

/// Whether a motion passes points with these data, by going to the moments that the plain ones tell.
bool Passes(const Sample& s, const Column& start, const Column& end) {
    const auto moments = [&](const Column& column) -> std::optional<std::vector<double>> {
        if (IsPlain(column.t))
            return std::vector{std::stod(column.t)};
        return IsPlain(column.x) ? MomentsOf(s, 'x', std::stod(column.x))
                                 : MomentsOf(s, 'v', std::stod(column.v));
    };
    const auto ends = moments(end);
    if (!ends)
        return true;
    const bool has_start = !(start.t + start.x + start.v).empty();
    for (const double tf : *ends) {
        if (!has_start) {
            if ((!IsPlain(end.x) || std::abs(s.X(tf) - std::stod(end.x)) < 1e-5) &&
                (!IsPlain(end.v) || std::abs(s.V(tf) - std::stod(end.v)) < 1e-5))
                return true;
            continue;
        }
        const auto starts = moments(start);
        if (!starts)
            return true;
        for (const double ti : *starts) {
            const bool t_fits = end.t.empty() || IsPlain(end.t) || IsRelated(end.t, ti, tf);
            const bool x_fits = end.x.empty() || IsPlain(end.x) || IsRelated(end.x, s.X(ti), s.X(tf));
            const bool v_fits = end.v.empty() || IsPlain(end.v) || IsRelated(end.v, s.V(ti), s.V(tf));
            if (t_fits && x_fits && v_fits)
                return true;
        }
    }
    return false;
}

std::vector<PlantRequest> Answers(const Step& step) {
    std::vector<PlantRequest> answers;
    if (const Question* question = QuestionOf(step)) {
        for (const auto& request : {question->yes, question->no}) {
            if (request)
                answers.push_back(std::get<PlantRequest>(*request));
        }
    }
    return answers;
}

void CheckParameter(const ParameterSet& set, bool seeks_speed) {
    SCOPED_TRACE(set.name);
    Chance chance;
    int found_again = 0;
    for (int k = 0; k < kMotions; ++k) {
        const Sample s = chance.Next();
        if (!set.is_possible(s))
            continue;
        Problem problem = PlantedOn(s, !seeks_speed, seeks_speed);
        problem.table.ClearColumn(1);
        SetColumn(problem, 1, set.start(s));
        SetColumn(problem, 2, set.end(s));
        const Step step = ClickPoint(problem, Procedure::SubstituteWithParameters, {1, 1, 2}, kDecimals);
        const std::string where = Text(s.tn) + " " + Text(s.xn) + " " + Text(s.vn) + " " + Text(s.a) + " | " +
                                  Text(s.ti) + " " + Text(s.tf) + " " + RefusalOf(step);
        const bool is_refused = seeks_speed ? set.speed_is_refused(s) : set.acceleration_is_refused(s);
        bool is_found = false;
        for (const PlantRequest& answer : Answers(step)) {
            Sample found = s;
            found.vn = answer.v.Number();
            found.a = answer.a.Number();
            EXPECT_TRUE(Passes(found, set.start(s), set.end(s)))
                << where << " v " << found.vn << " a " << found.a;
            is_found = is_found || (IsClose(found.vn, s.vn) && IsClose(found.a, s.a));
        }
        EXPECT_TRUE(is_found || is_refused) << where;
        found_again += is_found ? 1 : 0;
    }
    if (set.speed_is_refused(Sample{0, 1, 2, 3, 1, 2}) && seeks_speed)
        EXPECT_EQ(found_again, 0);
    else
        EXPECT_GT(found_again, kMotions / 8);
}

TEST(RandomMotion, EveryDataSetFindsTheUnknownSpeed) {
    for (const ParameterSet& set : ParameterSets())
        CheckParameter(set, true);
}

TEST(RandomMotion, EveryDataSetFindsTheUnknownAcceleration) {
    for (const ParameterSet& set : ParameterSets())
        CheckParameter(set, false);
}

/// The same motion in other units: micrometres and hours as well as megametres and milliseconds.
Sample InUnits(const Sample& s, double length, double time) {
    return {s.tn * time, s.xn * length, s.vn * length / time, s.a * length / (time * time),
            s.ti * time, s.tf * time};
}

TEST(RandomMotion, UnitsDoNotMatter) {
    constexpr int kMotionsOfAScale = 100;
    for (const ParameterSet& set : ParameterSets()) {
        SCOPED_TRACE(set.name);
        for (const double length : {0x1p-20, 0x1p-10, 0x1p10, 0x1p20}) {
            for (const double time : {0x1p-10, 1.0, 0x1p12}) {
                Chance chance;
                for (int k = 0; k < kMotionsOfAScale; ++k) {
                    const Sample plain = chance.Next();
                    const bool seeks_speed = k % 2 == 0;
                    if (!set.is_possible(plain) ||
                        (seeks_speed ? set.speed_is_refused(plain) : set.acceleration_is_refused(plain)))
                        continue;
                    const Sample s = InUnits(plain, length, time);
                    Problem problem = PlantedOn(s, !seeks_speed, seeks_speed);
                    problem.table.ClearColumn(1);
                    SetColumn(problem, 1, set.start(s));
                    SetColumn(problem, 2, set.end(s));
                    const Step step =
                        ClickPoint(problem, Procedure::SubstituteWithParameters, {1, 1, 2}, kDecimals);
                    if (RefusalOf(step).starts_with("Error en el dato"))
                        continue;  // an increment so small that its exponent's sign is no reference any more
                    bool is_found = false;
                    for (const PlantRequest& answer : Answers(step))
                        is_found = is_found || (IsClose(answer.v.Number() / length * time, plain.vn) &&
                                                IsClose(answer.a.Number() / length * time * time, plain.a));
                    EXPECT_TRUE(is_found) << plain.tn << " " << plain.xn << " " << plain.vn << " " << plain.a
                                          << " | " << plain.ti << " " << plain.tf << " length " << length
                                          << " time " << time << " " << RefusalOf(step);
                }
            }
        }
    }
}

/// Numbers that belong to no motion in particular: whatever is answered must still fit them.
TEST(RandomMotion, NoAnswerContradictsItsData) {
    int answered = 0;
    for (const ParameterSet& set : ParameterSets()) {
        SCOPED_TRACE(set.name);
        Chance chance;
        for (int k = 0; k < kMotions; ++k) {
            const Sample base = chance.Next();
            const Sample start_source = chance.Next();
            const Sample end_source = chance.Next();
            if (!set.is_possible(end_source))
                continue;
            const bool seeks_speed = k % 2 == 0;
            const Column start = set.start(start_source);
            const Column end = set.end(end_source);
            Problem problem = PlantedOn(base, !seeks_speed, seeks_speed);
            problem.table.ClearColumn(1);
            SetColumn(problem, 1, start);
            SetColumn(problem, 2, end);
            const Step step = ClickPoint(problem, Procedure::SubstituteWithParameters, {1, 1, 2}, kDecimals);
            for (const PlantRequest& answer : Answers(step)) {
                Sample found = base;
                found.vn = answer.v.Number();
                found.a = answer.a.Number();
                EXPECT_TRUE(Passes(found, start, end))
                    << "tn " << base.tn << " xn " << base.xn << " v " << found.vn << " a " << found.a
                    << " start " << start.t << "," << start.x << "," << start.v << " end " << end.t << ","
                    << end.x << "," << end.v;
                ++answered;
            }
        }
    }
    EXPECT_GT(answered, kMotions);
}

TEST(RandomMotion, NoIntervalContradictsItsData) {
    int answered = 0;
    for (const IntervalSet& set : IntervalSets()) {
        SCOPED_TRACE(set.name);
        Chance chance;
        for (int k = 0; k < kMotions; ++k) {
            const Sample s = chance.Next();
            const Sample other = chance.Next();
            if (!set.is_possible(other))
                continue;
            Problem problem = PlantedOn(s, true, true);
            problem.table.ClearColumn(1);
            const Column column = set.column(other);
            SetColumn(problem, 2, column);
            const Step step = ClickPoint(problem, Procedure::Substitute, {1, 1, 2}, kDecimals);
            for (const FoundSolution& found : After(step).results.solutions) {
                EXPECT_TRUE(IsIntervalOf(s, column, found))
                    << Text(s.tn) << " " << Text(s.xn) << " " << Text(s.vn) << " " << Text(s.a) << " "
                    << column.t << "," << column.x << "," << column.v;
                ++answered;
            }
        }
    }
    EXPECT_GT(answered, kMotions);
}

/// The value of a stated equation's side at (v, a), read from its markup with unrounded numbers of few
/// digits.
double SideAt(std::string text, double v, double a) {
    text = text::ReplaceAll(text, ";-", "-");
    double sum = 0;
    std::size_t position = 0;
    double sign = 1;
    while (position < text.size()) {
        if (text[position] == ' ' || text[position] == '+') {
            ++position;
            continue;
        }
        if (text[position] == '-') {
            sign = -1;
            ++position;
            continue;
        }
        double coef = 1;
        if (std::isdigit(static_cast<unsigned char>(text[position])) || text[position] == '.') {
            std::size_t used = 0;
            coef = std::stod(text.substr(position), &used);
            position += used;
            while (position < text.size() && text[position] == ' ')
                ++position;
        }
        double factor = 1;
        if (position < text.size() && (text[position] == 'v' || text[position] == 'a')) {
            factor = text[position] == 'v' ? v : a;
            position += text[position] == 'v' ? 3 : 1;  // "v!0"
            if (text.compare(position, 3, "¡2") == 0) {
                factor *= factor;
                position += 3;
            }
        }
        sum += sign * coef * factor;
        sign = 1;
    }
    return sum;
}

TEST(RandomMotion, EveryStatedEquationHoldsForTheMotion) {
    constexpr int kManyDecimals = 9;
    for (const ParameterSet& set : ParameterSets()) {
        SCOPED_TRACE(set.name);
        Chance chance;
        int stated = 0;
        for (int k = 0; k < kMotions; ++k) {
            const Sample s = chance.Next();
            if (!set.is_possible(s))
                continue;
            Problem problem = PlantedOn(s, false, false);
            problem.table.ClearColumn(1);
            SetColumn(problem, 1, set.start(s));
            SetColumn(problem, 2, set.end(s));
            const Step step =
                ClickPoint(problem, Procedure::SubstituteWithParameters, {1, 1, 2}, kManyDecimals);
            const auto lines = Shown(step);
            if (lines.size() < 3 || lines[2].find(" = ") == std::string::npos)
                continue;
            ++stated;
            const std::size_t equals = lines[2].find(" = ");
            const double left = SideAt(lines[2].substr(0, equals), s.vn, s.a);
            const double right = SideAt(lines[2].substr(equals + 3), s.vn, s.a);
            EXPECT_NEAR(left, right, 1e-5) << lines[2] << " v " << s.vn << " a " << s.a;
        }
        EXPECT_GT(stated, kMotions / 8);
    }
}

}  // namespace
}  // namespace tavrelo::mechanics::motion
