#pragma once

#include <optional>
#include <string>
#include <vector>

#include "mechanics/rigid/results.h"
#include "mechanics/rigid/rigid_problem.h"
#include "problem.h"
#include "statics/stated_force.h"

namespace tavrelo::physics {

/// A couple as typed, positive counter-clockwise: a number, or an unknown with a sign.
struct StatedCouple {
    std::string text;
    StatedComponent value;
};
StatedCouple KnownCouple(double size, int decimals);
StatedCouple UnknownCouple(Chance& chance, const std::string& symbol);

/// A force, a couple or both on a point of a body.
struct StatedRow {
    int body;
    char point;
    std::optional<StatedForce> force = {};
    std::optional<StatedCouple> couple = {};
};

/// What the solver says to a structure: a refusal, or the values of each solution offered, all of them put
/// into the sums of the bodies.
struct StructureAnswers {
    std::string refusal;
    std::vector<Values> solutions;
    std::string fault;  // of a solution that does not satisfy the problem; empty when all do
};

/// A body whose equations are asked for, and its reference point.
struct AskedBody {
    int body;
    char reference;
};

/// A structure typed piece by piece into a problem of rigid bodies, its points and forces known here by
/// arithmetic of its own. What is typed must be accepted: a refusal fails with std::runtime_error.
class TypedStructure {
  public:
    explicit TypedStructure(Problem& problem) : m_told(problem) {}

    /// Adds a point at that place from another one; the first two points of all come with the first call.
    char AddPoint(Components place, char from = 'A');
    /// Adds points in a row from `from` on, by a chain and further values.
    std::string AddPointsInARow(char from, double direction, std::size_t count);
    /// From the other end on the system counts as a body; one letter is a particle.
    void DefineBody(int body, const std::string& points);
    /// Chooses the origin of the coordinates.
    void ChooseOrigin(char point);

    void Add(const StatedRow& row);
    /// The unknown components of an articulation ("art"), with a couple ("emp") when it is built in.
    void AddSupport(int body, char point, bool built_in);
    /// The opposite of the last force on another body, its text made by the program.
    void AddOpposite(int body, char point);
    /// The same vertical or horizontal force on each of the points.
    void AddSeries(int body, const std::string& points, const std::vector<double>& values, bool level);
    /// Copies the forces of the whole on points of the body.
    void CopyFromWhole(int body);

    /// The size of a force as they are in this problem.
    double AnyLoad();
    /// Of the components of such a force, as a student gives them.
    int Decimals() const;
    /// Whether all forces are of the size that textbooks give them.
    bool IsOfUsualSize() const { return m_told.scale == 1; }

    Components PlaceOf(char point) const;
    const std::string& Points() const { return m_points; }
    const std::vector<StatedRow>& Rows() const { return m_rows; }

    /// What the chosen bodies' equations leave at these values, as x, y and moment of each body.
    std::vector<double> Rest(const std::vector<AskedBody>& bodies, const Values& values) const;
    /// The magnitudes and couples that are unknown on the chosen bodies, by name.
    std::vector<std::string> Unknowns(const std::vector<AskedBody>& bodies) const;

    StructureAnswers Solve(const std::vector<AskedBody>& bodies, const std::string& suppressed = "");

  private:
    struct Place {
        char name;
        Components at;
    };

    void AddVector(const std::string& chain, const std::string& vector,
                   const std::vector<std::string>& further);
    void Accept(int body, const std::string& points, const std::string& text,
                const std::vector<std::string>& further = {});
    char NextName() const { return static_cast<char>('A' + m_places.size()); }
    void Remember(char name, Components at);
    bool IsParticle(int body) const;
    // Puts a solution into the sums and adds it to the answers.
    void Judge(const mechanics::rigid::BodyResults& results, const std::vector<AskedBody>& bodies,
               StructureAnswers& answers) const;
    std::string FaultOfPlaces() const;
    std::string FaultOf(const std::vector<AskedBody>& bodies, const Values& values) const;

    Problem& m_told;
    mechanics::rigid::RigidProblem m_problem;
    std::vector<Place> m_places;
    std::string m_points;
    std::vector<StatedRow> m_rows;
};

}  // namespace tavrelo::physics
