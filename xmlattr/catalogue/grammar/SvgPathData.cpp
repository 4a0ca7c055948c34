// Path data by SVG 1.1, section 8.3.9.
#include "xmlattr/catalogue/grammar/SvgRewriter.h"

#include <span>

namespace Xml {

namespace {

using Command = PathDataCommand;

// Takes the parts of a text, each of which it ignores.
struct PathVisitor {
    // A command: its letter, or its first number where the letter is left out.
    void command(char16_t const* /*at*/, PathCommandKind /*kind*/, bool /*relative*/) {}
    void number(SvgNumber const& /*number*/, SLength Command::* /*field*/) {}
    void rotation(SvgNumber const& /*number*/) {}
    void flag(char16_t const* /*at*/, bool Command::* /*field*/) {}
};

struct PathList {
    using Visitor = PathVisitor;

    template <class Scanner, class PathVisitor> bool read(Scanner& scanner, PathVisitor& visitor) const {
        scanner.skipSpace();
        char16_t const* const start = scanner.at;
        while (!scanner.atEnd()) {
            PathCommandKind kind{};
            if (!readLetter(scanner, kind)) return scanner.fail("expected a command of path data");
            if (scanner.at == start && kind != PathCommandKind::MoveTo)
                return scanner.fail("path data starts with a moveto");
            char16_t const* at = scanner.at++;
            bool const relative = *at >= u'a' && kind != PathCommandKind::ClosePath;
            scanner.skipSpace();
            if (kind == PathCommandKind::ClosePath) {
                visitor.command(at, kind, relative);
                continue;
            }
            for (;;) {
                visitor.command(at, kind, relative);
                if (!readArguments(scanner, visitor, kind)) return false;
                if (!scanner.skipSeparator() && !scanner.isAtNumber()) break;
                at = scanner.at;
                if (kind == PathCommandKind::MoveTo) kind = PathCommandKind::LineTo;
            }
        }
        return true;
    }

private:
    static bool readLetter(SvgScanner const& scanner, PathCommandKind& kind) {
        switch (Core::toLower(*scanner.at)) {
        case u'm': kind = PathCommandKind::MoveTo; return true;
        case u'z': kind = PathCommandKind::ClosePath; return true;
        case u'l': kind = PathCommandKind::LineTo; return true;
        case u'h': kind = PathCommandKind::HorizontalLineTo; return true;
        case u'v': kind = PathCommandKind::VerticalLineTo; return true;
        case u'c': kind = PathCommandKind::CurveTo; return true;
        case u's': kind = PathCommandKind::SmoothCurveTo; return true;
        case u'q': kind = PathCommandKind::QuadraticCurveTo; return true;
        case u't': kind = PathCommandKind::SmoothQuadraticCurveTo; return true;
        case u'a': kind = PathCommandKind::ArcTo; return true;
        }
        return false;
    }

    using Field = SLength Command::*;
    static constexpr Field curve[] = {&Command::x1, &Command::y1, &Command::x2, &Command::y2, &Command::x, &Command::y};
    static constexpr Field arc[] = {&Command::rx, &Command::ry, &Command::x, &Command::y};
    static constexpr Field quadratic[] = {&Command::x1, &Command::y1, &Command::x, &Command::y};

    // The numbers of a command in their order, but for the rotation of an arc.
    static std::span<Field const> fieldsOf(PathCommandKind kind) {
        std::span<Field const> const all = curve, ofPoint = all.subspan(4);
        switch (kind) {
        case PathCommandKind::ClosePath: return {};
        case PathCommandKind::HorizontalLineTo: return ofPoint.first(1);
        case PathCommandKind::VerticalLineTo: return ofPoint.last(1);
        case PathCommandKind::CurveTo: return all;
        case PathCommandKind::SmoothCurveTo: return all.subspan(2);
        case PathCommandKind::QuadraticCurveTo: return quadratic;
        case PathCommandKind::ArcTo: return arc;
        case PathCommandKind::MoveTo:
        case PathCommandKind::LineTo:
        case PathCommandKind::SmoothQuadraticCurveTo: return ofPoint;
        }
        return {};
    }

    template <class Scanner, class PathVisitor>
    static bool readArguments(Scanner& scanner, PathVisitor& visitor, PathCommandKind kind) {
        std::span<Field const> const fields = fieldsOf(kind);
        for (std::size_t i = 0; i < fields.size(); ++i) {
            if (i > 0) scanner.skipSeparator();
            if (kind == PathCommandKind::ArcTo && i == 2 && !readTurn(scanner, visitor)) return false;
            SvgNumber number;
            if (!scanner.takeNumber(number)) return false;
            visitor.number(number, fields[i]);
        }
        return true;
    }

