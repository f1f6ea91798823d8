#include "text/contrast.h"

#include <algorithm>
#include <cmath>

namespace tavrelo::text {
namespace {

constexpr unsigned kFull = 255;  // of a channel

struct Channels {
    unsigned red;
    unsigned green;
    unsigned blue;
};

Channels ChannelsOf(Color color) {
    return {(color.rgb >> 16) & kFull, (color.rgb >> 8) & kFull, color.rgb & kFull};
}

/// The light that a screen gives for a channel of the sRGB space, 0 to 1.
double LightOf(unsigned channel) {
    constexpr double kLinearEnd = 0.04045;
    const double value = static_cast<double>(channel) / kFull;
    return value <= kLinearEnd ? value / 12.92 : std::pow((value + 0.055) / 1.055, 2.4);
}

/// The colour moved towards black by `share` of 255.
Color Darker(Color color, unsigned share) {
    const auto [red, green, blue] = ChannelsOf(color);
    const unsigned kept = kFull - share;
    return Rgb(red * kept / kFull, green * kept / kFull, blue * kept / kFull);
}

/// The colour moved towards white by `share` of 255.
Color Lighter(Color color, unsigned share) {
    const auto lighter = [share](unsigned channel) { return channel + (kFull - channel) * share / kFull; };
    const auto [red, green, blue] = ChannelsOf(color);
    return Rgb(lighter(red), lighter(green), lighter(blue));
}

/// The colour, or the nearest shade of it that stands so far apart from the background.
Color Apart(Color color, Color background, double contrast) {
    if (ContrastRatio(color, background) >= contrast)
        return color;
    const auto moved = [&](unsigned share) {
        return IsDark(background) ? Lighter(color, share) : Darker(color, share);
    };
    // The contrast grows with the share, and at its end black or white stands apart.
    unsigned too_little = 0;
    unsigned enough = kFull;
    while (enough - too_little > 1) {
        const unsigned middle = (too_little + enough) / 2;
        (ContrastRatio(moved(middle), background) >= contrast ? enough : too_little) = middle;
    }
    return moved(enough);
}

}  // namespace

double Luminance(Color color) {
    const auto [red, green, blue] = ChannelsOf(color);
    return 0.2126 * LightOf(red) + 0.7152 * LightOf(green) + 0.0722 * LightOf(blue);
}

double ContrastRatio(Color a, Color b) {
    constexpr double kGlare = 0.05;  // light of the room that a screen reflects
    const auto [low, high] = std::minmax({Luminance(a), Luminance(b)});
    return (high + kGlare) / (low + kGlare);
}

bool IsDark(Color background) {
    return ContrastRatio(kBlack, background) < ContrastRatio(kWhite, background);
}

Color ReadableOn(Color text, Color background) { return Apart(text, background, kReadableContrast); }

Color VisibleOn(Color line, Color background) { return Apart(line, background, kVisibleContrast); }

}  // namespace tavrelo::text
