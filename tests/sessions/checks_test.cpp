#include "checks.h"

#include <gtest/gtest.h>

#include "buttons.h"
#include "commands.h"
#include "model_driver.h"
#include "problems.h"

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

/// A program on which a student has worked.
class WorkTest : public testing::Test {
  protected:
    void Do(std::initializer_list<const char*> acts) {
        for (const char* act : acts)
            transcript::Perform(session, act);
    }
    const app::Program::Tools& Tools() { return driver->Program().Parts(); }
    window::Form1& Form() { return driver->Program().Window(); }
    std::optional<std::string> Wrong() { return WrongShown(Tools(), text::kDefaultDecimals); }
    std::optional<std::string> WrongAfterTyping(const char* grid, int row, int col, const char* text) {
        auto& table = Form().Get<window::Grid>(grid);
        const std::string kept = table.Cell(row, col);
        table.SetCell(row, col, text);
        auto wrong = Wrong();
        table.SetCell(row, col, kept);
        return wrong;
    }

    std::unique_ptr<transcript::Driver> driver = transcript::MakeModelDriver();
    transcript::Session session{*driver};
};

TEST_F(WorkTest, TheTableOfTheParticleIsHeldAgainstItsForces) {
    Do({"tool 2", "set txtVector h-20", "key txtVector Enter", "answer = 30", "set txtVector 3.14159,F",
        "key txtVector Enter"});
    EXPECT_EQ(Wrong(), std::nullopt);
    EXPECT_EQ(WrongAfterTyping("gdEqui", 2, 1, "3,F"),
              "gdEqui 2 1 shows \"3,F\", the problem holds \"3.14159,F\"");
    EXPECT_EQ(WrongAfterTyping("gdEqui", 2, 2, "3.143"),
              "gdEqui 2 2 shows \"3.143\", the problem holds 3.14159");
    EXPECT_EQ(WrongAfterTyping("gdEqui", 2, 3, "7"), "gdEqui 2 3 shows \"7\", but it is not known");
    EXPECT_EQ(WrongAfterTyping("gdEqui", 1, 0, "2"), "gdEqui 1 0 shows \"2\", the problem holds \"1\"");
    Form().Get<window::Grid>("gdEqui").RemoveRow(2);
    EXPECT_EQ(Wrong(), "gdEqui shows 1 rows, the problem holds 2");
}

TEST_F(WorkTest, TheTableOfMotionIsHeldAgainstItsCells) {
    Do({"tool 4", "press cmdTable(0)", "fill Gd2 0 1 2.5|t1+1", "set txtAccel(0) 9.8"});
    EXPECT_EQ(Wrong(), std::nullopt);
    EXPECT_EQ(WrongAfterTyping("Gd2", 0, 1, "2.6"), "Gd2 0 1 shows \"2.6\", the problem holds \"2.5\"");
    EXPECT_EQ(WrongAfterTyping("Gd2", 2, 3, "1"), "Gd2 2 3 shows \"1\", the problem holds \"\"");
    Form().Get<window::TextBox>("txtAccel(0)").SetText("8");
    EXPECT_EQ(Wrong(), "txtAccel(0) shows \"8\", the problem holds \"9.8\"");
}

TEST_F(WorkTest, TheTableAndTheListsOfARigidBodyAreHeldAgainstItsProblem) {
    Do({"tool 3", "set txtSegm(0) AB", "set txtSegm(1) h4", "press cmdOK", "pick tabStat 1",
        "set txtBody(1) A", "key txtBody(1) Enter", "set txtBody(2) 3,4/5", "press cmdOK1"});
    EXPECT_EQ(Wrong(), std::nullopt);
    EXPECT_EQ(WrongAfterTyping("gd1", 1, 2, "B"), "gd1 1 2 shows \"B\", the problem holds \"A\"");
    EXPECT_EQ(WrongAfterTyping("gd1", 1, 5, "-4"), "gd1 1 5 shows \"-4\", the problem holds 4");
    EXPECT_EQ(WrongAfterTyping("gd1", 1, 6, "6"), "gd1 1 6 shows \"6\", the problem holds 5");
    Form().Find("lblPoints(0)")->SetCaption("A");
    EXPECT_EQ(Wrong(), "lblPoints(0) shows \"A\", the problem holds \"AB\"");
    Form().Get<window::ListBox>("lstDCL").AddItem("4");
    EXPECT_EQ(Wrong(), "lstDCL offers body 4, which is not defined");
}

TEST_F(WorkTest, ARefusalIsHeldAgainstTheProblems) {
    const Problems before = ProblemsOf(Tools());
    EXPECT_EQ(ChangedTool(before, before), std::nullopt);
    Do({"tool 2", "set txtVector h5", "key txtVector Enter"});
    EXPECT_EQ(ChangedTool(before, ProblemsOf(Tools())), "the particle");
}

TEST_F(WorkTest, ButtonsAreHeldAgainstTheStateOfTheParticle) {
    ButtonRules rules;
    Do({"tool 2", "set txtVector h5", "key txtVector Enter"});
    EXPECT_EQ(rules.FindWrong(Tools(), {.act = "key txtVector Enter", .forces_before = 0}), std::nullopt);
    Do({"set txtVector h-5", "key txtVector Enter"});
    EXPECT_EQ(rules.FindWrong(Tools(), {.act = "key txtVector Enter", .forces_before = 1}), std::nullopt);
    Do({"press cmdParts(0)"});
    EXPECT_EQ(rules.FindWrong(Tools(), {.act = "press cmdParts(0)", .forces_before = 2}), std::nullopt);
    EXPECT_FALSE(Form().Find("cmdParts(0)")->Enabled());
    Form().Find("cmdParts(5)")->SetEnabled(true);
    EXPECT_EQ(rules.FindWrong(Tools(), {.act = "show", .forces_before = 2}), "cmdParts(5) is enabled");
    Form().Find("cmdParts(7)")->SetEnabled(false);
    EXPECT_EQ(rules.FindWrong(Tools(), {.act = "show", .forces_before = 2}), "cmdParts(7) is disabled");
}

TEST_F(WorkTest, BoxesAreHeldAgainstTheChainOfARigidBody) {
    ButtonRules rules;
    Do({"tool 3", "set txtSegm(0) ABCD", "key txtSegm(0) Enter"});
    EXPECT_EQ(rules.FindWrong(Tools(), {}), std::nullopt);
    Form().Find("txtSegm(3)")->SetEnabled(false);
    EXPECT_EQ(rules.FindWrong(Tools(), {}), "txtSegm(3) is disabled");
}

}  // namespace
}  // namespace tavrelo::sessions