    // Between the radii of an arc and its end. A negative radius is legal: section F.6.6 drops its sign.
    template <class Scanner, class PathVisitor> static bool readTurn(Scanner& scanner, PathVisitor& visitor) {
        SvgNumber rotation;
        if (!scanner.takeNumber(rotation)) return false;
        visitor.rotation(rotation);
        if (!takeFlag(scanner, visitor, &Command::largeArc) || !takeFlag(scanner, visitor, &Command::sweep))
            return false;
        scanner.skipSeparator();
        return true;
    }

    // One digit, which may touch what follows it.
    template <class PathVisitor> static bool takeFlag(SvgScanner& scanner, PathVisitor& visitor, bool Command::*field) {
        scanner.skipSeparator();
        if (!scanner.isAt(u'0') && !scanner.isAt(u'1')) return scanner.fail("a flag of an arc is 0 or 1");
        visitor.flag(scanner.at++, field);
        return true;
    }
};

// Stops at a number that the value type may read otherwise. One of so few digits, and of an exponent that makes it no
// larger, has the same value for whoever reads it, and it ends where the value type ends it: the grammar has nothing
// after it that could belong to a number but a point, and after an exponent a sign.
class PlainScanner : public SvgScanner {
public:
    using SvgScanner::SvgScanner;

    bool takeNumber(SvgNumber& /*number*/) {
        if (!take(u'-')) take(u'+');
        std::size_t digits = skipDigits();
        if (take(u'.')) {
            std::size_t const decimals = skipDigits();
            if (decimals == 0) return false;
            digits += decimals;
        }
        if (take(u'e') && (!take(u'-') || skipDigits() == 0 || isAt(u'-') || isAt(u'+'))) return false;
        return digits - 1 < Core::exactDigits && !isAt(u'.');
    }

private:
    bool take(char16_t unit) {
        bool const isThere = isAt(unit);
        at += isThere;
        return isThere;
    }
    std::size_t skipDigits() {
        char16_t const* const start = at;
        while (!atEnd() && Core::isDigit(*at)) ++at;
        return static_cast<std::size_t>(at - start);
    }
};

class PathComparison : public SvgComparison {
public:
    PathComparison(std::u16string_view text, Core::Vector<Command> const& held)
        : SvgComparison(text.data()), next(held.data()), end(next + held.size()) {}

    void command(char16_t const* at, PathCommandKind kind, bool relative) {
        if (differs()) return;
        if (next == end) return differ(at, at + 1, "nothing");
        current = next++;
        if (current->kind != kind || current->relative != relative) differ(at, at + 1, {letterOf(*current)});
    }
    void number(SvgNumber const& number, SLength Command::*field) {
        if (!differs()) expect(number, current->*field);
    }
    void rotation(SvgNumber const& number) {
        if (!differs()) expect(number, current->xAxisRotation);
    }
    void flag(char16_t const* at, bool Command::*field) {
        if (!differs() && current->*field != (*at == u'1')) differ(at, at + 1, current->*field ? "1" : "0");
    }
    void finish(char16_t const* at) {
        if (next != end) differ(at, at, {letterOf(*next)});
    }

private:
    Command const* next;
    Command const* end;
    Command const* current = nullptr;
};

// For the value type a number ends at a sign, unless it has an exponent, and runs on over everything else that is
// neither a separator nor a command.
class PathRewriting : public SvgRewriter {
public:
    using SvgRewriter::SvgRewriter;

    void command(char16_t const* /*at*/, PathCommandKind /*kind*/, bool /*relative*/) {}
    void number(SvgNumber const& number, SLength Command::* /*field*/) { rotation(number); }
    void rotation(SvgNumber const& number) {
        bool const hasSign = *number.begin == u'-' || *number.begin == u'+';
        if (number.begin == previous.end && (!hasSign || hasExponent(previous))) insertSpace(number.begin);
        mendNumber(number);
        previous = number;
    }
    void flag(char16_t const* /*at*/, bool Command::* /*field*/) {}

private:
    static bool hasExponent(SvgNumber const& number) {
        return std::u16string_view(number.begin, static_cast<std::size_t>(number.end - number.begin))
                   .find_first_of(u"eE") != std::u16string_view::npos;
    }

    SvgNumber previous;
};

} // namespace

bool readPathData(std::u16string_view text) {
    return isLegalList(PathList(), text);
}

bool isPlainPathData(std::u16string_view text) {
    PlainScanner scanner(text);
    PathVisitor nothing;
    return PathList().read(scanner, nothing);
}

SvgReading compare(std::u16string_view text, Core::Vector<Command> const& held) {
    return compareList(PathList(), text, PathComparison(text, held));
}

std::optional<std::u16string> rewritePathData(std::u16string_view text) {
    using Value = Core::Vector<Command>;
    return rewriteList<Value>(PathList(), text, PathRewriting(text),
                              [](std::u16string_view of, Value const& held) { return compare(of, held); });
}

} // namespace Xml
