#include "xmlattr/svg/PathData.h"

#include "xmlattr/core/NumberReader.h"
#include "xmlattr/core/Text.h"
#include "xmlattr/measures/Units.h"
#include "xmlattr/svg/ListGrowth.h"

#include <array>
#include <cstddef>
#include <limits>

namespace Xml {

namespace {

// What a code unit means inside a number.
enum class Role : std::uint8_t {
    Other, // belongs to the number
    Digit,
    Exponent,  // "e": belongs to it too
    Sign,      // ends it, unless it is its sign or that of its exponent
    Ends,      // a separator or a command
    EndsBut_m, // a command, unless an "m" follows: "cm", "mm"
    EndsBut_p, // a command, unless a "p" precedes it: "pt"
};

struct Unit {
    Role role = Role::Other;
    std::uint8_t kind = 0; // of the command, 0: none
    bool relative = false;
};

constexpr auto units = [] {
    std::array<Unit, 128> table{};
    for (char16_t const unit : std::u16string_view(u"\t\n\r ,")) table[unit].role = Role::Ends;
    for (char16_t unit = u'0'; unit <= u'9'; ++unit) table[unit].role = Role::Digit;
    table[u'+'].role = table[u'-'].role = Role::Sign;
    table[u'E'].role = table[u'e'].role = Role::Exponent;
    struct Command {
        char16_t letter;
        PathCommandKind kind;
        Role role;
    };
    for (Command const& command :
         {Command{u'm', PathCommandKind::MoveTo, Role::EndsBut_m},
          Command{u'z', PathCommandKind::ClosePath, Role::Ends}, Command{u'l', PathCommandKind::LineTo, Role::Ends},
          Command{u'h', PathCommandKind::HorizontalLineTo, Role::Ends},
          Command{u'v', PathCommandKind::VerticalLineTo, Role::Ends},
          Command{u'c', PathCommandKind::CurveTo, Role::EndsBut_m},
          Command{u's', PathCommandKind::SmoothCurveTo, Role::Ends},
          Command{u'q', PathCommandKind::QuadraticCurveTo, Role::Ends},
          Command{u't', PathCommandKind::SmoothQuadraticCurveTo, Role::EndsBut_p},
          Command{u'a', PathCommandKind::ArcTo, Role::Ends}}) {
        bool const canBeRelative = command.kind != PathCommandKind::ClosePath;
        table[command.letter] = {command.role, static_cast<std::uint8_t>(command.kind), canBeRelative};
        table[command.letter - u'a' + u'A'] = {command.role, static_cast<std::uint8_t>(command.kind), false};
    }
    return table;
}();

Unit unitOf(char16_t unit) {
    return unit < units.size() ? units[unit] : Unit{};
}

class PathReader {
public:
    explicit PathReader(std::u16string_view text) : begin(text.data()), at(begin), end(begin + text.size()) {}

    // Every round takes at least one code unit: the letter of a command or, when it is repeated
    // without its letter, the first unit of its first number, which is no separator and no letter
    // of a command and therefore ends no number.
    Core::Vector<PathDataCommand> read() {
        Core::Vector<PathDataCommand> commands;
        for (Unit current;;) {
            skipSeparators();
            if (at == end) break;
            Unit command = unitOf(*at);
            if (command.kind != 0) {
                ++at;
                current = command;
                if (command.kind == PathCommandKind::MoveTo) current.kind = PathCommandKind::LineTo;
                if (command.kind == PathCommandKind::ClosePath) current.kind = 0;
            } else {
                command = current;
                if (command.kind == 0) break;
            }
            if (commands.size() == commands.capacity()) growList<24>(commands, at - begin, end - begin);
            PathDataCommand& added = commands.emplace_back();
            added.kind = command.kind;
            added.relative = command.relative;
            readNumbers(added);
        }
        return commands;
    }

private:
    void readNumbers(PathDataCommand& command) {
        switch (static_cast<PathCommandKind>(command.kind)) {
        case PathCommandKind::ClosePath: return;
        case PathCommandKind::HorizontalLineTo: command.x = readLength(); return;
        case PathCommandKind::VerticalLineTo: command.y = readLength(); return;
        case PathCommandKind::CurveTo:
            command.x1 = readLength();
            command.y1 = readLength();
            [[fallthrough]];
        case PathCommandKind::SmoothCurveTo:
            command.x2 = readLength();
            command.y2 = readLength();
            break;
        case PathCommandKind::QuadraticCurveTo:
            command.x1 = readLength();
            command.y1 = readLength();
            break;
        case PathCommandKind::ArcTo:
            command.rx = readLength();
            command.ry = readLength();
            command.xAxisRotation = readLength().getSize();
            command.largeArc = readFlag();
            command.sweep = readFlag();
            break;
        case PathCommandKind::MoveTo:
        case PathCommandKind::LineTo:
        case PathCommandKind::SmoothQuadraticCurveTo: break;
        }
        command.x = readLength();
        command.y = readLength();
    }

