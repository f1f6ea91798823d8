#pragma once

#include <QLineEdit>

#include "window/controls.h"

namespace tavrelo::qt {

/// A line of text whose key strokes go through the model's handlers first; what these leave is edited as
/// usual.
class TextField : public QLineEdit {
  public:
    TextField(window::TextControl& model, QWidget& parent) : QLineEdit(&parent), m_model(model) {}

  protected:
    void keyPressEvent(QKeyEvent* event) override;
    void keyReleaseEvent(QKeyEvent* event) override;
    void inputMethodEvent(QInputMethodEvent* event) override;
    void contextMenuEvent(QContextMenuEvent* event) override;

  private:
    window::TextControl& m_model;
};

}  // namespace tavrelo::qt
