#include "window/control_names.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <set>
#include <tuple>

#include "test_host.h"

namespace tavrelo::window {
namespace {

constexpr Arrangement kArrangements[] = {
    Arrangement::Calculator, Arrangement::CalculatorWithClock, Arrangement::Particle,  Arrangement::RigidBody,
    Arrangement::Motion,     Arrangement::Projectile,          Arrangement::Kinematics};

class ControlNamesTest : public testing::Test {
  protected:
    std::string NameOf(std::string_view control) const {
        return AccessibleName(form, form.Get<Control>(control));
    }
    void SetCaption(std::string_view control, std::string caption) {
        form.Get<Control>(control).SetCaption(std::move(caption));
    }

    TestHost world;
    Form1 form{world.host};
};

/// A label without a caption says nothing, as nothing is seen of it.
bool IsEmptyLabel(const Control& control) {
    return control.Kind() == ControlKind::Label && control.Caption().empty();
}

TEST_F(ControlNamesTest, EveryControlHasANameInEveryArrangement) {
    for (const Arrangement arrangement : kArrangements) {
        form.Arrange(arrangement);
        for (const Control* control : form.Controls()) {
            EXPECT_EQ(AccessibleName(form, *control).empty(), IsEmptyLabel(*control)) << control->Name();
        }
    }
}

TEST_F(ControlNamesTest, NamesAreWholeWordsOfSpanish) {
    constexpr std::string_view kSigns[] = {"?", "×", "▼", "▲", "  ", "--", "Botón", "botón"};
    for (const Control* control : form.Controls()) {
        const std::string name = AccessibleName(form, *control);
        EXPECT_TRUE(std::ranges::none_of(
            kSigns, [&](std::string_view sign) { return name.find(sign) != std::string::npos; }))
            << control->Name() << ' ' << name;
        const bool is_number = !name.empty() && name.find_first_not_of("0123456789") == std::string::npos;
        EXPECT_FALSE(is_number) << control->Name();
    }
}

TEST_F(ControlNamesTest, NamesDoNotTellTheKindOfTheControl) {
    const std::tuple<ControlKind, std::vector<std::string>> kWords[] = {
        {ControlKind::Frame, {"panel", "marco", "grupo"}},
        {ControlKind::Label, {"etiqueta"}},
        {ControlKind::Button, {"botón"}},
        {ControlKind::OptionButton, {"opción", "botón"}},
        {ControlKind::CheckBox, {"casilla", "marca"}},
        {ControlKind::TextBox, {"cuadro", "casilla", "texto"}},
        {ControlKind::RichTextBox, {"cuadro", "casilla"}},
        {ControlKind::Grid, {"tabla", "celda"}},
        {ControlKind::Picture, {"imagen", "barra", "menú", "botón"}},
        {ControlKind::ComboBox, {"lista"}},
        {ControlKind::ListBox, {"lista"}},
        {ControlKind::TabStrip, {"ficha", "pestaña"}},
        {ControlKind::UpDown, {"botón", "flecha"}},
    };
    const auto lower = [](std::string text) {
        std::ranges::transform(text, text.begin(), [](unsigned char c) { return std::tolower(c); });
        return text;
    };
    for (const Control* control : form.Controls())
        for (const auto& [kind, words] : kWords)
            for (const std::string& word : words) {
                const bool tells = control->Kind() == kind &&
                                   lower(AccessibleName(form, *control)).find(word) != std::string::npos;
                EXPECT_FALSE(tells) << control->Name() << ' ' << word;
            }
}

/// Side by side, no two controls are called alike.
TEST_F(ControlNamesTest, NeighboursHaveNamesOfTheirOwn) {
    const std::set<std::string_view> never_together = {"pic1", "rtbSolve", "picArgs2", "rtbHold", "picRuts"};
    for (const Arrangement arrangement : kArrangements) {
        form.Arrange(arrangement);
        std::set<std::tuple<const Control*, int, std::string>> names;
        for (const Control* control : form.Controls()) {
            if (never_together.contains(control->Name()) || IsEmptyLabel(*control))
                continue;
            const std::string name = AccessibleName(form, *control);
            EXPECT_TRUE(names.insert({control->Parent(), control->Page(), name}).second) << name;
        }
    }
}

TEST_F(ControlNamesTest, EveryRowNamesAControlAndItsLabel) {
    for (const ControlName& row : NameTable()) {
        EXPECT_NE(form.Find(row.name), nullptr) << row.name;
        EXPECT_TRUE(row.label.empty() || form.Find(row.label)) << row.label;
        EXPECT_FALSE(row.words.empty()) << row.name;
    }
}

TEST_F(ControlNamesTest, FollowTheTool) {
    form.Arrange(Arrangement::CalculatorWithClock);
    EXPECT_EQ(NameOf("txtVector"), "Vector");
    EXPECT_EQ(NameOf("picBar"), "Rutinas");
    form.Arrange(Arrangement::Particle);
    EXPECT_EQ(NameOf("txtVector"), "Fuerza");
    form.Arrange(Arrangement::Kinematics);
    EXPECT_EQ(NameOf("picBar"), "Formas de dar el movimiento");
}

TEST_F(ControlNamesTest, TellTheViewWhenTheToolChangesThem) {
    std::set<std::string> told;
    form.Arrange(Arrangement::Calculator);
    form.OnChange = [&](Control& control, Change change) {
        if (change == Change::State)
            told.insert(control.Name());
    };
    form.Arrange(Arrangement::Particle);
    EXPECT_TRUE(told.contains("txtVector"));
    told.clear();
    form.Arrange(Arrangement::Particle);
    EXPECT_FALSE(told.contains("txtVector"));
}

TEST_F(ControlNamesTest, FollowTheirLabels) {
    EXPECT_EQ(NameOf("txtSegm(1)"), "Vector de separación");
    EXPECT_EQ(NameOf("txtSegm(3)"), "Separación 3");
    SetCaption("lblSegm(1)", "AB");
    SetCaption("lblSegm(2)", "BC    CD");
    EXPECT_EQ(NameOf("lblSegm(1)"), "Primer par: AB");
    EXPECT_EQ(NameOf("txtSegm(1)"), "Vector de separación AB");
    EXPECT_EQ(NameOf("txtSegm(2)"), "Separación BC");
    EXPECT_EQ(NameOf("txtSegm(3)"), "Separación CD");
    EXPECT_EQ(NameOf("txtSegm(4)"), "Separación 4");

    EXPECT_EQ(NameOf("txtBody(2)"), "Fuerza o par");
    SetCaption("lblForceAt(0)", "Fuerza[:][/Par] en A");
    SetCaption("lblForceAt(1)", "en B");
    EXPECT_EQ(NameOf("txtBody(2)"), "Fuerza o par en A");
    EXPECT_EQ(NameOf("txtBody(3)"), "Fuerza en B");

    SetCaption("lblKinem(0)", "a(t,x,v)=");
    EXPECT_EQ(NameOf("txtKinem(0)"), "Función a(t,x,v)");
    SetCaption("lblPoints(2)", "ACD");
    EXPECT_EQ(NameOf("lblPoints(2)"), "Puntos del sistema 3: ACD");
    EXPECT_EQ(NameOf("lblPoints(3)"), "");
}

TEST_F(ControlNamesTest, LabelsKnowWhomTheyName) {
    EXPECT_EQ(NamedAfter(form, form.Get<Control>("lblSegm(1)")),
              std::vector<Control*>{form.Find("txtSegm(1)")});
    EXPECT_TRUE(NamedAfter(form, form.Get<Control>("cmdRotangle")).empty());
}

TEST_F(ControlNamesTest, FollowTheCaption) {
    EXPECT_EQ(NameOf("cmdHelpCtrl(1)"), "Agrandar la letra a 10 puntos");
    SetCaption("cmdHelpCtrl(1)", "10");
    EXPECT_EQ(NameOf("cmdHelpCtrl(1)"), "Reducir la letra a 8 puntos");
    EXPECT_EQ(NameOf("cmdSeeEqns"), "Ver gráfico");
    SetCaption("cmdSeeEqns", "Ver Ecuacs.");
    EXPECT_EQ(NameOf("cmdSeeEqns"), "Ver ecuaciones");
    SetCaption("cmdRotangle", "Q = 30°");
    EXPECT_EQ(NameOf("cmdRotangle"), "Rotar ejes: Q = 30°");
}

TEST_F(ControlNamesTest, AnUnderlineIsSaid) {
    form.Get<Control>("cmdPass(1)").SetUnderlined(true);
    EXPECT_EQ(NameOf("cmdPass(1)"), "Segunda solución, en uso");
    EXPECT_EQ(NameOf("lblAs(0)"), "Un móvil, una aceleración: a");
    form.Get<Control>("lblAs(0)").SetUnderlined(true);
    EXPECT_EQ(NameOf("lblAs(0)"), "Un móvil, una aceleración: a, en uso");
    EXPECT_EQ(NameOf("cmdTable(0)"), "Configurar: Un móvil, una aceleración: a, en uso");
}

}  // namespace
}  // namespace tavrelo::window
