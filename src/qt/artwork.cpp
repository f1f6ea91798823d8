#include "qt/artwork.h"

#include <QFile>
#include <algorithm>
#include <cmath>

#include "numeric/checked.h"
#include "qt/text.h"

// Stands outside any namespace, as the macro asks.
static void RegisterArtwork() { Q_INIT_RESOURCE(artwork); }

namespace tavrelo::qt {
namespace {

constexpr int kFinestResolution = 4;

QString ResourcePath(const std::string& name, int resolution) {
    const QString suffix = resolution > 1 ? QStringLiteral("@%1x").arg(resolution) : QString();
    return QStringLiteral(":/art/") + ToQString(name) + suffix + QStringLiteral(".png");
}

QRectF Scaled(const QRectF& rect, double factor) {
    return {rect.x() * factor, rect.y() * factor, rect.width() * factor, rect.height() * factor};
}

}  // namespace

Artwork::Bitmap Artwork::ReadFile(const std::string& name) const {
    try {
        const std::string bytes = m_files.Read(name);
        return {
            QImage::fromData(reinterpret_cast<const uchar*>(bytes.data()), static_cast<int>(bytes.size())),
            1};
    } catch (const numeric::RuntimeFailure&) {
        return {};
    }
}

const Artwork::Bitmap& Artwork::Load(const std::string& name, double scale) {
    RegisterArtwork();
    const int resolution = std::clamp(static_cast<int>(std::ceil(scale)), 1, kFinestResolution);
    const auto [entry, is_new] = m_bitmaps.try_emplace({name, resolution});
    if (is_new) {
        const QString path = ResourcePath(name, resolution);
        entry->second = QFile::exists(path) ? Bitmap{QImage(path), resolution} : ReadFile(name);
    }
    return entry->second;
}

void Artwork::Paint(QPainter& painter, const std::string& name, const QRectF& source, const QRectF& target,
                    double scale) {
    const Bitmap& bitmap = Load(name, scale);
    if (bitmap.image.isNull())
        return;
    painter.setRenderHint(QPainter::SmoothPixmapTransform);
    painter.drawImage(target, bitmap.image, Scaled(source, bitmap.resolution));
}

QPixmap Artwork::Piece(const std::string& name, const QRectF& source, double zoom, double pixel_ratio) {
    const double scale = zoom * pixel_ratio;
    QPixmap piece((source.size() * scale).toSize());
    piece.fill(Qt::transparent);
    QPainter painter(&piece);
    Paint(painter, name, source, QRectF(piece.rect()), scale);
    painter.end();
    piece.setDevicePixelRatio(pixel_ratio);
    return piece;
}

}  // namespace tavrelo::qt
