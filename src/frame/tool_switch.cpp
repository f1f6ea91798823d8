#include "frame/tool_switch.h"

#include <algorithm>
#include <initializer_list>

#include "frame/welcome.h"
#include "window/guarded.h"

namespace tavrelo::frame {
namespace {

struct ToolButton {
    std::string_view tooltip;
    int marker_offset;  // pixels from the left edge of the toolbar
    text::Color marker_color;
};

constexpr ToolButton kButtons[] = {
    {"Calculadora científica", 0, text::Rgb(0, 255, 0)},
    {"Estática de la partícula", 36, text::Rgb(255, 255, 0)},
    {"Estática del cuerpo rígido", 73, text::Rgb(255, 0, 255)},
    {"Movimiento rectilíneo uniformemente acelerado", 110, text::Rgb(0, 255, 255)},
    {"Tiro parabólico", 147, text::Rgb(255, 128, 0)},
    {"Cinemática plana general", 184, text::Rgb(128, 128, 255)},
    {"Preferencias e impresión", 0, text::kBlack},
    {"Ayuda contextual", 0, text::kBlack},
    {"Salir del programa", 0, text::kBlack},
};
constexpr int kButtonCount = static_cast<int>(std::size(kButtons));
// Buttons from 1.
constexpr int kPreferencesButton = 7;
constexpr int kHelpButton = 8;
constexpr int kButtonWidth = 555;  // twips
constexpr int kButtonPixels = kButtonWidth / window::kTwipsPerPixel;

/// What the window looks like around a tool.
struct ToolLook {
    window::Arrangement arrangement;
    text::Color results;     // of the strip with the results
    text::Color expression;  // a light tint of the tool's colour behind the expression line
    bool reports_in_solve_box;
};
constexpr ToolLook kLooks[window::kToolCount] = {
    {window::Arrangement::Calculator, text::Rgb(0, 128, 0), text::Rgb(226, 242, 226), false},
    {window::Arrangement::Particle, text::Rgb(128, 128, 0), text::Rgb(244, 243, 214), false},
    {window::Arrangement::RigidBody, text::Rgb(128, 0, 128), text::Rgb(243, 228, 243), true},
    {window::Arrangement::Motion, text::Rgb(0, 0, 192), text::Rgb(222, 236, 250), true},
    {window::Arrangement::Projectile, text::Rgb(128, 64, 0), text::Rgb(250, 235, 218), true},
    {window::Arrangement::Kinematics, text::Rgb(0, 0, 128), text::Rgb(228, 228, 248), false},
};

constexpr std::string_view kQuestionMark = "?";  // the buttons that tell the short help of their panel

constexpr text::Color kArgumentColor = text::Rgb(255, 255, 224);
constexpr int kHoldParkedLeft = -200;

std::size_t IndexOf(window::Tool tool) { return static_cast<std::size_t>(tool); }

/// The button under a place of the toolbar, 1 to 9, or 0.
int ButtonAt(double x) { return window::CellAt(x, kButtonWidth, kButtonCount) + 1; }

}  // namespace

ToolSwitch::ToolSwitch(window::Form1& form, MenuBar& menu) : m_form(form), m_menu(menu) {
    // The switcher traps its failures and then only stops.
    window::On(
        form, m_controls.Image1.OnMouseDown,
        [this](const window::MouseStroke& stroke) { ImageMouseDown(stroke); }, "");
    window::On(form, m_controls.Image1.OnMouseMove,
               [this](const window::MouseStroke& stroke) { ImageMouseMove(stroke); });
    m_controls.Image1.ListCells = [this] { return ToolbarCells(); };
    window::On(form, m_controls.ThisWindow.OnClose, [this] { m_form.End(); });
    AddShortcuts();
}

void ToolSwitch::AddShortcuts() {
    using window::Key;
    using window::KeyStroke;
    const auto add = [this](KeyStroke stroke, int button) {
        m_form.shortcuts.push_back({stroke, [this, button] { PressButton(button); }});
    };
    // Leaving the program takes a deliberate press: the last button has no key.
    for (int button = 1; button <= kHelpButton; ++button)
        add({.character = U'0' + static_cast<char32_t>(button), .alt = true}, button);
    add({.character = U'p', .ctrl = true}, kPreferencesButton);
    add({.key = Key::F1}, kHelpButton);
    m_form.shortcuts.push_back({{.key = Key::F1, .shift = true}, [this] { PressQuestionMark(); }});
}

void ToolSwitch::PressButton(int button) {
    m_controls.Image1.UserGoToCell(button - 1);
    m_controls.Image1.UserChooseCell({});
}

void ToolSwitch::PressQuestionMark() {
    for (window::Control* control : m_form.Controls()) {
        auto* button = dynamic_cast<window::Button*>(control);
        if (button && button->Caption() == kQuestionMark && button->IsUsable())
            return button->UserClick();
    }
}

void ToolSwitch::SetHooks(window::Tool tool, ToolHooks hooks) {
    Pictures& pictures = m_pictures[IndexOf(tool)];
    pictures.shows_pic1 = hooks.uses_pic1;
    (hooks.uses_pic1 ? pictures.pic1 : pictures.pic).invitation = hooks.invitation;
    m_hooks[IndexOf(tool)] = std::move(hooks);
}

void ToolSwitch::Load() {
    m_controls.Image1.Canvas().Image("toolbar", 0, 0, m_controls.Image1.Bounds().width,
                                     m_controls.Image1.Bounds().height, 0, 0);
    for (window::Picture* picture : {&m_controls.picArgs, &m_controls.picArgs1, &m_controls.picArgs2}) {
        picture->SetBackColor(kArgumentColor);
        picture->Canvas().BackColor = kArgumentColor;
        picture->Canvas().Cls();
    }
    m_controls.tabCalc.SetTabs({"Resultados", "Ayuda", "Registro"});
    m_controls.tabStat.SetTabs({"Configuración", "DCL", "Resolver"});
    m_controls.tabMrua.SetTabs({"Configurar tabla", "Aplicar ecuaciones", "Otros procedimentos"});
    window::Rect parked = m_controls.rtbHold.Bounds();
    parked.left = kHoldParkedLeft;
    m_controls.rtbHold.SetBounds(parked);
    ShowWelcome(m_controls.pic.Canvas());
    m_form.publics.ShowingWelcome = true;
}

void ToolSwitch::ImageMouseDown(const window::MouseStroke& stroke) {
    const int button = stroke.button == window::MouseButton::Left ? ButtonAt(stroke.x) : 0;
    if (button == 0)
        return;
    if (button <= window::kToolCount)
        MoveMarker(button);
    SelectTool(button - 1);
}

void ToolSwitch::ImageMouseMove(const window::MouseStroke& stroke) {
    const int button = ButtonAt(stroke.x);
    m_controls.Image1.SetTooltip(button ? std::string(kButtons[button - 1].tooltip) : std::string());
}

std::vector<window::PictureCell> ToolSwitch::ToolbarCells() const {
    std::vector<window::PictureCell> cells;
    for (int button = 1; button <= kButtonCount; ++button) {
        const bool is_tool = button <= window::kToolCount;
        cells.push_back(
            {.name = std::string(kButtons[button - 1].tooltip),
             .bounds = {(button - 1) * kButtonPixels, 0, kButtonPixels, m_controls.Image1.Bounds().height},
             .role = is_tool ? window::CellRole::Choice : window::CellRole::Button,
             .checked = button == m_form.publics.HelpTool});
    }
    return cells;
}

void ToolSwitch::MoveMarker(int button) {
    const ToolButton& chosen = kButtons[button - 1];
    window::Rect place = m_controls.linMarker.Bounds();
    place.left = m_controls.Image1.Bounds().left + chosen.marker_offset;
    m_controls.linMarker.SetBounds(place);
    m_controls.linMarker.SetBackColor(chosen.marker_color);
}

void ToolSwitch::SelectTool(int index) {
    const window::Tool tool{static_cast<std::int16_t>(index)};
    if (tool == window::Tool::Exit) {
        m_form.End();
        return;
    }
    if (m_form.publics.ShowingWelcome) {
        m_controls.pic.Canvas().Cls();
        m_form.publics.ShowingWelcome = false;
    }
    if (tool == window::Tool::Preferences) {
        m_controls.Form2.SetVisible(true);
        if (m_form.OnRaise)
            m_form.OnRaise(m_controls.Form2);
        return;
    }
    if (tool == window::Tool::Help)
        OpenHelp();
    else
        Enter(tool);
}

void ToolSwitch::OpenHelp() {
    m_controls.fraHelp.SetVisible(true);
    if (m_form.publics.HelpTool == 0) {
        m_form.SetFocus(m_controls.cmdHelpCtrl[0]);
        if (OnGeneralHelp)
            OnGeneralHelp();
        m_controls.rtbHelp.SetContent({});
        return;
    }
    Enter(m_form.publics.CurrentTool);
}

void ToolSwitch::Enter(window::Tool tool) {
    if (m_form.publics.HelpTool != 0)
        KeepPictures();
    m_form.publics.CurrentTool = tool;
    m_form.publics.HelpTool = static_cast<int>(tool) + 1;
    m_controls.ThisWindow.SetSubtitle(std::string(kButtons[IndexOf(tool)].tooltip));
    if (OnFillTopics)
        OnFillTopics(m_form.publics.HelpTool);
    m_controls.txtArgHelp.SetContent({});
    m_controls.rtbCalc.SetContent({});
    m_form.SetPointer(window::kPointerDefault);
    ShowPanels(tool);
    BringPictures(tool);
    if (tool == window::Tool::Calculator)
        m_menu.EnterCalculator();
    if (tool == window::Tool::Kinematics)
        m_menu.EnterKinematics();

    Pictures& pictures = m_pictures[IndexOf(tool)];
    const ToolHooks& hooks = m_hooks[IndexOf(tool)];
    if (!pictures.entered && hooks.on_first_entry)
        hooks.on_first_entry();
    pictures.entered = true;
    if (hooks.on_entry)
        hooks.on_entry();
}

void ToolSwitch::ShowPanels(window::Tool tool) {
    using enum window::Tool;
    const struct {
        window::Control& panel;
        std::initializer_list<window::Tool> tools;
    } kPanels[] = {
        {m_controls.picBar, {Calculator, Kinematics}},
        {m_controls.picArgs, {Calculator, Motion, Projectile}},
        {m_controls.fraCalc, {Calculator}},
        {m_controls.fraDirec, {Particle}},
        {m_controls.fraEstp, {Particle}},
        {m_controls.tabStat, {RigidBody}},
        {m_controls.fraTable, {Motion, Projectile}},
        {m_controls.tabMrua, {Motion, Projectile}},
        {m_controls.fraKinem, {Kinematics}},
    };
    const ToolLook& look = kLooks[IndexOf(tool)];
    m_form.Arrange(look.arrangement);
    for (const auto& [panel, tools] : kPanels)
        panel.SetVisible(std::ranges::find(tools, tool) != tools.end());
    // A tool that shows one of these at a time hides the other.
    m_controls.picArgs1.SetVisible(true);
    m_controls.picArgs2.SetVisible(true);
    m_controls.fraExpr.SetVisible(true);
    m_controls.fraExpr.SetBackColor(look.expression);
    m_controls.tabCalc.SetVisible(true);
    m_controls.tabCalc.SetCurrent(0);
    m_controls.tabCalc.SetForeColor(look.results);
    m_controls.rtbCalc.SetVisible(!look.reports_in_solve_box);
    m_controls.rtbSolve.SetVisible(look.reports_in_solve_box);
}

void ToolSwitch::ShowPic1(bool pic1) {
    m_pictures[IndexOf(m_form.publics.CurrentTool)].shows_pic1 = pic1;
    m_controls.pic.SetVisible(!pic1);
    m_controls.pic1.SetVisible(pic1);
}

void ToolSwitch::KeepPictures() {
    Pictures& kept = m_pictures[IndexOf(m_form.publics.CurrentTool)];
    kept.pic = m_controls.pic.Canvas().Kept();
    kept.pic1 = m_controls.pic1.Canvas().Kept();
}

void ToolSwitch::BringPictures(window::Tool tool) {
    const Pictures& kept = m_pictures[IndexOf(tool)];
    m_controls.pic.Canvas().Restore(kept.pic);
    m_controls.pic1.Canvas().Restore(kept.pic1);
    ShowPic1(kept.shows_pic1);
}

}  // namespace tavrelo::frame
