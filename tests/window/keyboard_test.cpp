#include <QAccessible>
#include <QMessageBox>
#include <algorithm>
#include <set>

#include "qt/mnemonics.h"
#include "test_window.h"
#include "tests.h"

namespace tavrelo::window_test {
namespace {

/// A window in which only keys are struck, each where the focus is.
class KeyboardWindow : public TestWindow {
  public:
    /// A box that nobody expects is told and closed, so that no test waits for ever.
    KeyboardWindow() {
        QObject::connect(&m_watch, &QTimer::timeout, &m_watch, [this] {
            auto* box = qobject_cast<QMessageBox*>(QApplication::activeModalWidget());
            if (!box)
                return;
            boxes << box->text();
            qWarning() << box->text();
            box->reject();
        });
        m_watch.start(5);
    }
    QStringList boxes;

    void Strike(Qt::Key key, Qt::KeyboardModifiers modifiers = {}) {
        QTest::keyClick(QApplication::focusWidget(), key, modifiers);
        QCoreApplication::processEvents();
    }
    void StrikeOften(Qt::Key key, int times) {
        for (int k = 0; k < times; ++k)
            Strike(key);
    }
    void Type(const char* text) {
        QTest::keyClicks(QApplication::focusWidget(), QString::fromUtf8(text));
        QCoreApplication::processEvents();
    }
    void Enter(const char* text) {
        Type(text);
        Strike(Qt::Key_Return);
    }
    /// By Tab to a control; false when it does not come.
    bool TabTo(const char* name) {
        constexpr int kMostStops = 80;
        for (int stop = 0; stop < kMostStops; ++stop) {
            if (FocusName() == name)
                return true;
            Strike(Qt::Key_Tab);
        }
        return false;
    }
    bool TabTo(const char* name, const char* text) {
        const bool found = TabTo(name);
        if (found)
            Type(text);
        return found;
    }
    bool PressByKey(const char* name) {
        const bool found = TabTo(name);
        if (found)
            Strike(Qt::Key_Space);
        return found;
    }
    /// To a cell of the picture that has the focus, by arrows, and chooses it.
    std::string CurrentCellName(const char* picture) {
        const auto& model = Form().Get<window::Picture>(picture);
        const auto cells = model.Cells();
        const int current = model.CurrentCell(cells);
        return current == window::kNoCell ? std::string() : cells[static_cast<std::size_t>(current)].name;
    }
    std::string Report(const char* box) { return Form().Get<window::RichTextBox>(box).Text(); }
    std::string Global(const char* name) { return program.GlobalValue(name).value_or(""); }

