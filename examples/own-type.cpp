// Value types of a program's own: an enumeration with its table of keywords, and a class that reads a text.
//
// The program contains what the library does not: it compiles the attributes of its types itself, and links a static
// or a shared library alike.
#include <xmlattr/attributes/TXmlAttributeImpl.h>
#include <xmlattr/keywords/KeywordTable.h>
#include <xmlattr/measures/Length.h>

#include <iostream>

namespace Printing {

// The tray that a printer takes its paper from.
enum class Tray : std::int32_t { Upper = 0, Lower = 1, Manual = 4 };

// Two lengths with "x" between them: "210mm x 297mm".
struct PaperSize {
    Xml::Length width, height;

    bool operator==(PaperSize const&) const = default;
};

} // namespace Printing

namespace Xml {

template <> struct Keywords<Printing::Tray> {
    using enum Printing::Tray;
    static constexpr Case rule = Case::Any;
    // A value prints as the first of its rows.
    static constexpr KeywordRow<Printing::Tray> rows[] = {
        {u"upper", Upper}, {u"lower", Lower}, {u"manual", Manual}, {u"by-hand", Manual}};
};

template <> struct AttributeTraits<Printing::PaperSize> {
    static constexpr Description describe{{u"a width x a height"}, {u"210mm x 297mm"}};

    // Into locals first, so that a refused text changes nothing.
    static bool parse(Printing::PaperSize& value, std::u16string_view text) {
        std::size_t const by = text.find(u" x ");
        if (by == std::u16string_view::npos) return false;
        Printing::PaperSize size;
        if (!Length::parseLength(size.width, text.substr(0, by)) ||
            !Length::parseLength(size.height, text.substr(by + 3)))
            return false;
        value = size;
        return true;
    }

    static Core::String print(Printing::PaperSize const& value) {
        return Length::getValueAsString(value.width) + u" x " + Length::getValueAsString(value.height);
    }
};

} // namespace Xml

namespace {

// Whatever the type: this sees the attribute's base alone.
void show(Xml::XmlAttribute& attribute, std::initializer_list<char16_t const*> texts) {
    for (char16_t const* const text : texts) {
        bool const isAccepted = attribute.parseValue(text);
        std::cout << Core::String(text).toUtf8() << (isAccepted ? ": " : ": refused, still ")
                  << attribute.getValueAsString().toUtf8() << "\n";
    }
}

} // namespace

int main() {
    Xml::TXmlAttribute<Printing::Tray> tray;
    show(tray, {u"lower", u"By-Hand", u"middle"});
    Xml::TXmlAttribute<Printing::PaperSize> size;
    show(size, {u"210mm x 297mm", u"210mm x wide", u"8.5in x 11in"});
    std::cout << (size.isEqual(u"8.5in x 11in") ? "equal" : "unequal") << "\n";
}
