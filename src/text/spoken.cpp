#include "text/spoken.h"

#include <algorithm>
#include <iterator>
#include <map>
#include <optional>
#include <set>
#include <vector>

#include "text/spoken_tokens.h"
#include "text/spoken_words.h"
#include "text/utf8.h"

namespace tavrelo::text {
namespace {

using Line = std::vector<SpokenToken>;

constexpr std::u32string_view kClosing = U")]}";
constexpr std::u32string_view kOpening = U"([{";
constexpr std::u32string_view kPause = U",.;:!?";
/// What these stand between is not a quotient.
struct ShortForm {
    std::u32string_view left, right;
    std::string_view spoken;
};
constexpr ShortForm kShortForms[] = {{U"y", U"o", "y o"}, {U"c", U"r", "con respecto"}};

bool IsIn(std::u32string_view signs, char32_t sign) { return signs.find(sign) != std::u32string_view::npos; }

/// A conjunction, a preposition or a unit, when nothing marks it as a quantity.
bool IsWordOfOneLetter(const SpokenToken& token) {
    return token.IsLetter() && !token.HasScript() && IsIn(U"yaeoums", token.text.front());
}

bool IsFunction(const SpokenToken& token) {
    return token.kind == TokenKind::Word && !FunctionName(token.text).empty();
}

/// Where small and capital letters mean different quantities, the ear needs the word.
class CaseTable {
  public:
    explicit CaseTable(const std::vector<Line>& lines) {
        for (const Line& line : lines)
            for (std::size_t k = 0; k < line.size(); ++k)
                if (line[k].IsLetter() && !line[k].is_vector && IsQuantity(line, k))
                    m_letters.insert(line[k].text.front());
    }

    bool NeedsWord(char32_t letter) const {
        return letter >= U'A' && letter <= U'Z' && m_letters.contains(letter - U'A' + U'a') &&
               m_letters.contains(letter);
    }

  private:
    /// A letter beside signs and numbers; one between words is a word.
    static bool IsQuantity(const Line& line, std::size_t k) {
        if (line[k].HasScript())
            return true;
        if (k + 1 < line.size() && line[k + 1].IsSign(U'('))
            return false;
        const bool before_sign = k + 1 < line.size() && IsOperator(line[k + 1]);
        const bool behind_sign = k > 0 && IsOperator(line[k - 1]);
        const bool behind_number =
            k > 0 && line[k - 1].kind == TokenKind::Number && !IsWordOfOneLetter(line[k]);
        return before_sign || behind_sign || behind_number;
    }

    static bool IsOperator(const SpokenToken& token) {
        return token.kind == TokenKind::Sign && !IsIn(kPause, token.text.front()) &&
               !SignName(token.text.front()).empty();
    }

    std::set<char32_t> m_letters;
};

/// Reads one line.
class Speaker {
  public:
    Speaker(const Line& line, const CaseTable& cases) : m_line(line), m_cases(cases) {}

    std::string Run() {
        if (IsRule())
            return {};
        if (IsMatrixRow())
            return SpeakMatrixRow();
        FindBrackets();
        for (; m_at < m_line.size(); ++m_at) {
            PauseAtGap();
            SpeakToken();
        }
        return std::move(m_spoken);
    }

  private:
    const SpokenToken* Next() const { return m_at + 1 < m_line.size() ? &m_line[m_at + 1] : nullptr; }
    const SpokenToken* Previous() const { return m_at > 0 ? &m_line[m_at - 1] : nullptr; }

    /// A line of dashes alone parts what stands above and below.
    bool IsRule() const {
        return m_line.size() > 1 && std::ranges::all_of(m_line, [](const SpokenToken& token) {
                   return token.IsSign(U'-') || token.IsSign(U'_') || token.IsSign(U'=');
               });
    }

    /// "| 2 −1 3 |", one row of a determinant.
    bool IsMatrixRow() const {
        return m_line.size() > 2 && m_line.front().IsSign(U'|') && m_line.back().IsSign(U'|') &&
               std::ranges::count_if(m_line, [](const SpokenToken& each) { return each.IsSign(U'|'); }) == 2;
    }

