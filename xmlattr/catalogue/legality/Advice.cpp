#include "xmlattr/catalogue/legality/Advice.h"

#include "xmlattr/catalogue/AttributeType.h"
#include "xmlattr/catalogue/grammar/GrammarText.h"
#include "xmlattr/catalogue/grammar/TokenReader.h"
#include "xmlattr/catalogue/grammar/UnitWords.h"
#include "xmlattr/catalogue/legality/NewerColor.h"
#include "xmlattr/catalogue/legality/TypeReading.h"
#include "xmlattr/catalogue/legality/ValueOfRow.h"
#include "xmlattr/catalogue/text/Words.h"

#include "xmlattr/core/Text.h"
#include "xmlattr/core/WordTable.h"

#include <algorithm>
#include <array>
#include <cfloat>
#include <charconv>
#include <cmath>
#include <iterator>
#include <utility>
#include <vector>

namespace Xml {

namespace {

constexpr std::size_t longestGuess = 64; // a longer text is no mistyped word

bool isAlike(char16_t a, char16_t b) {
    return Core::toLower(a) == Core::toLower(b);
}

// How many letters are to be replaced, added, dropped or exchanged with their neighbours.
std::size_t editDistance(std::u16string_view a, std::u16string_view b) {
    using Row = std::array<std::size_t, longestGuess + 1>;
    Row before{}, last{}, row{};
    for (std::size_t j = 0; j <= b.size(); ++j) last[j] = j;
    for (std::size_t i = 0; i < a.size(); ++i) {
        row[0] = i + 1;
        for (std::size_t j = 0; j < b.size(); ++j) {
            row[j + 1] = std::min({last[j] + (isAlike(a[i], b[j]) ? 0 : 1), last[j + 1] + 1, row[j] + 1});
            if (i > 0 && j > 0 && isAlike(a[i], b[j - 1]) && isAlike(a[i - 1], b[j]))
                row[j + 1] = std::min(row[j + 1], before[j - 1] + 1);
        }
        before = std::exchange(last, row);
    }
    return last[b.size()];
}

// How many units the two begin and end with alike.
std::size_t sharedEnds(std::u16string_view a, std::u16string_view b) {
    auto const [start, other] = std::ranges::mismatch(a, b, isAlike);
    std::u16string_view const restA(start, a.end()), restB(other, b.end());
    auto const end = std::mismatch(restA.rbegin(), restA.rend(), restB.rbegin(), restB.rend(), isAlike).first;
    return static_cast<std::size_t>((start - a.begin()) + (end - restA.rbegin()));
}

// The text with an exponent of the number at its beginning written out, and without a point that no decimals follow.
std::u16string withPlainNumber(std::u16string_view text) {
    ValueCursor cursor{text, Dialect::SvgAttribute};
    float number = 0;
    if (!readNumber(number, cursor)) return std::u16string(text);
    std::u16string_view const digits = text.substr(0, cursor.index);
    std::u16string_view const rest = cursor.rest();
    bool const hasPoint = digits.find(u'.') != std::u16string_view::npos; // then another one begins another number
    if (!hasPoint && rest.starts_with(u'.') && (rest.size() == 1 || !Core::isDigit(rest[1]))) cursor.take(u'.');
    bool const hasExponent = digits.find_first_of(u"eE") != std::u16string_view::npos;
    std::u16string plain(digits);
    // One that is too large for a float was read as the largest.
    if (hasExponent && std::abs(number) < FLT_MAX) {
        std::array<char, 128> written; // the largest floats have 39 digits, the smallest 45 zeros before theirs
        char* const first = written.data();
        plain.assign(first, std::to_chars(first, first + written.size(), number, std::chars_format::fixed).ptr);
    }
    return plain.append(cursor.rest());
}

// What may be meant by a text that begins with a number: it may have a comma for the decimal point, a blank before its
// unit, the unit's name, or none.
void addNumbers(std::vector<std::u16string>& guesses, std::u16string_view written) {
    std::u16string const plain = withPlainNumber(written);
    std::u16string_view const text = plain;
    std::size_t i = 0;
    auto const skipDigits = [&] {
        std::size_t const first = i;
        while (i < text.size() && Core::isDigit(text[i])) ++i;
        return i > first;
    };
    if (!text.empty() && (text[0] == u'-' || text[0] == u'+')) ++i;
    bool const hasDigits = skipDigits();
    std::size_t const point = i;
    bool const hasPoint = i < text.size() && (text[i] == u'.' || text[i] == u',');
    if (hasPoint && (++i, !skipDigits())) return;
    if (!hasDigits && !hasPoint) return;
    std::u16string number(text.substr(0, i));
    if (hasPoint) number[point] = u'.';
    std::u16string const spelt(trimXmlSpace(text.substr(i))), unit = toLower(spelt);
    if (std::ranges::any_of(unit, Core::isDigit)) return;
    guesses.push_back(number + spelt);
    guesses.push_back(number + unit);
    if (unit.empty()) guesses.push_back(number + u"pt");
    if (auto const meant = Core::WordTable<unitNames>::find(unit)) guesses.push_back(number + std::u16string(*meant));
}

void addColors(std::vector<std::u16string>& guesses, std::u16string_view text) {
    bool const areDigits = std::ranges::all_of(text, [](char16_t unit) { return Core::hexDigit(unit) >= 0; });
    if ((text.size() == 3 || text.size() == 6) && areDigits) guesses.push_back(u"#" + std::u16string(text));
}

// A word with blanks in it.
void addJoined(std::vector<std::u16string>& guesses, std::u16string_view text) {
    std::u16string joined(text);
    std::erase_if(joined, isXmlSpace);
    if (std::ranges::all_of(joined, [](char16_t unit) { return Core::isLetter(unit) || unit == u'-'; }))
        guesses.push_back(std::move(joined));
}

std::u16string unquoted(std::u16string_view text) {
    bool const isQuoted = text.size() > 2 && (text[0] == u'"' || text[0] == u'\'') && text.back() == text[0];
    return std::u16string(isQuoted ? text.substr(1, text.size() - 2) : text);
}

// The text with the letters in lower case that are not in parentheses, where names of others may stand.
std::u16string withLowerNames(std::u16string_view text) {
    std::u16string out;
    int depth = 0;
    for (char16_t const unit : text) {
        if (unit == u')') --depth;
        out += depth == 0 ? Core::toLower(unit) : unit;
        if (unit == u'(') ++depth;
    }
    return out;
}

// What texts have in common that differ only in the case of their names, in blanks around them or before a unit, and
// in the mark of the decimals. A comma before three digits may be one of thousands.
std::u16string spelling(std::u16string_view text) {
    std::u16string lower = withLowerNames(withPlainNumber(trimXmlSpace(text)));
    if (lower.empty() || lower.find_first_of(u"0123456789") > lower.find_first_not_of(u"+-.,")) return lower;
    std::erase_if(lower, isXmlSpace);
    std::size_t const comma = lower.find(u',');
    if (comma == std::u16string::npos) return lower;
    auto const afterComma = lower.begin() + static_cast<std::ptrdiff_t>(comma) + 1;
    if (std::find_if_not(afterComma, lower.end(), Core::isDigit) - afterComma != 3) lower[comma] = u'.';
    return lower;
}

class Adviser {
public:
    Adviser(CatalogueEntry const& entry, std::u16string_view text, Notation notation, Judgement const& judgement)
        : entry(entry),
          text(text),
          notation(notation),
          judgement(judgement),
          part(judgement.part.data() ? judgement.part : text) {}

