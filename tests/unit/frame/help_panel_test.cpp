#include "frame/help_panel.h"

#include <gtest/gtest.h>

#include "../window/test_host.h"
#include "frame/help_topics.h"

namespace tavrelo::frame {
namespace {

/// A folder with the one file of the texts on the routines: three of them, the last with an empty line.
struct RoutineTexts : window::TestHost {
    std::string Read(std::string_view name) const override {
        if (name != "\\Argtext.txt")
            return TestHost::Read(name);
        return "Determinante\r\n---\r\nSistema lineal\r\n---\r\nRa\xEDz\r\n\r\ncuadrada";
    }
};

std::string ShownText(window::Form1& form) { return form.Get<window::RichTextBox>("txtArgHelp").Text(); }

TEST(HelpPanelTest, ShowsTheTextOfARoutine) {
    RoutineTexts world;
    window::Form1 form(world.host);
    HelpPanel help(form);
    help.LoadCalcHelp();
    help.ShowArgHelp(0);
    EXPECT_EQ(ShownText(form), "Determinante\r\n");
    help.ShowArgHelp(1);
    EXPECT_EQ(ShownText(form), "Sistema lineal\r\n");
    for (const int index : {-1, 3}) {  // none there: the last one stays
        help.ShowArgHelp(index);
        EXPECT_EQ(ShownText(form), "Sistema lineal\r\n");
    }
    EXPECT_EQ(world.messages, 0);
}

/// Without the file the program runs, and shows no text.
TEST(HelpPanelTest, AMissingFileLeavesNoTexts) {
    window::TestHost world;
    window::Form1 form(world.host);
    HelpPanel help(form);
    help.LoadCalcHelp();
    help.ShowArgHelp(0);
    EXPECT_EQ(ShownText(form), "");
    EXPECT_EQ(world.messages, 0);
}

TEST(HelpPanelTest, ListsTheTopicsOfATool) {
    window::TestHost world;
    window::Form1 form(world.host);
    HelpPanel help(form);
    help.FillHelpCbo(6);
    EXPECT_EQ(form.Get<window::ComboBox>("cboHelp").Items().size(), HelpTopics(6).size());
    EXPECT_TRUE(HelpTopics(0).empty());
    EXPECT_TRUE(HelpTopics(7).empty());
    help.FillHelpCbo(7);
    EXPECT_TRUE(form.Get<window::ComboBox>("cboHelp").Items().empty());
}

}  // namespace
}  // namespace tavrelo::frame
