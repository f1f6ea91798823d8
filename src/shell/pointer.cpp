#include "shell/pointer.h"

#include "shell/form1.h"

namespace tavrelo::shell {

CMousePtr::CMousePtr(Form1& form, int shape) : m_form(form), m_old_shape(form.Pointer()) {
    m_form.SetPointer(shape);
}

CMousePtr::~CMousePtr() { m_form.SetPointer(m_old_shape); }

}  // namespace tavrelo::shell
