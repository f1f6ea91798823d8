#pragma once

namespace tavrelo::window {

/// Pointer shapes of the window and of its pictures, by the numbers that the program gives them.
enum PointerShape : int {
    kPointerDefault = 0,
    kPointerCross = 2,
    kPointerMove = 6,
    kPointerArrowHourglass = 8,
    kPointerUpArrow = 10,
    kPointerBusy = 11,
};

class Form1;

/// Shows the busy pointer for a long command and restores the old one when it goes out of scope.
class CMousePtr {
  public:
    explicit CMousePtr(Form1& form, int shape = kPointerBusy);
    ~CMousePtr();
    CMousePtr(const CMousePtr&) = delete;
    CMousePtr& operator=(const CMousePtr&) = delete;

  private:
    Form1& m_form;
    int m_old_shape;
};

}  // namespace tavrelo::window
