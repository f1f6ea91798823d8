#include "options.h"

#include <gtest/gtest.h>

#include "script.h"

namespace tavrelo::transcript {
namespace {

Options Parse(const std::vector<const char*>& arguments) { return ParseOptions(arguments); }

TEST(Options, DefaultsAreTheModelAndComparing) {
    const Options options = Parse({"a", "b.transcript"});
    EXPECT_FALSE(options.window);
    EXPECT_FALSE(options.print);
    EXPECT_FALSE(options.tree);
    EXPECT_TRUE(options.pictures.empty());
    EXPECT_EQ(options.driver.zoom_percent, 100);
    EXPECT_FALSE(options.driver.is_maximised);
    EXPECT_FALSE(options.driver.is_dark);
    EXPECT_FALSE(options.driver.has_contrast);
    EXPECT_EQ(options.paths, (std::vector<std::string>{"a", "b.transcript"}));
}

TEST(Options, StandAnywhere) {
    const Options options =
        Parse({"--window", "a", "--pictures", "shots", "--zoom", "150", "--print", "--tree"});
    EXPECT_TRUE(options.window);
    EXPECT_TRUE(options.print);
    EXPECT_TRUE(options.tree);
    EXPECT_EQ(options.pictures, "shots");
    EXPECT_EQ(options.driver.zoom_percent, 150);
    EXPECT_EQ(options.paths, std::vector<std::string>{"a"});
}

TEST(Options, TellHowTheWindowLooks) {
    const Options options = Parse({"--window", "--maximised", "--dark", "--contrast", "a"});
    EXPECT_TRUE(options.driver.is_maximised);
    EXPECT_TRUE(options.driver.is_dark);
    EXPECT_TRUE(options.driver.has_contrast);
    EXPECT_EQ(options.paths, std::vector<std::string>{"a"});
}

TEST(Options, RefuseWhatTheyDoNotKnow) {
    EXPECT_THROW(Parse({}), ScriptError);
    EXPECT_THROW(Parse({"--window"}), ScriptError);
    EXPECT_THROW(Parse({"--fast", "a"}), ScriptError);
    EXPECT_THROW(Parse({"a", "--zoom"}), ScriptError);
    EXPECT_THROW(Parse({"a", "--zoom", "big"}), ScriptError);
    EXPECT_THROW(Parse({"a", "--zoom", "0"}), ScriptError);
}

}  // namespace
}  // namespace tavrelo::transcript
