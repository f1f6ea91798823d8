#include <algorithm>
#include <cmath>

#include "statics/rigid_help.h"
#include "statics/rigid_kinds.h"

namespace tavrelo::physics {
namespace {

constexpr int kWhole = 1;
constexpr int kFirstPart = 2;
constexpr int kLastPart = 5;

// The parts of a structure as it grows: each with its points, and symbols that no other force has.
class Parts {
  public:
    Parts(Problem& problem, TypedStructure& structure)
        : m_chance(problem.chance), m_structure(structure), m_symbols(Symbols(m_chance, 12)) {}

    int Add(const std::string& points) {
        const int body = kFirstPart + static_cast<int>(m_points.size());
        m_points.push_back(points);
        m_structure.DefineBody(body, points);
        return body;
    }
    const std::string& PointsOf(int body) const {
        return m_points[static_cast<std::size_t>(body - kFirstPart)];
    }
    std::string NextSymbol() {
        const std::string symbol = m_symbols.back();
        m_symbols.pop_back();
        return symbol;
    }
    // Of those that stand before `body`.
    int EarlierThan(int body) { return m_chance.Between(kFirstPart, body - 1); }
    std::vector<AskedBody> Asked() {
        std::vector<AskedBody> asked;
        for (std::size_t k = 0; k < m_points.size(); ++k)
            asked.push_back({kFirstPart + static_cast<int>(k), AnyPoint(m_chance, m_points[k])});
        return asked;
    }

