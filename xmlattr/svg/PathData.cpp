#include "xmlattr/svg/PathData.h"

#include "xmlattr/core/NumberReader.h"
#include "xmlattr/core/Text.h"
#include "xmlattr/measures/Units.h"
#include "xmlattr/svg/ListGrowth.h"

#include <array>
#include <cstddef>
#include <iterator>
#include <limits>

namespace Xml {

namespace {

// What a code unit means inside a number.
enum class Role : std::uint8_t {
    Other, // belongs to the number
    Digit,
    Exponent, // "e": belongs to it too
    // From here on, what ends a plain number.
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

// Where the numbers of a command go, in the order in which they stand; of an arc, the last two.
using Target = SLength PathDataCommand::*;
struct Targets {
    std::uint8_t count = 0;
    std::array<Target, 6> targets{};
};

constexpr auto targetsOf = [] {
    using namespace PathCommandKinds;
    using C = PathDataCommand;
    std::array<Targets, ArcTo + 1> all{};
    all[MoveTo] = all[LineTo] = all[SmoothQuadraticCurveTo] = all[ArcTo] = {2, {&C::x, &C::y}};
    all[HorizontalLineTo] = {1, {&C::x}};
    all[VerticalLineTo] = {1, {&C::y}};
    all[CurveTo] = {6, {&C::x1, &C::y1, &C::x2, &C::y2, &C::x, &C::y}};
    all[SmoothCurveTo] = {4, {&C::x2, &C::y2, &C::x, &C::y}};
    all[QuadraticCurveTo] = {4, {&C::x1, &C::y1, &C::x, &C::y}};
    return all;
}();

class PathReader {
public:
    explicit PathReader(std::u16string_view text)
        : begin(text.data()), end(begin + text.size()), lastEnd(Core::afterLastEnd(begin, end)) {}

    // Every round takes at least one code unit: the letter of a command or, when it is repeated
    // without its letter, the first unit of its first number, which is no separator and no letter
    // of a command and therefore ends no number.
    Core::Vector<PathDataCommand> read() const {
        Core::Vector<PathDataCommand> commands;
        Unit current;
        for (char16_t const* at = begin;;) {
            at = skipSeparators(at);
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
            if (command.kind == PathCommandKind::ArcTo) at = readArc(at, added);
            Targets const& numbers = targetsOf[command.kind];
            for (Target const *target = numbers.targets.data(), *const last = target + numbers.count; target != last;
                 ++target)
                at = readLength(at, added.*(*target));
        }
        return commands;
    }

private:
    // All numbers of an arc but those of its end. Each reader gives the place after what it has read.
    char16_t const* readArc(char16_t const* at, PathDataCommand& arc) const {
        SLength rotation;
        for (SLength* const length : {&arc.rx, &arc.ry, &rotation}) at = readLength(at, *length);
        arc.xAxisRotation = rotation.getSize();
        return readFlag(readFlag(at, arc.largeArc), arc.sweep);
    }

    static bool isSeparator(char16_t unit) {
        if (unit > u',' && unit != u'\u00A0') return false;
        return unit == u',' || Core::isSpace(unit);
    }

    char16_t const* skipSeparators(char16_t const* at) const {
        while (at != end && isSeparator(*at)) ++at;
        return at;
    }

    // A plain number, as nearly all are, needs no second look: none of its units ends it early, and
    // when the one after it does, the whole run is the number, which the length reader takes as
    // user units because it ends with a digit.
    char16_t const* readLength(char16_t const* at, SLength& length) const {
        at = skipSeparators(at);
        if (at < lastEnd) {
            float number = 0;
            char16_t const* const after = Core::scanPlain(at, std::unreachable_sentinel, number);
            if (after && endsPlainNumber(after)) {
                length = SLength(number, SLength::UserUnit);
                return after;
            }
        }
        return readRun(at, length);
    }

    // The reference: takes the run of any number.
    char16_t const* readRun(char16_t const* at, SLength& length) const {
        std::u16string_view const run = runAt(at);
        AttributeTraits<SLength>::parse(length, run); // stays zero for what is no length
        return at + run.size();
    }

    // One unit, so that flags need no separators; of those, only digits are lengths.
    char16_t const* readFlag(char16_t const* at, bool& flag) const {
        at = skipSeparators(at);
        std::u16string_view const run = runAt(at, 1);
        flag = !run.empty() && run[0] != u'0' && Core::isDigit(run[0]);
        return at + run.size();
    }

    // The same answer as runAt gives after a digit that belongs to no exponent.
    bool endsPlainNumber(char16_t const* unit) const {
        Role const role = unitOf(*unit).role;
        return role >= Role::Sign && (role != Role::EndsBut_m || unit + 1 == end || unit[1] != u'm');
    }

    // The code units of one number.
    std::u16string_view runAt(char16_t const* const start,
                              std::ptrdiff_t limit = std::numeric_limits<std::ptrdiff_t>::max()) const {
        char16_t const* at = start;
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
    char16_t const* end;
    char16_t const* lastEnd; // up to here, plain numbers end before the text does
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