    std::string SpeakMatrixRow() {
        Say("renglón");
        for (m_at = 1; m_at + 1 < m_line.size(); ++m_at) {
            if (m_at > 1 && m_line[m_at].blanks > 0)
                m_spoken += ',';
            SpeakToken();
        }
        return std::move(m_spoken);
    }

    /// A wide gap parts two equations, or two numbers of a row.
    void PauseAtGap() {
        constexpr int kGap = 3;
        const SpokenToken* previous = Previous();
        const bool is_gap = previous && m_line[m_at].blanks >= kGap;
        if (is_gap && !(previous->kind == TokenKind::Sign && IsIn(kPause, previous->text.front())))
            m_spoken += ',';
    }

    void Say(std::string_view words) {
        if (words.empty())
            return;
        if (!m_spoken.empty() && !m_glued)
            m_spoken += ' ';
        m_glued = false;
        m_spoken += words;
    }
    /// A sign that stays as it stands, with the blanks that it has.
    void Copy(const SpokenToken& token) {
        if (token.blanks == 0 || IsIn(kPause, token.text.front()))
            m_glued = true;
        Say(ToUtf8(token.text));
        const SpokenToken* next = Next();
        m_glued = next && next->blanks == 0 && !IsIn(kPause, token.text.front());
    }

    void SpeakToken() {
        const SpokenToken& token = m_line[m_at];
        switch (token.kind) {
            case TokenKind::Number:
                SpeakNumber(token);
                break;
            case TokenKind::Greek:
                Say(GreekName(token.text.front()));
                break;
            case TokenKind::Word:
                SpeakWord(token);
                break;
            case TokenKind::Sign:
                SpeakSign(token);
                break;
        }
        SpeakScripts(m_line[m_at]);
        SpeakProduct();
    }

    /// Where an argument ends or a sum in brackets does, the factor behind it needs the word.
    void SpeakProduct() {
        const SpokenToken* next = Next();
        const bool ended =
            m_factor_ends.contains(m_at) || (!m_line[m_at].above.empty() && !IsFunction(m_line[m_at]));
        if (!ended || !next || next->blanks == 0)
            return;
        const bool is_letter = next->IsLetter() && !IsWordOfOneLetter(*next);
        if (is_letter || next->kind == TokenKind::Greek || next->kind == TokenKind::Number ||
            IsFunction(*next))
            Say("por");
    }

    void SpeakNumber(const SpokenToken& token) {
        const std::size_t power = token.text.find(U'E');
        Say(ToUtf8(token.text.substr(0, power)));
        if (power == std::u32string::npos)
            return;
        Say("por 10 elevado a");
        if (token.text[power + 1] == U'-')
            Say("menos");
        const std::size_t digits = token.text.find_first_not_of(U'0', power + 2);
        Say(digits == std::u32string::npos ? "0" : ToUtf8(token.text.substr(digits)));
    }

    void SpeakWord(const SpokenToken& token) {
        if (token.text == U"R" && Next() && Next()->IsSign(U'(') && Next()->blanks == 0)
            return SpeakRoot();
        if (const std::string_view function = FunctionName(token.text); !function.empty() && TakesArgument())
            return SpeakFunction(token, function);
        if (token.is_vector)
            Say("vector");
        if (const auto letters = Letters(token))
            return Say(*letters);
        Say(ToUtf8(token.text));
        if (token.IsLetter() && !token.is_vector && m_cases.NeedsWord(token.text.front()))
            Say("mayúscula");
        if (m_arguments.contains(m_at + 1))
            Say("de");
    }

    /// "xy" and other letters side by side that make no word.
    static std::optional<std::string> Letters(const SpokenToken& token) {
        constexpr std::u32string_view kVowels = U"aeiouáéíóúüyAEIOUÁÉÍÓÚÜY";
        constexpr std::u32string_view kAxes = U"xyt";
        if (token.text.size() != 2)
            return std::nullopt;
        const bool is_product = IsIn(kAxes, token.text[1]) &&
                                (IsIn(kAxes, token.text[0]) || token.text[0] == U'v' || token.text[0] < U'a');
        if (!is_product &&
            (token.text.find_first_of(kVowels) != std::u32string::npos || token.text[0] < U'a'))
            return std::nullopt;
        std::string letters;
        for (const char32_t letter : token.text)
            letters += (letters.empty() ? "" : " ") + ToUtf8(letter);
        return letters;
    }

