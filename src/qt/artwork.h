#pragma once

#include <QImage>
#include <QPainter>
#include <QPixmap>
#include <map>
#include <string>

#include "window/host.h"

namespace tavrelo::qt {

/// The program's bitmaps. Those that are built in come at one to four times their size and are decoded when
/// first asked for; any other name is a file beside the program.
class Artwork {
  public:
    explicit Artwork(const window::Files& files) : m_files(files) {}

    /// Paints the piece `source` (pixels at 100 %) of a bitmap into `target`; `scale` is the number of device
    /// pixels that a pixel at 100 % gets. A bitmap that does not exist leaves the place as it is.
    void Paint(QPainter& painter, const std::string& name, const QRectF& source, const QRectF& target,
               double scale);
    /// The piece as a picture of its own.
    QPixmap Piece(const std::string& name, const QRectF& source, double zoom, double pixel_ratio);

  private:
    /// A bitmap and how many of its pixels make one at 100 %.
    struct Bitmap {
        QImage image;
        int resolution = 1;
    };
    const Bitmap& Load(const std::string& name, double scale);
    Bitmap ReadFile(const std::string& name) const;

    const window::Files& m_files;
    std::map<std::pair<std::string, int>, Bitmap> m_bitmaps;
};

}  // namespace tavrelo::qt
