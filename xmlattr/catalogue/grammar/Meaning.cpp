#include "xmlattr/catalogue/grammar/Meaning.h"

#include "xmlattr/catalogue/grammar/TokenReader.h"

#include <unordered_set>

namespace Xml {

namespace {

// Where reading stands: at which step, where in the text, and which options of each set were taken.
struct State {
    std::uint16_t step;
    std::size_t index;
    std::uint64_t taken; // eight bits for each depth of sets

    bool operator==(State const&) const = default;

    std::uint64_t bitOf(GrammarStep const& option) const {
        return std::uint64_t{1} << (option.set * 8 + option.option);
    }
    std::uint64_t maskOf(GrammarStep const& set) const { return std::uint64_t{0xFF} << (set.set * 8); }
};

struct StateHash {
    std::size_t operator()(State const& state) const {
        std::uint64_t const mixed =
            (state.index * 0x9E3779B97F4A7C15u + state.step) ^ state.taken * 0xC2B2AE3D27D4EB4Fu;
        return static_cast<std::size_t>(mixed ^ mixed >> 29);
    }
};

// Follows the steps of a grammar; where there is a choice it takes the first way, and comes back for the others.
class MeaningReader {
public:
    MeaningReader(Meaning& meaning, std::span<GrammarStep const> steps, Dialect dialect, std::u16string_view text,
                  Ranges ranges)
        : meaning(meaning), steps(steps), cursor{text, dialect, ranges} {}

    bool read() {
        state.step = static_cast<std::uint16_t>(steps.size() - 1);
        while (state.step != 0 || !isAtEnd()) {
            if (state.step != 0 && takeStep()) continue;
            if (ways.empty()) return false;
            Way const& way = ways.back();
            state = way.state;
            meaning.shrink(way.items);
            ways.shrink(ways.size() - 1);
        }
        return true;
    }

private:
    struct Way {
        State state;
        std::size_t items;
    };

    // So many times a way may be left open before the states that were met are remembered, which few texts need.
    static constexpr std::size_t patience = 4096;

    bool isAtEnd() {
        place();
        return cursor.atEnd();
    }

    void place() {
        cursor.index = state.index;
        cursor.skipSpace();
    }

    bool goOn(std::uint16_t next) {
        state.index = cursor.index;
        state.step = next;
        return true;
    }

    bool takeStep() {
        GrammarStep const& step = steps[state.step];
        place();
        switch (step.kind) {
        case GrammarStep::Accept: return false;
        case GrammarStep::Value: {
            Item item;
            if (!readValue(item, step, cursor)) return false;
            if (item.text.empty()) item.text = written();
            meaning.push(item);
            return goOn(step.next);
        }
        case GrammarStep::Word:
            if (!cursor.takeWord(step.word) || !cursor.atBoundary()) return false;
            meaning.push({.text = written()});
            return goOn(step.next);
        case GrammarStep::Call: return cursor.takeWord(step.word) && cursor.take(u'(') && goOn(step.next);
        case GrammarStep::Mark: return cursor.take(static_cast<unsigned char>(step.word[0])) && goOn(step.next);
        case GrammarStep::Separator:
            if (cursor.take(u',')) cursor.skipSpace();
            return goOn(step.next);
        case GrammarStep::Choice:
            // The end of the grammar can be reached only at the end of the text, so that a last list leaves no ways.
            if (step.other == 0) {
                state.step = cursor.atEnd() ? 0 : step.next;
                return true;
            }
            if (!mayBegin(steps[step.next])) return goOnAt(step.other);
            return leaveOpen(step.other) && goOnAt(step.next);
        case GrammarStep::Begin: state.taken &= ~state.maskOf(step); return goOnAt(step.next);
        case GrammarStep::Option:
            if ((state.taken & state.bitOf(step)) != 0) return goOnAt(step.other);
            if (!leaveOpen(step.other)) return false;
            state.taken |= state.bitOf(step);
            return goOnAt(step.next);
        case GrammarStep::End:
            if ((state.taken & state.maskOf(step)) == 0) return false;
            state.taken &= ~state.maskOf(step);
            return goOnAt(step.next);
        }
        return false;
    }

    bool goOnAt(std::uint16_t next) {
        state.step = next;
        return true;
    }

    // Of the many words of a choice, all but one or two are out of the question at their first letter.
    bool mayBegin(GrammarStep const& step) const {
        bool const isWord =
            step.kind == GrammarStep::Word || step.kind == GrammarStep::Call || step.kind == GrammarStep::Mark;
        return !isWord || cursor.dialect == Dialect::SvgStyle ||
               cursor.peek() == static_cast<unsigned char>(step.word[0]);
    }

    std::u16string_view written() const {
        std::u16string_view const text = cursor.text.substr(state.index, cursor.index - state.index);
        return trimXmlSpace(text);
    }

    // False when the state was met before, so that whatever it leads to has been or will be tried.
    bool leaveOpen(std::uint16_t other) {
        if (++opened > patience && !met.insert(state).second) return false;
        ways.push({{other, state.index, state.taken}, meaning.size()});
        return true;
    }

    Meaning& meaning;
    std::span<GrammarStep const> steps;
    ValueCursor cursor;
    State state{};
    ShortList<Way, 8> ways;
    std::size_t opened = 0;
    std::unordered_set<State, StateHash> met;
};

} // namespace

bool readMeaning(Meaning& meaning, Grammar const& grammar, Dialect dialect, std::u16string_view text, Ranges ranges) {
    meaning.shrink(0);
    return grammar && MeaningReader(meaning, grammar.steps(), dialect, text, ranges).read();
}

} // namespace Xml
