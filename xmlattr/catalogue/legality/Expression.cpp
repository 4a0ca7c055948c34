#include "xmlattr/catalogue/legality/Expression.h"

#include "xmlattr/catalogue/grammar/Meaning.h"
#include "xmlattr/catalogue/grammar/UnitWords.h"
#include "xmlattr/catalogue/legality/ExpressionFunctions.h"
#include "xmlattr/catalogue/text/Words.h"

#include "xmlattr/core/Text.h"

#include <algorithm>

namespace Xml {

namespace {

class Parser {
public:
    explicit Parser(std::u16string_view text) : text(text) {}

    bool whole(Expression& value) { return sum(value) && (skipBlanks(), index == text.size()) && isMoreThanValue; }

private:
    static constexpr int maxDepth = 100;

    bool sum(Expression& value) {
        if (!product(value)) return false;
        while (take(u"+") || take(u"-")) {
            Expression right;
            if (!product(right) || !add(value, right)) return false;
        }
        return true;
    }

    bool product(Expression& value) {
        if (!factor(value)) return false;
        for (;;) {
            Expression right;
            if (take(u"*")) {
                if (!factor(right) || !multiply(value, right, 1)) return false;
            } else if (takeWord(u"div")) {
                if (!factor(right) || !multiply(value, right, -1)) return false;
            } else if (takeWord(u"mod")) {
                if (!factor(right) || !add(value, right)) return false;
            } else {
                return true;
            }
        }
    }

    // What is copied may be numeric.
    static bool makeNumeric(Expression& value) {
        if (value.kind == Expression::Any || value.kind == Expression::Font) value = {.kind = Expression::Numeric};
        return value.kind == Expression::Numeric || value.kind == Expression::Share;
    }

    static bool isNumber(Expression value) { return makeNumeric(value) && value.power.value_or(0) == 0; }

    bool combine(Expression& value, Expression& right) {
        isMoreThanValue = true;
        if (!makeNumeric(value) || !makeNumeric(right)) return false;
        if (right.kind == Expression::Share) value.kind = Expression::Share;
        return true;
    }

    // Differences, remainders and the least of two are like sums: of one power.
    bool add(Expression& value, Expression right) {
        if (!combine(value, right)) return false;
        if (!value.power) value.power = right.power;
        return !right.power || value.power == right.power;
    }

    bool multiply(Expression& value, Expression right, int sign) {
        if (!combine(value, right)) return false;
        value.power = value.power && right.power ? std::optional(*value.power + sign * *right.power) : std::nullopt;
        return true;
    }

    bool factor(Expression& value) {
        int signs = 0;
        while (take(u"-") || take(u"+")) ++signs;
        // A number with its sign is a value, and so is one with two by mistake; a sign apart is an operator.
        skipBlanks();
        if (signs == 1 && isXmlSpace(text[index - 1])) isMoreThanValue = true;
        return primary(value) && (signs == 0 || makeNumeric(value));
    }

    bool primary(Expression& value) {
        skipBlanks();
        if (index == text.size() || depth > maxDepth) return false;
        char16_t const unit = text[index];
        if (unit == u'(') return group(value);
        if (unit == u'"' || unit == u'\'') return literal(value, unit);
        if (Core::isDigit(unit) || unit == u'.') return number(value);
        if (unit == u'#') {
            ++index;
            value.kind = Expression::Color;
            return !name().empty();
        }
        std::u16string_view const word = name();
        if (index < text.size() && text[index] == u'(') return call(value, word);
        if (word != u"inherit") value = {.kind = Expression::Text, .text = word};
        return !word.empty();
    }

    bool group(Expression& value) {
        ++index;
        ++depth;
        isMoreThanValue = true;
        bool const closes = sum(value) && take(u")");
        --depth;
        return closes;
    }

    bool literal(Expression& value, char16_t quote) {
        std::size_t const first = index, end = text.find(quote, index + 1);
        if (end == std::u16string_view::npos) return false;
        index = end + 1;
        value = {.kind = Expression::Text, .text = text.substr(first, index - first)};
        return true;
    }

    bool number(Expression& value) {
        std::size_t const digits = skip(Core::isDigit);
        std::size_t const decimals = index < text.size() && text[index] == u'.' ? (++index, skip(Core::isDigit)) : 0;
        if (digits + decimals == 0) return false;
        value.kind = Expression::Numeric;
        if (index < text.size() && text[index] == u'%') {
            ++index;
            return true;
        }
        std::size_t const first = index;
        value.power = skip(Core::isLetter) > 0 ? 1 : 0;
        return value.power == 0 ||
               Core::WordTable<unitWords>::find(text.substr(first, index - first)) == ItemKind::Length;
    }

