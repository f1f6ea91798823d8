#include "frame/preferences.h"

#include "window/guarded.h"
#include "window/questions.h"

namespace tavrelo::frame {
namespace {

// Indexes of optPrint.
enum Printable { kLog, kHelpPanelText, kShortHelpText };

constexpr int kMostDecimals = 10;
constexpr window::PageMargins kPrintMargins{1600, 1000, 1600, 1600};  // twips
constexpr std::string_view kAboutText =
    "Tavrelo\n"
    "Herramienta de enseñanza para el primer curso de mecánica:\n"
    "plantea las ecuaciones, las resuelve y traza el diagrama o la gráfica.\n"
    "Programa libre bajo la licencia MIT.";

}  // namespace

Preferences::Preferences(window::Form1& form) : m_form(form) {
    m_controls.UpDown1.buddy = &m_controls.txtNCD;
    m_controls.UpDown1.SetRange(0, kMostDecimals);
    m_controls.UpDown1.SetValue(form.publics.Decimals);
    window::On(form, m_controls.UpDown1.OnChange,
               [this] { m_form.publics.Decimals = static_cast<std::int16_t>(m_controls.UpDown1.Value()); });
    window::OnClick(form, m_controls.cmdPrintRes, [this] { PrintChosen(); });
    window::OnClick(form, m_controls.cmdCopyToClipboard,
                    [this] { m_form.clipboard.SetPicture(m_controls.pic1.Canvas()); });
    window::OnClick(form, m_controls.cmdCloseForm2, [this] { m_controls.Form2.SetVisible(false); });
    window::On(form, m_controls.Form2.OnClose, [this] { m_controls.Form2.SetVisible(false); });
    window::OnClick(form, m_controls.cmdAbout, [this] { m_form.boxes.Tell(kAboutText); });
}

void Preferences::PrintChosen() {
    if (m_controls.optPrint[kLog].Checked())
        ImprimirResultados(m_controls.rtbReg, "Imprimir el contenido del cuadro de registro.");
    else if (m_controls.optPrint[kHelpPanelText].Checked())
        ImprimirResultados(m_controls.rtbHelp, "Imprimir el contenido del panel de ayuda.");
    else if (m_controls.optPrint[kShortHelpText].Checked())
        ImprimirResultados(m_controls.txtArgHelp, "Imprimir el contenido de la ficha Ayuda.");
    else
        m_form.boxes.Tell("Selecciona algo qué imprimir.");
}

void Preferences::ImprimirResultados(const window::RichTextBox& box, std::string_view question) {
    if (box.Text().empty()) {
        m_form.boxes.Tell("No hay texto qué imprimir");
        return;
    }
    if (!window::Confirm(m_form.boxes, question, window::Buttons::OkCancel))
        return;
    window::Guard(m_form.boxes, "Error en la impresión.", [&] {
        const window::CMousePtr busy(m_form);
        m_form.printer.Print(box.Content(), kPrintMargins);
    });
}

}  // namespace tavrelo::frame
