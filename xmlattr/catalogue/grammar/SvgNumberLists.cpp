// Lists of numbers and of lengths by SVG 1.1, section 4.2, and the view box, section 7.7.
#include "xmlattr/catalogue/grammar/SvgRewriter.h"
#include "xmlattr/catalogue/grammar/UnitWords.h"
#include "xmlattr/measures/Units.h"

#include <algorithm>
#include <cmath>
#include <iterator>

namespace Xml {

namespace {

struct ItemVisitor {
    // An item and its unit, which ends at `end`.
    void item(SvgNumber const& /*number*/, char16_t const* /*end*/, SLength::Unit /*unit*/) {}
};

struct ItemList {
    using Visitor = ItemVisitor;

    SvgListRule rule;

    template <class ItemVisitor> bool read(SvgScanner& scanner, ItemVisitor& visitor) const {
        scanner.skipSpace();
        if (rule.none && takeNone(scanner)) return true;
        std::size_t count = 0;
        for (bool comma = false; comma || !scanner.atEnd(); ++count) {
            if (count == rule.most) return scanner.fail("too many numbers", scanner.end());
            if (!readItem(scanner, visitor)) return false;
            char16_t const* const itemEnd = scanner.at;
            comma = scanner.skipSeparator();
            bool const touches = scanner.at == itemEnd && !scanner.atEnd();
            if (touches && (hasUnit(itemEnd) || !scanner.isAtNumber()))
                return scanner.fail("expected a comma or a blank");
        }
        return count >= rule.fewest || scanner.fail("expected a number");
    }

private:
    static bool hasUnit(char16_t const* itemEnd) { return !Core::isDigit(itemEnd[-1]); }

    // Moves on only where the word and white space are all.
    static bool takeNone(SvgScanner& scanner) {
        constexpr std::u16string_view word = u"none";
        std::u16string_view const rest(scanner.at, static_cast<std::size_t>(scanner.end() - scanner.at));
        auto const after = rest.substr(std::min(word.size(), rest.size()));
        if (!rest.starts_with(word) || !std::ranges::all_of(after, Core::isXmlSpace)) return false;
        scanner.at = scanner.end();
        return true;
    }

    template <class ItemVisitor> bool readItem(SvgScanner& scanner, ItemVisitor& visitor) const {
        SvgNumber number;
        if (!scanner.takeNumber(number, FinalPoint::Illegal)) return false;
        auto const failNumber = [&](std::string_view problem) {
            scanner.at = number.begin;
            return scanner.fail(problem, number.end);
        };
        if (number.value < rule.minimum || (rule.aboveMinimum && number.value == rule.minimum))
            return failNumber(number.value < 0 ? "is negative" : "is too small");
        if (rule.whole && number.value != std::floor(number.value)) return failNumber("expected an integer");
        auto unit = SLength::UserUnit;
        if (!readUnit(scanner, unit)) return false;
        visitor.item(number, scanner.at, unit);
        return true;
    }

    bool readUnit(SvgScanner& scanner, SLength::Unit& unit) const {
        char16_t const* after = scanner.at;
        auto const endsWord = [](char16_t code) {
            return Core::isXmlSpace(code) || code == u',' || code == u'-' || code == u'+' || code == u'.' ||
                   Core::isDigit(code);
        };
        after = std::find_if(after, scanner.end(), endsWord);
        if (after == scanner.at) return true;
        if (!rule.units) return scanner.fail("expected a number without a unit", after);
        std::u16string_view const word(scanner.at, static_cast<std::size_t>(after - scanner.at));
        auto const kind = Core::WordTable<unitWords>::find(word);
        if (kind != ItemKind::Length && kind != ItemKind::Percentage)
            return scanner.fail("expected a unit (em, ex, px, in, cm, mm, pt, pc, %)", after);
        unit = kind == ItemKind::Percentage ? SLength::Percent : findUnit<SLength::Unit>(word);
        scanner.at = after;
        return true;
    }
};

class ItemComparison : public SvgComparison {
public:
    ItemComparison(std::u16string_view text, Core::Vector<SLength> const& held)
        : SvgComparison(text.data()), next(held.data()), end(next + held.size()) {}

