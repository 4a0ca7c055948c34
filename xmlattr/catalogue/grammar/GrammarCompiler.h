// From the text of a grammar to its steps.
#pragma once

#include "xmlattr/catalogue/grammar/Grammar.h"
#include "xmlattr/catalogue/text/TableText.h"

#include <array>
#include <cstddef>

namespace Xml {

// What is wrong with the text of a grammar, and where; nothing when it is well formed.
struct GrammarFault {
    std::string_view reason;
    std::size_t position = 0;

    constexpr explicit operator bool() const { return !reason.empty(); }
};

// Reads the text into a tree, then writes the steps from the last to the first, so that each knows what follows it.
class GrammarCompiler {
public:
    constexpr explicit GrammarCompiler(std::string_view text) {
        Index const root = parseWhole(text, 0);
        if (problem) return;
        add({.kind = GrammarStep::Accept});
        Index const first = emit(root, 0, 0);
        // The last step leads to the first one to take; a set at this depth is never in use.
        if (first + 1 != count) add({.kind = GrammarStep::Begin, .set = maxOptions - 1, .next = first});
    }

    constexpr GrammarFault const& fault() const { return problem; }
    constexpr std::size_t size() const { return count; }
    constexpr GrammarStep const& operator[](std::size_t index) const { return steps[index]; }

private:
    using Index = std::uint16_t;
    static constexpr Index none = 0xFFFF;
    static constexpr std::size_t maxNodes = 256, maxSteps = 768;
    static constexpr int maxDepth = 12, unlimited = -1, maxOptions = 8, maxCount = 400;

    enum class Shape : std::uint8_t { Step, Sequence, Choice, AnyOrder, Repeat };

    struct Node {
        Shape shape = Shape::Step;
        char between = 0; // of a Repeat: ",", "~" or nothing
        int least = 0, most = 0;
        Index child = none, sibling = none;
        GrammarStep step{};
    };

    // Reading

    struct Cursor {
        std::string_view text;
        std::size_t index = 0;

        constexpr char peek() const { return index < text.size() ? text[index] : '\0'; }
        constexpr void skipBlanks() {
            while (peek() == ' ') ++index;
        }
        constexpr bool take(std::string_view mark) {
            if (!text.substr(index).starts_with(mark)) return false;
            index += mark.size();
            return true;
        }
    };

    constexpr Index fail(Cursor const& cursor, std::string_view reason) {
        if (!problem) problem = {reason, cursor.index};
        return none;
    }

    constexpr Index addNode(Cursor const& cursor, Node const& node) {
        if (nodeCount == maxNodes) return fail(cursor, "the grammar is too long");
        nodes[nodeCount] = node;
        return nodeCount++;
    }

    constexpr Index parseWhole(std::string_view text, int depth) {
        Cursor cursor{text};
        if (depth > maxDepth) return fail(cursor, "a production names itself");
        Index const root = parseChoice(cursor, depth);
        if (!problem && cursor.index < text.size()) return fail(cursor, "nothing closes here");
        return root;
    }

    // One or more parts, each followed by the mark but the last.
    template <class ParsePart>
    constexpr Index parseParts(Cursor& cursor, Shape shape, std::string_view mark, ParsePart parsePart) {
        Index const first = parsePart();
        Index last = first;
        int parts = 1;
        while (!problem) {
            cursor.skipBlanks();
            if (mark == "|" && cursor.text.substr(cursor.index).starts_with("||")) break;
            if (!cursor.take(mark)) break;
            Index const part = parsePart();
            if (problem) break;
            last = nodes[last].sibling = part;
            ++parts;
        }
        if (problem) return none;
        if (shape == Shape::AnyOrder && parts > maxOptions) return fail(cursor, "too many options in any order");
        return parts == 1 ? first : addNode(cursor, {.shape = shape, .child = first});
    }

    constexpr Index parseChoice(Cursor& cursor, int depth) {
        return parseParts(cursor, Shape::Choice, "|", [&] {
            return parseParts(cursor, Shape::AnyOrder, "||", [&] { return parseSequence(cursor, depth); });
        });
    }

