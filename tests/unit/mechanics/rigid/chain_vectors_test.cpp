#include "mechanics/rigid/chain_vectors.h"

#include <gtest/gtest.h>

#include "notation/vector_format.h"
#include "numeric/checked.h"

namespace tavrelo::mechanics::rigid {
namespace {

constexpr int kDecimals = 3;
constexpr double kTolerance = 1e-9;

using Texts = std::vector<std::string>;

const PointTable kNone;

std::variant<ChainRefusal, SegTable> Rows(const std::string& chain, const std::string& vector,
                                          const std::string& series = "", const Texts& texts = {},
                                          const PointTable& known = kNone) {
    return ChainRows({chain, vector, series, texts}, known, kDecimals);
}

struct RefusedChain {
    const char* chain;
    const char* refusal;
};

TEST(CheckChain, TellsLengthThenCharactersThenRepeats) {
    const RefusedChain refused[] = {
        {"", "Mínimo 2 letras, máximo 7"},
        {"A", "Mínimo 2 letras, máximo 7"},
        {"Ñ", "Mínimo 2 letras, máximo 7"},
        {"ABCDEFGH", "Mínimo 2 letras, máximo 7"},
        {"1A1A1A1A", "Mínimo 2 letras, máximo 7"},
        {"A1", "Carácter inválido en el símbolo del segmento."},
        {"AÑ", "Carácter inválido en el símbolo del segmento."},
        {"A B", "Carácter inválido en el símbolo del segmento."},
        {"ab", "Carácter inválido en el símbolo del segmento."},
        {"A1A", "Carácter inválido en el símbolo del segmento."},
        {"ABA", "Hay una letra repetida."},
        {"AA", "Hay una letra repetida."},
    };
    for (const RefusedChain& row : refused)
        EXPECT_EQ(CheckChain(row.chain), text::Refusal{row.refusal}) << row.chain;
}

TEST(CheckChain, PassesTwoToSevenLetters) {
    for (const char* chain : {"AB", "ZA", "ABCDEFG"})
        EXPECT_FALSE(CheckChain(chain)) << chain;
}

TEST(NeedsSeries, ForTheFormatsThatGiveComponents) {
    EXPECT_TRUE(NeedsSeries(notation::kQuadrantComponent));
    EXPECT_TRUE(NeedsSeries(notation::kComponents));
    for (std::string_view code : {notation::kQuadrantMagnitude, notation::kPolar, notation::kHorizontal,
                                  notation::kVertical, notation::kUnit})
        EXPECT_FALSE(NeedsSeries(code)) << code;
}

struct RefusedCommand {
    const char* chain;
    const char* vector;
    const char* refusal;
};

TEST(ChainRows, RefusesInTheOrderOfItsTests) {
    const RefusedCommand refused[] = {
        {"A1", "h4", "Sólo letras A,B,C,...,etc. en el comando."},
        {"AÑ", "h4", "Sólo letras A,B,C,...,etc. en el comando."},
        {"A1A", "xyz", "Sólo letras A,B,C,...,etc. en el comando."},
        {"ABA", "xyz", "Hay una letra repetida en el comando."},
        {"ABCDEFGHA", "h4", "Hay una letra repetida en el comando."},
        {"A", "xyz", "Mínimo 2 letras, máximo 7"},
        {"ABCDEFGH", "h4", "Mínimo 2 letras, máximo 7"},
        {"AB", "12", "Inventaste un nuevo formato"},
        {"AB", "1,2;3", "Formato incorrecto."},
        {"AB", "h0", "Magnitud negativa o cero."},
        {"AB", "hF", "Componentes no numéricas del vector."},
        {"AB", "3,F", "Componentes no numéricas del vector."},
        {"AB", "F,3", "Componentes no numéricas del vector."},
        {"AB", "10<a", "Componentes no numéricas del vector."},
        {"AB", "p30x,F", "Componentes no numéricas del vector."},
        {"ABC", "ua", "Componentes no numéricas del vector."},
        {"ABC", "u30", "Operación no válida con este formato."},
    };
    for (const RefusedCommand& row : refused)
        EXPECT_EQ(std::get<ChainRefusal>(Rows(row.chain, row.vector)).refusal, text::Refusal{row.refusal})
            << row.chain << ' ' << row.vector;
}

TEST(ChainRows, RefusesAPairWhoseEndsAreBothKnown) {
    const PointTable known = {{"A", 0, 0}, {"B", 4, 0}, {"C", 4, 3}};
    const auto refusal = [&](const char* chain) {
        return std::get<ChainRefusal>(Rows(chain, "h4", "", Texts{"1", "1"}, known)).refusal.value().text;
    };
    EXPECT_EQ(refusal("AB"), "El segmento AB ya está registrado.");
    EXPECT_EQ(refusal("BA"), "El segmento BA ya está registrado.");
    EXPECT_EQ(refusal("CA"), "El segmento CA ya está registrado.");
    EXPECT_EQ(refusal("DAC"), "El segmento AC ya está registrado.");
}

TEST(ChainRows, LetsALoopCloseThroughANewPoint) {
    const PointTable known = {{"A", 0, 0}, {"B", 4, 0}, {"C", 4, 3}};
    const auto rows = std::get<SegTable>(Rows("CDA", "h-4", "", Texts{"3"}, known));
    ASSERT_EQ(rows.size(), 2u);
    EXPECT_EQ(rows[0].from + rows[0].to + rows[1].from + rows[1].to, "CDDA");
}

struct FirstRow {
    const char* vector;
    double dx;
    double dy;
};

TEST(ChainRows, GivesOneRowForTwoLetters) {
    const FirstRow vectors[] = {
        {"h-55", -55, 0},
        {"v0.24", 0, 0.24},
        {"3,-4", 3, -4},
        {"10<30", 8.66025403784439, 5},  // 10 cos 30
        {"10<30:", 8.66025403784439, 5},
        {"t30y,2", -1, -1.73205080756888},  // 2 sin 30, 2 cos 30
        {"s45x,2h", -2, 2},
        {"u90", 0, 1},
    };
    for (const FirstRow& vector : vectors) {
        const auto rows = std::get<SegTable>(Rows("AB", vector.vector, "?", Texts{"", "x"}));
        ASSERT_EQ(rows.size(), 1u) << vector.vector;
        EXPECT_EQ(rows[0].from, "A");
        EXPECT_EQ(rows[0].to, "B");
        EXPECT_NEAR(rows[0].dx, vector.dx, kTolerance) << vector.vector;
        EXPECT_NEAR(rows[0].dy, vector.dy, kTolerance) << vector.vector;
    }
}

struct FurtherRow {
    const char* vector;
    const char* series;
    const char* value;
    double dx;
    double dy;
};

void ExpectFurther(std::span<const FurtherRow> table) {
    for (const FurtherRow& row : table) {
        const auto rows = std::get<SegTable>(Rows("ABC", row.vector, row.series, Texts{row.value}));
        ASSERT_EQ(rows.size(), 2u) << row.vector;
        EXPECT_NEAR(rows[1].dx, row.dx, kTolerance) << row.vector << row.series << row.value;
        EXPECT_NEAR(rows[1].dy, row.dy, kTolerance) << row.vector << row.series << row.value;
    }
}

TEST(ChainRows, TakesFurtherValuesAsMagnitudesWhereTheFormatGivesOne) {
    const FurtherRow table[] = {
        {"10<30", "", "20", 17.3205080756888, 10},
        {"10;-90", "", "2.5", 0, -2.5},
        {"p60y,1", "", "2", 1.73205080756888, 1},  // 60 from the y axis is 30 from the x axis
        {"h4", "", "3", 3, 0},
        {"h-4", "", "3", -3, 0},
        {"h4", "", "-3", -3, 0},
        {"v-4", "", " 3 ", 0, -3},
        {"v4", "X", "3", 0, 3},  // a mark that is not asked for
        {"h4", "", "0", 0, 0},
    };
    ExpectFurther(table);
}

// 3 : 4 : 5 throughout.
TEST(ChainRows, ScalesByASeriesOfComponentsOrMagnitudes) {
    const FurtherRow table[] = {
        {"3,4", "X", "6", 6, 8},      {"3,4", "Y", "8", 6, 8},      {"3,4", "M", "10", 6, 8},
        {"-3,4", "X", "6", -6, 8},    {"-3,4", "Y", "8", -6, 8},    {"-3,4", "M", "10", -6, 8},
        {"-3,-4", "X", "6", -6, -8},  {"-3,-4", "Y", "8", -6, -8},  {"-3,-4", "M", "10", -6, -8},
        {"3,-4", "X", "6", 6, -8},    {"3,-4", "Y", "8", 6, -8},    {"3,-4", "M", "10", 6, -8},
        {"s45x,2h", "x", "5", -5, 5}, {"c45y,2v", "y", "5", 5, -5}, {"3,4", "m", "10", 6, 8},
    };
    ExpectFurther(table);
}

TEST(ChainRows, DropsTheSignOfAnXAndKeepsThatOfAYOrAMagnitude) {
    const FurtherRow table[] = {
        {"3,4", "X", "-6", 6, 8},
        {"3,4", "Y", "-8", 6, -8},
        {"3,-4", "Y", "-8", 6, 8},
        {"3,4", "M", "-10", -6, -8},
    };
    ExpectFurther(table);
}

TEST(ChainRows, GivesNoVectorForAComponentAcrossTheAxisOfTheFirst) {
    const FurtherRow table[] = {
        {"2,0", "X", "5", 5, 0},   {"-2,0", "X", "5", -5, 0},  {"0,2", "X", "5", 0, 0},
        {"0,-2", "X", "5", 0, 0},  {"2,0", "Y", "5", 0, 0},    {"-2,0", "Y", "5", 0, 0},
        {"0,2", "Y", "5", 0, 5},   {"0,-2", "Y", "5", 0, -5},  {"0,2", "M", "5", 0, 5},
        {"-2,0", "M", "5", -5, 0}, {"s0x,2h", "Y", "5", 0, 0},
    };
    ExpectFurther(table);
}

TEST(ChainRows, TakesAProductOfNumbersForOne) {
    const FurtherRow table[] = {
        {"v2", "", "15*9.8", 0, 147}, {"h4", "", "-2 * 3*0.5", -3, 0}, {"3,4", "X", "2*3", 6, 8},
        {"3,4", "Y", "2*4", 6, 8},    {"3,4", "M", "-2*5", -6, -8},
    };
    ExpectFurther(table);
    const auto rows = std::get<SegTable>(Rows("AB", "v15*9.8"));
    EXPECT_NEAR(rows.at(0).dy, 147, kTolerance);
    for (const char* value : {"*", "2*", "*2", "2**3", "2*F", "2*3a"})
        EXPECT_EQ(std::get<ChainRefusal>(Rows("ABC", "h4", "", Texts{value})).field, ChainField::Value)
            << value;
}

TEST(ChainRows, ReadsOneValueForEachFurtherPair) {
    const auto rows =
        std::get<SegTable>(Rows("GFEDCBA", "v1", "", Texts{"2", "3", "4", "5", "6", "not read"}));
    ASSERT_EQ(rows.size(), 6u);
    const char* pairs[] = {"GF", "FE", "ED", "DC", "CB", "BA"};
    for (std::size_t i = 0; i < rows.size(); ++i) {
        EXPECT_EQ(rows[i].from + rows[i].to, pairs[i]);
        EXPECT_NEAR(rows[i].dx, 0, kTolerance);
        EXPECT_NEAR(rows[i].dy, static_cast<double>(i) + 1, kTolerance);
    }
}

TEST(ChainRows, TellsWhichValueOrSeriesIsMissing) {
    for (const Texts& texts : {Texts{}, Texts{""}, Texts{" "}, Texts{"F"}, Texts{"1,5"}}) {
        const auto refusal = std::get<ChainRefusal>(Rows("ABC", "h4", "", texts));
        EXPECT_FALSE(refusal.refusal);
        EXPECT_EQ(refusal.field, ChainField::Value);
        EXPECT_EQ(refusal.value, 0u);
    }
    EXPECT_EQ(std::get<ChainRefusal>(Rows("ABCD", "h4", "", Texts{"1", ""})).value, 1u);
    for (const char* series : {"", "Z", "XY"})
        for (const char* vector : {"3,4", "s45x,2h"}) {
            const auto refusal = std::get<ChainRefusal>(Rows("ABC", vector, series, Texts{"6"}));
            EXPECT_FALSE(refusal.refusal);
            EXPECT_EQ(refusal.field, ChainField::Series) << series;
        }
}

TEST(ChainRows, FailsOnAComponentPastTheRange) {
    EXPECT_THROW(Rows("ABC", "1,1000", "X", Texts{"1E+308"}), numeric::RuntimeFailure);
}

}  // namespace
}  // namespace tavrelo::mechanics::rigid
