#include "text/contrast.h"

#include <gtest/gtest.h>

namespace tavrelo::text {
namespace {

constexpr double kTolerance = 0.01;

struct Pair {
    Color text;
    Color background;
    double ratio;  // worked out by hand from the formulas of WCAG 2.1
};

TEST(Contrast, IsThatOfTheFormula) {
    const Pair pairs[] = {
        {kBlack, kWhite, 21},
        {kWhite, kWhite, 1},
        // Red alone gives 0.2126: 1.05 / 0.2626. Green 0.7152: 1.05 / 0.7652. Blue 0.0722: 1.05 / 0.1222.
        {Rgb(255, 0, 0), kWhite, 3.998},
        {Rgb(0, 255, 0), kWhite, 1.372},
        {Rgb(0, 0, 255), kWhite, 8.592},
        // The light of a channel at 128 is 0.2159: grey of 128 on black is 0.2659 / 0.05.
        {Rgb(128, 128, 128), kBlack, 5.317},
        // 0.2126 + 0.7152 * 0.2159 = 0.3670: 1.05 / 0.4170.
        {Rgb(255, 128, 0), kWhite, 2.518},
    };
    for (const Pair& pair : pairs) {
        EXPECT_NEAR(ContrastRatio(pair.text, pair.background), pair.ratio, kTolerance);
        EXPECT_EQ(ContrastRatio(pair.text, pair.background), ContrastRatio(pair.background, pair.text));
    }
}

TEST(Contrast, ReadableTextsStayAsTheyAre) {
    for (const Color color : {kBlack, Rgb(0, 0, 255), Rgb(128, 0, 0), Rgb(0, 128, 0)})
        EXPECT_EQ(ReadableOn(color, kWhite), color);
    EXPECT_EQ(ReadableOn(Rgb(255, 255, 0), kBlack), Rgb(255, 255, 0));
}

TEST(Contrast, EveryTextCanBeReadOnEveryBackground) {
    for (unsigned red = 0; red < 256; red += 51)
        for (unsigned green = 0; green < 256; green += 51)
            for (unsigned blue = 0; blue < 256; blue += 51)
                for (const Color background : {kWhite, Rgb(255, 255, 224), Rgb(226, 242, 226),
                                               Rgb(118, 118, 118), Rgb(36, 40, 45), kBlack}) {
                    const Color shown = ReadableOn(Rgb(red, green, blue), background);
                    EXPECT_GE(ContrastRatio(shown, background), kReadableContrast)
                        << std::hex << shown.rgb << " on " << background.rgb;
                    const Color line = VisibleOn(Rgb(red, green, blue), background);
                    EXPECT_GE(ContrastRatio(line, background), kVisibleContrast)
                        << std::hex << line.rgb << " on " << background.rgb;
                }
}

TEST(Contrast, ALineNeedsLessThanAText) {
    // (1.05) / (0.2140 + 0.05): the grey of 127 stands 4.0 off from white.
    const Color grey = Rgb(127, 127, 127);
    EXPECT_EQ(VisibleOn(grey, kWhite), grey);
    EXPECT_LT(Luminance(ReadableOn(grey, kWhite)), Luminance(grey));
}

TEST(Contrast, NoMoreThanNeededIsTakenFromAColour) {
    // Each is moved by one 255th at a time: the step before the last one was still too little.
    for (const Color color : {Rgb(0, 255, 255), Rgb(255, 128, 0), Rgb(255, 0, 0), Rgb(128, 128, 255)}) {
        const double ratio = ContrastRatio(ReadableOn(color, kWhite), kWhite);
        EXPECT_GE(ratio, kReadableContrast);
        EXPECT_LT(ratio, kReadableContrast + 0.1);
    }
}

TEST(Contrast, TheHueStays) {
    // Darkening keeps the proportions of the channels, so pure colours stay pure.
    const Color orange = ReadableOn(Rgb(255, 128, 0), kWhite);
    const unsigned red = orange.rgb >> 16;
    const unsigned green = (orange.rgb >> 8) & 255;
    EXPECT_NEAR(static_cast<double>(green) / red, 128.0 / 255, kTolerance);
    EXPECT_EQ(orange.rgb & 255, 0U);
    EXPECT_EQ(ReadableOn(Rgb(0, 255, 0), kWhite).rgb & 0xff00ff, 0U);
}

TEST(Contrast, DarkBackgroundsTakeLightTexts) {
    EXPECT_TRUE(IsDark(kBlack));
    EXPECT_TRUE(IsDark(Rgb(36, 40, 45)));
    EXPECT_FALSE(IsDark(kWhite));
    EXPECT_FALSE(IsDark(Rgb(255, 255, 224)));
    EXPECT_GT(Luminance(ReadableOn(Rgb(0, 0, 128), Rgb(36, 40, 45))), Luminance(Rgb(0, 0, 128)));
}

}  // namespace
}  // namespace tavrelo::text
