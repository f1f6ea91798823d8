#pragma once

#include "qt/binding.h"

// One maker for each kind of control, each in a file of its own.

namespace tavrelo::qt {

std::unique_ptr<Binding> NewFrameBinding(window::Control& control, QWidget& parent, ViewContext& context);
std::unique_ptr<Binding> NewShapeBinding(window::Control& control, QWidget& parent, ViewContext& context);
std::unique_ptr<Binding> NewLabelBinding(window::Control& control, QWidget& parent, ViewContext& context);
std::unique_ptr<Binding> NewButtonBinding(window::Control& control, QWidget& parent, ViewContext& context);
std::unique_ptr<Binding> NewOptionBinding(window::Control& control, QWidget& parent, ViewContext& context);
std::unique_ptr<Binding> NewCheckBinding(window::Control& control, QWidget& parent, ViewContext& context);
/// A one-line box for plain text.
std::unique_ptr<Binding> NewTextBinding(window::Control& control, QWidget& parent, ViewContext& context);
/// A page of formatted text; a box that can be typed into is a line of plain text.
std::unique_ptr<Binding> NewRichTextBinding(window::Control& control, QWidget& parent, ViewContext& context);
std::unique_ptr<Binding> NewGridBinding(window::Control& control, QWidget& parent, ViewContext& context);
std::unique_ptr<Binding> NewPictureBinding(window::Control& control, QWidget& parent, ViewContext& context);
std::unique_ptr<Binding> NewComboBinding(window::Control& control, QWidget& parent, ViewContext& context);
std::unique_ptr<Binding> NewListBinding(window::Control& control, QWidget& parent, ViewContext& context);
std::unique_ptr<Binding> NewTabStripBinding(window::Control& control, QWidget& parent, ViewContext& context);
std::unique_ptr<Binding> NewUpDownBinding(window::Control& control, QWidget& parent, ViewContext& context);

}  // namespace tavrelo::qt
