#include "app/program.h"
#include "qt/application.h"
#include "qt/boxes.h"
#include "qt/clipboard.h"
#include "qt/files.h"
#include "qt/first_paint.h"
#include "qt/look.h"
#include "qt/main_window.h"
#include "qt/printing.h"
#include "qt/text.h"

namespace {

using namespace tavrelo;

/// The world around the program on a desktop; its files stand beside the executable.
struct Desktop {
    qt::FolderFiles files{qt::ToUtf8(QCoreApplication::applicationDirPath())};
    qt::Artwork artwork{files};
    qt::WindowBoxes boxes;
    qt::SystemClipboard clipboard{artwork};
    qt::SystemPrinter printer;
};

}  // namespace

int main(int argc, char* argv[]) {
    qt::Application application(argc, argv);
    const qt::DesktopLook desktop_look = qt::SetUpApplication(application);
    Desktop desktop;
    app::Program program({desktop.boxes, desktop.clipboard, desktop.printer, desktop.files});
    qt::MainWindow window(program.Window(), desktop.artwork);
    if (desktop_look.wants_contrast)
        window.SetContrast(true);
    program.Window().OnEnd = [] { QApplication::quit(); };
    if (QCoreApplication::arguments().contains(QLatin1String(qt::kQuitAfterPaint)))
        new qt::QuitAfterPaint(window.Frame());
    window.Show();
    return QApplication::exec();
}
