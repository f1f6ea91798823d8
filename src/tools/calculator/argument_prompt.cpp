#include "tools/calculator/argument_prompt.h"

#include "drawing/print_markup.h"
#include "tools/calculator/catalogue.h"

namespace tavrelo::tools::calculator {
namespace {

constexpr double kPromptSize = 8;  // points
constexpr double kLeft = 6;        // pixels
constexpr double kTop = 4;         // pixels from the top of the panel
constexpr text::Color kTitleColor = text::Rgb(0, 0, 128);

void PrintLine(window::Recorder& surface, std::string_view markup, text::Color color) {
    surface.ForeColor = color;
    drawing::PrintMarkup(surface, markup, kLeft, surface.FromBottom(kTop), text::kTextFont, kPromptSize);
}

}  // namespace

void ShowArgs(window::Form1& form, int routine) {
    form.picArgs1.Canvas().Cls();
    form.picArgs2.Canvas().Cls();
    const Routine* found = FindRoutine(routine);
    if (!found)
        return;
    PrintLine(form.picArgs1.Canvas(), found->title, kTitleColor);
    PrintLine(form.picArgs2.Canvas(), found->prompt, text::kBlack);
}

}  // namespace tavrelo::tools::calculator