    // Blanks around the text stay where they do no harm.
    Advice advise() {
        Dialect const dialect = dialectOf(entry, notation);
        advice.expected =
            entry.isFont ? "a font such as bold 12pt/15pt serif" : describeGrammar(entry.grammar, dialect);
        if (judgement.verdict != Verdict::Refused) setHeld();
        if (judgement.verdict == Verdict::Misread && entry.type()) {
            if (auto rewritten = rewriteTyped(entry, dialect, text)) {
                part = trimXmlSpace(text);
                if (part.size() < text.size()) take(*rewritten);
                if (advice.replacement.empty()) advice.replacement = std::move(*rewritten);
                advice.isExact = true;
            }
        }
        if (advice.replacement.empty() && text.size() <= longestGuess && !judgement.isNegative) guess();
        if (advice.replacement.empty()) writeColor();
        setChange();
        return std::move(advice);
    }

private:
    void setHeld() {
        if (!judgement.held.empty()) {
            advice.held.assign(judgement.held.begin(), judgement.held.end());
            return;
        }
        AttributeType const* const type = judgement.tried.empty() ? nullptr : judgement.tried.back();
        if (!type || type->readsList()) return;
        AnyAttribute attribute(*type);
        if (!attribute.parseValue(part)) return;
        advice.held = attribute.getValueAsString();
        // Where both look alike, the parts of the value differ.
        bool const saysNothing = advice.held.empty() || (judgement.verdict == Verdict::Misread && advice.held == part);
        if (saysNothing) advice.held = heldWithoutPrinter(*type, part);
    }

