#include "frame/help_panel.h"

#include "frame/help_files.h"
#include "frame/help_topics.h"
#include "frame/writer.h"
#include "text/utf8.h"
#include "window/guarded.h"

namespace tavrelo::frame {
namespace {

// Indexes of cmdHelpCtrl.
enum HelpButton { kGeneralPage, kFontSize, kEnlarge, kClose };

/// A size of print, and what its button says while it is in use.
struct PrintSize {
    double points;
    std::string_view caption;
    std::string_view tooltip;
};
constexpr PrintSize kPrintSizes[] = {
    {8, "8", "Cambiar el tamaño de fuente a 10 puntos"},
    {10, "10", "Cambiar el tamaño de fuente a 8 puntos"},
};
constexpr std::string_view kEnlargeCaption = "▼";
constexpr std::string_view kReduceCaption = "▲";
constexpr int kPanelHeight = 385;  // pixels
constexpr int kPanelLargeHeight = 573;
constexpr int kBoxHeight = 313;
constexpr int kBoxLargeHeight = 501;
constexpr int kHelpTab = 1;
constexpr std::string_view kRoutineTextEnd = "\n---";

void SetHeight(window::Control& control, int height) {
    window::Rect bounds = control.Bounds();
    bounds.height = height;
    control.SetBounds(bounds);
}

}  // namespace

HelpPanel::HelpPanel(window::Form1& form) : m_form(form) {
    window::OnClick(
        form, m_controls.cboHelp, [this] { PickTopic(); }, "No pude cargar el archivo de ayuda.");
    window::OnClick(form, m_controls.cmdHelpCtrl, [this](int index) { Press(index); });
}

void HelpPanel::FillHelpCbo(int help_tool) {
    m_help_tool = help_tool;
    std::vector<std::string> titles;
    for (const HelpTopic& topic : HelpTopics(help_tool))
        titles.emplace_back(topic.title);
    m_controls.cboHelp.SetItems(std::move(titles));
    m_controls.cboHelp.SetIndex(0);
    // A closed panel loads nothing: a program without help files would else open a box at every tool.
    if (m_controls.fraHelp.IsShown())
        PickTopic();
}

void HelpPanel::PickTopic() {
    const auto topics = HelpTopics(m_help_tool);
    const int row = m_controls.cboHelp.Index();
    if (row < 0 || row >= static_cast<int>(topics.size()))
        return;
    const HelpTopic& topic = topics[static_cast<std::size_t>(row)];
    Show({std::string(topic.file), std::string(topic.tag)});
}

void HelpPanel::ShowGeneralPage() { Show({"\\hilfe1.txt", "GRAL0"}); }

void HelpPanel::Show(const Page& page) {
    if (LoadTopic(m_form, m_controls.rtbHelp, text::kTextFont, kPrintSizes[m_is_large_print].points,
                  page.file, page.tag))
        m_page = page;
}

void HelpPanel::Press(int index) {
    switch (index) {
        case kGeneralPage:
            return ShowGeneralPage();
        case kFontSize:
            return ToggleFontSize();
        case kEnlarge:
            return ToggleHeight();
        default:
            m_controls.fraHelp.SetVisible(false);
    }
}

void HelpPanel::ToggleFontSize() {
    m_is_large_print = !m_is_large_print;
    const PrintSize& size = kPrintSizes[m_is_large_print];
    window::Button& button = m_controls.cmdHelpCtrl[kFontSize];
    button.SetCaption(std::string(size.caption));
    button.SetTooltip(std::string(size.tooltip));
    if (m_page && !m_controls.rtbHelp.Text().empty())
        Show(*m_page);
}

void HelpPanel::ToggleHeight() {
    m_is_high = !m_is_high;
    m_controls.cmdHelpCtrl[kEnlarge].SetCaption(std::string(m_is_high ? kReduceCaption : kEnlargeCaption));
    SetHeight(m_controls.fraHelp, m_is_high ? kPanelLargeHeight : kPanelHeight);
    SetHeight(m_controls.rtbHelp, m_is_high ? kBoxLargeHeight : kBoxHeight);
}

void HelpPanel::LoadCalcHelp() {
    m_arg_help.clear();
    std::string text;
    try {
        text = text::ReplaceAll(ReadTextFile(m_form.files, "\\Argtext.txt"), "\r\n", "\n");
    } catch (const numeric::RuntimeFailure&) {
        return;  // the program runs without its help files
    }
    std::size_t start = 0;
    for (std::size_t end = text.find(kRoutineTextEnd); end != std::string::npos;
         end = text.find(kRoutineTextEnd, start)) {
        m_arg_help.push_back(text.substr(start, end - start));
        start = end + kRoutineTextEnd.size();
        if (start < text.size() && text[start] == '\n')
            ++start;
    }
    m_arg_help.push_back(text.substr(start));
}

void HelpPanel::ShowArgHelp(int index) {
    if (index < 0 || index >= static_cast<int>(m_arg_help.size()))
        return;
    const std::string& text = m_arg_help[static_cast<std::size_t>(index)];
    WriteLines(m_form, m_controls.txtArgHelp, {text::ReplaceAll(text, "\n", "\r\n")});
    m_controls.tabCalc.SetCurrent(kHelpTab);
}

void HelpPanel::ShowShortTopic(std::string_view file, std::string_view tag) {
    if (LoadTopic(m_form, m_controls.txtArgHelp, text::kTextFont, kShortHelpFontSize, file, tag))
        m_controls.tabCalc.SetCurrent(kHelpTab);
}

}  // namespace tavrelo::frame
