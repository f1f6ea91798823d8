#include "mechanics/rigid/body_force.h"

#include <gtest/gtest.h>

#include <span>

#include "numeric/checked.h"

namespace tavrelo::mechanics::rigid {
namespace {

constexpr int kDecimals = 3;
constexpr double kTolerance = 1e-9;

const PointRecord kPoint = {"B", 4, -3};

std::variant<text::Refusal, ReadForce> Read(std::string_view text) {
    return ReadBodyForce(2, kPoint, text, kDecimals);
}

BodyForce Force(std::string_view text) { return std::get<ReadForce>(Read(text)).force; }

notation::ForceRecord Written(std::string_view text) {
    return std::get<ReadForce>(Read(text)).written.value();
}

std::string Negated(std::string_view text) { return std::get<std::string>(NegateForceText(text)); }

struct ReadRow {
    const char* text;
    const char* force;  // the text that the parser was given; null for a couple alone
    std::optional<Couple> couple;
};

Couple Known(const char* text, double value) { return {.text = text, .value = value}; }
Couple Unknown(const char* text, const char* symbol, double sign = 1) {
    return {.text = text, .symbol = symbol, .sign = sign};
}

TEST(ReadBodyForce, PartsForceAndCouple) {
    const ReadRow table[] = {
        {"30,-40", "30,-40", {}},
        {"30,-40/250", "30,-40", Known("250", 250)},
        {"30, -40 / -12.5", "30, -40", Known("-12.5", -12.5)},
        {"Ax, Ay:/Ma", "Ax, Ay:", Unknown("Ma", "MA")},
        {"h5/-m1", "h5", Unknown("-m1", "M1", -1)},
        {"v-10/", "v-10", {}},
        {"u30/ mabcd", "u30", Unknown("mabcd", "MABCD")},
    };
    for (const ReadRow& row : table) {
        const BodyForce force = Force(row.text);
        EXPECT_EQ(Written(row.text).given_text, row.force) << row.text;
        EXPECT_EQ(force.force, Written(row.text).force) << row.text;
        EXPECT_EQ(force.couple, row.couple) << row.text;
        EXPECT_EQ(force.text, row.text);
    }
}

TEST(ReadBodyForce, TakesATextWithoutTheMarksOfAForceForACouple) {
    const ReadRow table[] = {
        {"250", nullptr, Known("250", 250)},
        {" -12.5 ", nullptr, Known("-12.5", -12.5)},
        {"0", nullptr, Known("0", 0)},
        {"1E+3", nullptr, Known("1E+3", 1000)},
        {"MA", nullptr, Unknown("MA", "MA")},
        {"ma", nullptr, Unknown("ma", "MA")},
        {"-m1", nullptr, Unknown("-m1", "M1", -1)},
        {"- m1", nullptr, Unknown("- m1", "M1", -1)},
        {"xyz", nullptr, Unknown("xyz", "XYZ")},
        {"MABCD", nullptr, Unknown("MABCD", "MABCD")},
        {"H5", nullptr, Unknown("H5", "H5")},
        {"PER", nullptr, Unknown("PER", "PER")},
        {"ñ", nullptr, Unknown("ñ", "Ñ")},
        {"250/", nullptr, Known("250", 250)},
        {"/50", nullptr, Known("50", 50)},
        {"/h5", nullptr, Unknown("h5", "H5")},
    };
    for (const ReadRow& row : table) {
        const BodyForce force = Force(row.text);
        EXPECT_FALSE(force.force) << row.text;
        EXPECT_FALSE(std::get<ReadForce>(Read(row.text)).written) << row.text;
        EXPECT_EQ(force.couple, row.couple) << row.text;
        EXPECT_EQ(force.text, row.text);
    }
}

TEST(ReadBodyForce, StandsOnItsBodyAndPoint) {
    for (const char* text : {"30,-40/250", "MA"}) {
        const BodyForce force = Force(text);
        EXPECT_EQ(force.body, 2);
        EXPECT_EQ(force.point, "B");
        EXPECT_EQ(force.x, 4);
        EXPECT_EQ(force.y, -3);
    }
}

TEST(ReadBodyForce, HasTheComponentsOfTheForceThatWasRead) {
    const auto read = std::get<ReadForce>(Read("h-2F:/250"));
    EXPECT_EQ(read.force.force->x.coefficient, -2.0);
    EXPECT_EQ(read.force.force->x.unknown, (notation::UnknownTerm{.magnitude = "F"}));
    EXPECT_EQ(read.force.force->y.number, 0.0);
    EXPECT_EQ(read.force.force->knowledge, notation::Knowledge::Unknown);
    EXPECT_FALSE(read.written->leaves);
}

struct RefusedText {
    const char* text;
    const char* refusal;
};

TEST(ReadBodyForce, Refuses) {
    const RefusedText table[] = {
        {"art", "Inventaste un nuevo formato"},
        {"art:", "Inventaste un nuevo formato"},
        {"emp", "Inventaste un nuevo formato"},
        {"emp:", "Inventaste un nuevo formato"},
        {"per", "Inventaste un nuevo formato"},
        {"art/50", "Inventaste un nuevo formato"},
        {"MA/50", "Inventaste un nuevo formato"},
        {"/", "Inventaste un nuevo formato"},
        {"1,2;3", "Formato incorrecto."},
        {"h/250", "Falta el valor de la componente X."},
        {"p95x,10/250", "En este formato el ángulo debe estar entre 0° y 90°."},
        {"10<-q", "No se permiten factores para el ángulo."},
    };
    for (const RefusedText& row : table)
        EXPECT_EQ(std::get<text::Refusal>(Read(row.text)).text, row.refusal) << row.text;
}

TEST(ReadBodyForce, RefusesACoupleThatIsNeitherNumberNorName) {
    for (const char* text : {"2M", "-2M", "--M", "-", ".", "M A", "250:", "1.5.2", "1e3", "+M", "h5/2M",
                             "h5/M/N", "h5/10,20", "h5/-", "h5/250:"})
        EXPECT_EQ(std::get<text::Refusal>(Read(text)).text,
                  "El símbolo debe constar de una literal y uno o dos subíndices.")
            << text;
}

TEST(ReadBodyForce, FailsOnACouplePastTheRangeOfNumbers) {
    EXPECT_THROW(Read(std::string(400, '9')), numeric::RuntimeFailure);
}

TEST(AtPoints, FollowsThePointsByName) {
    BodyForces forces = {Force("h5"), Force("MA"), Force("v2")};
    forces[2].point = "Z";
    forces = AtPoints(forces, {{"A", 1, 1}, {"B", -7, 8}});
    for (std::size_t i : {0u, 1u}) {
        EXPECT_EQ(forces[i].x, -7);
        EXPECT_EQ(forces[i].y, 8);
    }
    EXPECT_EQ(forces[2].x, 4);
    EXPECT_EQ(forces[2].y, -3);
}

struct NegatedText {
    const char* text;
    const char* opposite;
};

void ExpectOpposites(std::span<const NegatedText> table) {
    for (const NegatedText& row : table)
        EXPECT_EQ(Negated(row.text), row.opposite) << row.text;
}

TEST(NegateForceText, TurnsTheSignsOfComponents) {
    const NegatedText table[] = {
        {"30,-40", "-30, 40"},
        {"30,-40/250", "-30, 40/-250"},
        {"Ax, Ay:/MA", "-Ax, -Ay:/-MA"},
        {"-2F,3.50", "2F, -3.5"},
        {"2F, -f1 :", "-2F, f1:"},
        {"0,-F", "0, F"},
        {"-0,+5", "0, -5"},
        {"- F,1E+20", "F, -1E+20"},
        {"-.5 , .25", "0.5, -0.25"},
        {"h-55", "h55"},
        {"h5", "h-5"},
        {"v0.240", "v-0.24"},
        {"h-2F:", "h2F:"},
        {"vfa", "v-fa"},
        {"v -F", "vF"},
        {"v-15*9.8", "v147"},
        {"2*3,-F", "-6, F"},
    };
    ExpectOpposites(table);
}

TEST(NegateForceText, ExchangesOppositeQuadrants) {
    const NegatedText table[] = {
        {"p30x,12", "t30x,12"},           {"t45y,2F1:", "p45y,2F1:"},        {"s34.5y, 9h", "c34.5y, 9h"},
        {"c36.87x, 10v", "s36.87x, 10v"}, {"p 0 x , F/M1", "t 0 x , F/-M1"},
    };
    ExpectOpposites(table);
}

TEST(NegateForceText, TurnsKnownDirectionsByHalfATurn) {
    const NegatedText table[] = {
        {"230<-34", "230<146"}, {"230;-34", "230;146"},   {"F<0", "F<180"},      {"2F < 180:", "2F <0:"},
        {"5<-180", "5<0"},      {"5<90", "5<-90"},        {"5<-179.3", "5<0.7"}, {"5<179.9", "5<-0.1"},
        {"u156", "u-24"},       {"u-24.25:", "u155.75:"}, {"h<30", "h<-150"},    {"5<1E+1/-3", "5<-170/3"},
    };
    ExpectOpposites(table);
}

TEST(NegateForceText, TurnsACouple) {
    const NegatedText table[] = {
        {"250", "-250"}, {"-12.50", "12.50"},     {"+5", "-5"},   {"0", "0"},
        {"-0.0", "0"},   {"MA", "-MA"},           {"-ma", "ma"},  {"- M", "M"},
        {"-M12", "M12"}, {"1000000", "-1000000"}, {"/50", "-50"}, {"250/", "-250"},
        {"h5/", "h-5"},  {"h5 / - M", "h-5/M"},
    };
    ExpectOpposites(table);
}

TEST(NegateForceText, RefusesALongNameOfACouple) {
    for (const char* text : {"MABC", "-MABC", "30,-40/MABC", "xyz,/MABC"})
        EXPECT_EQ(std::get<text::Refusal>(NegateForceText(text)).text,
                  "El símbolo del momento debe constar a lo más de tres literales.")
            << text;
}

TEST(NegateForceText, RefusesWhatHasNoFormat) {
    EXPECT_EQ(std::get<text::Refusal>(NegateForceText("1,2;3")).text, "Formato incorrecto.");
    EXPECT_EQ(std::get<text::Refusal>(NegateForceText("per/50")).text, "Inventaste un nuevo formato");
    EXPECT_EQ(std::get<text::Refusal>(NegateForceText("")).text, "Inventaste un nuevo formato");
}

TEST(NegateForceText, MarksAnUnknownDirectionSoThatItsEntryIsRefused) {
    const NegatedText table[] = {{"20<q", "20<-q"}, {"F;q/50", "F;-q/-50"}, {"uq:", "u-q:"}};
    ExpectOpposites(table);
    for (const NegatedText& row : table)
        EXPECT_EQ(std::get<text::Refusal>(Read(row.opposite)).text, "No se permiten factores para el ángulo.")
            << row.opposite;
}

// Texts of all formats with a known direction.
const std::vector<std::string>& AllTexts() {
    static const std::vector<std::string> texts = {
        "30, -40/250", "Ax, Ay:/MA", "-2F,3",   "F,0",     "0,-F1",    "-f1, f2",      "1E+20,5",
        "p30x,12",     "p0x,5",      "p90x,5",  "s30y,F1", "t45x,2F:", "c36.87x, 10v", "s34.5y, 9h",
        "t60y,-3h:",   "230<-34",    "230;146", "10<180",  "10<-180",  "10<0",         "F<10.7",
        "2F<-179.3:",  "h-55",       "h2F",     "h-F:",    "v0.24",    "v-P",          "vf2/-3",
        "u156",        "u-24:",      "h<30",    "5<0.1",   "10<90",    "h5/-MA",       "0.1,-0.3333333333",
    };
    return texts;
}

void ExpectComponent(const notation::ForceComponent& got, const notation::ForceComponent& expected,
                     double sign, const std::string& text) {
    ASSERT_EQ(got.number.has_value(), expected.number.has_value()) << text;
    if (got.number) {
        EXPECT_NEAR(*got.number, sign * *expected.number, kTolerance) << text;
    }
    EXPECT_NEAR(got.coefficient, sign * expected.coefficient, kTolerance) << text;
    EXPECT_EQ(got.unknown, expected.unknown) << text;
}

// Components of the first force are `sign` times those of the second, unknown by unknown; it acts in the same
// way.
void ExpectForce(const std::string& got_text, const std::string& text, double sign) {
    const notation::ForceRecord got = Written(got_text);
    const notation::ForceRecord expected = Written(text);
    ExpectComponent(got.force.x, expected.force.x, sign, text);
    ExpectComponent(got.force.y, expected.force.y, sign, text);
    EXPECT_EQ(got.leaves, expected.leaves) << text;
    EXPECT_EQ(got.code, expected.code) << text;
}

TEST(NegateForceText, GivesTheOppositeForce) {
    for (const std::string& text : AllTexts())
        ExpectForce(Negated(text), text, -1);
}

TEST(NegateForceText, GivesTheSameForceWhenDoneTwice) {
    for (const std::string& text : AllTexts()) {
        const BodyForce twice = Force(Negated(Negated(text)));
        ExpectForce(Negated(Negated(text)), text, 1);
        ASSERT_EQ(twice.couple.has_value(), Force(text).couple.has_value()) << text;
        if (twice.couple) {
            EXPECT_EQ(twice.couple->value, Force(text).couple->value) << text;
            EXPECT_EQ(twice.couple->symbol, Force(text).couple->symbol) << text;
            EXPECT_EQ(twice.couple->sign, Force(text).couple->sign) << text;
        }
    }
}

TEST(SupportText, NamesTheReactionsByThePoint) {
    EXPECT_EQ(SupportText("art", "A"), "Ax, Ay");
    EXPECT_EQ(SupportText("art:", "B"), "Bx, By:");
    EXPECT_EQ(SupportText("emp", "A"), "Ax, Ay/MA");
    EXPECT_EQ(SupportText("emp:", "A"), "Ax, Ay:/MA");
    for (const char* word : {"per", "Art", "ART", "art :", "empotrado", "art/50", ""})
        EXPECT_EQ(SupportText(word, "A"), "") << word;
}

struct Reference {
    const char* text;
    bool negated;
    int row;
};

TEST(ReadRowReference, ReadsTheNumberBehindTheWord) {
    const Reference table[] = {
        {"neg 3", true, 3},    {"neg3", true, 3},
        {"pos 12", false, 12}, {"pos   2", false, 2},
        {"neg", true, 0},      {"pos ", false, 0},
        {"neg 1.5", true, 0},  {"neg1.5", true, 0},
        {"neg -1", true, 0},   {"neg-1", true, 0},
        {"neg 0", true, 0},    {"neg x", true, 0},
        {"pos 2 3", false, 0}, {"neg 99999999999", true, 0},
    };
    for (const Reference& row : table) {
        const auto reference = ReadRowReference(row.text);
        ASSERT_TRUE(reference) << row.text;
        EXPECT_EQ(reference->negated, row.negated) << row.text;
        EXPECT_EQ(reference->row, row.row) << row.text;
    }
}

TEST(ReadRowReference, LeavesOtherTextsAlone) {
    for (const char* text : {"", "ne", "Neg 3", "POS 3", "negro", "pose", "pos,5", "neg<30", "neg2x", "h5"})
        EXPECT_FALSE(ReadRowReference(text)) << text;
}

TEST(SeriesText, TakesTheLetterOfTheFirstForce) {
    EXPECT_EQ(SeriesText("v-10", "-20"), "v-20");
    EXPECT_EQ(SeriesText("h5", " P "), "hP");
    EXPECT_EQ(SeriesText(" hF:", "3:"), "h3:");
}

}  // namespace
}  // namespace tavrelo::mechanics::rigid
