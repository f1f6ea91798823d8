#include "calc/argument_prompt.h"

#include "calc/catalogue.h"
#include "shell/markup.h"

namespace tavrelo::calc {
namespace {

constexpr double kPromptSize = 8;  // points
constexpr double kLeft = 6;        // pixels
constexpr double kTop = 4;         // pixels from the top of the panel
constexpr shell::Color kTitleColor = shell::Rgb(0, 0, 128);

void PrintLine(shell::Recorder& surface, std::string_view markup, shell::Color color) {
    surface.ForeColor = color;
    shell::PrintMarkup(surface, markup, kLeft, surface.FromBottom(kTop), shell::kTextFont, kPromptSize);
}

}  // namespace

void ShowArgs(shell::Form1& form, int routine) {
    form.picArgs1.Canvas().Cls();
    form.picArgs2.Canvas().Cls();
    const Routine* found = FindRoutine(routine);
    if (!found)
        return;
    PrintLine(form.picArgs1.Canvas(), found->title, kTitleColor);
    PrintLine(form.picArgs2.Canvas(), found->prompt, shell::kBlack);
}

}  // namespace tavrelo::calc
