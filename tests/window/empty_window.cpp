#include <QApplication>
#include <QScreen>

#include "qt/first_paint.h"
#include "qt/zoom.h"
#include "window/layout.h"

using namespace tavrelo;

int main(int argc, char* argv[]) {
    QApplication application(argc, argv);
    QWidget window;
    const QSizeF page(window::kForm1Bounds.width, window::kForm1Bounds.height);
    const QSize screen = window.screen()->availableSize();
    window.resize(qt::FrameSize(page, qt::FirstZoom(page, screen), screen, 0));
    if (QCoreApplication::arguments().contains(QLatin1String(qt::kQuitAfterPaint)))
        new qt::QuitAfterPaint(window);
    window.show();
    return QApplication::exec();
}
