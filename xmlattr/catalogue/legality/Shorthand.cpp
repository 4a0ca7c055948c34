#include "xmlattr/catalogue/legality/Shorthand.h"

#include "xmlattr/catalogue/AttributeType.h"
#include "xmlattr/catalogue/legality/ValueOfRow.h"
#include "xmlattr/catalogue/text/Words.h"

#include "xmlattr/core/Text.h"

#include <algorithm>
#include <optional>
#include <span>
#include <string>
#include <utility>

namespace Xml {

namespace {

// A number is a weight only in hundreds, else a size, though the type reads any as a weight.
bool mayBeStyle(std::u16string_view part) {
    return !Core::isDigit(part[0]) || (part.size() == 3 && part.ends_with(u"00"));
}

// The parts of one text, judged one after the other.
class PartsJudge {
public:
    PartsJudge(CatalogueEntry const& entry, Dialect dialect) : entry(entry), dialect(dialect) {}

    // Each part is a value of a longhand, or one of the shorthand's own words.
    Judgement inAnyOrder(std::vector<std::u16string_view> const& parts) {
        if (parts.size() > entry.mostParts)
            return refusal("has more than " + std::to_string(entry.mostParts) + " parts");
        std::optional<Judgement> refused;
        for (std::u16string_view const part : parts) {
            if (isOneOf(entry.longhands, part) || isWord(part)) continue;
            if (!refused)
                refused = refusal(part);
            else
                refused->otherParts.push_back(part);
        }
        return refused ? std::move(*refused) : accepted();
    }

    // [style, variant and weight in any order] size[/line-height] family
    Judgement asFont(std::vector<std::u16string_view> const& parts) {
        auto const styles = entry.longhands.first(3), size = entry.longhands.subspan(3, 1),
                   height = entry.longhands.subspan(5);
        if (parts.size() == 1 && isWord(parts[0])) return {Verdict::PassedOver};
        std::size_t i = 0;
        while (i < parts.size() && mayBeStyle(parts[i]) && isOneOf(styles, parts[i])) ++i;
        if (i == parts.size()) return refusal("has no font size");
        if (!isOneOf(size, parts[i])) {
            bool const isFamily = i + 1 == parts.size() && !Core::isDigit(parts[i][0]) && !isInherit(parts[i]);
            return isFamily ? refusal("has no font size") : refusal(parts[i]);
        }
        if (++i + 1 < parts.size() && parts[i] == u"/") {
            if (!height.empty() && !isOneOf(height, parts[i + 1])) return refusal(parts[i + 1]);
            i += 2;
        }
        if (i >= parts.size()) return refusal("has no font family");
        if (i + 1 == parts.size() && isInherit(parts[i])) return refusal(parts[i]);
        return accepted();
    }

    // Whether the formatter has to work out a part, so that the grammar of the whole does not apply.
    bool hasComputed() const { return isPartComputed; }

private:
    bool isWord(std::u16string_view part) const {
        bool const ignoresCase = dialect == Dialect::SvgStyle;
        return std::ranges::any_of(entry.ownWords,
                                   [&](std::string_view word) { return equalsWord(part, word, ignoresCase); });
    }

    // What a type reads is its value, though another property could take it for an expression. A part that types read
    // otherwise or should not is kept, the first of them.
    bool isOneOf(std::span<CatalogueEntry const* const> longhands, std::u16string_view part) {
        bool hasPassed = false;
        std::optional<Judgement> taken;
        tried.clear();
        if (isInherit(part)) return false;
        for (CatalogueEntry const* const longhand : longhands) {
            // Of what may be any text, only these two forms are a value among others.
            bool const isOther = !part.starts_with(u"url(") && part != u"none";
            if (longhand->type()->readsAnyText() && longhands.size() > 1 && isOther) continue;
            Judgement judgement = judgeValue(*longhand, dialect, part);
            if (judgement.verdict == Verdict::Read) return hasRead = true;
            if (judgement.verdict == Verdict::PassedOver) {
                hasPassed = true;
                isPartComputed = isPartComputed || isComputed(*longhand, part);
            } else if (judgement.verdict != Verdict::Refused && !taken) {
                taken = std::move(judgement);
            }
            tried.push_back(longhand->type());
        }
        if (hasPassed || !taken) return hasPassed;
        if (!fault) {
            fault = std::move(taken);
            fault->part = part;
        }
        return true;
    }

    bool isInherit(std::u16string_view part) const { return equalsWord(part, "inherit", dialect != Dialect::Fo); }

    Judgement refusal(std::u16string_view part) const {
        return {Verdict::Refused, part, {}, tried, isInherit(part) ? "is legal only by itself" : ""};
    }
    static Judgement refusal(std::string problem) {
        return {.verdict = Verdict::Refused, .problem = std::move(problem)};
    }
    Judgement accepted() {
        if (fault) return std::move(*fault);
        return {hasRead ? Verdict::Read : Verdict::PassedOver};
    }

    CatalogueEntry const& entry;
    Dialect dialect;
    std::vector<AttributeType const*> tried;
    std::optional<Judgement> fault;
    bool hasRead = false, isPartComputed = false;
};

bool isOperator(std::u16string_view part) {
    return part == u"+" || part == u"-" || part == u"*" || part == u"div" || part == u"mod";
}

} // namespace

std::vector<std::u16string_view> splitParts(std::u16string_view text, std::u16string_view marks) {
    std::vector<std::u16string_view> parts;
    bool joins = false;
    for (std::u16string_view const value : splitValues(text, {}, marks)) {
        if (!parts.empty() && (joins || isOperator(value)))
            parts.back() = {parts.back().data(), value.data() + value.size()};
        else
            parts.push_back(value);
        joins = isOperator(value);
    }
    return parts;
}

Judgement judgeShorthand(CatalogueEntry const& entry, Dialect dialect, std::u16string_view text) {
    if (entry.longhands.empty() && entry.ownWords.empty()) return judgeByGrammar(entry, dialect, text);
    auto const parts = splitParts(text, entry.isFont ? u"/" : u"");
    if (parts.empty()) return {.verdict = Verdict::Refused, .problem = "is empty"};
    PartsJudge judge(entry, dialect);
    Judgement judgement = entry.isFont ? judge.asFont(parts) : judge.inAnyOrder(parts);
    // "1pt -2pt" is two values, one of them out of range, though it could be a difference.
    Meaning meaning;
    bool const isLegal =
        readMeaning(meaning, entry.grammar, dialect, text) ||
        (isComputed(entry, text) && !readMeaning(meaning, entry.grammar, dialect, text, Ranges::Ignored));
    // A part may be the value of an attribute that is no row here.
    if (isLegal && (judgement.verdict == Verdict::Refused || judgement.verdict == Verdict::Lenient))
        return {Verdict::PassedOver};
    if (isLegal || isFault(judgement.verdict) || judge.hasComputed()) return judgement;
    return {.verdict = Verdict::Refused, .problem = "has parts that do not go together"};
}

} // namespace Xml