    bool TakesArgument() const {
        const SpokenToken* next = Next();
        if (!next)
            return false;
        return next->kind == TokenKind::Number || next->kind == TokenKind::Greek || next->IsLetter() ||
               next->IsSign(U'(');
    }

    void SpeakFunction(const SpokenToken& token, std::string_view function) {
        Say(function);
        SpeakScripts(token);
        Say("de");
        m_scripts_told = true;
        if (!Next()->IsSign(U'('))
            m_factor_ends.insert(m_at + 1);
    }

    void SpeakScripts(const SpokenToken& token) {
        if (m_scripts_told) {
            m_scripts_told = false;
            return;
        }
        if (token.primes > 0)
            Say(token.primes == 1 ? "prima" : token.primes == 2 ? "biprima" : "triprima");
        if (!token.below.empty())
            Say("sub " + Subscript(token.below));
        if (!token.above.empty())
            Say(Power(token.above));
    }

    /// Digits of a subscript are one number, unless it begins with 0; letters are told one by one.
    static std::string Subscript(std::u32string_view script) {
        std::string spoken;
        for (std::size_t k = 0; k < script.size(); ++k) {
            if (script[k] == U',') {
                spoken += " y";
                continue;
            }
            const bool digits = k > 0 && IsDigit(script[k - 1]) && IsDigit(script[k]) && script[0] != U'0';
            if (k > 0 && !digits)
                spoken += ' ';
            const std::string_view greek = GreekName(script[k]);
            const std::string_view name = greek.empty() ? SignName(script[k]) : greek;
            spoken += name.empty() ? ToUtf8(script[k]) : std::string(name);
        }
        return spoken;
    }

    std::string Power(std::u32string_view script) const {
        if (script == U"2")
            return "al cuadrado";
        if (script == U"3")
            return "al cubo";
        std::vector<LookedCharacter> characters;
        for (const char32_t character : script)
            characters.push_back({character});
        const auto lines = SpokenLines(characters);
        const std::string exponent = Speaker(lines.front(), m_cases).Run();
        return "elevado a " + exponent + (lines.front().size() > 1 ? " fin de exponente" : "");
    }

    void SpeakSign(const SpokenToken& token) {
        const char32_t sign = token.text.front();
        if (sign == U'°')
            return Say(IsOne(Previous()) ? "grado" : "grados");
        if (sign == U'√')
            return SpeakRoot();
        if (sign == U'|')
            return SpeakBar();
        if (sign == U'.' && Next() && Next()->IsSign(U'.'))
            return SpeakDots();
        if (IsIn(kOpening, sign) || IsIn(kClosing, sign))
            return SpeakBracket(token);
        if (sign == U'/' && SpeakShortForm())
            return;
        if (sign == U'^')
            return SpeakCaret();
        if (sign == U'?' && Previous() && Previous()->IsSign(U'='))
            return Say("incógnita");
        // A bullet, or the mark in front of what is typed.
        if (m_at == 0 && (sign == U'•' || sign == U'>'))
            return;
        if (SignName(sign).empty() || StandsInProse(token))
            return Copy(token);
        SpeakOperator(sign);
    }

    void SpeakOperator(char32_t sign) {
        const bool of_vectors = Previous() && Previous()->is_vector;
        if (of_vectors && sign == U'×')
            return Say("cruz");
        if (of_vectors && sign == U'•')
            return Say("punto");
        if (const std::string_view name = PairName(sign); !name.empty()) {
            ++m_at;
            return Say(name);
        }
        const bool is_minus = sign == U'-' || sign == U'−';
        const SpokenToken* previous = Previous();
        if (is_minus && previous && previous->kind == TokenKind::Sign &&
            IsIn(U"+-−±×·*/^", previous->text.front()))
            return Say("negativo");
        Say(SignName(sign));
    }

