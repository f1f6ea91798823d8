#pragma once

#include <QDeadlineTimer>
#include <QObject>
#include <memory>
#include <unordered_map>
#include <vector>

#include "qt/binding.h"
#include "qt/focus_guide.h"
#include "qt/form_window.h"
#include "qt/free_window.h"
#include "qt/mnemonics.h"
#include "qt/zoom_bar.h"

namespace tavrelo::qt {

/// The program's window on the desktop, and its dialog: a real widget for each control of the model, all of
/// one zoom.
class MainWindow : public QObject {
  public:
    /// Both must outlive it.
    MainWindow(window::Form1& form, Artwork& artwork);
    ~MainWindow() override;

    /// Brings the windows that the model shows to the screen.
    void Show();

    /// The program's window.
    FormWindow& Frame() { return m_main; }
    /// What stands below the page.
    ZoomBar& Bar() { return m_bar; }
    /// The widget that shows a control of the form, or its window.
    QWidget& WidgetOf(window::Control& control);
    /// The control with the keyboard focus, or the one that has it when the program's window is active; or
    /// null, also while the keys only rest somewhere.
    window::Control* FocusedControl() const { return m_guide.FocusedControl(); }

    /// The zoom of the program's page.
    double Zoom() const { return m_context.zoom; }
    /// The zoom of the page on which a widget stands.
    double ZoomOf(const QWidget& widget) const;
    /// Scales both pages, between kSmallestZoom and kLargestZoom. The window grows or shrinks with its page
    /// as far as the screen holds it; a maximised one stays as it is. What it does not hold is scrolled.
    void SetZoom(double zoom);
    bool HasContrast() const { return m_context.text_look == TextLook::Readable; }
    /// The look in which every text can be read; until the program ends or it is switched off.
    void SetContrast(bool is_on);
    /// Opens a board or a report in a window of its own, which follows it.
    FreeWindow& OpenFree(const window::Control& source);
    /// Scales the page to the largest zoom that the window holds whole.
    void FitToFrame();

  protected:
    /// Ctrl with the wheel zooms, whatever is below the pointer.
    bool eventFilter(QObject* watched, QEvent* event) override;
    bool event(QEvent* event) override;

  private:
    void MakeShortcuts();
    /// Makes the widgets of all controls that have come in view.
    void MakeWidgets();
    /// The binding of a control, made with those of its panels if need be.
    Binding& BindingOf(window::Control& control);
    QWidget& ParentWidgetOf(const window::Control& control);
    /// Widgets lie over one another in the order of the form's table, whenever they were made.
    void Stack(const window::Control& control, QWidget& widget);
    void OnChange(window::Control& control, window::Change change);
    /// Shows a change at once, or behind the handler when it would renew a whole table or text.
    void ShowChange(Binding& binding, window::Change change);
    void ShowLateChanges();
    void ShowWindows();
    /// When the control in use becomes unusable, no other control inherits the program's focus.
    void DropLostFocus();
    void RefreshPages(const window::Control& strip);
    /// A caption has changed that names of other controls take up.
    void RenameAfter(const window::Control& label);
    Binding* BindingOf(const QWidget* widget) const;
    Binding* MadeBindingOf(const window::Control& control) const;

    /// Opens the board or report in use: the one with the focus, else the board in view.
    void OpenFreeInUse();
    /// Whether a double click on the widget opens a window: on a board without a handler for the mouse. In a
    /// report it chooses a word, as in any text.
    bool OpensByDoubleClick(const QWidget& widget) const;
    void FollowInFreeWindows(const window::Control& control, window::Change change);

    void ApplyZoom(double zoom);
    /// Zooms around a place of the window.
    void StepZoom(int steps, const QPointF& place);
    /// The frame has another size: by the user, by the desktop, or by SetZoom.
    void FollowFrame();
    /// The dialog goes with the page but is never larger than the screen.
    void ShowDialogZoom(double zoom);
    ViewContext& ContextOf(const window::Control& control);

    ViewContext m_context;
    ViewContext m_dialog_context;
    FormWindow m_main;
    FormWindow m_dialog;
    ZoomBar m_bar;
    std::vector<window::Control*> m_unmade;  // controls that were not in view yet
    std::unordered_map<const window::Control*, std::unique_ptr<Binding>> m_bindings;
    std::unordered_map<const QWidget*, Binding*> m_by_widget;
    FocusGuide m_guide;
    Mnemonics m_mnemonics{[this] { return m_guide.ButtonsInView(); }};
    std::unordered_map<const window::Control*, std::unique_ptr<FreeWindow>> m_free_windows;
    struct LateChange {
        Binding* binding;
        window::Change change;  // a content is shown with its selection
    };
    std::vector<LateChange> m_late;
    int m_wheel_turn = 0;          // eighths of a degree that make no whole step yet
    QSize m_asked_size;            // that the frame was given by SetZoom; null when another one followed
    QDeadlineTimer m_answer_time;  // until then a smaller frame is the desktop's answer to SetZoom
};

}  // namespace tavrelo::qt