  private:
    QTimer m_watch;
};

bool Holds(const std::string& report, const char* text) { return report.find(text) != std::string::npos; }

}  // namespace

void KeyboardTest::RestsOnTheToolbarAtTheStart() {
    KeyboardWindow window;
    QCOMPARE(QApplication::focusWidget(), &window.Widget("Image1"));
    QCOMPARE(window.FocusName(), std::string());
    window.Strike(Qt::Key_Right);
    QCOMPARE(window.CurrentCellName("Image1"), std::string("Estática de la partícula"));
    QCOMPARE(window.FocusName(), std::string("Image1"));
    window.Strike(Qt::Key_Return);
    QCOMPARE(window.Global("HelpTool"), std::string("2"));
    QCOMPARE(window.FocusName(), std::string("txtVector"));
}

void KeyboardTest::MovesInsideTheToolbar() {
    KeyboardWindow window;
    window.Strike(Qt::Key_End);
    QCOMPARE(window.CurrentCellName("Image1"), std::string("Salir del programa"));
    window.Strike(Qt::Key_Right);
    QCOMPARE(window.CurrentCellName("Image1"), std::string("Salir del programa"));
    window.Strike(Qt::Key_Home);
    QCOMPARE(window.CurrentCellName("Image1"), std::string("Calculadora científica"));
    window.Strike(Qt::Key_End);
    window.Strike(Qt::Key_Space);
    QVERIFY(window.Form().HasEnded());
}

void KeyboardTest::AltAndANumberPressTheToolbar() {
    KeyboardWindow window;
    for (int tool = 1; tool <= 6; ++tool) {
        window.Strike(static_cast<Qt::Key>(Qt::Key_0 + tool), Qt::AltModifier);
        QCOMPARE(window.Global("HelpTool"), std::to_string(tool));
    }
    window.Strike(Qt::Key_9, Qt::AltModifier);
    QVERIFY(!window.Form().HasEnded());
    QVERIFY(!window.Form().Find("fraHelp")->IsShown());
    window.Strike(Qt::Key_F1);
    QVERIFY(window.Form().Find("fraHelp")->IsShown());
    QVERIFY(!window.Form().Find("Form2")->IsShown());
    window.Strike(Qt::Key_P, Qt::ControlModifier);
    QVERIFY(window.Form().Find("Form2")->IsShown());
}

void KeyboardTest::DialogTakesTheKeysAndGivesThemBack() {
    KeyboardWindow window;
    window.Strike(Qt::Key_2, Qt::AltModifier);
    window.Strike(Qt::Key_7, Qt::AltModifier);
    QApplication::setActiveWindow(window.Widget("cmdAbout").window());
    QCoreApplication::processEvents();
    QCOMPARE(QApplication::focusWidget(), &window.Widget("optPrint(0)"));
    QCOMPARE(window.FocusName(), std::string("txtVector"));
    window.Strike(Qt::Key_Space);
    QVERIFY(window.Form().Get<window::OptionButton>("optPrint(0)").Checked());
    QVERIFY(window.TabTo("cmdCloseForm2"));
    window.Strike(Qt::Key_Space);
    QApplication::setActiveWindow(&window.view.Frame());
    QCoreApplication::processEvents();
    QVERIFY(!window.Form().Find("Form2")->IsShown());
    QCOMPARE(QApplication::focusWidget(), &window.Widget("txtVector"));
}

void KeyboardTest::HelpClosesByEscape() {
    KeyboardWindow window;
    window.Strike(Qt::Key_2, Qt::AltModifier);
    window.Strike(Qt::Key_F1);
    while (window.FocusName() != "rtbHelp")
        window.Strike(Qt::Key_Backtab, Qt::ShiftModifier);
    window.Strike(Qt::Key_Escape);
    QVERIFY(!window.Form().Find("fraHelp")->IsShown());
    // The keys are back where they were.
    QCOMPARE(QApplication::focusWidget(), &window.Widget("txtVector"));
}

void KeyboardTest::EscapeLeavesAGroup() {
    KeyboardWindow window;
    window.Strike(Qt::Key_2, Qt::AltModifier);
    QVERIFY(window.TabTo("txtAtan"));
    QVERIFY(window.TabTo("Image1"));
    window.Strike(Qt::Key_Escape);
    QVERIFY(window.FocusName() != "Image1");
    QVERIFY(!window.FocusName().empty());
}

void KeyboardTest::KeysRestNearAControlThatIsDisabled() {
    KeyboardWindow window;
    window.Strike(Qt::Key_2, Qt::AltModifier);
    window.Enter("v-100");
    QVERIFY(window.TabTo("cmdParts(5)"));
    window.Form().Get<window::Button>("cmdParts(5)").SetEnabled(false);
    QCoreApplication::processEvents();
    QCOMPARE(window.FocusName(), std::string());
    QCOMPARE(QApplication::focusWidget(), &window.Widget("cmdParts(6)"));
    // The first key there is an act of the user's.
    window.Strike(Qt::Key_Left);
    QVERIFY(!window.FocusName().empty());
}

/// Every control in view that can be used is reached by Tab, panel by panel from the top.
void KeyboardTest::TabGoesThroughEveryTool() {
    KeyboardWindow window;
    for (int tool = 1; tool <= 6; ++tool) {
        window.Strike(static_cast<Qt::Key>(Qt::Key_0 + tool), Qt::AltModifier);
        std::set<std::string> reached;
        constexpr int kMostStops = 80;
        for (int stop = 0; stop < kMostStops; ++stop) {
            reached.insert(window.FocusName());
            window.Strike(Qt::Key_Tab);
        }
        for (window::Control* control : window.Form().Controls()) {
            using enum window::ControlKind;
            const window::ControlKind kind = control->Kind();
            const bool is_mute = kind == Window || kind == Frame || kind == Label || kind == Shape;
            const auto* picture = dynamic_cast<window::Picture*>(control);
            const bool is_still = picture && !picture->HasCells();
            const bool is_off = control->Bounds().left + control->Bounds().width <= 0;
            if (is_mute || is_still || is_off || !control->IsUsable())
                continue;
            const auto* option = dynamic_cast<window::OptionButton*>(control);
            const bool is_passed = option && std::ranges::any_of(option->group, [&](const auto* other) {
                                       return reached.contains(other->Name());
                                   });
            if (is_passed)
                continue;
            QVERIFY2(reached.contains(control->Name()),
                     (control->Name() + " in tool " + std::to_string(tool)).c_str());
        }
    }
}

void KeyboardTest::SolvesAParticle() {
    KeyboardWindow window;
    window.Strike(Qt::Key_Right);
    window.Strike(Qt::Key_Space);
    // The first direction by the clock: hour 2 is 30 degrees above the x axis.
    QVERIFY(window.TabTo("txtAngle", "30"));
    QVERIFY(window.TabTo("picClock"));
    QCOMPARE(window.CurrentCellName("picClock"), std::string("Hora 3, eje x"));
    window.Strike(Qt::Key_Up);
    window.Strike(Qt::Key_Return);
    QCOMPARE(window.FocusName(), std::string("txtVector"));
    QCOMPARE(window.Form().Get<window::TextBox>("txtVector").Text(), std::string("p30x,"));
    window.Enter("F1");
    window.Enter("s45x,F2");
    window.Enter("v-100");
    QVERIFY(window.PressByKey("cmdParts(0)"));
    // By the law of sines 100 sin 45 / sin 105 and 100 sin 60 / sin 105.
    QVERIFY(Holds(window.Report("rtbCalc"), "F1 = 73.205"));
    QVERIFY(Holds(window.Report("rtbCalc"), "F2 = 89.658"));
}

void KeyboardTest::SolvesABeam() {
    KeyboardWindow window;
    window.Strike(Qt::Key_3, Qt::AltModifier);
    window.Enter("ACDB");
    QVERIFY(window.TabTo("txtSegm(1)"));
    window.Enter("h2");
    QVERIFY(window.TabTo("txtSegm(2)", "2"));
    QVERIFY(window.TabTo("txtSegm(3)", "2"));
    QVERIFY(window.PressByKey("cmdOK"));
    QVERIFY(window.TabTo("txtPoints"));
    window.Enter("1acdb");
    QVERIFY(window.TabTo("tabStat"));
    window.Strike(Qt::Key_Right);
    QVERIFY(window.PressByKey("optDCL(0)"));
    // A beam of 6 on a pin A and a roller B, 60 downward at C, 40 at 60 degrees below the x axis and a couple
    // of -50 at D: 6 B = 2 60 + 4 (40 sin 60) + 50.
    const struct {
        const char* point;
        const char* force;
    } kForces[] = {{"A", "art"}, {"C", "v-60"}, {"D", "c60x,40/-50"}, {"B", "vB"}};
    for (const auto& [point, force] : kForces) {
        QVERIFY(window.TabTo("txtBody(1)"));
        window.Strike(Qt::Key_A, Qt::ControlModifier);
        window.Enter(point);
        QVERIFY(window.TabTo("txtBody(2)"));
        window.Strike(Qt::Key_A, Qt::ControlModifier);
        window.Enter(force);
        QVERIFY(window.PressByKey("cmdOK1"));
    }
    QVERIFY(window.TabTo("tabStat"));
    window.Strike(Qt::Key_Right);
    QVERIFY(window.PressByKey("optShowDCL(0)"));
    QVERIFY(window.PressByKey("cmdVMb(0)"));
    QVERIFY(Holds(window.Report("rtbSolve"), "B = 51.427"));
}

void KeyboardTest::RunsARoutine() {
    KeyboardWindow window;
    window.Strike(Qt::Key_1, Qt::AltModifier);
    QCOMPARE(window.FocusName(), std::string("gd"));
    QVERIFY(window.TabTo("picBar"));
    // Below the first group stands its first routine, the determinant.
    window.Strike(Qt::Key_Down);
    window.Strike(Qt::Key_Return);
    QCOMPARE(window.Global("ProcNumber"), std::string("1"));
    QVERIFY(window.TabTo("gd"));
    window.Type("2");
    window.Strike(Qt::Key_Right);
    window.Type("3");
    window.Strike(Qt::Key_Down);
    window.Type("5");
    window.Strike(Qt::Key_Left);
    window.Type("4");
    window.Strike(Qt::Key_Up);
    window.Strike(Qt::Key_Right, Qt::ShiftModifier);
    window.Strike(Qt::Key_Down, Qt::ShiftModifier);
    QVERIFY(window.PressByKey("cmdCalculate"));
    // 2 5 - 3 4.
    QVERIFY(Holds(window.Report("rtbCalc"), "Δ = −2"));
}

void KeyboardTest::ConfiguresAMotionTable() {
    KeyboardWindow window;
    window.Strike(Qt::Key_4, Qt::AltModifier);
    QCOMPARE(window.FocusName(), std::string("cmdTable(0)"));
    QVERIFY(window.PressByKey("cmdTable(2)"));
    QVERIFY(window.TabTo("picAccel"));
    window.StrikeOften(Qt::Key_Right, 3);
    QCOMPARE(window.CurrentCellName("picAccel"), std::string("El móvil 1 hasta el punto 3"));
    window.Strike(Qt::Key_Return);
    QCOMPARE(window.Global("PtsMovil(1)"), std::string("4"));
    QCOMPARE(window.Global("PtsMovil(2)"), std::string("5"));
    // Data of point 0 are taken up and put down at point 2, then copied back.
    QVERIFY(window.TabTo("Gd2"));
    const auto& table = window.Form().Get<window::Grid>("Gd2");
    while (table.Col() > 1)
        window.Strike(Qt::Key_Left);
    while (table.Row() > 0)
        window.Strike(Qt::Key_Up);
    window.Type("7");
    QCOMPARE(table.Cell(0, 1), std::string("7"));
    QVERIFY(window.TabTo("picAccel"));
    window.Strike(Qt::Key_Home);
    QCOMPARE(window.CurrentCellName("picAccel"), std::string("Datos del punto 0 del móvil 1"));
    window.Strike(Qt::Key_Return);
    window.StrikeOften(Qt::Key_Right, 2);
    window.Strike(Qt::Key_Return);
    QCOMPARE(table.Cell(0, 1), std::string());
    QCOMPARE(table.Cell(0, 3), std::string("7"));
    window.Strike(Qt::Key_Space);
    window.StrikeOften(Qt::Key_Left, 2);
    window.Strike(Qt::Key_Return, Qt::ShiftModifier);
    QCOMPARE(table.Cell(0, 1), std::string("7"));
    QCOMPARE(table.Cell(0, 3), std::string("7"));
    // Taken up and let go: nothing happens.
    window.Strike(Qt::Key_Return);
    window.StrikeOften(Qt::Key_Right, 1);
    window.Strike(Qt::Key_Escape);
    QCOMPARE(table.Cell(0, 2), std::string());
    QCOMPARE(window.FocusName(), std::string("picAccel"));
    // The menu key is the right button, which empties a point.
    window.Strike(Qt::Key_Home);
    window.Strike(Qt::Key_Down);
    QCOMPARE(window.CurrentCellName("picAccel"), std::string("Punto 0 del móvil 1"));
    window.Strike(Qt::Key_F10, Qt::ShiftModifier);
    QCOMPARE(table.Cell(0, 1), std::string());
    QCOMPARE(table.Cell(0, 3), std::string("7"));
}

void KeyboardTest::HeldKeysReachTheStrip() {
    KeyboardWindow window;
    window.Strike(Qt::Key_4, Qt::AltModifier);
    QVERIFY(window.TabTo("picAccel"));
    std::vector<window::MouseStroke> strokes;
    window::On(window.Form(), window.Form().Get<window::Picture>("picAccel").OnMouseDown,
               [&](const window::MouseStroke& stroke) { strokes.push_back(stroke); });
    for (const auto held : {Qt::ShiftModifier, Qt::ControlModifier, Qt::AltModifier})
        for (const auto key : {Qt::Key_Return, Qt::Key_Space})
            window.Strike(key, held);
    QCOMPARE(strokes.size(), std::size_t{6});
    for (const std::size_t k : {0, 1}) {
        QVERIFY(strokes[k].shift && !strokes[k].ctrl && !strokes[k].alt);
        QVERIFY(!strokes[2 + k].shift && strokes[2 + k].ctrl && !strokes[2 + k].alt);
        QVERIFY(!strokes[4 + k].shift && !strokes[4 + k].ctrl && strokes[4 + k].alt);
    }
}

/// A choice among the cells that is pressed by key is the checked one then; a switch is turned.
void KeyboardTest::EveryCellDoesWhatItSays() {
    KeyboardWindow window;
    window.Strike(Qt::Key_1, Qt::AltModifier);
    for (const char* name : {"picBar", "picOpt"}) {
        auto& picture = window.Form().Get<window::Picture>(name);
        const std::size_t count = picture.Cells().size();
        QVERIFY(count >= 4);
        for (std::size_t cell = 0; cell < count; ++cell) {
            const auto before = picture.Cells();
            if (cell >= before.size() || before[cell].role == window::CellRole::Button)
                continue;
            picture.UserGoToCell(static_cast<int>(cell));
            picture.UserChooseCell({});
            const bool is_switch = before[cell].role == window::CellRole::Switch;
            QCOMPARE(picture.Cells()[cell].checked, !is_switch || !before[cell].checked);
        }
    }
}

void KeyboardTest::ATableIsClickedByKeys() {
    KeyboardWindow window;
    window.Strike(Qt::Key_4, Qt::AltModifier);
    QVERIFY(window.PressByKey("cmdTable(0)"));
    QVERIFY(window.TabTo("Gd2"));
    const auto& table = window.Form().Get<window::Grid>("Gd2");
    window.Type("5");
    QCOMPARE(table.Cell(table.Row(), table.Col()), std::string("5"));
    // As a double click: what is shown goes, what is held stays.
    window.Strike(Qt::Key_F2);
    QCOMPARE(table.Cell(table.Row(), table.Col()), std::string());
}

void KeyboardTest::CellsAreAccessible() {
    KeyboardWindow window;
    QAccessibleInterface* toolbar = QAccessible::queryAccessibleInterface(&window.Widget("Image1"));
    QVERIFY(toolbar);
    QCOMPARE(toolbar->role(), QAccessible::ToolBar);
    QCOMPARE(toolbar->childCount(), 9);
    QAccessibleInterface* particle = toolbar->child(1);
    QVERIFY(particle && particle->isValid());
    QCOMPARE(particle->text(QAccessible::Name), QStringLiteral("Estática de la partícula"));
    QCOMPARE(particle->parent(), toolbar);
    QCOMPARE(toolbar->indexOfChild(particle), 1);
    QVERIFY(!particle->state().checked);
    QVERIFY(particle->state().focusable);
    QCOMPARE(particle->rect().size(), QSize(37, 32));
    QCOMPARE(toolbar->childAt(particle->rect().center().x(), particle->rect().center().y()), particle);
    QCOMPARE(toolbar->focusChild(), toolbar->child(0));
    particle->actionInterface()->doAction(QAccessibleActionInterface::pressAction());
    QCOMPARE(window.Global("HelpTool"), std::string("2"));
    QVERIFY(particle->state().checked);
    QVERIFY(toolbar->focusChild() != toolbar->child(1));
}

void KeyboardTest::LettersAreFreeAndTheirOwn() {
    // First letters of words come first, so that only the second R goes to another one; figures, signs and
    // letters with an accent give none.
    const std::vector<QString> captions = {QStringLiteral("Resolver"), QStringLiteral("Restaurar"),
                                           QStringLiteral("Datos"),    QStringLiteral("Dar el eje"),
                                           QStringLiteral("8"),        QStringLiteral("Ángulo"),
                                           QStringLiteral("x(t)"),     QStringLiteral("×")};
    QCOMPARE(qt::MnemonicPlaces(captions), (std::vector<int>{0, 2, 0, 4, -1, 1, 0, -1}));
}

void KeyboardTest::AltAndALetterPressAButton() {
    KeyboardWindow window;
    window.Strike(Qt::Key_2, Qt::AltModifier);
    window.Enter("v-100");
    auto& erase = window.As<QAbstractButton>("cmdParts(5)");
    const QString caption = QStringLiteral("Cancelar última");
    QCOMPARE(erase.text(), caption);
    const QImage plain = erase.grab().toImage();
    QTest::keyPress(QApplication::focusWidget(), Qt::Key_Alt);
    QCOMPARE(erase.text(), QStringLiteral("&Cancelar última"));
    QVERIFY(erase.grab().toImage() != plain);
    QCOMPARE(window.Form().Find("cmdParts(5)")->Caption(), caption.toStdString());
    QTest::keyClick(QApplication::focusWidget(), Qt::Key_C, Qt::AltModifier);
    QTRY_COMPARE(window.Global("ForceCount"), std::string("0"));
    QTest::keyRelease(QApplication::focusWidget(), Qt::Key_Alt);
    QCOMPARE(erase.text(), caption);
    // The letter typed nothing, and the keys stay where they were.
    QCOMPARE(window.FocusName(), std::string("txtVector"));
    QCOMPARE(window.Form().Get<window::TextBox>("txtVector").Text(), std::string());
    // Without Alt held down the letters are nobody's.
    window.Strike(Qt::Key_C);
    QCOMPARE(window.Form().Get<window::TextBox>("txtVector").Text(), std::string("c"));
}

void KeyboardTest::AltAndALetterChoosesAnOption() {
    KeyboardWindow window;
    window.Strike(Qt::Key_6, Qt::AltModifier);
    QTest::keyPress(QApplication::focusWidget(), Qt::Key_Alt);
    QCOMPARE(window.As<QAbstractButton>("chkGraph(1)").text(), QStringLiteral("&v(t)"));
    QTest::keyClick(QApplication::focusWidget(), Qt::Key_V, Qt::AltModifier);
    QTRY_VERIFY(window.Form().Get<window::CheckBox>("chkGraph(1)").Checked());
    QTest::keyRelease(QApplication::focusWidget(), Qt::Key_Alt);
    QCOMPARE(window.As<QAbstractButton>("chkGraph(1)").text(), QStringLiteral("v(t)"));
}

/// The dialog takes the letters while it is in front, and what the help covers has none.
void KeyboardTest::OnlyWhatIsInFrontHasLetters() {
    KeyboardWindow window;
    window.Strike(Qt::Key_2, Qt::AltModifier);
    window.Strike(Qt::Key_F1);
    QTest::keyPress(QApplication::focusWidget(), Qt::Key_Alt);
    QCOMPARE(window.As<QAbstractButton>("cmdHelpCtrl(0)").text(), QStringLiteral("&Página general"));
    QTest::keyRelease(QApplication::focusWidget(), Qt::Key_Alt);
    window.Strike(Qt::Key_7, Qt::AltModifier);
    QApplication::setActiveWindow(window.Widget("cmdAbout").window());
    QCoreApplication::processEvents();
    QTest::keyPress(QApplication::focusWidget(), Qt::Key_Alt);
    QCOMPARE(window.As<QAbstractButton>("cmdHelpCtrl(0)").text(), QStringLiteral("Página general"));
    QCOMPARE(window.As<QAbstractButton>("cmdPrintRes").text(), QStringLiteral("&Imprimir"));
    QTest::keyRelease(QApplication::focusWidget(), Qt::Key_Alt);
}

/// Tab goes to the chosen option; arrows, Home and End choose another one, with Ctrl they only go there.
void KeyboardTest::OptionsAreOneStop() {
    KeyboardWindow window;
    window.Strike(Qt::Key_7, Qt::AltModifier);
    QApplication::setActiveWindow(window.Widget("cmdAbout").window());
    QCoreApplication::processEvents();
    const auto options = window.Form().GetArray<window::OptionButton>("optPrint");
    const auto chosen = [&options] {
        std::string name;
        for (const auto& [index, option] : options.Items())
            name += option->Checked() ? option->Name() : "";
        return name;
    };
    const auto expect = [&](const char* focused, const char* checked) {
        QCOMPARE(QApplication::focusWidget(), &window.Widget(focused));
        QCOMPARE(chosen(), std::string(checked));
    };
    expect("optPrint(0)", "");
    window.Strike(Qt::Key_Space);
    expect("optPrint(0)", "optPrint(0)");
    window.Strike(Qt::Key_Down);
    expect("optPrint(1)", "optPrint(1)");
    window.Strike(Qt::Key_Left);
    window.Strike(Qt::Key_Up);
    expect("optPrint(2)", "optPrint(2)");
    window.Strike(Qt::Key_Down, Qt::ControlModifier);
    expect("optPrint(0)", "optPrint(2)");
    window.Strike(Qt::Key_Tab);
    expect("cmdPrintRes", "optPrint(2)");
    window.Strike(Qt::Key_Backtab, Qt::ShiftModifier);
    expect("optPrint(2)", "optPrint(2)");
    window.Strike(Qt::Key_Home);
    expect("optPrint(0)", "optPrint(0)");
    window.Strike(Qt::Key_End);
    expect("optPrint(2)", "optPrint(2)");
    const QImage focused = window.Widget("optPrint(2)").grab().toImage();
    window.Strike(Qt::Key_Tab);
    QVERIFY(window.Widget("optPrint(2)").grab().toImage() != focused);
}

/// Arrows pass by options that cannot be chosen; where no other one is left, nothing happens.
void KeyboardTest::ArrowsPassByDisabledOptions() {
    KeyboardWindow window;
    window.Strike(Qt::Key_3, Qt::AltModifier);
    auto& pages = window.Form().Get<window::TabStrip>("tabStat");
    pages.UserPick(2);
    QCoreApplication::processEvents();
    const auto options = window.Form().GetArray<window::OptionButton>("optShowDCL");
    options[1].SetEnabled(false);
    options[4].SetEnabled(false);
    QVERIFY(window.TabTo("optShowDCL(0)"));
    window.Strike(Qt::Key_Right, Qt::ControlModifier);
    QCOMPARE(window.FocusName(), std::string("optShowDCL(2)"));
    window.Strike(Qt::Key_End, Qt::ControlModifier);
    QCOMPARE(window.FocusName(), std::string("optShowDCL(3)"));
    window.Strike(Qt::Key_Right, Qt::ControlModifier);
    QCOMPARE(window.FocusName(), std::string("optShowDCL(0)"));
    // None of these systems is defined, which choosing one would tell.
    QCOMPARE(window.boxes.size(), 0);
    window.Strike(Qt::Key_Right);
    QCOMPARE(window.FocusName(), std::string("optShowDCL(2)"));
    QTRY_COMPARE(window.boxes.size(), 1);
    QApplication::setActiveWindow(&window.view.Frame());
    for (const int index : {0, 3})
        options[index].SetEnabled(false);
    window.Strike(Qt::Key_Left);
    QCOMPARE(window.FocusName(), std::string("optShowDCL(2)"));
    QCOMPARE(window.boxes.size(), 1);
}

/// A board is gone to for what it shows, or for how to begin; an empty one is passed.
void KeyboardTest::BoardsAreStopsWhileTheyHoldSomething() {
    KeyboardWindow window;
    const auto told = [&window] {
        return QAccessible::queryAccessibleInterface(QApplication::focusWidget())
            ->text(QAccessible::Description);
    };
    window.Strike(Qt::Key_2, Qt::AltModifier);
    QVERIFY(window.TabTo("pic1"));
    QVERIFY(told().startsWith(QStringLiteral("Fuerzas sobre un punto")));
    window.Strike(Qt::Key_4, Qt::AltModifier);
    QVERIFY(window.TabTo("pic"));
    QVERIFY(!told().isEmpty());
    // By F6, too: the board is a panel of its own.
    window.Strike(Qt::Key_3, Qt::AltModifier);
    window.Enter("AB");
    window.Strike(Qt::Key_F6);
    for (int panel = 0; panel < 10 && window.FocusName() != "pic1"; ++panel)
        window.Strike(Qt::Key_F6);
    QCOMPARE(window.FocusName(), std::string("pic1"));
    window.Form().Get<window::Picture>("pic1").Canvas().Cls();
    QCoreApplication::processEvents();
    window.Strike(Qt::Key_Tab);
    QVERIFY(window.FocusName() != "pic1");
    QVERIFY(!window.TabTo("pic1"));
}

void KeyboardTest::FocusIsSeen_data() {
    QTest::addColumn<int>("tool");
    QTest::addColumn<QByteArray>("control");
    QTest::newRow("toolbar") << 1 << QByteArray("Image1");
    QTest::newRow("menu") << 1 << QByteArray("picBar");
    QTest::newRow("strip of options") << 1 << QByteArray("picOpt");
    QTest::newRow("table") << 1 << QByteArray("gd");
    QTest::newRow("button") << 1 << QByteArray("cmdCalculate");
    QTest::newRow("formula") << 1 << QByteArray("rtbExpr");
    QTest::newRow("report") << 1 << QByteArray("rtbCalc");
    QTest::newRow("tabs") << 1 << QByteArray("tabCalc");
    QTest::newRow("clock") << 2 << QByteArray("picClock");
    QTest::newRow("empty table") << 2 << QByteArray("gdEqui");
    QTest::newRow("strip of points") << 4 << QByteArray("picAccel");
    QTest::newRow("board") << 6 << QByteArray("pic1");
    QTest::newRow("check") << 6 << QByteArray("chkGraph(0)");
}

void KeyboardTest::FocusIsSeen() {
    QFETCH(int, tool);
    QFETCH(QByteArray, control);
    KeyboardWindow window;
    window.Strike(static_cast<Qt::Key>(Qt::Key_0 + tool), Qt::AltModifier);
    QWidget& widget = window.Widget(control.constData());
    if (widget.hasFocus())
        window.Strike(Qt::Key_Tab);
    const QImage without = widget.grab().toImage();
    QVERIFY(window.TabTo(control.constData()));
    const QImage with = widget.grab().toImage();
    int changed = 0;
    for (int y = 0; y < with.height(); ++y)
        for (int x = 0; x < with.width(); ++x)
            changed += with.pixel(x, y) != without.pixel(x, y) ? 1 : 0;
    constexpr int kLeastFrame = 30;  // pixels
    QVERIFY2(changed >= kLeastFrame, qPrintable(QString::number(changed)));
}

}  // namespace tavrelo::window_test
