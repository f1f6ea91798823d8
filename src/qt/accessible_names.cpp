#include "qt/accessible_names.h"

#include <algorithm>
#include <iterator>
#include <string_view>

#include "qt/text.h"

namespace tavrelo::qt {
namespace {

struct Description {
    std::string_view name;  // of a control, or of an array of controls
    std::string_view text;
};

constexpr Description kDescriptions[] = {
    {"Image1", "Barra de herramientas"},
    {"linMarker", "Herramienta en uso"},
    {"pic", "Pizarrón"},
    {"pic1", "Pizarrón"},
    {"picBar", "Menú de rutinas"},
    {"picArgs", "Argumentos de la rutina"},
    {"picArgs1", "Título de la rutina"},
    {"picArgs2", "Argumentos de la rutina"},
    {"rtbExpr", "Expresión"},
    {"txtExpr", "Valor de la expresión"},
    {"picOpt", "Opciones de la expresión"},
    {"cmdGrid", "Botón de la tabla"},
    {"gd", "Tabla de argumentos"},
    {"picClock", "Reloj de direcciones"},
    {"txtVector", "Vector"},
    {"txtAngle", "Ángulo en grados"},
    {"txtAtan", "Pendiente"},
    {"gdEqui", "Tabla de fuerzas"},
    {"rtbCalc", "Resultados"},
    {"rtbSolve", "Resultados"},
    {"txtArgHelp", "Ayuda"},
    {"rtbReg", "Registro de resultados"},
    {"tabCalc", "Resultados, ayuda y registro"},
    {"tabStat", "Cuerpo rígido"},
    {"tabMrua", "Tabla de movimiento"},
    {"txtSegm", "Datos de la cadena de puntos"},
    {"txtRepeat", "Serie en"},
    {"lstSeps", "Vectores separación"},
    {"lstCoords", "Coordenadas"},
    {"txtOrigin", "Origen"},
    {"spnColor", "Sistema"},
    {"lstSysts", "Puntos del sistema"},
    {"txtPoints", "Trazar línea"},
    {"txtBody", "Datos de la fuerza"},
    {"gd1", "Tabla de fuerzas del diagrama"},
    {"lstDCL", "Cuerpos"},
    {"txtRefPt", "Punto de referencia"},
    {"txtSuprEqn", "Ecuaciones por suprimir"},
    {"cmdTable", "Configuración de la tabla"},
    {"imgProcs", "Procedimientos"},
    {"shpMrua", "Procedimiento en uso"},
    {"cboProcs", "Otros procedimientos"},
    {"txtProcs", "Datos del procedimiento"},
    {"picAccel", "Puntos y aceleraciones"},
    {"Gd2", "Tabla de movimiento"},
    {"txtAccel", "Aceleración"},
    {"lblRes", "Resultado"},
    {"txtKinem", "Función del movimiento"},
    {"txtT0", "Valor inicial"},
    {"txtKinemt1", "Tiempo"},
    {"cboHelp", "Temas de ayuda"},
    {"rtbHelp", "Ayuda"},
    {"txtNCD", "Número de cifras decimales"},
    {"UpDown1", "Número de cifras decimales"},
};

struct Ordinal {
    std::string_view base;
    QString number;  // of a control of an array, counted from 1
};

Ordinal Split(std::string_view name) {
    const std::size_t open = name.find('(');
    if (open == std::string_view::npos)
        return {name, {}};
    const int index = ToQString(name.substr(open + 1, name.size() - open - 2)).toInt();
    return {name.substr(0, open), QString::number(index + 1)};
}

}  // namespace

QString AccessibleName(const window::Control& control) {
    const Ordinal ordinal = Split(control.Name());
    const auto* row = std::ranges::find(kDescriptions, ordinal.base, &Description::name);
    if (!control.Caption().empty() || row == std::end(kDescriptions))
        return ToQString(control.Caption()).simplified();
    const QString text = ToQString(row->text);
    return ordinal.number.isEmpty() ? text : text + QLatin1Char(' ') + ordinal.number;
}

}  // namespace tavrelo::qt
