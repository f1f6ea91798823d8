#include "window/pointer.h"

#include "window/form1.h"

namespace tavrelo::window {

CMousePtr::CMousePtr(Form1& form, int shape) : m_form(form), m_old_shape(form.Pointer()) {
    m_form.SetPointer(shape);
}

CMousePtr::~CMousePtr() { m_form.SetPointer(m_old_shape); }

}  // namespace tavrelo::window
