// Lists the colours of an XSL-FO document with the inks that print them.
//
//   list-inks DOCUMENT
#include "StartTags.h"

#include <xmlattr/catalogue/AttributeType.h>
#include <xmlattr/catalogue/Catalogue.h>
#include <xmlattr/xmlattr.h>

#include <iostream>
#include <map>
#include <sstream>

namespace {

using ColorAttribute = Xml::TXmlAttribute<Core::SmartPtr<Drawing::Color>>;

std::string percent(double fraction) {
    std::ostringstream text;
    text << fraction * 100 << "%";
    return text.str();
}

std::string processInks(Drawing::CMYKColor const& color) {
    return "cyan " + percent(color.getC()) + ", magenta " + percent(color.getM()) + ", yellow " +
           percent(color.getY()) + ", black " + percent(color.getK());
}

// The inks of a spot colour: its own, or at a press without it those of the colour at full tint.
std::string spotInks(Drawing::SpotColor const& color) {
    std::string line = color.getColorName().toUtf8() + " " + percent(static_cast<double>(color.getTint()));
    auto const function = color.getFunction();
    auto const* const exponential = dynamic_cast<Drawing::ExponentialSpotColorFunction const*>(function.get());
    if (!exponential) return line;
    auto const full = exponential->getEndColor();
    if (auto const* const cmyk = dynamic_cast<Drawing::CMYKColor const*>(full.get()))
        line += " (in full: " + processInks(*cmyk) + ")";
    return line;
}

std::string inksOf(Drawing::Color const* color) {
    if (auto const* const cmyk = dynamic_cast<Drawing::CMYKColor const*>(color)) return processInks(*cmyk);
    if (auto const* const spot = dynamic_cast<Drawing::SpotColor const*>(color)) return spotInks(*spot);
    if (auto const* const icc = dynamic_cast<Drawing::ICCColor const*>(color))
        return std::to_string(icc->getCount()) + " components of " + icc->getColorSpace()->getProfileName().toUtf8();
    return color ? "light, to be separated" : "none";
}

} // namespace

int main(int argc, char** argv) {
    if (argc != 2) return 2;
    // An ink that the press has, and how to come near it without.
    Drawing::SpotColorMapper::setFunction(
        u"Gold", Drawing::SpotColorFunction::parseColorFunctionString(u"cmyk(0,0.2,0.7,0.15)"));

    auto const* const colorType = Xml::AttributeType::find("SmartPtr<Drawing::Color>");
    std::map<std::string, std::string> inks;
    bool const isRead = eachAttribute(argv[1], [&](auto const& element, auto const& name, auto const& text) {
        auto const* const row = Xml::Catalogue::find(Xml::Vocabulary::Fo, element, name);
        ColorAttribute color;
        if (row && row->type() == colorType && color.parseValue(Core::String::fromUtf8(text)))
            inks[text] = inksOf(color.getValue().get());
    });
    for (auto const& [text, line] : inks) std::cout << text << ": " << line << "\n";
    return isRead ? 0 : 2;
}
