#pragma once

#include <span>
#include <string>
#include <vector>

#include "text/picture_markup.h"
#include "text/rich_text.h"

namespace tavrelo::text {

enum class Script { None, Below, Above };

/// A character as far as its reading depends on its look.
struct LookedCharacter {
    char32_t character;
    Script script = Script::None;
    bool bold = false;
};
std::vector<LookedCharacter> LookedCharacters(const RichText& text);
std::vector<LookedCharacter> LookedCharacters(std::span<const PlacedRun> runs);

enum class TokenKind { Number, Word, Greek, Sign };

/// A piece of a line that is read as a whole, with the scripts behind it.
struct SpokenToken {
    TokenKind kind = TokenKind::Sign;
    std::u32string text;
    std::u32string below;  // subscript
    std::u32string above;  // exponent
    int primes = 0;
    bool is_vector = false;
    int blanks = 0;  // before it

    bool IsSign(char32_t sign) const { return kind == TokenKind::Sign && text.front() == sign; }
    /// A letter that stands for a quantity; also a conjunction of one letter, which looks the same.
    bool IsLetter() const { return kind == TokenKind::Word && text.size() == 1; }
    bool HasScript() const { return !below.empty() || !above.empty(); }
};

/// The lines of a text as tokens; line ends are "\r\n" or "\n".
std::vector<std::vector<SpokenToken>> SpokenLines(std::span<const LookedCharacter> characters);

}  // namespace tavrelo::text
