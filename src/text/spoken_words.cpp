#include "text/spoken_words.h"

#include <algorithm>
#include <iterator>
#include <string>

namespace tavrelo::text {
namespace {

struct CharacterName {
    char32_t character;
    std::string_view name;
};

constexpr CharacterName kGreek[] = {
    {U'α', "alfa"},
    {U'β', "beta"},
    {U'γ', "gamma"},
    {U'δ', "delta"},
    {U'ε', "épsilon"},
    {U'ζ', "dseta"},
    {U'η', "eta"},
    {U'θ', "theta"},
    {U'ϑ', "theta"},
    {U'ι', "iota"},
    {U'κ', "kappa"},
    {U'λ', "lambda"},
    {U'μ', "mu"},
    {U'ν', "nu"},
    {U'ξ', "xi"},
    {U'ο', "ómicron"},
    {U'π', "pi"},
    {U'ϖ', "pi"},
    {U'ρ', "ro"},
    {U'ς', "sigma"},
    {U'σ', "sigma"},
    {U'τ', "tau"},
    {U'υ', "ípsilon"},
    {U'ϒ', "ípsilon"},
    {U'φ', "fi"},
    {U'ϕ', "fi"},
    {U'χ', "ji"},
    {U'ψ', "psi"},
    {U'ω', "omega"},
    {U'Γ', "gamma mayúscula"},
    {U'Δ', "delta"},  // as in delta x; the small one is not used beside it
    {U'Θ', "theta mayúscula"},
    {U'Λ', "lambda mayúscula"},
    {U'Ξ', "xi mayúscula"},
    {U'Π', "pi mayúscula"},
    {U'Σ', "sigma"},  // of a sum
    {U'Φ', "fi mayúscula"},
    {U'Ψ', "psi mayúscula"},
    {U'Ω', "omega mayúscula"},
};

constexpr CharacterName kSigns[] = {
    {U'+', "más"},
    {U'−', "menos"},
    {U'-', "menos"},
    {U'=', "igual a"},
    {U'≠', "distinto de"},
    {U'<', "menor que"},
    {U'>', "mayor que"},
    {U'≤', "menor o igual que"},
    {U'≥', "mayor o igual que"},
    {U'≈', "aproximadamente igual a"},
    {U'≡', "idéntico a"},
    {U'∝', "proporcional a"},
    {U'±', "más menos"},
    {U'×', "por"},
    {U'·', "por"},
    {U'*', "por"},
    {U'∗', "por"},
    {U'•', "por"},
    {U'÷', "entre"},
    {U'/', "entre"},
    {U'⁄', "entre"},
    {U'^', "elevado a"},
    {U'∠', "con ángulo"},
    {U'∈', "en"},
    {U'∉', "fuera de"},
    {U'⇒', "implica"},
    {U'⇔', "equivale a"},
    {U'→', "flecha a la derecha"},
    {U'←', "flecha a la izquierda"},
    {U'↑', "flecha hacia arriba"},
    {U'↓', "flecha hacia abajo"},
    {U'∞', "infinito"},
    {U'∫', "integral de"},
    {U'∑', "sigma"},
    {U'∂', "derivada parcial de"},
    {U'∇', "nabla"},
    {U'∴', "por lo tanto"},
    {U'%', "por ciento"},
    {U'(', "abre paréntesis"},
    {U')', "cierra paréntesis"},
    {U'[', "abre corchete"},
    {U']', "cierra corchete"},
    {U'{', "abre llave"},
    {U'}', "cierra llave"},
};

struct WordName {
    std::u32string_view word;
    std::string_view name;
};

constexpr WordName kFunctions[] = {
    {U"sen", "seno"},
    {U"cos", "coseno"},
    {U"tan", "tangente"},
    {U"asen", "arco seno"},
    {U"acos", "arco coseno"},
    {U"atan", "arco tangente"},
    {U"ln", "logaritmo natural"},
    {U"log", "logaritmo"},
    {U"raiz", "raíz"},
};

template <class Row, std::size_t kCount, class Key, class Member>
std::string_view NameOf(const Row (&rows)[kCount], const Key& key, Member member) {
    const auto* row = std::ranges::find(rows, key, member);
    return row == std::end(rows) ? std::string_view() : row->name;
}

}  // namespace

std::string_view GreekName(char32_t letter) { return NameOf(kGreek, letter, &CharacterName::character); }

std::string_view SignName(char32_t sign) { return NameOf(kSigns, sign, &CharacterName::character); }

std::string_view FunctionName(std::u32string_view word) {
    std::u32string small(word);
    for (char32_t& letter : small)
        if (letter >= U'A' && letter <= U'Z')
            letter += U'a' - U'A';
    return NameOf(kFunctions, small, &WordName::word);
}

}  // namespace tavrelo::text