    void guess() {
        std::u16string_view const trimmed = trimXmlSpace(part);
        if (trimmed.empty()) return;
        std::vector<std::u16string> guesses{withWords(trimmed)};
        if (judgement.newer.empty()) {
            std::ranges::move(variantsOf(trimmed), std::back_inserter(guesses));
            // Two words are one with a blank in it only where there is such a word.
            std::vector<std::u16string> const words = knownWords();
            std::u16string joined(trimmed);
            if (std::erase_if(joined, isXmlSpace) > 0)
                std::erase_if(guesses, [&](std::u16string const& guess) {
                    auto const isGuess = [&](std::u16string const& word) {
                        return std::ranges::equal(word, guess, isAlike);
                    };
                    bool const isWord = std::ranges::none_of(guess, Core::isDigit);
                    return isWord && std::ranges::equal(guess, joined, isAlike) && std::ranges::none_of(words, isGuess);
                });
            addNearest(guesses, trimmed, words);
        }
        std::u16string_view const whole = std::exchange(part, trimmed);
        if (takeFirst(guesses) || whole.size() == trimmed.size()) return;
        part = whole;
        takeFirst(guesses);
    }

    bool takeFirst(std::vector<std::u16string> const& guesses) {
        for (std::u16string const& candidate : guesses) {
            bool const isSame = spelling(part) == spelling(candidate);
            // What is legal means what it says.
            if (judgement.verdict == Verdict::Misread && !isSame) continue;
            if (candidate == part || !take(candidate, isSame)) continue;
            advice.isExact = advice.isExact && isSame && !hasCommaForSemicolon();
            return true;
        }
        return false;
    }

    // Then it was hardly meant for the mark of decimals.
    bool hasCommaForSemicolon() const {
        std::u16string list(text);
        std::ranges::replace(list, u',', u';');
        return list != text && !isFault(judge(entry, list, notation).verdict);
    }

    void writeColor() {
        std::optional<NewerColor> const color = readNewerColor(trimXmlSpace(part));
        if (!color) return;
        std::u16string digits = u"#";
        for (int shift = 20; shift >= 0; shift -= 4) digits += u"0123456789abcdef"[color->rgb >> shift & 0xF];
        if (take(digits)) advice.isExact = advice.isExact && color->isOpaque;
    }

    // The text with each word that the grammar has in another case as the grammar has it, but what is in parentheses or
    // quotation marks.
    std::u16string withWords(std::u16string_view trimmed) const {
        std::vector<std::string_view> const words = wordsIn(entry.grammar);
        std::u16string out(trimmed);
        for (std::u16string_view const written : splitValues(trimmed, u",/")) {
            auto const isSame = [&](std::string_view word) { return equalsWord(written, word, true); };
            auto const word = std::ranges::find_if(words, isSame);
            if (word != words.end()) std::ranges::copy(*word, out.begin() + (written.data() - trimmed.data()));
        }
        return out;
    }

    // The words of the grammar and of the value types that were asked.
    std::vector<std::u16string> knownWords() const {
        std::vector<std::u16string> words;
        for (std::string_view const word : wordsIn(entry.grammar)) words.emplace_back(word.begin(), word.end());
        for (AttributeType const* const type : judgement.tried)
            for (std::u16string_view const word : type->words()) words.emplace_back(word);
        return words;
    }

