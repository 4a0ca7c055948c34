// Writes what the fuzzers begin with into a folder: dictionaries of the words that the types know, and
// corpora of the attributes of documents.
//
//   fuzz_seeds FOLDER DOCUMENT...
#include "xml/XmlReader.h"
#include "xmlattr/catalogue/AttributeType.h"
#include "xmlattr/catalogue/Catalogue.h"

#include "text/Text.h"

#include <algorithm>
#include <filesystem>
#include <fstream>
#include <iterator>
#include <memory>
#include <set>
#include <string>

namespace {

namespace fs = std::filesystem;

// What occurs in texts besides the words and examples of the types: units, functions and letters of
// grammars, numbers at the limits of their types, and odd characters.
constexpr char const* grammarWords[] = {"px",
                                        "pt",
                                        "pc",
                                        "cm",
                                        "mm",
                                        "in",
                                        "em",
                                        "ex",
                                        "%",
                                        "e-",
                                        "e+",
                                        "1e-9999",
                                        "1e9999",
                                        "3.4028235e38",
                                        "16777217",
                                        "2147483647",
                                        "-2147483648",
                                        "rect(",
                                        "rgb(",
                                        "rgb-icc(",
                                        "cmyk(",
                                        "spot-color(",
                                        "url(",
                                        ")",
                                        "#",
                                        "translate(",
                                        "matrix(",
                                        "scale(",
                                        "rotate(",
                                        "skewX(",
                                        "skewY(",
                                        "M",
                                        "m",
                                        "z",
                                        "l",
                                        "h",
                                        "v",
                                        "c",
                                        "s",
                                        "q",
                                        "t",
                                        "a",
                                        "defer",
                                        "WindowText",
                                        "multiple-of(",
                                        "end-on-multiple-of(",
                                        "is-after(",
                                        "is-before(",
                                        "match(",
                                        "and",
                                        "FIND_KEYWORD(",
                                        "year(",
                                        "T24:00:00",
                                        "+01:00",
                                        "Z",
                                        "\\x1F",
                                        "\\xC2\\xA0",
                                        "\\xED\\xA0\\x80",
                                        "\\xED\\xB0\\x80"};

void write(fs::path const& file, std::string_view text) {
    fs::create_directories(file.parent_path());
    std::ofstream(file, std::ios::binary) << text;
}

std::string inDictionary(std::string_view word) {
    if (word.empty()) return {};
    std::string line = "\"";
    for (char const c : word) line += c == '"' ? "\\\"" : std::string(1, c);
    return line + "\"\n";
}

struct Seeds final : Command::XmlHandler {
    explicit Seeds(fs::path const& folder) : folder(folder) {}

    void addValue(std::size_t type, std::string_view text) {
        write(folder / "values" / std::to_string(++count), static_cast<char>(type) + std::string(text));
        write(folder / "numbers" / std::to_string(count), std::string(12, '?') + std::string(text));
    }

    void addJudged(Xml::CatalogueEntry const& entry, std::string_view text) {
        auto const row = static_cast<std::size_t>(&entry - Xml::Catalogue::entries().data());
        std::string const start = {static_cast<char>(row >> 8), static_cast<char>(row), 1};
        write(folder / "judge" / std::to_string(++count), start + std::string(text));
    }

    void startElement(Command::XmlElement const& element, Tag&) override {
        auto const vocabulary = Xml::Catalogue::vocabularyOf(element.space);
        if (!vocabulary) return;
        elementNames.emplace(element.name);
        for (auto const& attribute : element.attributes) {
            elementNames.emplace(attribute.name);
            auto const* const entry = Xml::Catalogue::find(*vocabulary, element.name, attribute.name);
            if (!entry) continue;
            addJudged(*entry, attribute.value);
            if (entry->type()) addValue(static_cast<std::size_t>(entry->typeNumber), attribute.value);
        }
    }

    fs::path const& folder;
    int count = 0;
    std::set<std::string> elementNames;
};

} // namespace

int main(int argc, char** argv) {
    if (argc < 2) return 2;
    fs::path const folder = argv[1];
    Seeds seeds(folder);
    std::set<std::string> words;
    auto const types = Xml::AttributeType::all();
    // Every type gets the examples of all: what one reads, another must refuse in good order.
    std::set<std::string> examples;
    for (Xml::AttributeType const& type : types)
        for (std::u16string_view const example : type.examples()) examples.insert(Command::toUtf8(example));
    for (std::size_t i = 0; i < types.size(); ++i) {
        for (std::u16string_view const word : types[i].words()) {
            words.insert(Command::toUtf8(word));
            if (types[i].isEnumeration()) seeds.addValue(i, Command::toUtf8(word));
        }
        if (!types[i].isEnumeration())
            for (std::string const& text : examples) seeds.addValue(i, text);
    }
    words.insert(examples.begin(), examples.end());
    for (int i = 2; i < argc; ++i) {
        std::ifstream file(argv[i], std::ios::binary);
        std::string const bytes(std::istreambuf_iterator<char>(file), {});
        for (char const* const fuzzer : {"command", "fix"})
            write(folder / fuzzer / fs::path(argv[i]).filename(), bytes);
        Command::FileSource document(argv[i]);
        if (Command::readXml(document, seeds)) return 1;
    }
    std::string dictionary, xml;
    for (std::string const& word : words) dictionary += inDictionary(word);
    for (char const* const word : grammarWords) dictionary += inDictionary(word);
    for (std::string const& name : seeds.elementNames) xml += inDictionary(name) + inDictionary(" " + name + "=\"");
    for (char const* const word :
         {"<!DOCTYPE a [", "<!ENTITY e \"", "&e;", "]>", "<![CDATA[", "<?xml version=\"1.0\" encoding=\"",
          "windows-1252", "UTF-16", " xmlns:x=\"", " xmlns=\"http://www.w3.org/2000/svg\"", "/>"})
        xml += inDictionary(word);
    write(folder / "values.dict", dictionary);
    write(folder / "numbers.dict", dictionary);
    write(folder / "judge.dict", dictionary);
    write(folder / "command.dict", dictionary + xml);
    write(folder / "fix.dict", dictionary + xml);
    return 0;
}