    constexpr Index parseSequence(Cursor& cursor, int depth) {
        Index first = none, last = none;
        for (;;) {
            cursor.skipBlanks();
            char const next = cursor.peek();
            if (next == '\0' || next == '|' || next == ']' || next == ')') break;
            Index const part = parseRepeated(cursor, depth);
            if (problem) return none;
            last = (first == none ? first : nodes[last].sibling) = part;
        }
        if (first == none) return fail(cursor, "a value is missing");
        return first == last ? first : addNode(cursor, {.shape = Shape::Sequence, .child = first});
    }

    constexpr Index parseRepeated(Cursor& cursor, int depth) {
        Index const part = parseAtom(cursor, depth);
        if (problem) return none;
        Node repeat{.shape = Shape::Repeat, .least = 1, .most = 1, .child = part};
        if (cursor.take("?")) {
            repeat.least = 0;
        } else if (cursor.take("*")) {
            repeat.least = 0;
            repeat.most = unlimited;
        } else if (cursor.take("+")) {
            repeat.most = unlimited;
        } else {
            if (cursor.peek() == '#' || cursor.peek() == '~') {
                repeat.between = cursor.peek() == '#' ? ',' : '~';
                repeat.most = unlimited;
                ++cursor.index;
            }
            if (cursor.peek() == '{' && !parseCount(cursor, repeat)) return none;
        }
        if (repeat.least == 1 && repeat.most == 1) return part;
        if (repeat.most == unlimited && mayBeEmpty(part)) return fail(cursor, "what may be empty is repeated");
        return addNode(cursor, repeat);
    }

    constexpr bool parseCount(Cursor& cursor, Node& repeat) {
        auto const number = [&](int& value) {
            if (cursor.peek() < '0' || cursor.peek() > '9') return false;
            for (value = 0; cursor.peek() >= '0' && cursor.peek() <= '9' && value < maxCount; ++cursor.index)
                value = value * 10 + (cursor.peek() - '0');
            return true;
        };
        ++cursor.index;
        bool isGood = number(repeat.least);
        repeat.most = repeat.least;
        if (cursor.take(",") && !number(repeat.most)) repeat.most = unlimited;
        isGood = isGood && cursor.take("}") && repeat.most != 0 &&
                 (repeat.most == unlimited || repeat.least <= repeat.most) && (repeat.between == 0 || repeat.least > 0);
        if (!isGood) fail(cursor, "no count");
        return isGood;
    }

    constexpr Index parseAtom(Cursor& cursor, int depth) {
        if (cursor.take("[")) {
            Index const inner = parseChoice(cursor, depth);
            if (problem) return none;
            return cursor.take("]") ? inner : fail(cursor, "a bracket is open");
        }
        if (cursor.take("<")) return parseToken(cursor, depth);
        if (cursor.take("~")) return addNode(cursor, {.step = {.kind = GrammarStep::Separator}});
        if (cursor.peek() == ',' || cursor.peek() == '/' || cursor.peek() == ';') {
            ++cursor.index;
            return addMark(cursor);
        }
        bool const isQuoted = cursor.take("'");
        std::size_t const first = cursor.index;
        while (cursor.peek() != '\0' && (isQuoted ? cursor.peek() != '\'' : belongsToWord(cursor.peek())))
            ++cursor.index;
        std::string_view const word = cursor.text.substr(first, cursor.index - first);
        if (isQuoted && !cursor.take("'")) return fail(cursor, "a quotation mark is open");
        if (word.empty()) return fail(cursor, "no word, token or group");
        if (isQuoted || cursor.peek() != '(')
            return addNode(cursor, {.step = {.kind = GrammarStep::Word, .word = word}});
        return parseCall(cursor, word, depth);
    }

    constexpr Index parseCall(Cursor& cursor, std::string_view word, int depth) {
        ++cursor.index;
        Index const call = addNode(cursor, {.step = {.kind = GrammarStep::Call, .word = word}});
        cursor.skipBlanks();
        Index last = call;
        if (cursor.peek() != ')') {
            Index const arguments = parseChoice(cursor, depth);
            if (problem) return none;
            last = nodes[call].sibling = arguments;
        }
        if (!cursor.take(")")) return fail(cursor, "a call is open");
        Index const close = addMark(cursor);
        if (problem) return none;
        nodes[last].sibling = close;
        return addNode(cursor, {.shape = Shape::Sequence, .child = call});
    }

