#include "xmlattr/catalogue/legality/Expression.h"

#include "xmlattr/catalogue/legality/ExpressionFunctions.h"
#include "xmlattr/catalogue/text/Words.h"

#include "xmlattr/core/Text.h"

namespace Xml {

namespace {

class Parser {
public:
    explicit Parser(std::u16string_view text) : text(text) {}

    bool whole() { return sum() && (skipBlanks(), index == text.size()) && isMoreThanValue; }
    bool wholeCopy() { return primary() && (skipBlanks(), index == text.size()) && copyEnd == index; }

private:
    static constexpr int maxDepth = 100;

    bool sum() {
        if (!product()) return false;
        while (take(u"+") || take(u"-"))
            if (!operand()) return false;
        return true;
    }

    bool product() {
        if (!factor()) return false;
        while (take(u"*") || takeWord(u"div") || takeWord(u"mod")) {
            isMoreThanValue = true;
            if (!factor()) return false;
        }
        return true;
    }

    bool operand() {
        isMoreThanValue = true;
        return product();
    }

    bool factor() {
        while (take(u"-") || take(u"+")) {
        }
        return primary();
    }

    bool primary() {
        skipBlanks();
        if (index == text.size() || depth > maxDepth) return false;
        char16_t const unit = text[index];
        if (unit == u'(') return group();
        if (unit == u'"' || unit == u'\'') return literal(unit);
        if (Core::isDigit(unit) || unit == u'.') return number();
        if (unit == u'#') {
            ++index;
            return !name().empty();
        }
        std::u16string_view const word = name();
        return !word.empty() && (index == text.size() || text[index] != u'(' || call(word));
    }

    bool group() {
        ++index;
        ++depth;
        isMoreThanValue = true;
        bool const closes = sum() && take(u")");
        --depth;
        return closes;
    }

    bool literal(char16_t quote) {
        std::size_t const end = text.find(quote, index + 1);
        if (end == std::u16string_view::npos) return false;
        index = end + 1;
        return true;
    }

    bool number() {
        std::size_t const digits = skip(Core::isDigit);
        std::size_t const decimals = index < text.size() && text[index] == u'.' ? (++index, skip(Core::isDigit)) : 0;
        if (digits + decimals == 0) return false;
        if (index < text.size() && text[index] == u'%')
            ++index;
        else
            skip([](char16_t unit) { return isLetter(unit); });
        return true;
    }

    bool call(std::u16string_view word) {
        auto const function = Core::WordTable<expressionFunctions>::find(word);
        if (!function) return false;
        ++index;
        ++depth;
        int arguments = 0;
        if (!take(u")")) {
            do {
                if (!sum()) return false;
                ++arguments;
            } while (take(u","));
            if (!take(u")")) return false;
        }
        --depth;
        isMoreThanValue = true;
        if (function->copiesValue) copyEnd = index;
        return arguments >= function->least && arguments <= function->most;
    }

    std::u16string_view name() {
        std::size_t const first = index;
        skip([](char16_t unit) {
            return isLetter(unit) || Core::isDigit(unit) || unit == u'-' || unit == u'_' || unit == u'.';
        });
        return text.substr(first, index - first);
    }

    static bool isLetter(char16_t unit) {
        char16_t const lower = Core::toLower(unit);
        return lower >= u'a' && lower <= u'z';
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
        skipBlanks();
        if (name() == word) return true;
        index = before;
        return false;
    }

    std::u16string_view text;
    std::size_t index = 0, copyEnd = 0;
    int depth = 0;
    bool isMoreThanValue = false;
};

} // namespace

bool isExpression(std::u16string_view text) {
    return Parser(text).whole();
}

bool isCopy(std::u16string_view text) {
    return Parser(trimXmlSpace(text)).wholeCopy();
}

} // namespace Xml