    static void addNearest(std::vector<std::u16string>& guesses, std::u16string_view trimmed,
                           std::vector<std::u16string> const& words) {
        std::vector<std::u16string_view> views(words.begin(), words.end());
        constexpr int mostTries = 4; // a word that the type reads may be none that is legal
        for (int i = 0; i < mostTries; ++i) {
            std::u16string_view const nearest = nearestWord(trimmed, views);
            if (nearest.empty()) return;
            guesses.emplace_back(nearest);
            std::erase(views, nearest);
        }
    }

    // The text with this in the place of the part.
    std::u16string with(std::u16string_view candidate) const {
        std::size_t const begin = beginOf(part, text);
        return std::u16string(text.substr(0, begin)).append(candidate).append(text.substr(begin + part.size()));
    }

    // Where the part begins in the judged text.
    static std::size_t beginOf(std::u16string_view part, std::u16string_view text) {
        return part.data() ? static_cast<std::size_t>(part.data() - text.data()) : 0;
    }

    // Tries the text with this in the place of the part: it is to be read as written, or to have no fault before a
    // later part, of which advice is taken too, if there is any. What differs in its spelling alone may also be what no
    // value type reads, where the text is not legal. False when another candidate may be better.
    bool take(std::u16string_view candidate, bool isSame = false) {
        std::u16string whole = with(candidate);
        Judgement const next = judge(entry, whole, notation);
        bool const mayBeUnread = !entry.type() || (isSame && judgement.verdict != Verdict::Misread);
        if (next.verdict == Verdict::Read || (mayBeUnread && next.verdict == Verdict::PassedOver)) {
            advice.replacement = std::move(whole);
            advice.isExact = true;
            return true;
        }
        if (!isFault(next.verdict) || beginOf(next.part, whole) <= beginOf(part, text)) return false;
        Advice rest = Adviser(entry, whole, notation, next).advise();
        advice.replacement = std::move(rest.replacement);
        advice.isExact = rest.isExact;
        return true;
    }

    void setChange() {
        if (advice.replacement.empty()) return;
        std::u16string_view const to = advice.replacement;
        advice.offset = static_cast<std::size_t>(std::ranges::mismatch(text, to).in1 - text.begin());
        std::u16string_view const restFrom = text.substr(advice.offset), restTo = to.substr(advice.offset);
        advice.unchangedEnd = static_cast<std::size_t>(
            std::mismatch(restFrom.rbegin(), restFrom.rend(), restTo.rbegin(), restTo.rend()).first -
            restFrom.rbegin());
        advice.length = text.size() - advice.unchangedEnd - advice.offset;
    }

    CatalogueEntry const& entry;
    std::u16string_view text;
    Notation notation;
    Judgement const& judgement;
    std::u16string_view part;
    Advice advice;
};

} // namespace

std::vector<std::u16string> variantsOf(std::u16string_view text) {
    text = trimXmlSpace(text);
    std::vector<std::u16string> variants{std::u16string(text)};
    addNumbers(variants, text);
    variants.push_back(withLowerNames(text));
    variants.push_back(toLower(text));
    variants.push_back(unquoted(text));
    addColors(variants, text);
    addJoined(variants, text);
    if (hasOpenParenthesis(text)) variants.push_back(std::u16string(text) + u')');
    return variants;
}

std::u16string_view nearestWord(std::u16string_view text, std::span<std::u16string_view const> words) {
    bool const isWord = std::ranges::all_of(text, [](char16_t unit) { return Core::isLetter(unit) || unit == u'-'; });
    if (text.size() > longestGuess || !isWord) return {};
    std::u16string_view nearest;
    std::pair best(longestGuess, std::size_t{0}); // the distance and what it leaves alike
    for (std::u16string_view const word : words) {
        if (word.size() > longestGuess) continue;
        std::pair const found(editDistance(text, word), sharedEnds(text, word));
        bool const isBetter = found.first < best.first || (found.first == best.first && found.second > best.second);
        std::size_t const most = word.size() < 3 ? 0 : word.size() < 5 ? 1 : 2;
        if (found.first <= most && isBetter) {
            nearest = word;
            best = found;
        }
    }
    return nearest;
}

Advice advise(CatalogueEntry const& entry, std::u16string_view text, Notation notation, Judgement const& judgement) {
    return Adviser(entry, text, notation, judgement).advise();
}

} // namespace Xml
