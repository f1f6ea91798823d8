#include "script.h"

#include <gtest/gtest.h>

namespace tavrelo::transcript {
namespace {

TEST(Script, PartsCommandsFromWhatTheyShow) {
    const Script script = ParseScript(
        "# Opening.\n"
        "\n"
        "> tool 2\n"
        "> show rtbCalc\n"
        "one\n"
        "# Between.\n"
        "  two\n"
        "\n"
        "> set gd  a \n");
    EXPECT_EQ(script.opening_remarks, (std::vector<std::string>{"# Opening.", ""}));
    ASSERT_EQ(script.steps.size(), 3U);
    EXPECT_EQ(script.steps[0].line_number, 3);
    EXPECT_EQ(script.steps[0].command, "tool 2");
    EXPECT_TRUE(script.steps[0].expected.empty());
    const Step& shows = script.steps[1];
    ASSERT_EQ(shows.expected.size(), 2U);
    EXPECT_EQ(shows.expected[0].line_number, 5);
    EXPECT_EQ(shows.expected[1].line_number, 7);
    EXPECT_EQ(shows.expected[1].text, "  two");
    EXPECT_EQ(shows.remarks, (std::vector<std::string>{"# Between.", ""}));
    EXPECT_EQ(script.steps[2].command, "set gd  a ");
}

TEST(Script, TakesTheEscapeOff) {
    const Script script = ParseScript("> show rtbHelp\n\\# one\n\\> two\n\\\\three\n#four\n>five\n");
    std::vector<std::string> texts;
    for (const ShownLine& line : script.steps[0].expected)
        texts.push_back(line.text);
    EXPECT_EQ(texts, (std::vector<std::string>{"# one", "> two", "\\three", "#four", ">five"}));
}

TEST(Script, EscapesWhatWouldReadAsSomethingElse) {
    for (const char* line : {"# one", "#", "> two", "\\three", "#four", ">five", " # six", "seven"}) {
        const Script script = ParseScript("> show rtbHelp\n" + EscapedLine(line) + "\n");
        ASSERT_EQ(script.steps[0].expected.size(), 1U) << line;
        EXPECT_EQ(script.steps[0].expected[0].text, line);
    }
    EXPECT_EQ(EscapedLine("#four"), "#four");
    EXPECT_EQ(EscapedLine("# one"), "\\# one");
}

TEST(Script, ReadsBothLineEnds) {
    const Script script = ParseScript("> show rtbCalc\r\none\r\n");
    EXPECT_EQ(script.steps[0].command, "show rtbCalc");
    EXPECT_EQ(script.steps[0].expected[0].text, "one");
}

TEST(Script, RefusesFilesCutShort) {
    for (const char* text :
         {"", "# Only a comment.\n", "\n", "> tool 1", "one\n> tool 1\n", "# \xff\n> tool 1\n"})
        EXPECT_THROW(ParseScript(text), ScriptError) << text;
}

}  // namespace
}  // namespace tavrelo::transcript
