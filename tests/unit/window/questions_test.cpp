#include "window/questions.h"

#include <gtest/gtest.h>

#include "test_host.h"

namespace tavrelo::window {
namespace {

class QuestionsTest : public testing::Test {
  protected:
    std::optional<double> Number(std::optional<std::string> typed) {
        world.typed_answer = std::move(typed);
        return AskNumber(world, {"¿Qué ángulo?", "El valor dado no es numérico."});
    }

    TestHost world;
};

TEST_F(QuestionsTest, YesMeansTheFirstSolution) {
    world.answer = Answer::Yes;
    EXPECT_EQ(AskWhichSolution(world, "¿La primera?", "Dos soluciones"), 0u);
    EXPECT_EQ(world.last_message, "¿La primera?");
    EXPECT_EQ(world.last_title, "Dos soluciones");
    world.answer = Answer::No;
    EXPECT_EQ(AskWhichSolution(world, "¿La primera?"), 1u);
    EXPECT_EQ(world.last_title, kProgramTitle);
}

TEST_F(QuestionsTest, OnlyYesOrOkConfirm) {
    struct Row {
        Buttons buttons;
        Answer answer;
        bool confirms;
    };
    for (const Row& row :
         {Row{Buttons::YesNo, Answer::Yes, true}, Row{Buttons::YesNo, Answer::No, false},
          Row{Buttons::OkCancel, Answer::Ok, true}, Row{Buttons::OkCancel, Answer::Cancel, false}}) {
        world.answer = row.answer;
        EXPECT_EQ(Confirm(world, "Se borrará todo.", row.buttons), row.confirms);
    }
}

TEST_F(QuestionsTest, ATypedNumberIsRead) {
    EXPECT_EQ(Number("-12.5"), -12.5);
    EXPECT_EQ(world.last_prompt, "¿Qué ángulo?");
    EXPECT_EQ(Number("1E+2"), 100);
    EXPECT_EQ(world.messages, 0);
}

TEST_F(QuestionsTest, ABoxWithoutAnAnswerIsNoMistake) {
    EXPECT_EQ(Number(std::nullopt), std::nullopt);
    EXPECT_EQ(Number(""), std::nullopt);
    EXPECT_EQ(world.messages, 0);
}

TEST_F(QuestionsTest, AnyOtherTextIsRefused) {
    for (const char* typed : {"abc", "1,5", "2*3", "--1"}) {
        world.messages = 0;
        EXPECT_EQ(Number(typed), std::nullopt) << typed;
        EXPECT_EQ(world.messages, 1) << typed;
        EXPECT_EQ(world.last_message, "El valor dado no es numérico.") << typed;
    }
}

TEST_F(QuestionsTest, ANumberPastTheRangeFails) {
    EXPECT_THROW(Number(std::string(400, '9')), numeric::RuntimeFailure);
}

}  // namespace
}  // namespace tavrelo::window