  private:
    Chance& m_chance;
    TypedStructure& m_structure;
    std::vector<std::string> m_points;
    std::vector<std::string> m_symbols;
};

// So many new points, the first of them beside a point that is there.
std::string NewPoints(Chance& chance, TypedStructure& structure, std::size_t count) {
    const std::size_t before = structure.Points().size();
    AddPoints(chance, structure, count);
    return structure.Points().substr(before);
}

char OtherPoint(Chance& chance, const std::string& points, char than) {
    std::string others = points;
    std::erase(others, than);
    return AnyPoint(chance, others);
}

void HoldByGround(Chance& chance, TypedStructure& structure, Parts& parts, int body) {
    const std::string& points = parts.PointsOf(body);
    const char point = AnyPoint(chance, points);
    if (chance.OneIn(3)) {
        structure.AddSupport(body, point, true);
        return;
    }
    structure.AddSupport(body, point, false);
    const char held = OtherPoint(chance, points, point);
    structure.Add(Rope(chance, body, held, parts.NextSymbol(), TypedDirection(chance)));
}

// A rope from a point of the body to an earlier one, or to the ground.
void AddLink(Chance& chance, TypedStructure& structure, Parts& parts, int body, char from) {
    const int other = parts.EarlierThan(body);
    const char to = AnyPoint(chance, parts.PointsOf(other));
    if (from == to || chance.OneIn(2)) {
        structure.Add(Rope(chance, body, from, parts.NextSymbol(), TypedDirection(chance)));
        return;
    }
    structure.Add(Rope(chance, body, from, parts.NextSymbol(), TypedDirectionBetween(structure, from, to)));
    structure.AddOpposite(other, to);
}

// A body that turns about a point of an earlier one.
void AddHinged(Chance& chance, TypedStructure& structure, Parts& parts) {
    const int earlier = chance.Between(kFirstPart, kFirstPart + static_cast<int>(parts.Asked().size()) - 1);
    const char hinge = AnyPoint(chance, parts.PointsOf(earlier));
    const int body = parts.Add(hinge + NewPoints(chance, structure, 1 + chance.Below(3)));
    const std::string x = parts.NextSymbol(), y = parts.NextSymbol();
    structure.Add({body, hinge, UnknownComponents(x, y)});
    structure.AddOpposite(earlier, hinge);
    AddLink(chance, structure, parts, body, OtherPoint(chance, parts.PointsOf(body), hinge));
}

// A joint between ropes to the ground or to earlier bodies.
void AddJoint(Chance& chance, TypedStructure& structure, Parts& parts) {
    const int body = parts.Add(NewPoints(chance, structure, 1));
    const char joint = parts.PointsOf(body).front();
    AddLink(chance, structure, parts, body, joint);
    AddLink(chance, structure, parts, body, joint);
}

TypedStructure Started(Problem& problem, std::size_t points) {
    TypedStructure structure(problem);
    AddPoints(problem.chance, structure, points - 1);
    return structure;
}

// A truss of triangles: its joints, and the joints that each bar joins.
struct Bar {
    char from;
    char to;
    std::string symbol;
};

std::vector<Bar> BarsOf(Chance& chance, const std::string& joints) {
    std::vector<Bar> bars;
    std::vector<std::string> symbols = Symbols(chance, 2 * joints.size());
    const auto add = [&](char from, char to) {
        bars.push_back({from, to, symbols.back()});
        symbols.pop_back();
    };
    add(joints[0], joints[1]);
    for (std::size_t k = 2; k < joints.size(); ++k) {
        const std::size_t first = chance.Below(k);
        add(joints[k], joints[first]);
        add(joints[k], joints[(first + 1 + chance.Below(k - 1)) % k]);
    }
    return bars;
}

}  // namespace

Verdict PlayStructure(Problem& problem) {
    Chance& chance = problem.chance;
    TypedStructure structure = Started(problem, 2 + chance.Below(3));
    Parts parts(problem, structure);
    HoldByGround(chance, structure, parts, parts.Add(structure.Points()));
    const int last = chance.Between(kFirstPart, kLastPart);
    for (int body = kFirstPart + 1; body <= last; ++body)
        chance.OneIn(4) ? AddJoint(chance, structure, parts) : AddHinged(chance, structure, parts);
    for (int body = kFirstPart; body <= last; ++body)
        AddLoads(chance, structure, body, parts.PointsOf(body));
    const std::vector<AskedBody> asked = parts.Asked();
    return JudgedStructure(structure, structure.Solve(asked), AreRegular(structure, asked));
}

Verdict PlayTrussByJoints(Problem& problem) {
    Chance& chance = problem.chance;
    TypedStructure structure = Started(problem, 3 + chance.Below(2));
    const std::string joints = structure.Points();
    std::vector<AskedBody> asked;
    for (std::size_t k = 0; k < joints.size(); ++k) {
        asked.push_back({kFirstPart + static_cast<int>(k), joints[k]});
        structure.DefineBody(asked.back().body, joints.substr(k, 1));
    }
    const auto body_of = [&](char joint) { return kFirstPart + static_cast<int>(joints.find(joint)); };
    for (const Bar& bar : BarsOf(chance, joints)) {
        const double direction = TypedDirectionBetween(structure, bar.from, bar.to);
        structure.Add({body_of(bar.from), bar.from, UnknownMagnitude(chance, bar.symbol, 1, direction)});
        structure.AddOpposite(body_of(bar.to), bar.to);
    }
    const std::size_t pin = chance.Below(joints.size());
    structure.AddSupport(body_of(joints[pin]), joints[pin], false);
    const char roller = joints[(pin + 1 + chance.Below(joints.size() - 1)) % joints.size()];
    structure.Add({body_of(roller), roller, UnknownMagnitude(chance, "Ro", 1, TypedDirection(chance))});
    for (const char joint : joints)
        if (chance.OneIn(2))
            structure.Add(
                {body_of(joint), joint, KnownForce(chance, structure.AnyLoad(), TypedDirection(chance))});
    return JudgedStructure(structure, structure.Solve(asked), AreRegular(structure, asked));
}

Verdict PlayTrussBySection(Problem& problem) {
    Chance& chance = problem.chance;
    TypedStructure structure = Started(problem, 4 + chance.Below(4));
    const std::string joints = structure.Points();
    const std::vector<std::string> symbols = Symbols(chance, 4);
    structure.AddSupport(kWhole, joints[0], false);
    structure.Add(Rope(chance, kWhole, joints.back(), symbols[0], TypedDirection(chance)));
    AddLoads(chance, structure, kWhole, joints);
    const std::string part = joints.substr(0, joints.size() / 2);
    const std::string rest = joints.substr(joints.size() / 2);
    structure.DefineBody(kFirstPart, part);
    structure.CopyFromWhole(kFirstPart);
    for (std::size_t k = 1; k < symbols.size(); ++k) {
        const char from = part[k % part.size()], to = rest[(k / 2) % rest.size()];
        structure.Add({kFirstPart, from,
                       UnknownMagnitude(chance, symbols[k], 1, TypedDirectionBetween(structure, from, to))});
    }
    const std::vector<AskedBody> asked = {{kWhole, AnyPoint(chance, joints)},
                                          {kFirstPart, AnyPoint(chance, part)}};
    return JudgedStructure(structure, structure.Solve(asked), AreRegular(structure, asked));
}

Verdict PlayBadlyHeldStructure(Problem& problem) {
    Chance& chance = problem.chance;
    TypedStructure structure = Started(problem, 3);
    Parts parts(problem, structure);
    const int held = parts.Add(structure.Points());
    structure.AddSupport(held, AnyPoint(chance, parts.PointsOf(held)), true);
    structure.Add(Rope(chance, held, AnyPoint(chance, parts.PointsOf(held)), parts.NextSymbol(),
                       TypedDirection(chance)));
    const int loose = parts.Add(NewPoints(chance, structure, 2));
    structure.AddSupport(loose, AnyPoint(chance, parts.PointsOf(loose)), false);
    AddLoads(chance, structure, held, parts.PointsOf(held));
    AddLoads(chance, structure, loose, parts.PointsOf(loose));
    return RefusedStructure(structure.Solve(parts.Asked()));
}

}  // namespace tavrelo::physics
