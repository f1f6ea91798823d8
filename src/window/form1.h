#pragma once

#include <map>
#include <memory>
#include <span>
#include <string>
#include <string_view>
#include <utility>
#include <vector>

#include "numeric/checked.h"
#include "window/controls.h"
#include "window/host.h"
#include "window/layout.h"
#include "window/pointer.h"
#include "window/publics.h"

namespace tavrelo::window {

/// The controls "name(0)", "name(1)", ... of one array; indexes may have gaps.
template <class ControlType>
class ControlArray {
  public:
    using Item = std::pair<int, ControlType*>;
    explicit ControlArray(std::vector<Item> items) : m_items(std::move(items)) {}

    /// Fails with SubscriptRange when there is no control of that index.
    ControlType& operator[](int index) const {
        for (const auto& [key, control] : m_items)
            if (key == index)
                return *control;
        throw numeric::RuntimeFailure(numeric::FailureCode::SubscriptRange, "control array");
    }
    /// Pairs of index and control, in the order of the indexes.
    std::span<const Item> Items() const { return m_items; }
    int Count() const { return static_cast<int>(m_items.size()); }

  private:
    std::vector<Item> m_items;
};

/// The window model: every control of every tool under its name, made from the table of layout.h, plus what
/// the controls share: focus, pointer, end of the program. It knows no tool; tools take it by reference and
/// wire its events.
class Form1 {
  public:
    explicit Form1(const Host& host);
    Form1(const Form1&) = delete;
    Form1& operator=(const Form1&) = delete;

    /// The control of that name ("rtbCalc", "cmdParts(0)", "Form2"), or null.
    Control* Find(std::string_view name) const;
    /// The control of that name and kind, for the parts of the program that bind what they need once, when
    /// they are made. Fails with Internal when there is none.
    template <class ControlType>
    ControlType& Get(std::string_view name) const {
        auto* control = dynamic_cast<ControlType*>(Find(name));
        if (!control)
            FailOn(name);
        return *control;
    }
    /// All controls "name(0)", "name(1)", ..., in the order of the table; fails as Get.
    template <class ControlType>
    ControlArray<ControlType> GetArray(std::string_view name) const {
        std::vector<std::pair<int, ControlType*>> items;
        for (const auto& [index, control] : FindArray(name)) {
            items.emplace_back(index, dynamic_cast<ControlType*>(control));
            if (!items.back().second)
                FailOn(name);
        }
        if (items.empty())
            FailOn(name);
        return ControlArray<ControlType>(std::move(items));
    }
    /// All controls in reading order.
    std::span<Control* const> Controls() const { return m_order; }

    /// Gives the panels the places of an arrangement.
    void Arrange(Arrangement arrangement);

    /// The control with the focus, or null.
    Control* Focus() const { return m_focus; }
    /// The program moves the focus; nothing happens when the control cannot be used now.
    void SetFocus(Control& control);
    /// The user moved the focus; as every `User...`, no failure of a handler leaves it.
    void UserFocused(Control& control);

    /// Shape of the window's pointer, see PointerShape.
    int Pointer() const { return m_pointer; }
    void SetPointer(int shape);

    /// Unloads both windows; nothing can be done any more.
    void End();
    bool HasEnded() const { return m_ended; }
    Event OnEnd;

    /// Brings a window that is already in view to the front.
    std::function<void(Window&)> OnRaise;

    /// Told about every change of every control; set by the view.
    ChangeListener OnChange;

    Boxes& boxes;
    Clipboard& clipboard;
    Printer& printer;
    Files& files;

    /// The program's shared state.
    Publics publics;

  private:
    void MakeControl(const ControlRow& row);
    Control* MustFind(std::string_view name) const;
    [[noreturn]] static void FailOn(std::string_view name);
    std::vector<std::pair<int, Control*>> FindArray(std::string_view name) const;
    /// Makes all controls; runs before the members below are bound to them.
    bool MakeControls();
    void MoveFocus(Control& control);
    /// All option buttons of one array exclude each other.
    void LinkOptions();
    /// Gives the controls that fill a page its size.
    void FillPages();

    ControlLinks m_links;
    std::map<std::string, std::unique_ptr<Control>, std::less<>> m_controls;
    std::vector<Control*> m_order;
    Control* m_focus = nullptr;
    int m_pointer = kPointerDefault;
    bool m_ended = false;
    bool m_made = MakeControls();