    // The character that was just taken.
    constexpr Index addMark(Cursor const& cursor) {
        return addNode(cursor, {.step = {.kind = GrammarStep::Mark, .word = cursor.text.substr(cursor.index - 1, 1)}});
    }

    constexpr Index parseToken(Cursor& cursor, int depth) {
        std::size_t const first = cursor.index;
        while (cursor.peek() == '-' || (cursor.peek() >= 'a' && cursor.peek() <= 'z')) ++cursor.index;
        std::string_view const name = cursor.text.substr(first, cursor.index - first);
        auto const token = findToken(name);
        if (!token) {
            std::string_view const production = findProduction(name);
            if (production.empty() || !cursor.take(">")) return fail(cursor, "no such token");
            return parseWhole(production, depth + 1);
        }
        GrammarStep step{.kind = GrammarStep::Value, .token = *token};
        cursor.skipBlanks();
        if (cursor.peek() != '>' && !parseRange(cursor, step)) return fail(cursor, "no range");
        return cursor.take(">") ? addNode(cursor, {.step = step}) : fail(cursor, "a token is open");
    }

    constexpr bool parseRange(Cursor& cursor, GrammarStep& step) {
        step.aboveLeast = cursor.peek() == '(';
        if (!cursor.take("(") && !cursor.take("[")) return false;
        parseLimit(cursor, step.least);
        if (!cursor.take(",")) return false;
        parseLimit(cursor, step.most);
        step.belowMost = cursor.peek() == ')';
        return (cursor.take(")") || cursor.take("]")) && step.least <= step.most;
    }

    // Leaves a limit that is missing as it is.
    constexpr void parseLimit(Cursor& cursor, float& limit) {
        bool const isNegative = cursor.take("-");
        float value = 0, unit = 1;
        bool isFraction = false;
        std::size_t const first = cursor.index;
        for (;; ++cursor.index) {
            char const next = cursor.peek();
            if (next == '.' && !isFraction) {
                isFraction = true;
            } else if (next >= '0' && next <= '9') {
                value = value * 10 + static_cast<float>(next - '0');
                if (isFraction) unit *= 10;
            } else {
                break;
            }
        }
        if (cursor.index > first) limit = (isNegative ? -value : value) / unit;
    }

    static constexpr bool belongsToWord(char c) {
        return (c >= 'a' && c <= 'z') || (c >= 'A' && c <= 'Z') || (c >= '0' && c <= '9') || c == '-' || c == '_' ||
               c == '.' || c == ':';
    }

    constexpr bool mayBeEmpty(Index index) const {
        Node const& node = nodes[index];
        switch (node.shape) {
        case Shape::Step:
            return node.step.kind == GrammarStep::Separator ||
                   (node.step.kind == GrammarStep::Value &&
                    (node.step.token == Token::Text || node.step.token == Token::Iri ||
                     node.step.token == Token::Empty));
        case Shape::Repeat: return node.least == 0 || mayBeEmpty(node.child);
        case Shape::Sequence:
            for (Index part = node.child; part != none; part = nodes[part].sibling)
                if (!mayBeEmpty(part)) return false;
            return true;
        case Shape::Choice:
        case Shape::AnyOrder: break;
        }
        for (Index part = node.child; part != none; part = nodes[part].sibling)
            if (mayBeEmpty(part)) return true;
        return false;
    }

    // Writing

    constexpr Index add(GrammarStep const& step) {
        if (count == maxSteps) {
            if (!problem) problem = {"the grammar has too many steps"};
            return 0;
        }
        steps[count] = step;
        return count++;
    }

