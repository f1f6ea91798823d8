#include "words.h"

#include <iterator>
#include <vector>

namespace tavrelo::sessions {
namespace {

using Words = std::span<const std::string_view>;

constexpr std::string_view kNumbers[] = {"0",   "1",     "2",   "-3",  "4.5",   "10",      "-10",
                                         "100", "0.001", "9.8", "12",  "-0.5",  "1e3",     "30",
                                         "45",  "90",    "-90", "180", "1E+20", "-1E+300", "1E-300"};
constexpr std::string_view kForces[] = {"h10",    "v-100",   "p30x,F1", "s45x,F2",  "t20y,50",    "c60x,T",
                                        "10<200", "3,4",     "F,a",     "100<a",    "F1<a1",      "hP",
                                        "v-Q",    "-0.4N,N", "N",       "v-15*9.8", "p30x,2*9.8", "neg F1",
                                        "10<45",  "AX,AY",   "v-5*9",   "T<30",     "h-20",       "p90x,5"};
constexpr std::string_view kChains[] = {"AB", "ABC", "BCD", "A", "ABCDE", "AA", "OAB",
                                        "CB", "DE",  "AE",  "B", "C",     "ABH"};
constexpr std::string_view kCells[] = {"0",    "1",      "2",      "5",      "10",   "20",   "-9.8", "g",
                                       "t1+5", "2*t1",   "1.5*x1", "x2",     "v1",   "t0+1", "2*x1", "x1",
                                       "X1",   "0.5*v1", "-4",     "12.345", "V2+1", "v0",   "30",   "t9"};
constexpr std::string_view kIntervals[] = {"a = 3, xi = 12, xf = 23, dt = 6",
                                           "vi = 0, vf = 20, dx = 100",
                                           "a=-9.8, vi=20, vf=0",
                                           "1,2",
                                           "3",
                                           "0.5",
                                           "1,10",
                                           "2,3,4",
                                           "0,10",
                                           "a = 2, dt = 3, dx = 9",
                                           "1,1",
                                           "5,-5",
                                           "x = 10",
                                           "v0 = 20",
                                           "30, 45"};
constexpr std::string_view kFormulas[] = {
    "t^2",   "3*t",   "-4*x",    "9.8-0.5*v", "X^2+1",     "SEN(X)", "2+3*4", "(1+2)*3", "1/X",
    "LN(X)", "t^3-t", "exp(-x)", "90*t",      "2",         "X",      "R(X)",  "X/0",     "sen(t)",
    "((1)",  "2**3",  "X^Y",     "5!",        "MAX(X,2.)", "t*",     "1+",    "SQR(4)"};
constexpr std::string_view kVectors[] = {"3,4", "p30x,10", "10<45", "-1,2", "h5",
                                         "v-3", "0,0",     "1,2,3", "5",    "2<-30"};
constexpr std::string_view kStrange[] = {"",
                                         " ",
                                         "-",
                                         "+",
                                         ",",
                                         ";q",
                                         "¬",
                                         "ñ!¡$#",
                                         "\\b/x/",
                                         "a b c",
                                         "****",
                                         "(((",
                                         "1..2",
                                         "1,2,3,4,5,6,7,8",
                                         "-.",
                                         "E",
                                         "1E",
                                         "1E+400",
                                         "9999999999999999999999",
                                         "<",
                                         "/",
                                         "θ²",
                                         "#angu",
                                         "neg",
                                         "pos",
                                         "=",
                                         "t",
                                         "x'2",
                                         "0.1e-3"};

struct Vocabulary {
    std::string_view control;  // beginning of its name
    std::vector<Words> words;
};

const std::vector<Vocabulary>& Vocabularies() {
    static const std::vector<Vocabulary> kAll = {
        {"txtVector", {kForces, kVectors}},
        {"txtAngle", {kNumbers}},
        {"txtAtan", {kNumbers, kFormulas}},
        {"txtSegm(0", {kChains}},
        {"txtSegm", {kNumbers, kVectors, kForces}},
        {"txtRepeat", {kNumbers}},
        {"txtOrigin", {kChains, kVectors}},
        {"txtPoints", {kChains}},
        {"txtBody(0", {kNumbers}},
        {"txtBody(1", {kChains}},
        {"txtBody", {kForces}},
        {"txtRefPt", {kChains}},
        {"txtSuprEqn", {kChains, kNumbers}},
        {"txtAccel", {kNumbers, kCells}},
        {"txtProcs", {kIntervals}},
        {"txtKinemt1", {kNumbers}},
        {"txtKinem", {kFormulas}},
        {"txtT0", {kNumbers}},
        {"rtbExpr", {kFormulas, kNumbers}},
        {"Gd2", {kCells, kNumbers}},
        {"gd", {kNumbers, kVectors, kForces}},
    };
    return kAll;
}

std::string LongText(Chance& chance) {
    const std::string piece = chance.Of({"F1", "9", "(", "ABC", "x+", "ñ", "1,"});
    std::string text;
    for (int k = chance.Between(20, 400); k > 0; --k)
        text += piece;
    return text;
}

/// What a text looks like when its writer was interrupted or slipped.
std::string Damaged(std::string text, Chance& chance) {
    if (text.empty())
        return text;
    const std::size_t at = chance.Below(text.size());
    switch (chance.Below(3)) {
        case 0:
            return text.substr(0, at);
        case 1:
            return text + std::string(chance.Of<std::string_view>(kStrange));
        default:
            return std::string(chance.Of<std::string_view>(kNumbers)) + text;
    }
}

Words AnyWords(Chance& chance) {
    const Words all[] = {kNumbers, kForces, kChains, kCells, kIntervals, kFormulas, kVectors, kStrange};
    return chance.Of(std::span<const Words>(all));
}

}  // namespace

std::string TextFor(std::string_view control, Chance& chance) {
    if (chance.OneIn(60))
        return LongText(chance);
    for (const Vocabulary& row : Vocabularies()) {
        if (!control.starts_with(row.control))
            continue;
        const std::string word(chance.Of(chance.Of(std::span<const Words>(row.words))));
        if (chance.OneIn(12))
            return Damaged(word, chance);
        if (!chance.OneIn(15))
            return word;
        break;
    }
    return std::string(chance.Of(AnyWords(chance)));
}

std::string AnswerText(Chance& chance) {
    return std::string(chance.OneIn(4) ? chance.Of(AnyWords(chance)) : chance.Of(Words(kNumbers)));
}

}  // namespace tavrelo::sessions
