#include <private/qguiapplication_p.h>
#include <qpa/qplatformaccessibility.h>
#include <qpa/qplatformintegration.h>

#include <QAccessible>
#include <QComboBox>
#include <QInputDialog>
#include <QLineEdit>
#include <QMessageBox>
#include <QTabBar>
#include <vector>

#include "test_window.h"
#include "tests.h"

namespace tavrelo::window_test {
namespace {

QAccessibleInterface& Told(QWidget& widget) { return *QAccessible::queryAccessibleInterface(&widget); }

QString NameOf(const QAccessibleInterface& object) { return object.text(QAccessible::Name); }

/// One thing that readers of the screen were told.
struct Note {
    QAccessible::Event event;
    QAccessible::Role role;
    QString text;  // what was inserted or put instead, else the name
};
std::vector<Note>& Notes() {
    static std::vector<Note> notes;
    return notes;
}

void TakeNote(QAccessibleEvent* event) {
    const QAccessibleInterface* object = event->accessibleInterface();
    if (!object || !object->isValid())
        return;
    QString text = NameOf(*object);
    if (const auto* insert = dynamic_cast<const QAccessibleTextInsertEvent*>(event))
        text = insert->textInserted();
    if (const auto* update = dynamic_cast<const QAccessibleTextUpdateEvent*>(event))
        text = update->textInserted();
    Notes().push_back({event->type(), object->role(), text});
}

/// The texts of all notes of that kind since the last call of Notes().clear().
QStringList Noted(QAccessible::Event event, QAccessible::Role role) {
    QCoreApplication::processEvents();
    QStringList texts;
    for (const Note& note : Notes())
        if (note.event == event && note.role == role)
            texts << note.text;
    return texts;
}

QStringList Said() { return Noted(QAccessible::ObjectShow, QAccessible::Notification); }

void TypeForce(TestWindow& window, const char* force) {
    auto& box = window.Form().Get<window::TextBox>("txtVector");
    box.SetText(force);
    box.UserKeyPress(window::kEnterCharacter);
}

}  // namespace

void AccessibleTest::initTestCase() {
    // Events are told only while somebody listens.
    QGuiApplicationPrivate::platformIntegration()->accessibility()->setActive(true);
}

void AccessibleTest::cleanupTestCase() {
    QGuiApplicationPrivate::platformIntegration()->accessibility()->setActive(false);
}

void AccessibleTest::cleanup() {
    QAccessible::installUpdateHandler(nullptr);
    Notes().clear();
}

void AccessibleTest::PanelsLabelsAndOrnamentsHaveTheirRoles() {
    TestWindow window;
    window.PressTool(3);
    QCOMPARE(Told(window.Widget("fraExpr")).role(), QAccessible::Grouping);
    QCOMPARE(NameOf(Told(window.Widget("fraExpr"))), QString("Fórmulas"));
    QCOMPARE(Told(window.Widget("lblOrigin")).role(), QAccessible::StaticText);
    QVERIFY(!Told(window.Widget("lblOrigin")).state().invisible);
    QVERIFY(Told(window.Widget("lblPoints(0)")).state().invisible);
    QVERIFY(Told(window.Widget("linMarker")).state().invisible);
}

void AccessibleTest::NamesFollowToolsAndLabels() {
    TestWindow window;
    window.PressTool(2);
    QCOMPARE(NameOf(Told(window.Widget("txtVector"))), QString("Fuerza"));
    QCOMPARE(NameOf(Told(window.Widget("cmdExampleEstp(0)"))), QString("Ejemplo 1: dos cables y un peso"));
    window.PressTool(3);
    auto& chain = window.Form().Get<window::TextBox>("txtSegm(0)");
    QCOMPARE(NameOf(Told(window.Widget("txtSegm(2)"))), QString("Separación 2"));
    chain.SetText("ABC");
    chain.UserKeyPress(window::kEnterCharacter);
    QCOMPARE(NameOf(Told(window.Widget("txtSegm(1)"))), QString("Vector de separación AB"));
    QCOMPARE(NameOf(Told(window.Widget("txtSegm(2)"))), QString("Separación BC"));
    window.PressTool(1);
    QCOMPARE(NameOf(Told(window.Widget("txtVector"))), QString("Vector"));
}

void AccessibleTest::CellsTellTheirHeadingsAndContent() {
    TestWindow window;
    window.PressTool(2);
    TypeForce(window, "p30x,F1");
    const QAccessibleInterface& forces = Told(window.Widget("gdEqui"));
    QCOMPARE(forces.role(), QAccessible::Table);
    QCOMPARE(forces.childCount(), 2 * 4);
    const QStringList names = {"Número",
                               "Fuerza",
                               "Fx",
                               "Fy",
                               "renglón 1",
                               "renglón 1, Fuerza: p30x,F1",
                               "renglón 1, Fx: 0.866 F1",
                               "renglón 1, Fy: 0.5 F1"};
    for (int index = 0; index < forces.childCount(); ++index) {
        QCOMPARE(NameOf(*forces.child(index)), names[index]);
        QCOMPARE(forces.indexOfChild(forces.child(index)), index);
        QCOMPARE(forces.child(index)->parent(), &forces);
    }
    QCOMPARE(forces.child(1)->role(), QAccessible::ColumnHeader);
    QCOMPARE(forces.child(4)->role(), QAccessible::RowHeader);
    QCOMPARE(forces.child(5)->role(), QAccessible::Cell);
    QCOMPARE(forces.child(5)->text(QAccessible::Value), QString("p30x,F1"));
    QVERIFY(!forces.child(8));

    auto* cell = forces.child(6)->tableCellInterface();
    QCOMPARE(cell->columnIndex(), 1);
    QCOMPARE(NameOf(*cell->columnHeaderCells().first()), QString("Fx"));
    QCOMPARE(NameOf(*cell->rowHeaderCells().first()), QString("renglón 1"));
    const QPoint middle = forces.child(6)->rect().center();
    QCOMPARE(forces.childAt(middle.x(), middle.y()), forces.child(6));

    window.PressTool(4);
    const QAccessibleInterface& points = Told(window.Widget("Gd2"));
    QCOMPARE(points.childCount(), 4 * 10);
    QVERIFY(NameOf(*points.child(1 * 10 + 1)).startsWith("t, "));
    QVERIFY(NameOf(*points.child(3 * 10 + 2)).endsWith(": vacía"));
}

void AccessibleTest::TheFocusGoesWithTheCurrentCell() {
    TestWindow window;
    window.PressTool(1);
    auto& grid = window.Form().Get<window::Grid>("gd");
    QCoreApplication::processEvents();
    QAccessible::installUpdateHandler(TakeNote);
    QTest::keyClick(&window.Widget("gd"), Qt::Key_Right);
    QCOMPARE(grid.Col(), 2);
    QCOMPARE(Noted(QAccessible::Focus, QAccessible::Cell), QStringList{"renglón 1, columna 2: vacía"});
    const QAccessibleInterface* cell = Told(window.Widget("gd")).focusChild();
    QVERIFY(cell->state().focused && cell->state().active && cell->state().selected);
    QTest::keyClick(&window.Widget("gd"), Qt::Key_7);
    QCOMPARE(Noted(QAccessible::NameChanged, QAccessible::Cell), QStringList{"renglón 1, columna 2: 7"});

    window.Form().SetFocus(window.Form().Get<window::TextBox>("txtExpr"));
    Notes().clear();
    window.Form().SetFocus(grid);
    QCOMPARE(Noted(QAccessible::Focus, QAccessible::Cell), QStringList{"renglón 1, columna 2: 7"});
}

/// A table without a current cell is told itself, not one of its headings.
void AccessibleTest::ATableWithoutCellsHasTheKeysItself() {
    TestWindow window;
    window.PressTool(2);
    window.Widget("gdEqui").setFocus();
    QVERIFY(window.Widget("gdEqui").hasFocus());
    QVERIFY(!Told(window.Widget("gdEqui")).focusChild());
    QVERIFY(Told(window.Widget("gdEqui")).state().focused);
    QCOMPARE(NameOf(Told(window.Widget("gdEqui"))), QString("Fuerzas"));
}

/// What a button changes without a report is said.
void AccessibleTest::RestoringTheForcesIsSaid() {
    TestWindow window;
    window.PressTool(2);
    for (const char* force : {"p30x,F1", "s45x,F2", "v-100"})
        TypeForce(window, force);
    window.Form().Get<window::Button>("cmdParts(0)").UserClick();
    QCoreApplication::processEvents();
    QAccessible::installUpdateHandler(TakeNote);
    window.Form().Get<window::Button>("cmdParts(1)").UserClick();
    QTRY_COMPARE(Said(), QStringList{"Fuerzas como antes de resolver."});
}

void AccessibleTest::AChosenBlockIsTold() {
    TestWindow window;
    window.PressTool(1);
    window.Form().Get<window::Grid>("gd").UserDrag({1, 1, 2, 2});
    auto* table = Told(window.Widget("gd")).tableInterface();
    QCOMPARE(table->selectedCellCount(), 4);
    QVERIFY(table->cellAt(1, 1)->state().selected);
    QVERIFY(!table->cellAt(2, 1)->state().selected);
    QVERIFY(!table->isRowSelected(0));
}

void AccessibleTest::ListsCombosTabsAndArrowsTellTheirState() {
    TestWindow window;
    window.PressTool(3);
    auto& chain = window.Form().Get<window::TextBox>("txtSegm(0)");
    chain.SetText("ABC");
    chain.UserKeyPress(window::kEnterCharacter);
    window.Form().Get<window::TextBox>("txtSegm(1)").SetText("h2");
    window.Form().Get<window::TextBox>("txtSegm(2)").SetText("3");
    window.Form().Get<window::Button>("cmdOK").UserClick();
    const QAccessibleInterface& letters = Told(window.Widget("lstSysts"));
    QCOMPARE(letters.role(), QAccessible::List);
    QCOMPARE(letters.childCount(), 3);
    QCOMPARE(letters.child(1)->role(), QAccessible::ListItem);
    QCOMPARE(NameOf(*letters.child(1)), QString("B"));
    QVERIFY(letters.child(1)->state().selected);

    QTabBar& bar = *window.Widget("tabStat").findChild<QTabBar*>();
    QCOMPARE(Told(bar).role(), QAccessible::PageTabList);
    QCOMPARE(Told(bar).child(1)->role(), QAccessible::PageTab);
    QCOMPARE(NameOf(*Told(bar).child(1)), QString("DCL"));
    QCOMPARE(NameOf(Told(bar)), QString("Equilibrio del cuerpo rígido"));

    const QAccessibleInterface& spin = Told(window.Widget("spnColor"));
    QCOMPARE(spin.role(), QAccessible::SpinBox);
    QCOMPARE(spin.text(QAccessible::Value), QString("1"));

    window.PressTool(7);
    QAccessibleInterface& arrows = Told(window.Widget("UpDown1"));
    QCOMPARE(arrows.role(), QAccessible::SpinBox);
    QCOMPARE(arrows.text(QAccessible::Value), QString("3"));
    QCOMPARE(arrows.valueInterface()->maximumValue().toInt(), 10);
    arrows.valueInterface()->setCurrentValue(4);
    QCOMPARE(arrows.text(QAccessible::Value), QString("4"));
    QCOMPARE(window.Form().publics.Decimals, std::int16_t{4});

    const QAccessibleInterface& topics = Told(window.Widget("cboHelp"));
    QCOMPARE(topics.role(), QAccessible::ComboBox);
    QCOMPARE(topics.text(QAccessible::Value), window.As<QComboBox>("cboHelp").currentText());
    QCOMPARE(NameOf(topics), QString("Tema de ayuda"));
}

void AccessibleTest::TheTabInFrontIsTold() {
    TestWindow window;
    window.PressTool(3);
    auto& strip = window.Form().Get<window::TabStrip>("tabStat");
    QTabBar& bar = *window.Widget("tabStat").findChild<QTabBar*>();
    const QAccessibleInterface& tabs = Told(bar);
    QCOMPARE(tabs.childCount(), 3);
    const auto in_front = [&tabs] {
        QStringList names;
        for (int index = 0; index < tabs.childCount(); ++index)
            if (tabs.child(index)->state().selected)
                names << NameOf(*tabs.child(index));
        return names;
    };
    QCOMPARE(in_front(), QStringList{NameOf(*tabs.child(0))});
    QAccessible::installUpdateHandler(TakeNote);
    strip.UserPick(1);
    QCOMPARE(in_front(), QStringList{"DCL"});
    QCOMPARE(Noted(QAccessible::Selection, QAccessible::PageTab), QStringList{"DCL"});
    // The page is called after its tab.
    QCOMPARE(NameOf(Told(window.Widget("tabStat"))), QString("Ficha DCL"));
    QVERIFY(!tabs.focusChild());
    bar.setFocus();
    QCOMPARE(tabs.focusChild(), tabs.child(1));
    QVERIFY(tabs.child(1)->state().focused && !tabs.child(0)->state().focused);
    const QPoint middle = tabs.child(2)->rect().center();
    QCOMPARE(tabs.childAt(middle.x(), middle.y()), tabs.child(2));
    QCOMPARE(tabs.indexOfChild(tabs.child(2)), 2);
    tabs.child(2)->actionInterface()->doAction(QAccessibleActionInterface::pressAction());
    QCOMPARE(strip.Current(), 2);
}

void AccessibleTest::ACombosRowIsItsValueAndItsText() {
    TestWindow window;
    window.PressTool(2);
    window.PressTool(8);
    auto& combo = window.As<QComboBox>("cboHelp");
    QAccessibleInterface& topics = Told(combo);
    QVERIFY(combo.count() > 1);
    QAccessible::installUpdateHandler(TakeNote);
    combo.setFocus();
    QTest::keyClick(&combo, Qt::Key_Down);
    const QString row = combo.currentText();
    QCOMPARE(row, combo.itemText(1));
    QCOMPARE(NameOf(topics), QString("Tema de ayuda"));
    QCOMPARE(topics.text(QAccessible::Value), row);
    QCOMPARE(topics.textInterface()->text(0, topics.textInterface()->characterCount()), row);
    QVERIFY(topics.state().collapsed && topics.state().focused);
    QCOMPARE(topics.child(0)->role(), QAccessible::List);
    QCOMPARE(topics.child(0)->childCount(), combo.count());
    QCOMPARE(Noted(QAccessible::TextUpdated, QAccessible::ComboBox), QStringList{row});
}

void AccessibleTest::AReportIsSaidOnce() {
    TestWindow window;
    window.PressTool(2);
    for (const char* force : {"p30x,F1", "s45x,F2", "v-100"})
        TypeForce(window, force);
    QCoreApplication::processEvents();
    QAccessible::installUpdateHandler(TakeNote);
    window.Form().Get<window::Button>("cmdParts(0)").UserClick();
    QTRY_COMPARE(Said().size(), 1);
    QVERIFY(Said().first().contains("F sub 1 igual a 73.205"));
    const QStringList inserted = Noted(QAccessible::TextInserted, QAccessible::EditableText);
    QVERIFY(!inserted.isEmpty() && inserted.last().contains("89.658"));

    // Shown again at another size, it is no news.
    Notes().clear();
    window.view.SetZoom(1.5);
    QCOMPARE(Said(), QStringList());
    // What comes behind it is said alone.
    text::RichText line;
    line.Append({"Otra línea", {}, {}, 0});
    window.Form().Get<window::RichTextBox>("rtbCalc").AppendContent(line);
    QTRY_COMPARE(Said(), QStringList{"Otra línea"});
}

void AccessibleTest::OneHandlerIsSaidInOneGo() {
    TestWindow window;
    QAccessible::installUpdateHandler(TakeNote);
    window.Form().Announce("Fuerza añadida.");
    window.Form().Announce("Ya se puede resolver.");
    QCOMPARE(Said(), QStringList{"Fuerza añadida.\nYa se puede resolver."});
    Notes().clear();
    window.Form().Announce("Fuerza añadida.");
    QCOMPARE(Said(), QStringList{"Fuerza añadida."});
}

void AccessibleTest::NothingIsNotSaid() {
    TestWindow window;
    QAccessible::installUpdateHandler(TakeNote);
    window.Form().Announce("");
    window.Form().Announce(" ");
    QCOMPARE(Said(), QStringList());
}

void AccessibleTest::BoxesAreAlertsWithTheirText() {
    TestWindow window;
    QAccessible::installUpdateHandler(TakeNote);
    struct Shown {
        QAccessible::Role role = QAccessible::NoRole;
        QString name;
        QString text;
    };
    const auto show = [&window](const char* title, window::Buttons buttons) {
        Shown shown;
        WhenOpen<QMessageBox>([&shown](QMessageBox& box) {
            const QAccessibleInterface& told = Told(box);
            shown = {told.role(), NameOf(told), told.text(QAccessible::Description)};
            box.reject();
        });
        window.Form().boxes.ShowMessage("¿Cuál de las dos?", title, buttons);
        return shown;
    };
    const Shown titled = show("Tavrelo", window::Buttons::Ok);
    QCOMPARE(titled.role, QAccessible::AlertMessage);
    QCOMPARE(titled.name, QString("Tavrelo"));
    QCOMPARE(titled.text, QString("¿Cuál de las dos?"));
    QCOMPARE(Noted(QAccessible::Alert, QAccessible::AlertMessage), QStringList{"Tavrelo"});
    QCOMPARE(show("", window::Buttons::YesNo).name, QString("Pregunta"));
    QCOMPARE(show("", window::Buttons::Ok).name, QString("Aviso"));
}

void AccessibleTest::TheInputBoxAsksItsQuestion() {
    TestWindow window;
    QString name;
    WhenOpen<QInputDialog>([&name](QInputDialog& box) {
        name = NameOf(Told(*box.findChild<QLineEdit*>()));
        box.reject();
    });
    window.Form().boxes.AskText("¿Dirección para el dibujo?", "Tavrelo");
    QCOMPARE(name, QString("¿Dirección para el dibujo?"));
}

}  // namespace tavrelo::window_test
