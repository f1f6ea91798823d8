#include "arguments.h"

#include <charconv>
#include <string>

namespace tavrelo::transcript {
namespace {

std::string_view WithoutLeadingBlanks(std::string_view text) {
    text.remove_prefix(std::min(text.find_first_not_of(' '), text.size()));
    return text;
}

template <class Number>
Number ReadNumber(std::string_view word, const char* kind) {
    Number number{};
    const char* end = word.data() + word.size();
    const auto [stop, error] = std::from_chars(word.data(), end, number);
    if (error != std::errc() || stop != end)
        throw ScriptError("\"" + std::string(word) + "\" is no " + kind);
    return number;
}

}  // namespace

bool Arguments::AtEnd() const { return WithoutLeadingBlanks(m_rest).empty(); }

std::string_view Arguments::NextWord() const {
    const std::string_view rest = WithoutLeadingBlanks(m_rest);
    return rest.substr(0, rest.find(' '));
}

std::string_view Arguments::Word() {
    const std::string_view word = NextWord();
    if (word.empty())
        throw ScriptError("an argument is missing");
    m_rest = WithoutLeadingBlanks(m_rest).substr(word.size());
    return word;
}

int Arguments::WholeNumber() { return ReadNumber<int>(Word(), "whole number"); }

double Arguments::Number() { return ReadNumber<double>(Word(), "number"); }

std::string_view Arguments::Rest() {
    std::string_view rest = m_rest;
    m_rest = {};
    if (rest.starts_with(' '))
        rest.remove_prefix(1);
    return rest;
}

void Arguments::ExpectEnd() const {
    if (!AtEnd())
        throw ScriptError("\"" + std::string(NextWord()) + "\" is too much");
}

}  // namespace tavrelo::transcript
