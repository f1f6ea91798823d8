#include "mechanics/rigid/line_command.h"

#include <algorithm>

#include "text/utf8.h"

namespace tavrelo::mechanics::rigid {
namespace {

constexpr std::string_view kSystemCharacters = " 1 2 3 4 5 ";
constexpr std::u32string_view kAlphabet = U"ABCDEFGHIJKLMNÑOPQRSTUVWXYZ";

bool Holds(std::string_view letters, std::string_view letter) {
    return letters.find(letter) != std::string_view::npos;
}

std::u32string WithoutClosing(const std::u32string& chain) {
    const bool closes = chain.size() > 1 && chain.front() == chain.back();
    return closes ? chain.substr(0, chain.size() - 1) : chain;
}

std::optional<text::Refusal> CheckLine(const std::u32string& chain, int system, std::string_view letters,
                                       const PointTable& points) {
    if (HasRepeated(text::ToUtf8(WithoutClosing(chain))))
        return text::Refusal{"Hay una letra repetida en el interior de la cadena."};
    for (const char32_t letter : chain)
        if (kAlphabet.find(letter) == std::u32string_view::npos)
            return text::Refusal{"Carácter inválido en el símbolo del segmento."};
    for (const char32_t letter : chain)
        if (const std::string name = text::ToUtf8(letter); !Holds(letters, name))
            return text::Refusal{"El punto " + name + " no está en el sistema " + std::to_string(system)};
    for (const char32_t letter : chain)
        if (const std::string name = text::ToUtf8(letter); PointIndex(points, name) == 0)
            return text::Refusal{"El punto " + name + " no existe o no conozco sus coordenadas."};
    return {};
}

std::variant<text::Refusal, LineCommand> ReadChain(const std::u32string& chain, int system,
                                                   const SystemPoints& systems, const PointTable& points) {
    const std::string& letters = systems[static_cast<std::size_t>(system) - 1];
    if (text::CharacterCount(letters) == 1)
        return text::Refusal{"El presente sistema es una partícula."};
    const bool cancels = chain.ends_with(U'-');
    const std::u32string letters_typed = cancels ? chain.substr(0, chain.size() - 1) : chain;
    const std::u32string capitals = text::ToCodePoints(text::ToUpper(text::ToUtf8(letters_typed)));
    const LineRow line{text::ToUtf8(capitals), system};
    if (cancels)
        return LineCommand{LineCommand::Action::Cancel, line};
    if (const auto refusal = CheckLine(capitals, system, letters, points))
        return *refusal;
    return LineCommand{LineCommand::Action::Draw, line};
}

}  // namespace

std::variant<text::Refusal, LineCommand> ReadLine(std::string_view text, const SystemPoints& systems,
                                                  const PointTable& points) {
    const std::u32string characters = text::ToCodePoints(text);
    if (characters.empty())
        return LineCommand{};
    if (!Holds(kSystemCharacters, text::ToUtf8(characters.front())))
        return text::Refusal{"Primero va el número del subsistema (1 <= n <= 5)."};
    const std::u32string chain = characters.substr(1);
    if (chain.empty())
        return text::Refusal{"Dato incorrecto (Número del sistema seguido por cadena de letras)."};
    if (characters.front() == U' ')
        return text::Refusal{"El número del sistema debe estar entre 1 y 5."};
    const int system = static_cast<int>(characters.front() - U'0');
    if (chain.size() == 1)
        return LineCommand{};
    return ReadChain(chain, system, systems, points);
}

}  // namespace tavrelo::mechanics::rigid
