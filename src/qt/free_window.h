#pragma once

#include <QTimer>
#include <QWidget>
#include <memory>

#include "qt/binding.h"

namespace tavrelo::qt {

/// What the menus of pictures and reports call opening one in a window of its own.
inline constexpr const char* kOpenFreeCaption = "Ver en otra ventana\tF9";

/// A window of its own that shows a picture or a report of the program as large as the user likes, and
/// follows every change of it. Escape closes it, F11 fills the screen.
class FreeWindow : public QWidget {
  public:
    FreeWindow(const window::Control& source, const ViewContext& context);

    /// Shows it in front of all others.
    void Open();
    /// The source has changed: shows it as it is, behind the handler under way.
    void Follow() { m_late.start(); }

  protected:
    virtual void ShowContent() = 0;
    /// What stands for the source in the window, which is called like it.
    virtual QWidget& View() = 0;
    const ViewContext& Context() const { return m_context; }

    void showEvent(QShowEvent* event) override;

  private:
    void SwitchFullScreen();
    /// Names may follow the tool in use.
    void ShowName();
    void Show();

    const window::Control& m_source;
    const ViewContext& m_context;
    QTimer m_late;
};

/// Whether a control can be shown in a window of its own: the boards and the reports.
bool HasFreeWindow(const window::Control& control);

/// A window for a control that can have one; the control and the context must outlive it.
std::unique_ptr<FreeWindow> NewFreeWindow(const window::Control& source, const ViewContext& context);

}  // namespace tavrelo::qt