  public:
    Window& ThisWindow = Get<Window>("Form1");
    Window& Form2 = Get<Window>("Form2");
    Picture& Image1 = Get<Picture>("Image1");
    Shape& linMarker = Get<Shape>("linMarker");
    Picture& pic = Get<Picture>("pic");
    Picture& pic1 = Get<Picture>("pic1");
    Picture& picBar = Get<Picture>("picBar");
    Picture& picArgs = Get<Picture>("picArgs");
    Picture& picRuts = Get<Picture>("picRuts");
    RichTextBox& rtbHold = Get<RichTextBox>("rtbHold");
    Frame& fraUnits = Get<Frame>("fraUnits");
    Frame& fraExpr = Get<Frame>("fraExpr");
    Frame& fraCalc = Get<Frame>("fraCalc");
    Frame& fraDirec = Get<Frame>("fraDirec");
    Frame& fraEstp = Get<Frame>("fraEstp");
    TabStrip& tabCalc = Get<TabStrip>("tabCalc");
    TabStrip& tabStat = Get<TabStrip>("tabStat");
    TabStrip& tabMrua = Get<TabStrip>("tabMrua");
    Frame& fraTable = Get<Frame>("fraTable");
    Frame& fraKinem = Get<Frame>("fraKinem");
    Frame& fraHelp = Get<Frame>("fraHelp");
    Picture& picArgs1 = Get<Picture>("picArgs1");
    Picture& picArgs2 = Get<Picture>("picArgs2");
    ControlArray<ComboBox> cboUnits = GetArray<ComboBox>("cboUnits");
    Label& LblFact = Get<Label>("LblFact");
    Label& lblExpr = Get<Label>("lblExpr");
    RichTextBox& rtbExpr = Get<RichTextBox>("rtbExpr");
    Label& lblEqual = Get<Label>("lblEqual");
    TextBox& txtExpr = Get<TextBox>("txtExpr");
    Picture& picOpt = Get<Picture>("picOpt");
    ControlArray<Button> cmdGrid = GetArray<Button>("cmdGrid");
    Label& lblRC = Get<Label>("lblRC");
    Button& cmdCalculate = Get<Button>("cmdCalculate");
    Grid& gd = Get<Grid>("gd");
    Picture& picClock = Get<Picture>("picClock");
    Label& lblVorF = Get<Label>("lblVorF");
    TextBox& txtVector = Get<TextBox>("txtVector");
    Label& lbltxtAngle = Get<Label>("lbltxtAngle");
    TextBox& txtAngle = Get<TextBox>("txtAngle");
    Button& cmdInc = Get<Button>("cmdInc");
    Label& lblAtan = Get<Label>("lblAtan");
    TextBox& txtAtan = Get<TextBox>("txtAtan");
    Grid& gdEqui = Get<Grid>("gdEqui");
    ControlArray<Button> cmdParts = GetArray<Button>("cmdParts");
    Button& cmdRotangle = Get<Button>("cmdRotangle");
    Label& lblExamples = Get<Label>("lblExamples");
    ControlArray<Button> cmdExampleEstp = GetArray<Button>("cmdExampleEstp");
    RichTextBox& rtbCalc = Get<RichTextBox>("rtbCalc");
    RichTextBox& rtbSolve = Get<RichTextBox>("rtbSolve");
    RichTextBox& txtArgHelp = Get<RichTextBox>("txtArgHelp");
    RichTextBox& rtbReg = Get<RichTextBox>("rtbReg");
    ControlArray<Label> lblSegm = GetArray<Label>("lblSegm");
    ControlArray<TextBox> txtSegm = GetArray<TextBox>("txtSegm");
    Label& lblVector = Get<Label>("lblVector");
    Label& lblRepeat = Get<Label>("lblRepeat");
    TextBox& txtRepeat = Get<TextBox>("txtRepeat");
    Button& cmdOK = Get<Button>("cmdOK");
    ControlArray<Button> cmdConfig = GetArray<Button>("cmdConfig");
    ControlArray<Button> cmdHelpEstcr = GetArray<Button>("cmdHelpEstcr");
    Label& lblSeps = Get<Label>("lblSeps");
    Label& lblCoords = Get<Label>("lblCoords");
    ListBox& lstSeps = Get<ListBox>("lstSeps");
    ListBox& lstCoords = Get<ListBox>("lstCoords");
    Label& lblOrigin = Get<Label>("lblOrigin");
    TextBox& txtOrigin = Get<TextBox>("txtOrigin");
    Button& cmdUpdate = Get<Button>("cmdUpdate");
    Label& lblSystems = Get<Label>("lblSystems");
    UpDown& spnColor = Get<UpDown>("spnColor");
    ListBox& lstSysts = Get<ListBox>("lstSysts");
    ControlArray<Label> lblSystem = GetArray<Label>("lblSystem");
    ControlArray<Label> lblPoints = GetArray<Label>("lblPoints");
    Label& lblLine = Get<Label>("lblLine");
    TextBox& txtPoints = Get<TextBox>("txtPoints");
    Label& lblMakeDCL = Get<Label>("lblMakeDCL");
    ControlArray<OptionButton> optDCL = GetArray<OptionButton>("optDCL");
    ControlArray<Label> lblBody = GetArray<Label>("lblBody");
    ControlArray<TextBox> txtBody = GetArray<TextBox>("txtBody");
    ControlArray<Label> lblForceAt = GetArray<Label>("lblForceAt");
    Button& cmdOK1 = Get<Button>("cmdOK1");
    Button& cmdAddForce = Get<Button>("cmdAddForce");
    Grid& gd1 = Get<Grid>("gd1");
    ControlArray<Button> cmdDCL = GetArray<Button>("cmdDCL");
    Label& lblShowDCL = Get<Label>("lblShowDCL");
    ControlArray<OptionButton> optShowDCL = GetArray<OptionButton>("optShowDCL");
    Label& lblBodies = Get<Label>("lblBodies");
    ListBox& lstDCL = Get<ListBox>("lstDCL");
    Button& cmdClearLstDCL = Get<Button>("cmdClearLstDCL");
    Label& lblRefPt = Get<Label>("lblRefPt");
    ControlArray<TextBox> txtRefPt = GetArray<TextBox>("txtRefPt");
    Label& lblSupr = Get<Label>("lblSupr");
    TextBox& txtSuprEqn = Get<TextBox>("txtSuprEqn");
    Button& cmdShowIncsEqns = Get<Button>("cmdShowIncsEqns");
    ControlArray<Button> cmdVMb = GetArray<Button>("cmdVMb");
    ControlArray<Button> cmdTable = GetArray<Button>("cmdTable");
    ControlArray<Label> lblAs = GetArray<Label>("lblAs");
    ControlArray<Button> cmdHelpTable = GetArray<Button>("cmdHelpTable");
    Picture& imgProcs = Get<Picture>("imgProcs");
    Shape& shpMrua = Get<Shape>("shpMrua");
    ComboBox& cboProcs = Get<ComboBox>("cboProcs");
    TextBox& txtProcs = Get<TextBox>("txtProcs");
    Button& cmdProcs = Get<Button>("cmdProcs");
    Picture& picAccel = Get<Picture>("picAccel");
    Grid& Gd2 = Get<Grid>("Gd2");
    Button& cmdNewMruaProbl = Get<Button>("cmdNewMruaProbl");
    Button& cmdEraseTable = Get<Button>("cmdEraseTable");
    Button& cmdSeeEqns = Get<Button>("cmdSeeEqns");
    Button& cmdEraseEqns = Get<Button>("cmdEraseEqns");
    Frame& fraRes = Get<Frame>("fraRes");
    ControlArray<TextBox> txtAccel = GetArray<TextBox>("txtAccel");
    ControlArray<Label> lblQuant = GetArray<Label>("lblQuant");
    ControlArray<Label> lblRes = GetArray<Label>("lblRes");
    ControlArray<Button> cmdPass = GetArray<Button>("cmdPass");
    Button& cmdCloseFrares = Get<Button>("cmdCloseFrares");
    ControlArray<Label> lblKinem = GetArray<Label>("lblKinem");
    ControlArray<TextBox> txtKinem = GetArray<TextBox>("txtKinem");
    ControlArray<Label> lblT0 = GetArray<Label>("lblT0");
    ControlArray<TextBox> txtT0 = GetArray<TextBox>("txtT0");
    ControlArray<Label> lblTime = GetArray<Label>("lblTime");
    ControlArray<TextBox> txtKinemt1 = GetArray<TextBox>("txtKinemt1");
    Button& cmdCalcxva = Get<Button>("cmdCalcxva");
    Button& cmdGraph = Get<Button>("cmdGraph");
    ControlArray<CheckBox> chkGraph = GetArray<CheckBox>("chkGraph");
    ControlArray<Button> cmdHelpCtrl = GetArray<Button>("cmdHelpCtrl");
    ComboBox& cboHelp = Get<ComboBox>("cboHelp");
    RichTextBox& rtbHelp = Get<RichTextBox>("rtbHelp");
    Label& lblPrint = Get<Label>("lblPrint");
    ControlArray<OptionButton> optPrint = GetArray<OptionButton>("optPrint");
    Button& cmdPrintRes = Get<Button>("cmdPrintRes");
    Label& lblCopy = Get<Label>("lblCopy");
    Button& cmdCopyToClipboard = Get<Button>("cmdCopyToClipboard");
    Label& lblNCD = Get<Label>("lblNCD");
    TextBox& txtNCD = Get<TextBox>("txtNCD");
    UpDown& UpDown1 = Get<UpDown>("UpDown1");
    Button& cmdAbout = Get<Button>("cmdAbout");
    Button& cmdCloseForm2 = Get<Button>("cmdCloseForm2");
};

}  // namespace tavrelo::window
