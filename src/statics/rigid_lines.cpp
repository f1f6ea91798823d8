#include "statics/rigid_lines.h"

#include <algorithm>

#include "numeric/utf8.h"

namespace tavrelo::statics {
namespace {

constexpr std::string_view kSystemCharacters = " 1 2 3 4 5 ";
constexpr std::u32string_view kAlphabet = U"ABCDEFGHIJKLMNÑOPQRSTUVWXYZ";

bool Holds(std::string_view letters, std::string_view letter) {
    return letters.find(letter) != std::string_view::npos;
}

std::u32string WithoutClosing(const std::u32string& chain) {
    return chain.front() == chain.back() ? chain.substr(0, chain.size() - 1) : chain;
}

std::optional<Refusal> CheckLine(const std::u32string& chain, int system, std::string_view letters,
                                 const PointTable& points) {
    if (HasRepeated(numeric::ToUtf8(WithoutClosing(chain))))
        return Refusal{"Hay una letra repetida en el interior de la cadena."};
    for (const char32_t letter : chain)
        if (kAlphabet.find(letter) == std::u32string_view::npos)
            return Refusal{"Carácter inválido en el símbolo del segmento."};
    for (const char32_t letter : chain)
        if (const std::string name = numeric::ToUtf8(letter); !Holds(letters, name))
            return Refusal{"El punto " + name + " no está en el sistema " + std::to_string(system)};
    for (const char32_t letter : chain)
        if (const std::string name = numeric::ToUtf8(letter); PointIndex(points, name) == 0)
            return Refusal{"El punto " + name + " no existe o no conozco sus coordenadas."};
    return {};
}

std::variant<Refusal, LineCommand> ReadChain(const std::u32string& chain, int system,
                                             const SystemPoints& systems, const PointTable& points) {
    const std::string& letters = systems[static_cast<std::size_t>(system) - 1];
    if (numeric::CharacterCount(letters) == 1)
        return Refusal{"El presente sistema es una partícula."};
    const bool cancels = chain.back() == U'-';
    const std::u32string capitals = numeric::ToCodePoints(
        numeric::ToUpper(numeric::ToUtf8(cancels ? chain.substr(0, chain.size() - 1) : chain)));
    const LineRow line{numeric::ToUtf8(capitals), system};
    if (cancels)
        return LineCommand{LineCommand::Action::Cancel, line};
    if (const auto refusal = CheckLine(capitals, system, letters, points))
        return *refusal;
    return LineCommand{LineCommand::Action::Draw, line};
}

}  // namespace

std::variant<Refusal, LineCommand> ReadLine(std::string_view text, const SystemPoints& systems,
                                            const PointTable& points) {
    const std::u32string characters = numeric::ToCodePoints(text);
    if (characters.empty())
        return LineCommand{};
    if (!Holds(kSystemCharacters, numeric::ToUtf8(characters.front())))
        return Refusal{"Primero va el número del subsistema (1 <= n <= 5)."};
    const std::u32string chain = characters.substr(1);
    if (chain.empty())
        return Refusal{"Dato incorrecto (Número del sistema seguido por cadena de letras)."};
    if (characters.front() == U' ')
        return Refusal{"El número del sistema debe estar entre 1 y 5."};
    const int system = static_cast<int>(characters.front() - U'0');
    if (chain.size() == 1)
        return LineCommand{};
    return ReadChain(chain, system, systems, points);
}

}  // namespace tavrelo::statics