    /// A comparison that is typed with two signs.
    std::string_view PairName(char32_t sign) const {
        constexpr struct {
            char32_t first, second, joined;
        } kPairs[] = {{U'<', U'=', U'≤'}, {U'>', U'=', U'≥'}, {U'<', U'>', U'≠'}};
        const SpokenToken* next = Next();
        for (const auto& [first, second, joined] : kPairs)
            if (sign == first && next && next->blanks == 0 && next->IsSign(second))
                return SignName(joined);
        return {};
    }

    void SpeakCaret() {
        const SpokenToken* next = Next();
        const bool is_short = next && (next->text == U"2" || next->text == U"3");
        if (is_short) {
            Say(Power(next->text));
            ++m_at;
            return;
        }
        Say(SignName(U'^'));
        if (next && next->IsSign(U'('))
            if (const auto end = Closing(m_at + 1)) {
                m_silent.insert(m_at + 1);
                m_endings[*end] = "fin de exponente";
            }
    }

    static bool IsOne(const SpokenToken* token) { return token && token->text == U"1"; }
    static bool IsDigit(char32_t character) { return character >= U'0' && character <= U'9'; }
    static bool IsLongWord(const SpokenToken* token) {
        return token && token->kind == TokenKind::Word && token->text.size() > 1 && !token->HasScript() &&
               !IsFunction(*token);
    }

    /// A hyphen or a stroke without blanks at a word parts words, and a rule of dashes is none.
    bool StandsInProse(const SpokenToken& token) const {
        if (!token.IsSign(U'-') && !token.IsSign(U'/'))
            return false;
        const SpokenToken* next = Next();
        const bool left = token.blanks == 0 && IsLongWord(Previous());
        const bool right = next && next->blanks == 0 && IsLongWord(next);
        return left || right || (next && next->IsSign(token.text.front())) || (m_at + 1 == m_line.size());
    }

    bool SpeakShortForm() {
        const SpokenToken* left = Previous();
        const SpokenToken* right = Next();
        if (!left || !right)
            return false;
        const auto* form = std::ranges::find_if(kShortForms, [&](const ShortForm& each) {
            return left->text == each.left && right->text == each.right && !left->HasScript();
        });
        if (form == std::end(kShortForms))
            return false;
        m_spoken.resize(m_spoken.size() - left->text.size());
        m_glued = true;
        Say(form->spoken);
        ++m_at;
        return true;
    }

    /// The place of the sign that closes what opens at `open`, or nothing.
    std::optional<std::size_t> Closing(std::size_t open) const {
        int depth = 0;
        for (std::size_t k = open; k < m_line.size(); ++k) {
            if (m_line[k].kind != TokenKind::Sign)
                continue;
            if (IsIn(kOpening, m_line[k].text.front()))
                ++depth;
            if (IsIn(kClosing, m_line[k].text.front()) && --depth == 0)
                return k;
        }
        return std::nullopt;
    }

    void SpeakRoot() {
        Say("raíz de");
        const SpokenToken* next = Next();
        if (!next || !next->IsSign(U'('))
            return;
        if (const auto end = Closing(m_at + 1)) {
            m_silent.insert(m_at + 1);
            m_endings[*end] = "fin de raíz";
        }
    }

    void SpeakBar() {
        m_in_bars = !m_in_bars;
        if (!m_in_bars)
            return;
        Say(Next() && Next()->is_vector ? "magnitud de" : "valor absoluto de");
    }

    void SpeakDots() {
        const bool between = Previous() && (Previous()->kind == TokenKind::Sign);
        while (Next() && Next()->IsSign(U'.'))
            ++m_at;
        if (between)
            Say("puntos suspensivos");
        else
            m_spoken += "...";
    }

    void SpeakBracket(const SpokenToken& token) {
        if (const auto ending = m_endings.find(m_at); ending != m_endings.end())
            return Say(ending->second);
        if (m_silent.contains(m_at))
            return;
        const bool opens = IsIn(kOpening, token.text.front());
        const auto end = opens ? Closing(m_at) : std::nullopt;
        if (opens ? end && HasWords(*end) : !m_told.contains(m_at))
            return Copy(token);
        if (end && IsFactor(token))
            Say("por");
        if (end && IsFraction(*end)) {
            m_endings[*end] = "fin de fracción";
            m_factor_ends.insert(*end);
            return Say("fracción");
        }
        if (end) {
            m_told.insert(*end);
            if (token.IsSign(U'(') && !Has(*end, U','))
                m_factor_ends.insert(*end);
        }
        Say(SignName(token.text.front()));
    }

