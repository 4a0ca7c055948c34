// Point lists by SVG 1.1, section 9.7.1.
#include "xmlattr/catalogue/grammar/SvgRewriter.h"

namespace Xml {

namespace {

enum class Axis : std::uint8_t { X, Y };

struct PointsVisitor {
    void number(SvgNumber const& /*number*/, Axis /*axis*/) {}
};

struct PointsList {
    using Visitor = PointsVisitor;

    template <class PointsVisitor> bool read(SvgScanner& scanner, PointsVisitor& visitor) const {
        scanner.skipSpace();
        while (!scanner.atEnd()) {
            SvgNumber number;
            if (!scanner.takeNumber(number)) return false;
            visitor.number(number, Axis::X);
            bool const comma = scanner.skipSeparator();
            if (!comma && scanner.atEnd()) return scanner.fail("the last point has no y");
            if (!scanner.takeNumber(number)) return false;
            visitor.number(number, Axis::Y);
            if (scanner.skipSeparator() && scanner.atEnd()) return scanner.fail("expected a number");
        }
        return true;
    }
};

class PointsComparison : public SvgComparison {
public:
    PointsComparison(std::u16string_view text, Core::Vector<Point> const& held)
        : SvgComparison(text.data()), next(held.data()), end(next + held.size()) {}

    void number(SvgNumber const& number, Axis axis) {
        if (differs()) return;
        if (next == end) return differ(number.begin, number.end, "nothing");
        expect(number, axis == Axis::X ? next->x : next->y);
        if (axis == Axis::Y) ++next;
    }
    void finish(char16_t const* at) {
        if (next != end) differ(at, at, heldText(next->x));
    }

private:
    Point const* next;
    Point const* end;
};

// For the value type a number ends at white space, a comma or a minus sign; within a pair a comma stands before all
// white space, and after a pair one code unit is skipped, whatever it is.
class PointsRewriting : public SvgRewriter {
public:
    using SvgRewriter::SvgRewriter;

    void number(SvgNumber const& number, Axis axis) {
        if (previousEnd == number.begin) {
            if (axis == Axis::X || *number.begin != u'-') insertSpace(number.begin);
        } else if (previousEnd) {
            mendSeparator(previousEnd, number.begin);
        }
        mendNumber(number, true);
        previousEnd = number.end;
    }

private:
    char16_t const* previousEnd = nullptr;
};

} // namespace

bool readPoints(std::u16string_view text) {
    return isLegalList(PointsList(), text);
}

SvgReading compare(std::u16string_view text, Core::Vector<Point> const& held) {
    return compareList(PointsList(), text, PointsComparison(text, held));
}

std::optional<std::u16string> rewritePoints(std::u16string_view text) {
    using Value = Core::Vector<Point>;
    return rewriteList<Value>(PointsList(), text, PointsRewriting(text),
                              [](std::u16string_view of, Value const& held) { return compare(of, held); });
}

} // namespace Xml
