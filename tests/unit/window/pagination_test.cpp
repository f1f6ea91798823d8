#include "window/pagination.h"

#include <gtest/gtest.h>

namespace tavrelo::window {
namespace {

// Liberation Serif at 10 points, an em of 200 twips: a digit is half an em wide, a capital A 0.722 of one, a
// line 0.891 + 0.216 of one high.
constexpr double kDigit = 100;
constexpr double kLineHeight = 221.4;
constexpr double kAscent = 178.2;
constexpr double kHair = 0.5;
constexpr PageMargins kMargins{500, 300, 500, 300};

/// Paper whose column is that large.
Paper PaperFor(double width, double height) { return {width + 1000, height + 600}; }

text::Run RunOf(std::string text, double size = 10) {
    text::Run run{std::move(text), {}, text::kBlack, 0};
    run.font.size = size;
    return run;
}

std::vector<std::vector<std::string>> TextsOf(const std::vector<PrintedPage>& pages) {
    std::vector<std::vector<std::string>> texts;
    for (const PrintedPage& page : pages) {
        texts.emplace_back();
        for (const PrintedLine& line : page.lines)
            texts.back().push_back(line.Text());
    }
    return texts;
}

struct BreakCase {
    const char* text;
    std::vector<std::string> lines;
};

TEST(Paginate, BreaksLinesByTheColumn) {
    const BreakCase cases[] = {
        {"0123456789", {"0123456789"}},           {"01234567890", {"0123456789", "0"}},
        {"01234 6789 12", {"01234 6789 ", "12"}}, {"0123 0123 0123", {"0123 0123 ", "0123"}},
        {"01\r\n\r\n2\n3", {"01", "", "2", "3"}},
    };
    for (const BreakCase& test : cases)
        EXPECT_EQ(
            TextsOf(Paginate(text::RichText({RunOf(test.text)}), PaperFor(10 * kDigit + 1, 5000), kMargins)),
            std::vector<std::vector<std::string>>{test.lines})
            << test.text;
}

TEST(Paginate, FillsPagesOneBehindTheOther) {
    const auto pages = Paginate(text::RichText({RunOf("1\r\n2\r\n3\r\n4\r\n5\r\n6\r\n7")}),
                                PaperFor(1000, 3 * kLineHeight + 1), kMargins);
    EXPECT_EQ(TextsOf(pages),
              (std::vector<std::vector<std::string>>{{"1", "2", "3"}, {"4", "5", "6"}, {"7"}}));
    for (const PrintedPage& page : pages)
        for (std::size_t k = 0; k < page.lines.size(); ++k)
            EXPECT_NEAR(page.lines[k].top, static_cast<double>(k) * kLineHeight, kHair);
}

TEST(Paginate, KeepsTheLookAndThePlaceOfEachRun) {
    text::Run index = RunOf("x", 6);
    index.offset = -40;
    index.color = text::Rgb(255, 0, 0);
    index.font.bold = true;
    const auto pages = Paginate(text::RichText({RunOf("A"), index, RunOf("= 0")}), kA4Paper, kMargins);
    ASSERT_EQ(pages.size(), 1u);
    ASSERT_EQ(pages[0].lines.size(), 1u);
    const PrintedLine& line = pages[0].lines[0];
    EXPECT_NEAR(line.base_line, kAscent, kHair);
    ASSERT_EQ(line.runs.size(), 3u);
    EXPECT_EQ(line.runs[0].left, 0);
    EXPECT_NEAR(line.runs[1].left, 144.4, kHair);
    EXPECT_NEAR(line.runs[2].left, 144.4 + 60, kHair);  // a bold x at 6 points is 0.5 of 120 twips wide
    EXPECT_EQ(line.runs[1].run.offset, index.offset);
    EXPECT_EQ(line.runs[1].run.color, index.color);
    EXPECT_EQ(line.runs[1].run.font, index.font);
}

TEST(Paginate, StandsALineOnTheBaseOfItsLargestRun) {
    const auto pages =
        Paginate(text::RichText({RunOf("1\r\n"), RunOf("2"), RunOf("3", 20)}), kA4Paper, kMargins);
    ASSERT_EQ(pages[0].lines.size(), 2u);
    EXPECT_NEAR(pages[0].lines[1].top, kLineHeight, kHair);
    EXPECT_NEAR(pages[0].lines[1].base_line, kLineHeight + 2 * kAscent, kHair);
}

TEST(Paginate, GivesALineHigherThanThePageOneOfItsOwn) {
    const auto pages = Paginate(text::RichText({RunOf("1\r\n2\r\n")}), PaperFor(1000, 100), kMargins);
    EXPECT_EQ(TextsOf(pages), (std::vector<std::vector<std::string>>{{"1"}, {"2"}}));
}

TEST(Paginate, MakesNoPageOfNothing) { EXPECT_TRUE(Paginate({}, kA4Paper, kMargins).empty()); }

}  // namespace
}  // namespace tavrelo::window
