#include "test_window.h"
#include "tests.h"

namespace tavrelo::window_test {

void ClosingTest::ClosingTheWindowEndsTheProgram() {
    TestWindow window;
    window.PressTool(7);
    bool ended = false;
    window.Form().OnEnd = [&ended] { ended = true; };
    window.view.Frame().close();
    QVERIFY(ended);
    QVERIFY(!window.view.Frame().isVisible());
    QVERIFY(!window.Widget("cmdAbout").isVisible());
}

void ClosingTest::TheDialogCloses() {
    TestWindow window;
    window.PressTool(7);
    QVERIFY(window.Widget("cmdAbout").isVisible());
    QTest::keyClick(window.Widget("cmdAbout").window(), Qt::Key_Escape);
    QVERIFY(!window.Form().Form2.Visible());
    QVERIFY(!window.Widget("cmdAbout").isVisible());
    QVERIFY(window.view.Frame().isVisible());
}

}  // namespace tavrelo::window_test