    bool IsFactor(const SpokenToken& token) const {
        const SpokenToken* previous = Previous();
        if (!token.IsSign(U'(') || !previous)
            return false;
        return previous->kind == TokenKind::Number || m_endings.contains(m_at - 1) ||
               (token.blanks > 0 && (previous->kind == TokenKind::Greek || previous->HasScript() ||
                                     (previous->IsLetter() && !Has(*Closing(m_at), U','))));
    }

    std::span<const SpokenToken> Inside(std::size_t end) const {
        return std::span(m_line).subspan(m_at + 1, end - m_at - 1);
    }
    /// Brackets around words stay as they stand.
    bool HasWords(std::size_t end) const {
        return std::ranges::any_of(Inside(end), [](const SpokenToken& each) { return IsLongWord(&each); });
    }
    bool Has(std::size_t end, char32_t sign) const {
        return std::ranges::any_of(Inside(end),
                                   [sign](const SpokenToken& each) { return each.IsSign(sign); });
    }
    /// One quotient and nothing else.
    bool IsFraction(std::size_t end) const {
        int strokes = 0;
        for (const SpokenToken& each : Inside(end)) {
            if (each.IsSign(U'/'))
                ++strokes;
            else if (each.kind == TokenKind::Sign &&
                     (IsIn(U"+-−,", each.text.front()) || IsIn(kOpening, each.text.front())))
                return false;
        }
        return strokes == 1 && m_line[m_at].IsSign(U'(');
    }

    /// Brackets that the ear does not need: around a magnitude with its angle, and around the argument of a
    /// function when that is one quantity, as in f(x).
    void FindBrackets() {
        for (std::size_t k = 0; k < m_line.size(); ++k) {
            const auto end = m_line[k].IsSign(U'(') ? Closing(k) : std::nullopt;
            if (!end)
                continue;
            const auto inside = std::span(m_line).subspan(k, *end - k);
            const bool is_argument = k > 0 && m_line[k].blanks == 0 && *end == k + 2 &&
                                     (m_line[k - 1].IsLetter() || IsFunction(m_line[k - 1]));
            if (is_argument)
                m_arguments.insert(k);
            if (is_argument ||
                std::ranges::any_of(inside, [](const SpokenToken& each) { return each.IsSign(U'∠'); }))
                m_silent.insert({k, *end});
        }
    }

    const Line& m_line;
    const CaseTable& m_cases;
    std::size_t m_at = 0;
    std::string m_spoken;
    bool m_glued = false;         // the next words follow without a blank
    bool m_scripts_told = false;  // those of the function just told
    bool m_in_bars = false;
    // Places of tokens.
    std::set<std::size_t> m_silent;       // brackets that are not told
    std::set<std::size_t> m_told;         // closing ones whose partner was told
    std::set<std::size_t> m_arguments;    // opening ones of an argument
    std::set<std::size_t> m_factor_ends;  // a factor behind them is told as one
    std::map<std::size_t, std::string_view> m_endings;
};

std::string Speak(std::span<const LookedCharacter> characters) {
    const std::vector<Line> lines = SpokenLines(characters);
    const CaseTable cases(lines);
    std::string spoken;
    for (std::size_t k = 0; k < lines.size(); ++k)
        spoken += (k > 0 ? "\n" : "") + Speaker(lines[k], cases).Run();
    return spoken;
}

}  // namespace

std::string SpokenText(const RichText& text) { return Speak(LookedCharacters(text)); }

std::string SpokenText(std::span<const PlacedRun> runs) { return Speak(LookedCharacters(runs)); }

std::string SpokenText(std::string_view text) { return SpokenText(PlainRichText(text, kTextFont, 0)); }

}  // namespace tavrelo::text
