// Transform lists by SVG 1.1, section 7.6. As in SVG 2, nothing has to stand between two transforms.
#include "xmlattr/catalogue/grammar/SvgRewriter.h"
#include "xmlattr/core/WordTable.h"

#include <algorithm>

namespace Xml {

namespace {

struct TransformVisitor {
    void open(std::u16string_view /*word*/, TransformType /*type*/) {}
    void number(SvgNumber const& /*number*/) {}
    // At the parenthesis.
    void close(char16_t const* /*at*/) {}
};

struct TransformsList {
    using Visitor = TransformVisitor;

    template <class TransformVisitor> bool read(SvgScanner& scanner, TransformVisitor& visitor) const {
        scanner.skipSpace();
        while (!scanner.atEnd()) {
            if (!readTransform(scanner, visitor)) return false;
            bool comma = false;
            for (scanner.skipSpace(); scanner.isAt(u','); comma = true) scanner.skipSeparator();
            if (comma && scanner.atEnd()) return scanner.fail(expectedTransform);
        }
        return true;
    }

private:
    static constexpr std::string_view expectedTransform = "expected matrix, translate, scale, rotate, skewX or skewY";

    template <class TransformVisitor> static bool readTransform(SvgScanner& scanner, TransformVisitor& visitor) {
        auto const belongs = [](char16_t unit) { return Core::isLetter(unit) || Core::isDigit(unit); };
        std::u16string_view const word(scanner.at, std::find_if_not(scanner.at, scanner.end(), belongs));
        auto const form = Core::WordTable<transformWords>::find(word);
        if (!form && !word.empty() && Core::isLetter(word[0]))
            return scanner.fail(expectedTransform, word.data() + word.size());
        if (!form) return scanner.fail(expectedTransform);
        scanner.at += word.size();
        scanner.skipSpace();
        if (!scanner.isAt(u'(')) {
            bool const longerWord = scanner.at == word.data() + word.size() && !scanner.atEnd();
            if (!longerWord) return scanner.fail("expected \"(\"");
            scanner.at = word.data();
            return scanner.fail(expectedTransform);
        }
        ++scanner.at;
        visitor.open(word, form->type);
        return readNumbers(scanner, visitor, *form);
    }

    template <class TransformVisitor>
    static bool readNumbers(SvgScanner& scanner, TransformVisitor& visitor, TransformArguments const& form) {
        scanner.skipSpace();
        for (int count = 1;; ++count) {
            SvgNumber number;
            if (!scanner.takeNumber(number)) return false;
            visitor.number(number);
            bool const comma = scanner.skipSeparator();
            bool const mayEnd = !comma && (count == form.most || count == form.least);
            if (mayEnd && scanner.isAt(u')')) break;
            if (mayEnd && scanner.atEnd()) return scanner.fail("expected \")\"");
            if (count < form.most) continue;
            if (scanner.isAtNumber()) return scanner.fail("a number too many");
            return scanner.fail(comma ? "a comma too many" : "expected \")\"");
        }
        visitor.close(scanner.at++);
        return true;
    }
};

class TransformsComparison : public SvgComparison {
public:
    TransformsComparison(std::u16string_view text, Core::Vector<Transform> const& held)
        : SvgComparison(text.data()), next(held.data()), end(next + held.size()) {}

    void open(std::u16string_view word, TransformType type) {
        if (differs()) return;
        if (next == end) return differ(word, "nothing");
        current = next++;
        count = 0;
        begin = word.data();
        isIdentity = *current == Transform();
        isLost = isIdentity && type != TransformType::Translate;
        if (!isIdentity && current->type != type) differ(word, wordOf(*current));
    }

    void number(SvgNumber const& number) {
        if (differs()) return;
        if (isIdentity) {
            isLost |= number.value != 0;
            return;
        }
        int const index = count++;
        last = number;
        switch (current->type) {
        case TransformType::Matrix: return expect(number, current->matrix[index]);
        case TransformType::Translate: return expect(number, (index == 0 ? current->tx : current->ty).getValue());
        case TransformType::Scale: return expect(number, index == 0 ? current->sx : current->sy);
        case TransformType::Rotate:
            if (index == 0) return expect(number, current->angle);
            return expect(number, (index == 1 ? current->cx : current->cy).getValue());
        case TransformType::SkewX: return expect(number, current->skewAngleX);
        case TransformType::SkewY: return expect(number, current->skewAngleY);
        }
    }

    // What was left out is 0, but the second factor of a scale is the first.
    void close(char16_t const* at) {
        if (isLost) differ(begin, at + 1, "no transform");
        if (differs() || isIdentity || count != 1) return;
        SvgNumber const zero{last.begin, last.end, 0};
        switch (current->type) {
        case TransformType::Translate: return expect(zero, current->ty.getValue());
        case TransformType::Scale: return expect(last, current->sy);
        case TransformType::Rotate: expect(zero, current->cx.getValue()); return expect(zero, current->cy.getValue());
        case TransformType::Matrix:
        case TransformType::SkewX:
        case TransformType::SkewY: return;
        }
    }

    void finish(char16_t const* at) {
        if (next != end) differ(at, at, wordOf(*next));
    }

private:
    static std::string wordOf(Transform const& transform) {
        auto const* const found =
            std::ranges::find_if(transformWords, [&](auto const& row) { return row.value.type == transform.type; });
        return {found->word.begin(), found->word.end()};
    }

    Transform const* next;
    Transform const* end;
    Transform const* current = nullptr;
    char16_t const* begin = nullptr;
    SvgNumber last;
    int count = 0;
    // What the value type cannot read it holds as the identity, a translation by nothing.
    bool isIdentity = false, isLost = false;
};

// For the value type a number ends at one white space, a comma or the parenthesis, and nothing but white space may
// follow before the next one.
class TransformsRewriting : public SvgRewriter {
public:
    using SvgRewriter::SvgRewriter;

    void open(std::u16string_view /*word*/, TransformType newType) {
        type = newType;
        previousEnd = nullptr;
    }
    void number(SvgNumber const& number) {
        if (previousEnd == number.begin)
            insertSpace(number.begin);
        else if (previousEnd)
            mendSeparator(previousEnd, number.begin);
        // The other numbers it reads as the recommendation has them.
        bool const isLength = type == TransformType::Translate || (type == TransformType::Rotate && previousEnd);
        if (isLength) mendNumber(number);
        previousEnd = number.end;
    }
    void close(char16_t const* at) {
        if (at - previousEnd > 1) replace(previousEnd, at, {});
    }

private:
    TransformType type{};
    char16_t const* previousEnd = nullptr;
};

} // namespace

bool readTransformList(std::u16string_view text) {
    return isLegalList(TransformsList(), text);
}

SvgReading compare(std::u16string_view text, Core::Vector<Transform> const& held) {
    return compareList(TransformsList(), text, TransformsComparison(text, held));
}

std::optional<std::u16string> rewriteTransformList(std::u16string_view text) {
    using Value = Core::Vector<Transform>;
    return rewriteList<Value>(TransformsList(), text, TransformsRewriting(text),
                              [](std::u16string_view of, Value const& held) { return compare(of, held); });
}

} // namespace Xml
