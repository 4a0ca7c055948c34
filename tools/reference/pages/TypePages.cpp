// The pages of the value types.
#include "tools/reference/pages/Pages.h"
#include "tools/reference/pages/Trials.h"
#include "tools/reference/pages/TypeFacts.h"

#include <algorithm>
#include <cctype>

namespace Reference {

namespace {

TypeFacts const& factsOf(std::string_view name) {
    return *std::ranges::find(typeFacts(), name, &TypeFacts::name);
}

std::string stateLine(TypeFacts const& facts, State const& state) {
    std::string const parts = partsOf(state);
    if (!facts.prints) return parts.empty() ? "nothing to show" : parts;
    return (state.throws ? "printing throws" : "prints " + printOf(state)) + (parts.empty() ? "" : "; " + parts);
}

void addComment(Page& page, Comment const& comment) {
    std::string prose;
    std::vector<std::string> example;
    auto const endProse = [&] {
        if (!prose.empty()) page.paragraph(markdownOf(prose));
        prose.clear();
    };
    auto const endExample = [&] {
        if (!example.empty()) page.code(example);
        example.clear();
    };
    for (std::string const& line : comment) {
        if (line.starts_with("  ")) {
            endProse();
            example.push_back(line.substr(2));
        } else {
            if (!line.empty()) endExample();
            if (line.empty()) endProse();
            prose.append(prose.empty() || line.empty() ? "" : " ").append(line);
        }
    }
    endProse();
    endExample();
}

std::string caseLine(CaseRule rule) {
    switch (rule) {
    case CaseRule::NoWords: return "";
    case CaseRule::Exact: return "Words are exact in case.";
    case CaseRule::Any: return "Words are read in any case.";
    case CaseRule::Mixed: return "Some words are read in any case, others are exact.";
    }
    return "";
}

std::vector<std::string> codesOf(std::span<Trial const> trials, bool (*isShown)(Trial const&)) {
    std::vector<std::string> codes;
    for (Trial const& trial : trials)
        if (isShown(trial)) codes.push_back(codeOf(trial.text));
    return codes;
}

// Words and examples each have a row; other texts that give the same value share one.
void addTrials(Page& page, Xml::AttributeType const& type, TypeFacts const& facts, std::span<Trial const> trials) {
    auto const words = type.words(), examples = type.examples();
    auto const isOwn = [&](Trial const& trial) {
        return std::ranges::find(words, trial.text) != words.end() ||
               std::ranges::find(examples, trial.text) != examples.end();
    };
    bool const hasParts = std::ranges::any_of(trials, [](Trial const& trial) { return !trial.state.parts.empty(); });
    Row titles{"text"};
    if (hasParts) titles.push_back(type.isEnumeration() ? "number" : "value");
    if (facts.prints) titles.push_back("prints");
    std::vector<Row> rows;
    std::vector<State const*> states; // of the rows that others may share
    for (Trial const& trial : trials) {
        if (!trial.accepted && !isOwn(trial)) continue;
        auto const same = std::ranges::find_if(
            states, [&](State const* state) { return state && !isOwn(trial) && *state == trial.state; });
        if (same != states.end()) {
            rows[static_cast<std::size_t>(same - states.begin())][0] += ", " + codeOf(trial.text);
            continue;
        }
        Row row{codeOf(trial.text)};
        if (hasParts)
            row.push_back(type.isEnumeration() ? narrow(trial.state.parts.front().value) : partsOf(trial.state));
        if (facts.prints) row.push_back(trial.accepted ? printOf(trial.state) : "");
        if (!trial.accepted) row.back() += row.back().empty() ? "refused" : ", and refused";
        rows.push_back(std::move(row));
        states.push_back(isOwn(trial) ? nullptr : &trial.state);
    }
    page.table(titles, rows);
}

void addNumbers(Page& page, TypeFacts const& facts) {
    for (NumberPrint const& unread : facts.unreadNumbers)
        page.item("No word gives " + std::to_string(unread.number) + ", which prints " + codeOf(unread.text) + ".");
    if (!facts.prints) return;
    page.item("A number that is no enumerator " + (!facts.outOfRange ? "throws when it is printed."
                                                   : facts.outOfRange->empty()
                                                       ? "prints the empty text."
                                                       : "prints " + codeOf(*facts.outOfRange) + "."));
}

void addFailures(Page& page, Xml::AttributeType const& type, TypeFacts const& facts, std::span<Trial const> trials) {
    auto const refused = codesOf(trials, [](Trial const& trial) { return !trial.accepted; });
    if (refused.empty()) {
        page.item("None of the texts tried is refused.");
        return;
    }
    page.item("Refused: " + listOf(refused) + ".");
    auto const changes = changesByRefusal(type, trials);
    if (changes.empty()) {
        page.item("A refused text leaves the value as it was.");
        return;
    }
    std::vector<std::string> texts;
    texts.reserve(changes.size());
    for (Change const& change : changes) texts.push_back(codeOf(change.refused));
    Change const& first = changes.front();
    page.item((changes.size() == refused.size() ? "Every refused text may change the value"
                                                : "A refused text may change the value, as " + listOf(texts) +
                                                      (texts.size() > 1 ? " do" : " does")) +
              ": after " + codeOf(first.before) + ", the text " + codeOf(first.refused) +
              " leaves: " + stateLine(facts, first.state) + ".");
}

void addComparison(Page& page, TypeFacts const& facts, std::span<Trial const> trials) {
    if (facts.refusesComparison) {
        page.item("`isEqual` is false for every text.");
        return;
    }
    auto const unequal = codesOf(trials, [](Trial const& trial) { return trial.accepted && !trial.isEqual; });
    if (!unequal.empty()) page.item("`isEqual` is false for the very text that was read: " + listOf(unequal) + ".");
}

void addType(Page& page, Xml::AttributeType const& type, Family const& family, SourceComments const& comments) {
    TypeFacts const& facts = factsOf(type.name());
    page.heading(2, "`" + std::string(type.name()) + "`");
    for (Comment const& comment : comments.above(type.name())) addComment(page, comment);
    auto const texts = textsFor(type, family.name);
    auto const trials = tryTexts(type, texts);
    addTrials(page, type, facts, trials);
    if (!facts.readsWordsAlone || !type.isEnumeration()) page.item("Reads " + markdownOf(type.syntax().toUtf8()) + ".");
    if (std::string const line = caseLine(caseRuleOf(type)); !line.empty()) page.item(line);
    page.item("By default: " + stateLine(facts, stateOf(Xml::AnyAttribute(type))) + ".");
    if (type.isEnumeration()) addNumbers(page, facts);
    if (!facts.prints) page.item("There is no printer: attributes print the empty text.");
    addFailures(page, type, facts, trials);
    addComparison(page, facts, trials);
    if (!type.isEnumeration())
        page.item("A value takes " + std::to_string(facts.size) + " bytes, an attribute " +
                  std::to_string(facts.attributeSize) + ".");
    if (!type.isPublic()) page.item("The shared library does not export attributes of this type.");
    for (Oddity const& oddity : comments.oddities(type.name())) page.item("Intended: " + lineOf(oddity));
}

} // namespace

std::string fileOf(Family const& family) {
    std::string file;
    for (char const c : family.name)
        file += c == ' ' ? '-' : static_cast<char>(std::tolower(static_cast<unsigned char>(c)));
    return file + ".md";
}

std::vector<Page> typePages(SourceComments const& comments) {
    std::vector<Page> pages;
    for (Family const& family : comments.families()) {
        Page page(fileOf(family), family.name);
        for (std::string const& name : family.types) addType(page, *Xml::AttributeType::find(name), family, comments);
        pages.push_back(std::move(page));
    }
    return pages;
}

} // namespace Reference
