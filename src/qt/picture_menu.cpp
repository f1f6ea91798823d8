#include "qt/picture_menu.h"

#include <QFileDialog>

#include "qt/canvas.h"
#include "qt/clipboard.h"

namespace tavrelo::qt {
namespace {

void SaveImage(QWidget* over, const window::Picture& picture, const ViewContext& context) {
    const QString path =
        QFileDialog::getSaveFileName(over, QStringLiteral("Guardar imagen"), QStringLiteral("pizarron.png"),
                                     QStringLiteral("Imagen PNG (*.png)"));
    if (path.isEmpty())
        return;
    const bool saved = ToImage(picture.Canvas(), kExportScale, context.artwork).save(path, "PNG");
    if (!saved)
        context.form.boxes.Tell("No pude guardar la imagen.");
}

}  // namespace

void AddPictureActions(QMenu& menu, const window::Picture& picture, const ViewContext& context) {
    QWidget* over = menu.parentWidget() ? menu.parentWidget()->window() : nullptr;
    menu.addAction(QStringLiteral("Copiar imagen"),
                   [&] { SystemClipboard(context.artwork).SetPicture(picture.Canvas()); });
    menu.addAction(QStringLiteral("Guardar imagen..."), [&, over] { SaveImage(over, picture, context); });
}

}  // namespace tavrelo::qt
