#include "shell/tool_switch.h"

#include "shell/guard.h"
#include "shell/welcome.h"

namespace tavrelo::shell {
namespace {

struct ToolButton {
    std::string_view tooltip;
    int marker_offset;  // pixels from the left edge of the toolbar
    Color marker_color;
};

constexpr ToolButton kButtons[] = {
    {"Calculadora científica", 0, Rgb(0, 255, 0)},
    {"Estática de la partícula", 36, Rgb(255, 255, 0)},
    {"Estática del cuerpo rígido", 73, Rgb(255, 0, 255)},
    {"Movimiento rectilíneo uniformemente acelerado", 110, Rgb(0, 255, 255)},
    {"Tiro parabólico", 147, Rgb(255, 128, 0)},
    {"Cinemática plana general", 184, Rgb(128, 128, 255)},
    {"Preferencias e impresión", 0, kBlack},
    {"Ayuda contextual", 0, kBlack},
    {"Salir del programa", 0, kBlack},
};
constexpr int kButtonCount = static_cast<int>(std::size(kButtons));
constexpr int kButtonWidth = 555;  // twips

constexpr Color kResultColors[kToolCount] = {Rgb(0, 128, 0), Rgb(128, 128, 0), Rgb(128, 0, 128),
                                             Rgb(0, 0, 192), Rgb(128, 64, 0),  Rgb(0, 0, 128)};
// A light tint of each tool's colour behind the expression line.
constexpr Color kExpressionColors[kToolCount] = {Rgb(226, 242, 226), Rgb(244, 243, 214), Rgb(243, 228, 243),
                                                 Rgb(222, 236, 250), Rgb(250, 235, 218), Rgb(228, 228, 248)};

constexpr Arrangement kArrangements[kToolCount] = {Arrangement::Calculator, Arrangement::Particle,
                                                   Arrangement::RigidBody,  Arrangement::Motion,
                                                   Arrangement::Projectile, Arrangement::Kinematics};

constexpr Color kArgumentColor = Rgb(255, 255, 224);
constexpr int kHoldParkedLeft = -200;

std::size_t IndexOf(Tool tool) { return static_cast<std::size_t>(tool); }

/// The button under a place of the toolbar, 1 to 9, or 0.
int ButtonAt(double x) {
    const int button = x < 0 ? 0 : static_cast<int>(x / kButtonWidth) + 1;
    return button <= kButtonCount ? button : 0;
}

bool IsMotionTool(Tool tool) { return tool == Tool::Motion || tool == Tool::Projectile; }

bool ReportsInSolveBox(Tool tool) { return tool == Tool::RigidBody || IsMotionTool(tool); }

}  // namespace

ToolSwitch::ToolSwitch(Form1& form, MenuBar& menu) : m_form(form), m_menu(menu) {
    m_form.Image1.OnMouseDown = [this](const MouseStroke& stroke) { ImageMouseDown(stroke); };
    m_form.Image1.OnMouseMove = [this](const MouseStroke& stroke) { ImageMouseMove(stroke); };
    m_form.ThisWindow.OnClose = [this] { m_form.End(); };
    m_form.Form2.OnClose = [this] { m_form.Form2.SetVisible(false); };
}

void ToolSwitch::SetHooks(Tool tool, ToolHooks hooks) {
    m_pictures[IndexOf(tool)].shows_pic1 = hooks.uses_pic1;
    m_hooks[IndexOf(tool)] = std::move(hooks);
}

void ToolSwitch::Load() {
    m_form.Image1.Canvas().Image("toolbar", 0, 0, m_form.Image1.Bounds().width, m_form.Image1.Bounds().height,
                                 0, 0);
    for (Picture* picture : {&m_form.picArgs, &m_form.picArgs1, &m_form.picArgs2}) {
        picture->SetBackColor(kArgumentColor);
        picture->Canvas().BackColor = kArgumentColor;
        picture->Canvas().Cls();
    }
    m_form.tabCalc.SetTabs({"Resultados", "Ayuda", "Registro"});
    m_form.tabStat.SetTabs({"Configuración", "DCL", "Resolver"});
    m_form.tabMrua.SetTabs({"Configurar tabla", "Aplicar ecuaciones", "Otros procedimentos"});
    Rect parked = m_form.rtbHold.Bounds();
    parked.left = kHoldParkedLeft;
    m_form.rtbHold.SetBounds(parked);
    ShowWelcome(m_form.pic.Canvas());
    m_form.publics.ShowingWelcome = true;
}

void ToolSwitch::ImageMouseDown(const MouseStroke& stroke) {
    const int button = stroke.button == MouseButton::Left ? ButtonAt(stroke.x) : 0;
    if (button == 0)
        return;
    // The switcher traps its failures and then only stops.
    Guard(m_form.boxes, "", [&] {
        if (button <= kToolCount)
            MoveMarker(button);
        SelectTool(button - 1);
    });
}

void ToolSwitch::ImageMouseMove(const MouseStroke& stroke) {
    const int button = ButtonAt(stroke.x);
    m_form.Image1.SetTooltip(button ? std::string(kButtons[button - 1].tooltip) : std::string());
}

void ToolSwitch::MoveMarker(int button) {
    const ToolButton& chosen = kButtons[button - 1];
    Rect place = m_form.linMarker.Bounds();
    place.left = m_form.Image1.Bounds().left + chosen.marker_offset;
    m_form.linMarker.SetBounds(place);
    m_form.linMarker.SetBackColor(chosen.marker_color);
}

void ToolSwitch::SelectTool(int index) {
    const Tool tool{static_cast<std::int16_t>(index)};
    if (tool == Tool::Exit) {
        m_form.End();
        return;
    }
    if (m_form.publics.ShowingWelcome) {
        m_form.pic.Canvas().Cls();
        m_form.publics.ShowingWelcome = false;
    }
    if (tool == Tool::Preferences) {
        m_form.Form2.SetVisible(true);
        if (m_form.OnRaise)
            m_form.OnRaise(m_form.Form2);
        return;
    }
    if (tool == Tool::Help)
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

void ToolSwitch::Enter(Tool tool) {
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
    if (tool == Tool::Calculator)
        m_menu.EnterCalculator();
    if (tool == Tool::Kinematics)
        m_menu.EnterKinematics();

    Pictures& pictures = m_pictures[IndexOf(tool)];
    const ToolHooks& hooks = m_hooks[IndexOf(tool)];
    if (!pictures.entered && hooks.on_first_entry)
        hooks.on_first_entry();
    pictures.entered = true;
    if (hooks.on_entry)
        hooks.on_entry();
}

void ToolSwitch::ShowPanels(Tool tool) {
    const auto is = [tool](Tool other) { return tool == other; };
    m_form.Arrange(kArrangements[IndexOf(tool)]);
    m_form.picBar.SetVisible(is(Tool::Calculator) || is(Tool::Kinematics));
    m_form.picArgs.SetVisible(is(Tool::Calculator) || IsMotionTool(tool));
    m_form.fraExpr.SetVisible(true);
    m_form.fraCalc.SetVisible(is(Tool::Calculator));
    m_form.fraDirec.SetVisible(is(Tool::Particle));
    m_form.fraEstp.SetVisible(is(Tool::Particle));
    m_form.tabStat.SetVisible(is(Tool::RigidBody));
    m_form.fraTable.SetVisible(IsMotionTool(tool));
    m_form.tabMrua.SetVisible(IsMotionTool(tool));
    m_form.fraKinem.SetVisible(is(Tool::Kinematics));
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

void ToolSwitch::BringPictures(Tool tool) {
    const Pictures& kept = m_pictures[IndexOf(tool)];
    m_form.pic.Canvas().Restore(kept.pic);
    m_form.pic1.Canvas().Restore(kept.pic1);
    ShowPic1(kept.shows_pic1);
}

}  // namespace tavrelo::shell
