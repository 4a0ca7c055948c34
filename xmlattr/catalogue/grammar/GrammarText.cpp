#include "xmlattr/catalogue/grammar/GrammarText.h"

#include "xmlattr/core/Format.h"

#include <algorithm>
#include <cmath>

namespace Xml {

namespace {

constexpr std::string_view transforms[] = {"matrix", "translate", "scale", "rotate", "skewX", "skewY"};

// What a call looks like.
std::string formOf(std::string_view call) {
    if (call == "rect") return "a shape such as rect(1pt, 9pt, 9pt, 1pt)";
    if (call == "icc-color") return "a colour with icc-color(...)";
    return std::string(call) + (call == "proportional-column-width" ? "(...)" : "()");
}

template <class Values> void addOnce(Values& values, typename Values::value_type const& value) {
    if (std::ranges::find(values, value) == values.end()) values.push_back(value);
}

std::string_view nounOf(Token token, bool isFo) {
    switch (token) {
    case Token::Number: return "a number";
    case Token::Integer: return "an integer";
    case Token::Length:
        return isFo ? "a number with a unit (px, pt, pc, cm, mm, in, em, ex)"
                    : "a number with or without a unit (px, pt, pc, cm, mm, in, em, ex)";
    case Token::Percentage: return "a percentage";
    case Token::Angle: return isFo ? "a number with deg, grad or rad" : "a number with or without deg, grad or rad";
    case Token::Time: return "a number with s or ms";
    case Token::Frequency: return "a number with Hz or kHz";
    case Token::ClockValue: return "a time such as 1.5s, 200ms or 02:30";
    case Token::Color: return "a colour";
    case Token::Uri: return "url(...)";
    case Token::Reference: return "a reference without blanks";
    case Token::Iri: return "a reference";
    case Token::String: return "a text in quotation marks";
    case Token::Name: return "a name, which begins with a letter and has no blanks";
    case Token::Id:
    case Token::IdRef: return "an id, which begins with a letter and has no blanks";
    case Token::Language: return "a language tag such as en-GB";
    case Token::Country: return "a country of two or three letters";
    case Token::Script: return "a script of four letters";
    case Token::Character: return "one character";
    case Token::FamilyName: return "names of fonts";
    case Token::UnicodeRange: return "code points such as U+20-7E";
    case Token::ContentType: return "content-type:TYPE/SUBTYPE or namespace-prefix:PREFIX";
    case Token::Text: return "a text";
    case Token::Empty: return "nothing";
    case Token::PathData: return "path data";
    case Token::Points: return "pairs of numbers";
    case Token::TransformList: return "transforms such as translate(10 20)";
    case Token::TimingList: return "times such as 1s or button.click";
    }
    return {};
}

std::string textOf(float limit) {
    return Core::Format::toShortest(limit).toUtf8();
}

std::string rangeOf(GrammarStep const& step) {
    bool const hasLeast = std::isfinite(step.least), hasMost = std::isfinite(step.most);
    if (hasLeast && hasMost) return " from " + textOf(step.least) + " to " + textOf(step.most);
    if (hasLeast && step.least == 0) return step.aboveLeast ? " above 0" : "";
    if (hasLeast) return (step.aboveLeast ? " above " : " of at least ") + textOf(step.least);
    return hasMost ? " of at most " + textOf(step.most) : "";
}

} // namespace

std::vector<std::string_view> wordsIn(Grammar const& grammar) {
    std::vector<std::string_view> words;
    for (GrammarStep const& step : grammar.steps()) {
        if (step.kind == GrammarStep::Word || step.kind == GrammarStep::Call) addOnce(words, step.word);
        if (step.kind == GrammarStep::Value && step.token == Token::TransformList)
            for (std::string_view const word : transforms) addOnce(words, word);
    }
    return words;
}

std::string describeGrammar(Grammar const& grammar, Dialect dialect) {
    std::vector<std::string> parts;
    // Choices stand in their order among the steps, and what belongs together from its end to its beginning.
    int depth = 0; // of calls, whose arguments are not told
    for (GrammarStep const& step : grammar.steps()) {
        if (step.kind == GrammarStep::Mark && step.word == ")") ++depth;
        if (step.kind == GrammarStep::Call && --depth == 0) addOnce(parts, formOf(step.word));
        if (depth > 0) continue;
        if (step.kind == GrammarStep::Word) addOnce(parts, std::string(step.word));
        if (step.kind == GrammarStep::Value)
            addOnce(parts, std::string(nounOf(step.token, dialect == Dialect::Fo)) + rangeOf(step));
    }
    std::string line;
    for (std::size_t i = 0; i < parts.size(); ++i)
        line.append(i == 0 ? "" : i + 1 < parts.size() ? ", " : " or ").append(parts[i]);
    return line;
}

} // namespace Xml