    // The step at which the part begins that `next` follows.
    constexpr Index emit(Index index, Index next, std::uint8_t set) {
        Node const& node = nodes[index];
        switch (node.shape) {
        case Shape::Step: {
            GrammarStep step = node.step;
            step.next = next;
            step.separated = steps[next].kind == GrammarStep::Separator || steps[next].separated;
            if (step.kind != GrammarStep::Value) step.separated = false;
            return add(step);
        }
        case Shape::Sequence: return emitSequence(node.child, next, set);
        case Shape::Choice: return emitChoice(node.child, next, set);
        case Shape::AnyOrder: return emitAnyOrder(node.child, next, set);
        case Shape::Repeat: break;
        }
        return emitRepeat(node, next, set);
    }

    constexpr Index emitSequence(Index part, Index next, std::uint8_t set) {
        Index const after = nodes[part].sibling;
        return emit(part, after == none ? next : emitSequence(after, next, set), set);
    }

    constexpr Index emitChoice(Index part, Index next, std::uint8_t set) {
        Index const first = emit(part, next, set);
        Index const after = nodes[part].sibling;
        if (after == none) return first;
        Index const rest = emitChoice(after, next, set);
        return add({.kind = GrammarStep::Choice, .next = first, .other = rest});
    }

    constexpr Index emitAnyOrder(Index part, Index next, std::uint8_t set) {
        Index const end = add({.kind = GrammarStep::End, .set = set, .next = next});
        Index head = end;
        std::uint8_t options = 0;
        for (Index option = part; option != none; option = nodes[option].sibling)
            head = add({.kind = GrammarStep::Option, .set = set, .option = options++, .other = head});
        // Every option leads to the head again, and the steps that are written last come first.
        if (set + 1 >= maxOptions && !problem) problem = {"options in any order are nested too deep"};
        for (; part != none && !problem; part = nodes[part].sibling) {
            Index const first = emit(part, head, static_cast<std::uint8_t>(set + 1));
            steps[head - --options].next = first;
        }
        return add({.kind = GrammarStep::Begin, .set = set, .next = head});
    }

    constexpr Index emitRepeat(Node const& node, Index next, std::uint8_t set) {
        auto const withSeparator = [&](Index first) {
            if (node.between == ',') return add({.kind = GrammarStep::Mark, .next = first, .word = ","});
            return node.between == '~' ? add({.kind = GrammarStep::Separator, .next = first}) : first;
        };
        Index tail = next;
        bool const isSeparated = node.between == '~';
        if (node.most == unlimited) {
            tail = add({.kind = GrammarStep::Choice, .separated = isSeparated, .other = next});
            steps[tail].next = withSeparator(emit(node.child, tail, set));
        } else {
            for (int i = node.least; i < node.most && !problem; ++i) {
                Index const first = withSeparator(emit(node.child, tail, set));
                tail = add({.kind = GrammarStep::Choice, .separated = isSeparated, .next = first, .other = next});
            }
        }
        for (int i = node.least; i > 0 && !problem; --i) {
            tail = emit(node.child, tail, set);
            if (i > 1) tail = withSeparator(tail);
        }
        return tail;
    }

    std::array<Node, maxNodes> nodes{};
    std::array<GrammarStep, maxSteps> steps{};
    Index nodeCount = 0, count = 0;
    GrammarFault problem;
};

// Whether the text is a grammar, for those who have it at run time only.
constexpr GrammarFault checkGrammar(std::string_view text) {
    return GrammarCompiler(text).fault();
}

template <TableText text>
inline constexpr auto grammarSteps = [] {
    constexpr std::size_t size = [] {
        GrammarCompiler const compiler(text);
        requireOf(text, !compiler.fault(), compiler.fault().reason.data());
        return compiler.size();
    }();
    GrammarCompiler const compiler(text);
    std::array<GrammarStep, size> steps{};
    for (std::size_t i = 0; i < size; ++i) steps[i] = compiler[i];
    return steps;
}();

// The grammar of this text, which must be well formed to compile; the empty text gives the grammar without steps.
template <TableText text>
inline constexpr Grammar grammarOf = [] {
    if constexpr (std::string_view(text).empty())
        return Grammar();
    else
        return Grammar(text, grammarSteps<text>);
}();

template <TableText text> consteval Grammar operator""_grammar() {
    return grammarOf<text>;
}

} // namespace Xml