    bool call(Expression& value, std::u16string_view word) {
        auto const function = Core::WordTable<expressionFunctions>::find(word);
        if (!function) return false;
        ++index;
        ++depth;
        int count = 0;
        Expression arguments;                         // as if they were added
        bool areNumeric = true, areComponents = true; // of a colour, the first three
        if (!take(u")")) {
            do {
                Expression argument;
                if (!sum(argument)) return false;
                if (count < 3) areComponents = areComponents && isNumber(argument);
                if (count++ == 0) arguments = argument;
                areNumeric = areNumeric && (count == 1 ? makeNumeric(arguments) : add(arguments, argument));
            } while (take(u","));
            if (!take(u")")) return false;
        }
        --depth;
        isMoreThanValue = true;
        if (count < function->least || count > function->most) return false;
        bool const areNumbers = areNumeric && arguments.power.value_or(0) == 0;
        switch (function->result) {
        case ExpressionFunction::Argument: value = arguments; return areNumeric;
        case ExpressionFunction::Number: value = {.kind = Expression::Numeric, .power = 0}; return areNumbers;
        case ExpressionFunction::Length: value = {.kind = Expression::Numeric, .power = 1}; break;
        case ExpressionFunction::Share: value = {.kind = Expression::Share, .power = 1}; return areNumbers;
        case ExpressionFunction::Color: value.kind = Expression::Color; return areComponents || function->least < 3;
        case ExpressionFunction::Font: value.kind = count == 1 ? Expression::Font : Expression::Any; break;
        case ExpressionFunction::Copy: break;
        }
        return true;
    }

    std::u16string_view name() {
        std::size_t const first = index;
        skip(isOfName);
        return text.substr(first, index - first);
    }

    static bool isOfName(char16_t unit) {
        return Core::isLetter(unit) || Core::isDigit(unit) || unit == u'-' || unit == u'_' || unit == u'.';
    }

    template <class Belongs> std::size_t skip(Belongs belongs) {
        std::size_t const first = index;
        while (index < text.size() && belongs(text[index])) ++index;
        return index - first;
    }

    void skipBlanks() { skip(isXmlSpace); }

    bool take(std::u16string_view mark) {
        skipBlanks();
        if (!text.substr(index).starts_with(mark)) return false;
        index += mark.size();
        return true;
    }

    // An operator that is a word must not run on.
    bool takeWord(std::u16string_view word) {
        std::size_t const before = index;
        if (take(word) && (index == text.size() || !isOfName(text[index]))) return true;
        index = before;
        return false;
    }

    std::u16string_view text;
    std::size_t index = 0;
    int depth = 0;
    bool isMoreThanValue = false;
};

// Whether the grammar has such a step outside of calls, whose steps stand from their end to their beginning.
template <class Suits> bool hasStep(Grammar const& grammar, Suits suits) {
    int depth = 0;
    return std::ranges::any_of(grammar.steps(), [&](GrammarStep const& step) {
        if (step.kind == GrammarStep::Mark && step.word == ")") ++depth;
        if (step.kind == GrammarStep::Call) --depth;
        return depth == 0 && suits(step);
    });
}

bool hasToken(Grammar const& grammar, Token token) {
    return hasStep(grammar,
                   [&](GrammarStep const& step) { return step.kind == GrammarStep::Value && step.token == token; });
}

// Some numbers are words of their grammar: the weights of fonts.
bool hasNumber(Grammar const& grammar) {
    return hasToken(grammar, Token::Number) || hasToken(grammar, Token::Integer) ||
           hasStep(grammar, [](GrammarStep const& step) {
               return step.kind == GrammarStep::Word && Core::isDigit(static_cast<unsigned char>(step.word[0]));
           });
}

bool takesPower(Grammar const& grammar, std::optional<int> power) {
    bool const mayBeNumber = power.value_or(0) == 0, mayBeLength = power.value_or(1) == 1;
    return (mayBeNumber && hasNumber(grammar)) || (mayBeLength && hasToken(grammar, Token::Length)) ||
           (!power && hasToken(grammar, Token::Percentage));
}

} // namespace

std::optional<Expression> readExpression(std::u16string_view text) {
    Expression value;
    return Parser(text).whole(value) ? std::optional(value) : std::nullopt;
}

bool isExpressionFor(CatalogueEntry const& entry, std::u16string_view text) {
    auto const expression = readExpression(text);
    if (!expression) return false;
    Grammar const& grammar = entry.grammar;
    switch (expression->kind) {
    case Expression::Numeric: return !entry.isFont && takesPower(grammar, expression->power);
    case Expression::Share:
        return hasStep(grammar, [](GrammarStep const& step) { return step.word == "proportional-column-width"; });
    case Expression::Color: return hasToken(grammar, Token::Color);
    case Expression::Font: return entry.attribute.starts_with("font") || entry.attribute.starts_with("line-height");
    case Expression::Text: {
        Meaning meaning;
        return readMeaning(meaning, grammar, Dialect::Fo, expression->text);
    }
    case Expression::Any: return true;
    }
    return false;
}

} // namespace Xml
