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

void ClosingTest::TheDialogOpensInTheMiddleAndCloses() {
    TestWindow window;
    window.PressTool(7);
    QWidget& dialog = *window.Widget("cmdAbout").window();
    QVERIFY(dialog.isVisible());
    const QPoint distance = dialog.geometry().center() - window.view.Frame().geometry().center();
    // The frames that the desktop draws around windows may differ.
    constexpr int kFrames = 20;
    QVERIFY(distance.manhattanLength() <= kFrames);
    QTest::keyClick(&dialog, Qt::Key_Escape);
    QVERIFY(!window.Form().Get<window::Window>("Form2").Visible());
    QVERIFY(!window.Widget("cmdAbout").isVisible());
    QVERIFY(window.view.Frame().isVisible());
}

}  // namespace tavrelo::window_test
