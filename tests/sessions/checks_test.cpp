#include "checks.h"

#include <gtest/gtest.h>

namespace tavrelo::sessions {
namespace {

using Lines = std::vector<std::string>;

TEST(FindNoNumber, KnowsTheWordsOfNumbersThatAreNone) {
    for (const char* line : {"x = nan", "-inf", "v = inf, a = 2", "NaN", "(inf)"})
        EXPECT_TRUE(FindNoNumber(Lines{"Resultados", line})) << line;
    for (const char* line : {"información", "Fnan", "infinito", "finan", "x = 3", ""})
        EXPECT_FALSE(FindNoNumber(Lines{line})) << line;
}

TEST(IsRefusal, IsOneBoxWithOkAlone) {
    EXPECT_TRUE(IsRefusal({"box \"Tavrelo\" OK", "| Error en el comando."}));
    EXPECT_FALSE(IsRefusal({}));
    EXPECT_FALSE(IsRefusal({"box \"Tavrelo\" OK", "| Se graficará x(t)."}));
    EXPECT_FALSE(IsRefusal({"box \"Tavrelo\" Yes No", "| Se borrará todo."}));
    EXPECT_FALSE(IsRefusal({"box \"Tavrelo\" OK", "| Uno.", "box \"Tavrelo\" OK", "| Dos."}));
}

TEST(ChangedProblem, NamesTheControlThatARefusalChanged) {
    Contents before;
    for (const char* name :
         {"Gd2", "gdEqui", "gd1", "lstSeps", "lstCoords", "lstSysts", "lstDCL", "rtbSolve", "rtbReg", "pic1"})
        before[name] = {"uno"};
    Contents after = before;
    EXPECT_EQ(ChangedProblem(before, after), std::nullopt);
    after["rtbReg"] = {"uno", "dos"};
    EXPECT_EQ(ChangedProblem(before, after), "rtbReg");
}

TEST(FirstDifference, TellsBothLines) {
    const Contents model = {{"gd", {"1", "2"}}};
    EXPECT_EQ(FirstDifference(model, model), std::nullopt);
    EXPECT_EQ(FirstDifference(model, {{"gd", {"1", "3"}}}), "gd: model \"2\", window \"3\"");
    EXPECT_EQ(FirstDifference(model, {{"gd", {"1"}}}), "gd: model \"2\", window \"\"");
}

}  // namespace
}  // namespace tavrelo::sessions
