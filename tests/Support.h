// What the tests of value types share.
#pragma once

#include "xmlattr/attributes/TXmlAttribute.h"

#include <gtest/gtest.h>

#include <optional>
#include <ostream>
#include <string>

namespace Core {

// Shows UTF-16 readably in the messages of GoogleTest.
inline void PrintTo(String const& text, std::ostream* out) {
    *out << '"' << text.toUtf8() << '"';
}

} // namespace Core

namespace Xml {

inline std::string narrow(Core::String const& text) {
    return text.toUtf8();
}

// The value that a text gives, or nothing when the type refuses it.
template <class T> std::optional<T> parsed(Core::String const& text) {
    TXmlAttribute<T> attribute;
    if (!attribute.parseValue(text)) return std::nullopt;
    return attribute.getValue();
}

// How the value of a text prints; "refused" when there is none.
template <class T> std::string printed(Core::String const& text) {
    TXmlAttribute<T> attribute;
    return attribute.parseValue(text) ? narrow(attribute.getValueAsString()) : "refused";
}

// A text and how its value prints; "refused" when the type refuses it.
struct PrintRow {
    char16_t const* text;
    char const* prints;
};

// Reads each text into an attribute that holds `before`, which a refusal must not change.
template <class T> void expectPrints(T const& before, std::initializer_list<PrintRow> rows) {
    std::string const beforePrints = narrow(TXmlAttribute<T>(before).getValueAsString());
    for (PrintRow const& row : rows) {
        TXmlAttribute<T> attribute(before);
        bool const accepted = attribute.parseValue(row.text);
        std::string const prints = narrow(attribute.getValueAsString());
        EXPECT_EQ(accepted ? prints : "refused", row.prints) << narrow(row.text);
        if (!accepted) {
            EXPECT_EQ(prints, beforePrints) << narrow(row.text);
        }
    }
}

} // namespace Xml
