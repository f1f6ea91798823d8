#include <QStandardPaths>
#include <QTest>

#include "qt/application.h"
#include "qt/look.h"
#include "tests.h"

namespace {

using namespace tavrelo::window_test;

template <class Test>
int Run(int argc, char* argv[]) {
    Test test;
    return QTest::qExec(&test, argc, argv);
}

}  // namespace

int main(int argc, char* argv[]) {
    // However the program is started, its desktop has the screens that the tests go through.
    qputenv("QT_QPA_PLATFORM", "offscreen:configfile=" TAVRELO_SCREENS);
    QStandardPaths::setTestModeEnabled(true);
    tavrelo::qt::Application application(argc, argv);
    QApplication::setQuitOnLastWindowClosed(false);
    tavrelo::qt::SetUpApplication(application);
    int failed = 0;
    for (const auto run :
         {Run<ZoomTest>, Run<ScreenTest>, Run<LookTest>, Run<FreeWindowTest>, Run<FocusTest>,
          Run<KeyboardTest>, Run<TypingTest>, Run<RichTextTest>, Run<BoxesTest>, Run<ChangesTest>,
          Run<PictureTest>, Run<PrintingTest>, Run<ClosingTest>, Run<AccessibleTest>, Run<LayoutTest>})
        failed += run(argc, argv);
    return failed == 0 ? 0 : 1;
}
