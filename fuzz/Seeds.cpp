// Between the seeds of the fuzzers, which are lines of fuzz/seeds, and their inputs, which are files.
//
//   fuzz_seeds expand KIND FOLDER <LINES         writes each line into a file of the folder, named by its number
//   fuzz_seeds lines KIND FILE...                prints each file as a line, sorted
//   fuzz_seeds dictionaries FOLDER DOCUMENT...   writes the words of types and the names in documents, for libFuzzer
//   fuzz_seeds candidates FOLDER DOCUMENT...     writes inputs made of these words and of documents, a folder for each
//                                                kind, from which seeds are chosen
//
// The kinds are values, numbers, judge and documents, which two fuzzers take.
//
// A line is the head of the input in words, as Heads.h has it, a blank where there is one, and the text with "\n",
// "\r", "\t", "\\" and "\x1F" for all that is not printable ASCII or would be a blank at its end.
#include "Heads.h"
#include "text/Text.h"
#include "xml/XmlReader.h"

#include <algorithm>
#include <filesystem>
#include <fstream>
#include <iostream>
#include <iterator>
#include <set>
#include <span>
#include <sstream>
#include <stdexcept>
#include <string>

namespace {

namespace fs = std::filesystem;

// Escaped bytes, and what stands for them besides "\xHH".
constexpr std::pair<char, char> escapes[] = {{'\\', '\\'}, {'\n', 'n'}, {'\r', 'r'}, {'\t', 't'}};

std::string escaped(std::string_view bytes) {
    constexpr std::string_view digits = "0123456789ABCDEF";
    std::string text;
    for (std::size_t i = 0; i < bytes.size(); ++i) {
        char const c = bytes[i];
        bool const isOuterBlank = c == ' ' && (i == 0 || i + 1 == bytes.size());
        auto const* const known = std::ranges::find(escapes, c, &std::pair<char, char>::first);
        if (known != std::end(escapes))
            text.append({'\\', known->second});
        else if (c >= ' ' && c <= '~' && !isOuterBlank)
            text += c;
        else
            text.append({'\\', 'x', digits[static_cast<unsigned char>(c) >> 4], digits[c & 0xF]});
    }
    return text;
}

std::optional<std::string> unescaped(std::string_view text) {
    std::string bytes;
    while (!text.empty()) {
        char const c = text.front();
        text.remove_prefix(1);
        if (c != '\\') {
            bytes += c;
            continue;
        }
        if (text.empty()) return std::nullopt;
        auto const* const known = std::ranges::find(escapes, text.front(), &std::pair<char, char>::second);
        if (known != std::end(escapes)) {
            bytes += known->first;
            text.remove_prefix(1);
            continue;
        }
        unsigned char byte = 0;
        if (text.size() < 3 || text.front() != 'x') return std::nullopt;
        if (std::from_chars(text.data() + 1, text.data() + 3, byte, 16).ptr != text.data() + 3) return std::nullopt;
        bytes += static_cast<char>(byte);
        text.remove_prefix(3);
    }
    return bytes;
}

template <class Head> std::optional<std::string> inputOf(std::string const& line) {
    std::istringstream stream(line);
    auto const head = Head::ofWords(stream);
    if (!head) return std::nullopt;
    if (Head::size > 0) stream.get(); // the blank
    auto const text = unescaped(std::string(std::istreambuf_iterator<char>(stream), {}));
    if (!text) return std::nullopt;
    return head->bytes() + *text;
}

template <class Head> std::string lineOf(std::string const& input) {
    if (input.size() < Head::size) return {}; // too short for the fuzzer
    std::string const words = Head::ofBytes(reinterpret_cast<std::uint8_t const*>(input.data())).words();
    return (words.empty() ? words : words + " ") + escaped(std::string_view(input).substr(Head::size));
}

// What some fuzzers take.
struct Kind {
    std::string_view name;
    std::optional<std::string> (*inputOf)(std::string const& line);
    std::string (*lineOf)(std::string const& input);
};

template <class Head> constexpr Kind kind(std::string_view name) {
    return {name, inputOf<Head>, lineOf<Head>};
}

constexpr Kind kinds[] = {kind<Heads::Type>("values"), kind<Heads::Numbers>("numbers"), kind<Heads::Row>("judge"),
                          kind<Heads::Nothing>("documents")};

std::string contentOf(fs::path const& path) {
    std::ifstream file(path, std::ios::binary);
    return {std::istreambuf_iterator<char>(file), {}};
}

void write(fs::path const& file, std::string_view text) {
    fs::create_directories(file.parent_path());
    std::ofstream(file, std::ios::binary) << text;
}

int expand(Kind const& kind, fs::path const& folder) {
    std::string line;
    for (int number = 1; std::getline(std::cin, line); ++number) {
        auto const input = kind.inputOf(line);
        if (!input) {
            std::cerr << "fuzz_seeds: line " << number << " is none of " << kind.name << ": " << line << "\n";
            return 1;
        }
        write(folder / std::to_string(number), *input);
    }
    return 0;
}

int printLines(Kind const& kind, std::span<char* const> files) {
    std::set<std::string> lines;
    for (char const* const file : files) lines.insert(kind.lineOf(contentOf(file)));
    lines.erase("");
    for (std::string const& line : lines) std::cout << line << "\n";
    return 0;
}

std::string inDictionary(std::string_view word) {
    if (word.empty()) return {};
    std::string line = "\"";
    for (char const c : word) line += c == '"' ? "\\\"" : std::string(1, c);
    return line + "\"\n";
}

// The element alone, as a document.
std::string documentOf(Command::XmlElement const& element, Command::XmlHandler::Tag& tag) {
    std::string document(tag.source().bytes);
    if (document.ends_with("/>")) document.erase(document.size() - 2, 1);
    if (document.find(" xmlns") == document.npos) {
        std::size_t const nameEnd = document.find(element.name) + element.name.size();
        std::string const prefix = document.substr(1, nameEnd - 1 - element.name.size());
        std::string const declared = prefix.empty() ? "" : ":" + prefix.substr(0, prefix.size() - 1);
        document.insert(nameEnd, " xmlns" + declared + "=\"" + std::string(element.space) + "\"");
    }
    document.insert(document.size() - 1, "/");
    return document;
}

// Reads a document, which is well-formed.
void readDocument(char const* path, Command::XmlHandler& handler) {
    Command::FileSource document(path);
    if (auto const failure = Command::readXml(document, handler)) throw std::runtime_error(failure->message);
}

// The names of elements and attributes.
struct Names final : Command::XmlHandler {
    std::set<std::string> names;

