#pragma once

#include "qt/artwork.h"
#include "window/host.h"

namespace tavrelo::qt {

/// Pictures are copied and saved at twice their size, so that they look well on paper.
inline constexpr double kExportScale = 2;

/// The desktop's clipboard.
class SystemClipboard : public window::Clipboard {
  public:
    explicit SystemClipboard(Artwork& artwork) : m_artwork(artwork) {}

    std::string Text() const override;
    void SetText(std::string_view text) override;
    void SetPicture(const window::Recorder& picture) override;

  private:
    Artwork& m_artwork;
};

}  // namespace tavrelo::qt