    void item(SvgNumber const& number, char16_t const* itemEnd, SLength::Unit unit) {
        if (differs()) return;
        if (next == end) return differ(number.begin, itemEnd, "nothing");
        // A percentage is held as its fraction.
        float const size = unit == SLength::Percent ? static_cast<float>(number.value / 100.0) : number.value;
        expect(number, itemEnd, SLength(size, unit), *next++);
    }
    void finish(char16_t const* at) {
        if (next != end) differ(at, at, heldText(*next));
    }

private:
    SLength const* next;
    SLength const* end;
};

// The value type separates items at white space and commas alone.
class ItemRewriting : public SvgRewriter {
public:
    using SvgRewriter::SvgRewriter;

    void item(SvgNumber const& number, char16_t const* itemEnd, SLength::Unit /*unit*/) {
        if (previousEnd == number.begin) insertSpace(number.begin);
        previousEnd = itemEnd;
    }

private:
    char16_t const* previousEnd = nullptr;
};

struct ViewBoxVisitor {
    void number(SvgNumber const& /*number*/) {}
};

struct ViewBoxList {
    using Visitor = ViewBoxVisitor;

    template <class ViewBoxVisitor> bool read(SvgScanner& scanner, ViewBoxVisitor& visitor) const {
        scanner.skipSpace();
        for (int count = 0; count < 4; ++count) {
            if (count > 0) scanner.skipSeparator();
            SvgNumber number;
            if (!scanner.isAtNumber()) return scanner.fail("a view box is four numbers");
            if (!scanner.takeNumber(number, FinalPoint::Illegal)) return false;
            if (count > 1 && number.value < 0) {
                scanner.at = number.begin;
                return scanner.fail(count == 2 ? "is a negative width" : "is a negative height", number.end);
            }
            visitor.number(number);
        }
        scanner.skipSpace();
        return scanner.atEnd() || scanner.fail("a view box is four numbers", scanner.end());
    }
};

class ViewBoxComparison : public SvgComparison {
public:
    ViewBoxComparison(std::u16string_view text, ViewBox const& held)
        : SvgComparison(text.data()), sides{&held.x, &held.y, &held.width, &held.height} {}

    void number(SvgNumber const& number) {
        SLengthOrPercent const& side = *sides[index++];
        SLength const percent(side.getPercent(), SLength::Percent);
        expect(number, side.isPercent() ? percent : side.getLength());
    }
    void finish(char16_t const* /*at*/) {}

private:
    SLengthOrPercent const* sides[4];
    int index = 0;
};

// The value type separates numbers at white space alone.
class ViewBoxRewriting : public SvgRewriter {
public:
    using SvgRewriter::SvgRewriter;

    void number(SvgNumber const& number) {
        if (previousEnd == number.begin)
            insertSpace(number.begin);
        else if (previousEnd)
            mendSeparator(previousEnd, number.begin, false);
        previousEnd = number.end;
    }

private:
    char16_t const* previousEnd = nullptr;
};

} // namespace

bool readSvgList(std::u16string_view text, SvgListRule const& rule) {
    return isLegalList(ItemList{rule}, text);
}

SvgReading compare(std::u16string_view text, Core::Vector<SLength> const& held, SvgListRule const& rule) {
    return compareList(ItemList{rule}, text, ItemComparison(text, held));
}

std::optional<std::u16string> rewriteSvgList(std::u16string_view text, SvgListRule const& rule) {
    using Value = Core::Vector<SLength>;
    return rewriteList<Value>(ItemList{rule}, text, ItemRewriting(text),
                              [&](std::u16string_view of, Value const& held) { return compare(of, held, rule); });
}

bool readViewBox(std::u16string_view text) {
    return isLegalList(ViewBoxList(), text);
}

SvgReading compare(std::u16string_view text, ViewBox const& held) {
    return compareList(ViewBoxList(), text, ViewBoxComparison(text, held));
}

std::optional<std::u16string> rewriteViewBox(std::u16string_view text) {
    return rewriteList<ViewBox>(ViewBoxList(), text, ViewBoxRewriting(text),
                                [](std::u16string_view of, ViewBox const& held) { return compare(of, held); });
}

} // namespace Xml
