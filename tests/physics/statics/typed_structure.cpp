#include "statics/typed_structure.h"

#include <algorithm>
#include <cmath>
#include <set>
#include <stdexcept>
#include <utility>

#include "equations.h"
#include "mechanics/rigid/body_solver.h"
#include "mechanics/rigid/force_steps.h"
#include "mechanics/rigid/structure_steps.h"
#include "numeric/checked.h"
#include "typed.h"

namespace tavrelo::physics {
namespace {

namespace rigid = mechanics::rigid;

constexpr int kDecimals = 3;
constexpr double kLeastLoad = 1;
constexpr double kGreatestLoad = 500;
constexpr double kSamePlace = 1e-9;  // of a length of about 10
constexpr double kSameForce = 1e-9;
constexpr double kForceDust = 1e-13;  // of the largest one, at an axis

const std::vector<std::string> kAxisNames = {"x", "y", "moment"};

StatedForce Opposite(StatedForce force, const std::string& text) {
    force.text = text;
    force.x.number = -force.x.number;
    force.y.number = -force.y.number;
    return force;
}

double CoupleAt(const StatedRow& row, const Values& values) {
    if (!row.couple)
        return 0;
    const StatedComponent& value = row.couple->value;
    return value.magnitude.empty() ? value.number : value.number * values.magnitudes.at(value.magnitude);
}

Values ValuesOf(const rigid::BodyResults& results) {
    Values values;
    for (const rigid::FoundUnknown& found : results)
        (found.is_angle ? values.angles : values.magnitudes)[NameOf(found.name)] = found.value;
    return values;
}

// Why the forces with the results are not those of the values; empty when they are.
std::string FaultOfTable(const std::vector<StatedRow>& rows, const rigid::BodyForces& table,
                         const std::vector<AskedBody>& bodies, const Values& values) {
    double largest = 0;
    for (const auto& [name, value] : values.magnitudes)
        largest = std::max(largest, std::abs(value));
    for (std::size_t k = 0; k < rows.size(); ++k) {
        const bool is_asked =
            std::ranges::any_of(bodies, [&](const AskedBody& asked) { return asked.body == rows[k].body; });
        if (!rows[k].force || !is_asked)
            continue;
        const Components force = At(*rows[k].force, values);
        const notation::Force& shown = table.at(k).force.value();
        const double reach = kSameForce * std::hypot(force.x, force.y) + kForceDust * largest;
        if (!shown.HasComponents() || std::abs(*shown.x.number - force.x) > reach ||
            std::abs(*shown.y.number - force.y) > reach)
            return "row " + std::to_string(k + 1) + " is not what was found";
    }
    return "";
}

}  // namespace

StatedCouple KnownCouple(double size, int decimals) {
    const Typed typed = Rounded(size, decimals);
    return {typed.text, {typed.value}};
}

StatedCouple UnknownCouple(Chance& chance, const std::string& symbol) {
    const bool is_negative = chance.OneIn(4);
    return {(is_negative ? "-" : "") + symbol, {is_negative ? -1.0 : 1.0, NameOf(symbol)}};
}

void TypedStructure::Remember(char name, Components at) {
    m_places.push_back({name, at});
    m_points += name;
}

void TypedStructure::AddVector(const std::string& chain, const std::string& vector,
                               const std::vector<std::string>& further) {
    std::string told = chain + "  " + vector;
    for (const std::string& value : further)
        told += "  " + value;
    m_told.Type(told);
    const auto step =
        rigid::WithVectors(m_problem, {chain, vector, "", further}, m_problem.structure.origin, kDecimals);
    if (const auto* refused = std::get_if<rigid::ChainRefusal>(&step))
        throw std::runtime_error(refused->refusal ? refused->refusal->text : "the vector is refused");
    m_problem = std::get<rigid::StructureStep>(step).problem;
}

char TypedStructure::AddPoint(Components place, char from) {
    if (m_places.empty())
        Remember(NextName(), {0, 0});
    const Components start = PlaceOf(from);
    const StatedForce vector = KnownComponents(place.x - start.x, place.y - start.y, 2);
    const char name = NextName();
    AddVector(std::string{from, name}, vector.text, {});
    Remember(name, {start.x + vector.x.number, start.y + vector.y.number});
    return name;
}

std::string TypedStructure::AddPointsInARow(char from, double direction, std::size_t count) {
    if (m_places.empty())
        Remember(NextName(), {0, 0});
    Components at = PlaceOf(from);
    std::string chain(1, from), first;
    std::vector<std::string> further;
    for (std::size_t k = 0; k < count; ++k) {
        const Typed length = Rounded(m_told.chance.Between(0.5, 6.0), 2);
        if (k == 0)
            first = length.text + "<" + Rounded(direction, 4).text;
        else
            further.push_back(length.text);
        at = {at.x + length.value * CosDegrees(direction), at.y + length.value * SinDegrees(direction)};
        chain += NextName();
        Remember(NextName(), at);
    }
    AddVector(chain, first, further);
    return chain.substr(1);
}

void TypedStructure::DefineBody(int body, const std::string& points) {
    m_told.Type("body " + std::to_string(body) + ": " + points);
    m_problem = rigid::WithSystem(m_problem, body, points);
}

void TypedStructure::ChooseOrigin(char point) {
    m_told.Type(std::string("origin ") + point);
    const auto moved = rigid::WithOrigin(m_problem, std::string(1, point));
    if (const auto* refusal = std::get_if<text::Refusal>(&moved))
        throw std::runtime_error(refusal->text);
    m_problem = std::get<rigid::RigidProblem>(moved);
    const Components origin = PlaceOf(point);
    for (Place& place : m_places)
        place.at = {place.at.x - origin.x, place.at.y - origin.y};
}

void TypedStructure::Accept(int body, const std::string& points, const std::string& text,
                            const std::vector<std::string>& further) {
    std::string told = std::to_string(body) + " " + points + ": " + text;
    for (const std::string& value : further)
        told += "  " + value;
    m_told.Type(told);
    auto step = rigid::WithForces(m_problem, {body, points, text, further}, kDecimals);
    if (const auto* refused = std::get_if<rigid::ForceRefusal>(&step))
        throw std::runtime_error(refused->refusal.text);
    m_problem = std::get<rigid::ForceStep>(std::move(step)).problem;
}

void TypedStructure::Add(const StatedRow& row) {
    std::string text = row.force ? row.force->text : "";
    if (row.couple)
        text += (row.force ? "/" : "") + row.couple->text;
    Accept(row.body, std::string(1, row.point), text);
    m_rows.push_back(row);
}

void TypedStructure::AddSupport(int body, char point, bool built_in) {
    const std::string name(1, point);
    std::string text = rigid::SupportText(built_in ? "emp" : "art", name);
    Accept(body, name, text);
    StatedRow row = {body, point, UnknownComponents(name + "x", name + "y")};
    row.force->text = text.substr(0, text.find('/'));
    if (built_in)
        row.couple = StatedCouple{"M" + name, {1, "M" + name}};
    m_rows.push_back(row);
}

void TypedStructure::AddOpposite(int body, char point) {
    const StatedRow& last = m_rows.back();
    const std::string typed = m_problem.forces.back().text;
    const auto negated = rigid::NegateForceText(typed);
    if (const auto* refusal = std::get_if<text::Refusal>(&negated))
        throw std::runtime_error(refusal->text);
    const std::string text = std::get<std::string>(negated);
    StatedRow row = {body, point, Opposite(last.force.value(), text), last.couple};
    if (row.couple)
        row.couple->value.number = -row.couple->value.number;
    Accept(body, std::string(1, point), text);
    m_rows.push_back(row);
}

void TypedStructure::AddSeries(int body, const std::string& points, const std::vector<double>& values,
                               bool level) {
    const std::string letter = level ? "h" : "v";
    std::vector<std::string> texts;
    for (std::size_t k = 0; k < points.size(); ++k) {
        const Typed value = Rounded(values[k], 2);
        texts.push_back(value.text);
        StatedForce force = {letter + value.text, {}, {}};
        (level ? force.x : force.y).number = value.value;
        m_rows.push_back({body, points[k], force});
    }
    Accept(body, points, letter + texts.front(), {texts.begin() + 1, texts.end()});
}

void TypedStructure::CopyFromWhole(int body) {
    const auto copied = rigid::ForcesToCopy(m_problem, body);
    m_told.Type("existing forces to body " + std::to_string(body));
    m_problem = rigid::WithCopies(m_problem, copied, body);
    const std::string_view points = m_problem.LettersOfSystem(body);
    const std::vector<StatedRow> before = m_rows;
    for (const StatedRow& row : before)
        if (row.body == 1 && points.find(row.point) != std::string_view::npos) {
            m_rows.push_back(row);
            m_rows.back().body = body;
        }
}

double TypedStructure::AnyLoad() { return m_told.scale * m_told.chance.Size(kLeastLoad, kGreatestLoad); }

int TypedStructure::Decimals() const { return DecimalsFor(kGreatestLoad * m_told.scale); }

Components TypedStructure::PlaceOf(char point) const {
    return m_places.at(static_cast<std::size_t>(point - 'A')).at;
}

bool TypedStructure::IsParticle(int body) const { return m_problem.LettersOfSystem(body).size() == 1; }

std::vector<double> TypedStructure::Rest(const std::vector<AskedBody>& bodies, const Values& values) const {
    std::vector<double> rest;
    for (const AskedBody& asked : bodies) {
        Components sum = {0, 0};
        double moment = 0;
        const Components about = PlaceOf(asked.reference);
        for (const StatedRow& row : m_rows) {
            if (row.body != asked.body)
                continue;
            const Components force = row.force ? At(*row.force, values) : Components{0, 0};
            const Components at = PlaceOf(row.point);
            sum = {sum.x + force.x, sum.y + force.y};
            moment += (at.x - about.x) * force.y - (at.y - about.y) * force.x + CoupleAt(row, values);
        }
        rest.insert(rest.end(), {sum.x, sum.y});
        if (!IsParticle(asked.body))
            rest.push_back(moment);
    }
    return rest;
}

std::vector<std::string> TypedStructure::Unknowns(const std::vector<AskedBody>& bodies) const {
    std::set<std::string> names;
    for (const StatedRow& row : m_rows) {
        if (std::ranges::none_of(bodies, [&](const AskedBody& asked) { return asked.body == row.body; }))
            continue;
        if (row.force)
            names.insert({row.force->x.magnitude, row.force->y.magnitude});
        if (row.couple && !IsParticle(row.body))
            names.insert(row.couple->value.magnitude);
    }
    names.erase("");
    return {names.begin(), names.end()};
}

std::string TypedStructure::FaultOf(const std::vector<AskedBody>& bodies, const Values& values) const {
    std::vector<Sum> sums;
    for (const AskedBody& asked : bodies) {
        Sum x, y, moment;
        const Components about = PlaceOf(asked.reference);
        for (const StatedRow& row : m_rows) {
            if (row.body != asked.body)
                continue;
            const Components force = row.force ? At(*row.force, values) : Components{0, 0};
            const Components at = PlaceOf(row.point);
            x.Add(force.x);
            y.Add(force.y);
            moment.Add((at.x - about.x) * force.y);
            moment.Add(-(at.y - about.y) * force.x);
            moment.Add(CoupleAt(row, values));
        }
        sums.insert(sums.end(), {x, y, IsParticle(asked.body) ? Sum{} : moment});
    }
    double largest = 0;
    for (const Sum& sum : sums)
        largest = std::max(largest, sum.Largest());
    for (std::size_t k = 0; k < sums.size(); ++k)
        if (!sums[k].VanishesBeside(largest))
            return "the " + kAxisNames[k % 3] + " of body " + std::to_string(bodies[k / 3].body) +
                   " leaves " + sums[k].Told();
    return "";
}

// Why the points of the program do not lie where the typed vectors lead; empty when they do.
std::string TypedStructure::FaultOfPlaces() const {
    for (const auto& [name, at] : m_places) {
        const rigid::PointRecord* point = rigid::FindPoint(m_problem.structure.points, std::string(1, name));
        if (!point || !Agree(point->x, at.x, kSamePlace, 10) || !Agree(point->y, at.y, kSamePlace, 10))
            return std::string("point ") + name + " is not at " + Digits(at.x) + ", " + Digits(at.y);
    }
    return "";
}

StructureAnswers TypedStructure::Solve(const std::vector<AskedBody>& bodies, const std::string& suppressed) {
    std::vector<rigid::BodyRequest> requests;
    std::string told = "solve";
    for (const AskedBody& asked : bodies) {
        requests.push_back({asked.body, std::string(1, asked.reference)});
        told += " " + std::to_string(asked.body) + " about " + asked.reference;
    }
    m_told.Type(told + (suppressed.empty() ? "" : " without " + suppressed));
    const auto chosen = std::get<std::vector<rigid::ChosenBody>>(rigid::ChooseBodies(m_problem, requests));
    const auto equations = rigid::BuildEquations(m_problem.forces, chosen, suppressed);
    if (const auto* refusal = std::get_if<text::Refusal>(&equations))
        return {refusal->text, {}, {}};
    StructureAnswers answers = {"", {}, FaultOfPlaces()};
    try {
        const auto outcome = rigid::SolveEquations(std::get<rigid::BodyEquations>(equations), bodies.size());
        if (const auto* refusal = std::get_if<text::Refusal>(&outcome))
            answers.refusal = refusal->text;
        else if (const auto* results = std::get_if<rigid::BodyResults>(&outcome))
            Judge(*results, bodies, answers);
        else
            for (const rigid::BodyResults& offered : std::get<rigid::BodyChoice>(outcome))
                Judge(offered, bodies, answers);
    } catch (const numeric::RuntimeFailure&) {
        answers.refusal = text::kCommandFailed;
    }
    return answers;
}

void TypedStructure::Judge(const rigid::BodyResults& results, const std::vector<AskedBody>& bodies,
                           StructureAnswers& answers) const {
    const Values values = ValuesOf(results);
    answers.solutions.push_back(values);
    std::string fault = FaultOf(bodies, values);
    if (fault.empty())
        fault = FaultOfTable(m_rows, rigid::WithResults(m_problem.forces, results), bodies, values);
    if (!fault.empty() && answers.fault.empty())
        answers.fault = "with " + Told(values) + " " + fault;
}

}  // namespace tavrelo::physics
