#include "frame/preferences.h"

#include "window/guard.h"

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
    m_form.UpDown1.SetRange(0, kMostDecimals);
    m_form.UpDown1.SetValue(m_form.publics.Decimals);
    m_form.UpDown1.OnChange = [this] {
        m_form.publics.Decimals = static_cast<std::int16_t>(m_form.UpDown1.Value());
    };
    m_form.cmdPrintRes.OnClick = [this] {
        window::Guard(m_form.boxes, text::kCommandFailed, [this] { PrintChosen(); });
    };
    m_form.cmdCopyToClipboard.OnClick = [this] {
        window::Guard(m_form.boxes, text::kCommandFailed,
                      [this] { m_form.clipboard.SetPicture(m_form.pic1.Canvas()); });
    };
    m_form.cmdCloseForm2.OnClick = [this] { m_form.Form2.SetVisible(false); };
    m_form.cmdAbout.OnClick = [this] { m_form.boxes.Tell(kAboutText); };
}

void Preferences::PrintChosen() {
    if (m_form.optPrint[kLog].Checked())
        ImprimirResultados(m_form.rtbReg, "Imprimir el contenido del cuadro de registro.");
    else if (m_form.optPrint[kHelpPanelText].Checked())
        ImprimirResultados(m_form.rtbHelp, "Imprimir el contenido del panel de ayuda.");
    else if (m_form.optPrint[kShortHelpText].Checked())
        ImprimirResultados(m_form.txtArgHelp, "Imprimir el contenido de la ficha Ayuda.");
    else
        m_form.boxes.Tell("Selecciona algo qué imprimir.");
}

void Preferences::ImprimirResultados(const window::RichTextBox& box, std::string_view question) {
    if (box.Text().empty()) {
        m_form.boxes.Tell("No hay texto qué imprimir");
        return;
    }
    if (m_form.boxes.ShowMessage(question, window::kProgramTitle, window::Buttons::OkCancel) !=
        window::Answer::Ok)
        return;
    window::Guard(m_form.boxes, "Error en la impresión.", [&] {
        const window::CMousePtr busy(m_form);
        m_form.printer.Print(box.Content(), kPrintMargins);
    });
}

}  // namespace tavrelo::frame
