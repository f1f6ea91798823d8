#include "frame/tool_switch.h"

#include "frame/welcome.h"
#include "window/guard.h"

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
constexpr int kButtonWidth = 555;  // twips

constexpr text::Color kResultColors[window::kToolCount] = {text::Rgb(0, 128, 0),   text::Rgb(128, 128, 0),
                                                           text::Rgb(128, 0, 128), text::Rgb(0, 0, 192),
                                                           text::Rgb(128, 64, 0),  text::Rgb(0, 0, 128)};
// A light tint of each tool's colour behind the expression line.
constexpr text::Color kExpressionColors[window::kToolCount] = {
    text::Rgb(226, 242, 226), text::Rgb(244, 243, 214), text::Rgb(243, 228, 243),
    text::Rgb(222, 236, 250), text::Rgb(250, 235, 218), text::Rgb(228, 228, 248)};

constexpr window::Arrangement kArrangements[window::kToolCount] = {
    window::Arrangement::Calculator, window::Arrangement::Particle,   window::Arrangement::RigidBody,
    window::Arrangement::Motion,     window::Arrangement::Projectile, window::Arrangement::Kinematics};

constexpr text::Color kArgumentColor = text::Rgb(255, 255, 224);
constexpr int kHoldParkedLeft = -200;

std::size_t IndexOf(window::Tool tool) { return static_cast<std::size_t>(tool); }

/// The button under a place of the toolbar, 1 to 9, or 0.
int ButtonAt(double x) {
    const int button = x < 0 ? 0 : static_cast<int>(x / kButtonWidth) + 1;
    return button <= kButtonCount ? button : 0;
}

bool IsMotionTool(window::Tool tool) {
    return tool == window::Tool::Motion || tool == window::Tool::Projectile;
}

bool ReportsInSolveBox(window::Tool tool) { return tool == window::Tool::RigidBody || IsMotionTool(tool); }

}  // namespace

ToolSwitch::ToolSwitch(window::Form1& form, MenuBar& menu) : m_form(form), m_menu(menu) {
    m_form.Image1.OnMouseDown = [this](const window::MouseStroke& stroke) { ImageMouseDown(stroke); };
    m_form.Image1.OnMouseMove = [this](const window::MouseStroke& stroke) { ImageMouseMove(stroke); };
    m_form.ThisWindow.OnClose = [this] { m_form.End(); };
    m_form.Form2.OnClose = [this] { m_form.Form2.SetVisible(false); };
}

void ToolSwitch::SetHooks(window::Tool tool, ToolHooks hooks) {
    m_pictures[IndexOf(tool)].shows_pic1 = hooks.uses_pic1;
    m_hooks[IndexOf(tool)] = std::move(hooks);
}

void ToolSwitch::Load() {
    m_form.Image1.Canvas().Image("toolbar", 0, 0, m_form.Image1.Bounds().width, m_form.Image1.Bounds().height,
                                 0, 0);
    for (window::Picture* picture : {&m_form.picArgs, &m_form.picArgs1, &m_form.picArgs2}) {
        picture->SetBackColor(kArgumentColor);
        picture->Canvas().BackColor = kArgumentColor;
        picture->Canvas().Cls();
    }
    m_form.tabCalc.SetTabs({"Resultados", "Ayuda", "Registro"});
    m_form.tabStat.SetTabs({"Configuración", "DCL", "Resolver"});
    m_form.tabMrua.SetTabs({"Configurar tabla", "Aplicar ecuaciones", "Otros procedimentos"});
    window::Rect parked = m_form.rtbHold.Bounds();
    parked.left = kHoldParkedLeft;
    m_form.rtbHold.SetBounds(parked);
    ShowWelcome(m_form.pic.Canvas());
    m_form.publics.ShowingWelcome = true;
}

void ToolSwitch::ImageMouseDown(const window::MouseStroke& stroke) {
    const int button = stroke.button == window::MouseButton::Left ? ButtonAt(stroke.x) : 0;
    if (button == 0)
        return;
    // The switcher traps its failures and then only stops.
    window::Guard(m_form.boxes, "", [&] {
        if (button <= window::kToolCount)
            MoveMarker(button);
        SelectTool(button - 1);
    });
}

