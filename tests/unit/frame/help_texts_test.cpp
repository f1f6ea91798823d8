// The help files as they stand beside the program: every text of theirs is rendered whole.
#include <gtest/gtest.h>

#include <algorithm>
#include <array>
#include <fstream>
#include <sstream>
#include <utility>

#include "frame/help_files.h"
#include "frame/help_topics.h"
#include "text/markup.h"
#include "text/utf8.h"

namespace tavrelo::frame {
namespace {

constexpr int kTools = 6;
constexpr std::string_view kRoutineFile = "\\Argtext.txt";
constexpr std::string_view kRoutineSeparator = "\r\n---\r\n";
constexpr std::size_t kRoutineTexts = 36;
constexpr std::string_view kMarks = "\\/#!;$";
constexpr text::Color kTypedColor = text::Rgb(0, 0, 255);  // of what the student types, marks included

class HelpFolder : public window::Files {
  public:
    std::string Read(std::string_view path) const override {
        std::ifstream file(std::string(HELP_FOLDER "/") + std::string(path.substr(1)), std::ios::binary);
        std::ostringstream bytes;
        bytes << file.rdbuf();
        return bytes.str();
    }
};

struct HelpText {
    std::string name;
    std::string text;
};

/// The texts between "[TAG]" and "[STOP]" of a file.
std::vector<HelpText> TaggedTexts(std::string_view path) {
    std::vector<HelpText> texts;
    std::istringstream lines(ReadTextFile(HelpFolder(), path));
    bool is_inside = false;
    for (std::string line; std::getline(lines, line);) {
        if (line.ends_with('\r'))
            line.pop_back();
        if (line == "[STOP]") {
            is_inside = false;
        } else if (!is_inside && line.starts_with('[') && line.ends_with(']')) {
            const std::string tag = line.substr(1, line.size() - 2);
            texts.push_back({std::string(path) + " " + tag, ReadTopic(HelpFolder(), path, tag)});
            is_inside = true;
        }
    }
    return texts;
}

std::vector<HelpText> RoutineTexts() {
    const std::string file = ReadTextFile(HelpFolder(), kRoutineFile);
    std::vector<HelpText> texts;
    std::size_t start = file.find(kRoutineSeparator);
    while (start != std::string::npos) {
        start += kRoutineSeparator.size();
        const std::size_t end = file.find(kRoutineSeparator, start);
        texts.push_back({std::string(kRoutineFile) + " " + std::to_string(texts.size() + 1),
                         file.substr(start, end == std::string::npos ? end : end - start)});
        start = end;
    }
    return texts;
}

std::vector<HelpText> AllTexts() {
    std::vector<HelpText> texts = RoutineTexts();
    for (const char* path :
         {"\\HelpCalc.txt", "\\HelpEstcr.txt", "\\HelpKinem.txt", "\\HelpMrua.txt", "\\HelpTP.txt",
          "\\StatPart.txt", "\\ayudaprocs.txt", "\\hilfe1.txt", "\\socorro.txt"})
        std::ranges::move(TaggedTexts(path), std::back_inserter(texts));
    return texts;
}

std::size_t Pairs(std::string_view text, char mark) {
    std::size_t pairs = 0;
    for (std::size_t at = text.find(mark); at != std::string_view::npos; at = text.find(mark, at + 1))
        if (at + 1 < text.size() && text[at + 1] == mark) {
            ++pairs;
            ++at;
        }
    return pairs;
}

TEST(HelpTexts, EveryRowOfTheListsHasItsTopic) {
    for (int tool = 1; tool <= kTools; ++tool)
        for (const HelpTopic& topic : HelpTopics(tool))
            EXPECT_FALSE(ReadTopic(HelpFolder(), topic.file, topic.tag).empty())
                << tool << " " << topic.title;
}

TEST(HelpTexts, EveryRoutineHasItsText) { EXPECT_EQ(RoutineTexts().size(), kRoutineTexts); }

TEST(HelpTexts, AreRenderedBelowTheLimitOfMarks) {
    for (const HelpText& help : AllTexts())
        EXPECT_LT(text::CountMarks(help.text), static_cast<std::size_t>(text::kMarkLimit)) << help.name;
}

TEST(HelpTexts, ShowNoMarkExceptTheDoubledOnes) {
    for (const HelpText& help : AllTexts()) {
        const text::RichText rendered = text::RenderMarkup(text::kTextFont, 10, help.text);
        std::string told;  // by the help, not for typing
        for (const text::Run& run : rendered.Runs())
            if (run.color != kTypedColor)
                told += run.text;
        for (const char mark : kMarks)
            EXPECT_EQ(static_cast<std::size_t>(std::ranges::count(told, mark)), Pairs(help.text, mark))
                << help.name << " shows \"" << mark << "\"";
        for (const std::string_view sign : {"¬", "¡", "\r\r"})
            EXPECT_EQ(rendered.PlainText().find(sign), std::string::npos) << help.name << " shows " << sign;
    }
}

TEST(HelpTexts, ShowOnlyKnownSigns) {
    for (const HelpText& help : AllTexts()) {
        const text::RichText rendered = text::RenderMarkup(text::kTextFont, 10, help.text);
        for (const text::Run& run : rendered.Runs())
            for (const char32_t character : text::ToCodePoints(run.text)) {
                const bool breaks_line = character == U'\r' || character == U'\n';
                EXPECT_TRUE(breaks_line || character >= U' ') << help.name << ": " << run.text;
                EXPECT_NE(character, U'\uFFFD') << help.name;
                EXPECT_FALSE(run.font.name == text::kSymbolFont && character < 0x80)
                    << help.name << ": " << run.text;
            }
    }
}

}  // namespace
}  // namespace tavrelo::frame
