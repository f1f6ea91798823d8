#include <QMessageBox>

#include "test_window.h"
#include "tests.h"

namespace tavrelo::window_test {

void FocusTest::StartsNowhere() {
    TestWindow window;
    QCOMPARE(window.FocusName(), std::string());
}

void FocusTest::IsDroppedWhenTheControlIsHidden() {
    TestWindow window;
    window.PressTool(2);
    QCOMPARE(window.FocusName(), std::string("txtVector"));
    window.Form().Get<window::TextBox>("txtVector").SetVisible(false);
    QCOMPARE(window.FocusName(), std::string());
    QVERIFY(window.Form().Focus() == nullptr);
    QCoreApplication::processEvents();
    QCOMPARE(window.FocusName(), std::string());
}

void FocusTest::IsDroppedWhenItsPanelIsDisabled() {
    TestWindow window;
    window.PressTool(2);
    window.Form().Get<window::Frame>("fraDirec").SetEnabled(false);
    QCOMPARE(window.FocusName(), std::string());
    QVERIFY(!window.Widget("txtVector").isEnabled());
}

void FocusTest::GoesByTabInReadingOrder() {
    TestWindow window;
    window.PressTool(2);
    for (const char* next : {"txtAngle", "cmdInc", "txtAtan", "gdEqui"}) {
        QTest::keyClick(QApplication::focusWidget(), Qt::Key_Tab);
        QCOMPARE(window.FocusName(), std::string(next));
        QCOMPARE(window.Form().Focus()->Name(), std::string(next));
    }
    QTest::keyClick(QApplication::focusWidget(), Qt::Key_Backtab, Qt::ShiftModifier);
    QCOMPARE(window.FocusName(), std::string("txtAtan"));
}

void FocusTest::GoesWhereTheProgramPutsIt() {
    TestWindow window;
    window.PressTool(2);
    window.Form().SetFocus(window.Form().Get<window::TextBox>("txtAtan"));
    QVERIFY(window.Widget("txtAtan").hasFocus());
    window.Form().SetFocus(window.Form().Get<window::TextBox>("txtKinem(0)"));
    QVERIFY(window.Widget("txtAtan").hasFocus());
}

void FocusTest::IsNotTakenByLabelsAndPictures() {
    TestWindow window;
    window.PressTool(2);
    for (const char* name : {"lblAtan", "pic1", "tabCalc"}) {
        QTest::mouseClick(&window.Widget(name), Qt::LeftButton);
        QCOMPARE(window.FocusName(), std::string("txtVector"));
    }
    QTest::mouseClick(&window.Widget("txtAtan"), Qt::LeftButton);
    QCOMPARE(window.FocusName(), std::string("txtAtan"));
}

void FocusTest::DoesNotJumpIntoTheDialog() {
    TestWindow window;
    window.PressTool(2);
    window.PressTool(7);
    QApplication::setActiveWindow(window.Widget("cmdAbout").window());
    QCoreApplication::processEvents();
    QCOMPARE(window.Form().Focus()->Name(), std::string("txtVector"));
}

}  // namespace tavrelo::window_test
