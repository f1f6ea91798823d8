#include "frame/help_panel.h"

#include "frame/help_files.h"
#include "frame/help_topics.h"
#include "frame/writer.h"
#include "text/utf8.h"
#include "window/guard.h"

namespace tavrelo::frame {
namespace {

// Indexes of cmdHelpCtrl.
enum HelpButton { kGeneralPage, kFontSize, kEnlarge, kClose };

constexpr std::string_view kSmallSize = "8";
constexpr std::string_view kLargeSize = "10";
constexpr std::string_view kSmallSizeTip = "Cambiar el tamaño de fuente a 10 puntos";
constexpr std::string_view kLargeSizeTip = "Cambiar el tamaño de fuente a 8 puntos";
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
    m_form.cboHelp.OnClick = [this] {
        window::Guard(m_form.boxes, "No pude cargar el archivo de ayuda.", [this] { PickTopic(); });
    };
    for (const auto& [index, button] : m_form.cmdHelpCtrl.Items())
        button->OnClick = [this, index = index] {
            window::Guard(m_form.boxes, text::kCommandFailed, [&] { Press(index); });
        };
}

void HelpPanel::FillHelpCbo(int help_tool) {
    m_help_tool = help_tool;
    std::vector<std::string> titles;
    for (const HelpTopic& topic : HelpTopics(help_tool))
        titles.emplace_back(topic.title);
    m_form.cboHelp.SetItems(std::move(titles));
    m_form.cboHelp.SetIndex(0);
    // A closed panel loads nothing: a program without help files would else open a box at every tool.
    if (m_form.fraHelp.IsShown())
        PickTopic();
}

void HelpPanel::PickTopic() {
    const auto topics = HelpTopics(m_help_tool);
    const int row = m_form.cboHelp.Index();
    if (row < 0 || row >= static_cast<int>(topics.size()))
        return;
    const HelpTopic& topic = topics[static_cast<std::size_t>(row)];
    Show({std::string(topic.file), std::string(topic.tag)});
}

void HelpPanel::ShowGeneralPage() { Show({"\\hilfe1.txt", "GRAL0"}); }

void HelpPanel::Show(const Page& page) {
    const double size = text::ToNumber(m_form.cmdHelpCtrl[kFontSize].Caption());
    if (LoadTopic(m_form, m_form.rtbHelp, text::kTextFont, size, page.file, page.tag))
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
            m_form.fraHelp.SetVisible(false);
    }
}

void HelpPanel::ToggleFontSize() {
    window::Button& button = m_form.cmdHelpCtrl[kFontSize];
    const bool enlarge = button.Caption() == kSmallSize;
    button.SetCaption(std::string(enlarge ? kLargeSize : kSmallSize));
    button.SetTooltip(std::string(enlarge ? kLargeSizeTip : kSmallSizeTip));
    if (m_page && !m_form.rtbHelp.Text().empty())
        Show(*m_page);
}

void HelpPanel::ToggleHeight() {
    window::Button& button = m_form.cmdHelpCtrl[kEnlarge];
    const bool enlarge = button.Caption() == kEnlargeCaption;
    button.SetCaption(std::string(enlarge ? kReduceCaption : kEnlargeCaption));
    SetHeight(m_form.fraHelp, enlarge ? kPanelLargeHeight : kPanelHeight);
    SetHeight(m_form.rtbHelp, enlarge ? kBoxLargeHeight : kBoxHeight);
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
    WriteLines(m_form, m_form.txtArgHelp, {text::ReplaceAll(text, "\n", "\r\n")});
    m_form.tabCalc.SetCurrent(kHelpTab);
}

void HelpPanel::ShowShortTopic(std::string_view file, std::string_view tag) {
    if (LoadTopic(m_form, m_form.txtArgHelp, text::kTextFont, kShortHelpFontSize, file, tag))
        m_form.tabCalc.SetCurrent(kHelpTab);
}

}  // namespace tavrelo::frame
