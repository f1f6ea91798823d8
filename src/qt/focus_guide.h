#pragma once

#include <QAbstractButton>
#include <QObject>
#include <deque>
#include <functional>
#include <vector>

#include "qt/binding.h"
#include "qt/form_window.h"

namespace tavrelo::qt {

/// Leads the keys through the windows: from control to control as one reads, back from where they went by
/// Escape, and to a place nearby when the control that had them goes.
class FocusGuide : public QObject {
  public:
    /// The bindings that there are: of a control, and of a widget or what it lies in; null for none.
    struct Bindings {
        std::function<Binding*(const window::Control&)> of_control;
        std::function<Binding*(const QWidget*)> of_widget;
    };
    FocusGuide(window::Form1& form, FormWindow& main, FormWindow& dialog, Bindings bindings);

    /// The control that the keys act on for the program: of a widget at which they only rest, none.
    window::Control* FocusedControl() const;

    /// Gives the keys of a window in view a place to rest, when no control there has them.
    void RestIfLost();
    /// A control lost the keys, being hidden or disabled. Those of its window rest nearby once the handler
    /// under way has ended.
    void RestSoon(const window::Control& lost);

    /// Told the last control of the program's window in the order of Tab, when the keys are about to move.
    std::function<void(QWidget&)> OnLastStop;

    /// The buttons, options and checks of the active window that show a caption, in reading order.
    std::vector<QAbstractButton*> ButtonsInView() const;

    /// To the first control of the next panel in view, or the one before.
    void GoToNextPanel(int step);

  protected:
    /// The user acts where the keys only rested.
    bool eventFilter(QObject* watched, QEvent* event) override;

  private:
    void OrderTabs(const FormWindow& window) const;
    void Leave();
    window::Button* CancelOf(const window::Control& control) const;
    void Remember(QWidget* left);
    bool TakesKeys(const window::Control& control) const;
    /// Of a group of options Tab stops at one: where the keys are, else the chosen one, else the first.
    bool IsPassedBy(const window::Control& control) const;
    /// The controls of a window that the keys can go to now, in reading order.
    std::vector<Binding*> Stops(const FormWindow& window) const;
    Binding* RestingPlace(const FormWindow& window) const;
    Binding* Beside(const window::Control& lost, const std::vector<Binding*>& stops) const;
    Binding* FocusedBinding() const;

    window::Form1& m_form;
    FormWindow& m_main;
    FormWindow& m_dialog;
    Bindings m_bindings;
    std::deque<const window::Control*> m_visited;  // the last one in front
    const window::Control* m_lost = nullptr;
};

}  // namespace tavrelo::qt