void ToolSwitch::ImageMouseMove(const window::MouseStroke& stroke) {
    const int button = ButtonAt(stroke.x);
    m_form.Image1.SetTooltip(button ? std::string(kButtons[button - 1].tooltip) : std::string());
}

void ToolSwitch::MoveMarker(int button) {
    const ToolButton& chosen = kButtons[button - 1];
    window::Rect place = m_form.linMarker.Bounds();
    place.left = m_form.Image1.Bounds().left + chosen.marker_offset;
    m_form.linMarker.SetBounds(place);
    m_form.linMarker.SetBackColor(chosen.marker_color);
}

void ToolSwitch::SelectTool(int index) {
    const window::Tool tool{static_cast<std::int16_t>(index)};
    if (tool == window::Tool::Exit) {
        m_form.End();
        return;
    }
    if (m_form.publics.ShowingWelcome) {
        m_form.pic.Canvas().Cls();
        m_form.publics.ShowingWelcome = false;
    }
    if (tool == window::Tool::Preferences) {
        m_form.Form2.SetVisible(true);
        if (m_form.OnRaise)
            m_form.OnRaise(m_form.Form2);
        return;
    }
    if (tool == window::Tool::Help)
        OpenHelp();
    else
        Enter(tool);
}

void ToolSwitch::OpenHelp() {
    m_form.fraHelp.SetVisible(true);
    if (m_form.publics.HelpTool == 0) {
        m_form.SetFocus(m_form.cmdHelpCtrl[0]);
        if (OnGeneralHelp)
            OnGeneralHelp();
        m_form.rtbHelp.SetContent({});
        return;
    }
    Enter(m_form.publics.CurrentTool);
}

void ToolSwitch::Enter(window::Tool tool) {
    if (m_form.publics.HelpTool != 0)
        KeepPictures();
    m_form.publics.CurrentTool = tool;
    m_form.publics.HelpTool = static_cast<int>(tool) + 1;
    if (OnFillTopics)
        OnFillTopics(m_form.publics.HelpTool);
    m_form.txtArgHelp.SetContent({});
    m_form.rtbCalc.SetContent({});
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
    const auto is = [tool](window::Tool other) { return tool == other; };
    m_form.Arrange(kArrangements[IndexOf(tool)]);
    m_form.picBar.SetVisible(is(window::Tool::Calculator) || is(window::Tool::Kinematics));
    m_form.picArgs.SetVisible(is(window::Tool::Calculator) || IsMotionTool(tool));
    m_form.fraExpr.SetVisible(true);
    m_form.fraCalc.SetVisible(is(window::Tool::Calculator));
    m_form.fraDirec.SetVisible(is(window::Tool::Particle));
    m_form.fraEstp.SetVisible(is(window::Tool::Particle));
    m_form.tabStat.SetVisible(is(window::Tool::RigidBody));
    m_form.fraTable.SetVisible(IsMotionTool(tool));
    m_form.tabMrua.SetVisible(IsMotionTool(tool));
    m_form.fraKinem.SetVisible(is(window::Tool::Kinematics));
    m_form.tabCalc.SetVisible(true);
    m_form.tabCalc.SetCurrent(0);
    m_form.tabCalc.SetForeColor(kResultColors[IndexOf(tool)]);
    m_form.fraExpr.SetBackColor(kExpressionColors[IndexOf(tool)]);
    m_form.rtbCalc.SetVisible(!ReportsInSolveBox(tool));
    m_form.rtbSolve.SetVisible(ReportsInSolveBox(tool));
}

void ToolSwitch::ShowPic1(bool pic1) {
    m_pictures[IndexOf(m_form.publics.CurrentTool)].shows_pic1 = pic1;
    m_form.pic.SetVisible(!pic1);
    m_form.pic1.SetVisible(pic1);
}

void ToolSwitch::KeepPictures() {
    Pictures& kept = m_pictures[IndexOf(m_form.publics.CurrentTool)];
    kept.pic = m_form.pic.Canvas().Operations();
    kept.pic1 = m_form.pic1.Canvas().Operations();
}

void ToolSwitch::BringPictures(window::Tool tool) {
    const Pictures& kept = m_pictures[IndexOf(tool)];
    m_form.pic.Canvas().Restore(kept.pic);
    m_form.pic1.Canvas().Restore(kept.pic1);
    ShowPic1(kept.shows_pic1);
}

}  // namespace tavrelo::frame