    void startElement(Command::XmlElement const& element, Tag&) override {
        names.emplace(element.name);
        for (auto const& attribute : element.attributes) names.emplace(attribute.name);
    }
};

// Writes inputs of each kind: documents and their elements, and attributes for the reader of the row, for its type
// and for the readers of the core.
class Candidates final : public Command::XmlHandler {
public:
    explicit Candidates(fs::path const& newFolder) : folder(newFolder) {}

    void addDocument(std::string_view text) { add("documents", text); }
    void addText(std::string_view text) { add("numbers", Heads::Numbers{1.5f, -2e300}.bytes().append(text)); }
    void addValue(std::size_t type, std::string_view text) { add("values", Heads::Type{type}.bytes().append(text)); }

    void startElement(Command::XmlElement const& element, Tag& tag) override {
        addDocument(documentOf(element, tag));
        auto const vocabulary = Xml::Catalogue::vocabularyOf(element.space);
        if (!vocabulary) return;
        for (auto const& attribute : element.attributes) {
            auto const* const entry = Xml::Catalogue::find(*vocabulary, element.name, attribute.name);
            if (!entry) continue;
            for (auto const notation : {Xml::Notation::Attribute, Xml::Notation::Declaration})
                add("judge", Heads::Row{entry, notation}.bytes().append(attribute.value));
            if (entry->type()) addValue(static_cast<std::size_t>(entry->typeNumber), attribute.value);
            addText(attribute.value);
        }
    }

private:
    void add(std::string_view kind, std::string_view input) { write(folder / kind / std::to_string(++count), input); }

    fs::path const& folder;
    int count = 0;
};

std::set<std::string> wordsOf(Xml::AttributeType const& type) {
    std::set<std::string> words;
    for (std::u16string_view const word : type.words()) words.insert(Command::toUtf8(word));
    return words;
}

std::set<std::string> examplesOfAll() {
    std::set<std::string> examples;
    for (Xml::AttributeType const& type : Xml::AttributeType::all())
        for (std::u16string_view const example : type.examples()) examples.insert(Command::toUtf8(example));
    return examples;
}

int writeDictionaries(fs::path const& folder, std::span<char* const> documents) {
    std::set<std::string> words = examplesOfAll();
    for (Xml::AttributeType const& type : Xml::AttributeType::all()) words.merge(wordsOf(type));
    Names names;
    for (char const* const path : documents) readDocument(path, names);
    std::string wordLines, nameLines;
    for (std::string const& word : words) wordLines += inDictionary(word);
    for (std::string const& name : names.names) nameLines += inDictionary(name) + inDictionary(" " + name + "=\"");
    write(folder / "words.dict", wordLines);
    write(folder / "names.dict", nameLines);
    return 0;
}

int writeCandidates(fs::path const& folder, std::span<char* const> documents) {
    Candidates candidates(folder);
    std::set<std::string> const examples = examplesOfAll();
    auto const types = Xml::AttributeType::all();
    for (std::size_t i = 0; i < types.size(); ++i) {
        for (std::string const& word : wordsOf(types[i])) candidates.addValue(i, word);
        // Every type gets the examples of all: what one reads, another must refuse in good order.
        if (types[i].isEnumeration()) continue;
        for (std::string const& text : examples) candidates.addValue(i, text);
    }
    for (std::string const& text : examples) candidates.addText(text);
    for (char const* const path : documents) {
        candidates.addDocument(contentOf(path));
        readDocument(path, candidates);
    }
    return 0;
}

} // namespace

int main(int argc, char** argv) {
    std::span<char* const> const arguments(argv, static_cast<std::size_t>(argc));
    std::string_view const command = argc > 2 ? argv[1] : "";
    if (command == "dictionaries") return writeDictionaries(argv[2], arguments.subspan(3));
    if (command == "candidates") return writeCandidates(argv[2], arguments.subspan(3));
    auto const* const kind = std::ranges::find(kinds, std::string_view(argc > 2 ? argv[2] : ""), &Kind::name);
    if (kind != std::end(kinds) && command == "expand" && argc == 4) return expand(*kind, argv[3]);
    if (kind != std::end(kinds) && command == "lines") return printLines(*kind, arguments.subspan(3));
    std::cerr << "fuzz_seeds: fuzz/Seeds.cpp begins with the arguments that it takes\n";
    return 2;
}