    static bool isSeparator(char16_t unit) {
        if (unit > u',' && unit != u'\u00A0') return false;
        return unit == u',' || Core::isSpace(unit);
    }

    void skipSeparators() {
        while (at != end && isSeparator(*at)) ++at;
    }

    // A plain number, as nearly all are, needs no second look: none of its units ends it early, and
    // when the one after it does, the whole run is the number, which the length reader takes as
    // user units because it ends with a digit.
    SLength readLength() {
        skipSeparators();
        float number = 0;
        char16_t const* const after = Core::scanPlain(at, end, number);
        if (after && (after == end || endsPlainNumber(after))) {
            at = after;
            return {number, SLength::UserUnit};
        }
        SLength length;
        AttributeTraits<SLength>::parse(length, takeRun()); // stays zero for what is no length
        return length;
    }

    // One unit, so that flags need no separators; of those, only digits are lengths.
    bool readFlag() {
        skipSeparators();
        std::u16string_view const run = takeRun(1);
        return !run.empty() && run[0] != u'0' && Core::isDigit(run[0]);
    }

    // The same answer as takeRun gives after a digit that belongs to no exponent.
    bool endsPlainNumber(char16_t const* unit) const {
        switch (unitOf(*unit).role) {
        case Role::Sign:
        case Role::Ends:
        case Role::EndsBut_p: return true;
        case Role::EndsBut_m: return unit + 1 == end || unit[1] != u'm';
        case Role::Other:
        case Role::Digit:
        case Role::Exponent: return false;
        }
        return false;
    }

    // The code units of one number.
    std::u16string_view takeRun(std::ptrdiff_t limit = std::numeric_limits<std::ptrdiff_t>::max()) {
        char16_t const* const start = at;
        bool hasDigit = false, hasExponent = false;
        auto const next = [&] { return at + 1 != end ? at[1] : u'\0'; };
        auto const ends = [&] {
            switch (unitOf(*at).role) {
            case Role::Other: return false;
            case Role::Digit: hasDigit = true; return false;
            case Role::Exponent: hasExponent |= hasDigit && next() != u'm' && next() != u'x'; return false;
            case Role::Sign: return hasDigit && !hasExponent;
            case Role::Ends: return true;
            case Role::EndsBut_m: return next() != u'm';
            case Role::EndsBut_p: return at == begin || at[-1] != u'p';
            }
            return true;
        };
        while (at != end && at - start < limit && !ends()) ++at;
        return {start, static_cast<std::size_t>(at - start)};
    }

    char16_t const* begin;
    char16_t const* at;
    char16_t const* end;
};

// A pair of coordinates.
struct Pair {
    SLength const &x, &y;
};

Parts& operator<<(Parts& out, Pair const& pair) {
    return out << pair.x << u"," << pair.y;
}

void addCommand(Parts& out, PathDataCommand const& command) {
    Pair const end{command.x, command.y}, first{command.x1, command.y1}, second{command.x2, command.y2};
    switch (static_cast<PathCommandKind>(command.kind)) {
        using namespace PathCommandKinds;
    case MoveTo: out.add(u"move") << end; break;
    case ClosePath: out.add(u"close"); break;
    case LineTo: out.add(u"line") << end; break;
    case HorizontalLineTo: out.add(u"across") << command.x; break;
    case VerticalLineTo: out.add(u"down") << command.y; break;
    case CurveTo: out.add(u"curve") << end << u" by " << first << u" " << second; break;
    case SmoothCurveTo: out.add(u"smooth") << end << u" by " << second; break;
    case QuadraticCurveTo: out.add(u"quad") << end << u" by " << first; break;
    case SmoothQuadraticCurveTo: out.add(u"smooth quad") << end; break;
    case ArcTo:
        out.add(u"arc") << end << u" radii " << Pair{command.rx, command.ry} << u" turned " << command.xAxisRotation
                        << (command.largeArc ? u" large" : u" small") << (command.sweep ? u" sweep" : u"");
        break;
    }
    if (command.relative) out << u", relative";
}

} // namespace

bool AttributeTraits<Core::Vector<PathDataCommand>>::parse(Core::Vector<PathDataCommand>& value,
                                                           std::u16string_view text) {
    value = PathReader(text).read();
    return true;
}

void AttributeTraits<Core::Vector<PathDataCommand>>::parts(Core::Vector<PathDataCommand> const& value, Parts& out) {
    out.add(u"items") << static_cast<int>(value.size());
    for (PathDataCommand const& command : value) addCommand(out, command);
}

} // namespace Xml
