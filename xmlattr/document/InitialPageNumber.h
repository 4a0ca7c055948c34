// The numbers of the first page and of the first sheet of a page sequence.
#pragma once

#include "xmlattr/keywords/KeywordTable.h"

#include <cstdint>

namespace Xml {

// The keywords, or what the number of the value is.
enum class XMLATTR_API InitialPageNumberType : std::int32_t {
    Auto = 0,
    AutoOdd = 1,
    AutoEven = 2,
    Number = 3,
    MultipleOf = 4
};

template <> struct Keywords<InitialPageNumberType> {
    using enum InitialPageNumberType;
    static constexpr Case rule = Case::Exact;
    static constexpr KeywordRow<InitialPageNumberType> rows[] = {
        {u"auto", Auto}, {u"auto-odd", AutoOdd}, {u"auto-even", AutoEven}, {u"multiple-of(", MultipleOf}};
};

// "auto", "auto-odd", "auto-even" (exact case), a number from 1 on, or "multiple-of(" an integer
// ")": initial-page-number of XSL-FO 1.1 and an addition to it. There is no printer.
class XMLATTR_API InitialPageNumber {
public:
    constexpr InitialPageNumber() = default;
    constexpr InitialPageNumber(InitialPageNumberType newType) : type(newType) {}
    constexpr InitialPageNumber(int newNumber) : type(InitialPageNumberType::Number), number(newNumber) {}
    // Throws UnreacheableCodeException for every type but MultipleOf.
    InitialPageNumber(InitialPageNumberType type, int multiple);

    constexpr InitialPageNumberType getType() const { return type; }
    // -1 unless the type is Number.
    constexpr int getNumber() const { return number; }
    // -1 unless the type is MultipleOf.
    constexpr int getMultiple() const { return multiple; }

    // Intended: the multiple takes no part, so that all multiples are equal.
    constexpr bool operator==(InitialPageNumber const& other) const {
        return type == other.type && (type != InitialPageNumberType::Number || number == other.number);
    }

    // False for "multiple-of(" without an integer and a ")" after it; then `out` is untouched.
    // Intended: every other text counts as a number, and one below 1 as 1; "abc" is page 1.
    static bool parse(Core::String const& text, InitialPageNumber& out);

private:
    InitialPageNumberType type = InitialPageNumberType::Auto;
    int number = -1;
    int multiple = -1;
};

static_assert(sizeof(InitialPageNumber) == 12);

template <> struct XMLATTR_API AttributeTraits<InitialPageNumber> {
    static bool parse(InitialPageNumber& value, std::u16string_view text);
    static constexpr bool printsEmpty = true;
    static constexpr Description describe{.forms = {u"a whole number from 1", u"multiple-of(NUMBER)"},
                                          .examples = {u"12", u"multiple-of(4)"},
                                          .readsAnyText = true};
    static void words(Words& out);
    static void parts(InitialPageNumber const& value, Parts& out);
};

// Whether the number of the sheet is given.
enum class XMLATTR_API InitialSheetNumberType : std::int32_t { Auto = 0, Number = 1 };

// "auto" (exact case) or a number from 1 on. Intended: every text is accepted, and what is neither
// counts as 1. There is no printer.
class XMLATTR_API InitialSheetNumber {
public:
    constexpr InitialSheetNumber() = default;
    constexpr InitialSheetNumber(int newNumber) : type(InitialSheetNumberType::Number), number(newNumber) {}

    constexpr InitialSheetNumberType getType() const { return type; }
    // -1 unless the type is Number.
    constexpr int getNumber() const { return number; }

    constexpr bool operator==(InitialSheetNumber const&) const = default;

private:
    InitialSheetNumberType type = InitialSheetNumberType::Auto;
    int number = -1;
};

template <> struct XMLATTR_API AttributeTraits<InitialSheetNumber> {
    static bool parse(InitialSheetNumber& value, std::u16string_view text);
    static constexpr bool printsEmpty = true;
    static constexpr Description describe{
        .forms = {u"a whole number from 1"}, .examples = {u"12"}, .readsAnyText = true};
    static void words(Words& out);
    static void parts(InitialSheetNumber const& value, Parts& out);
};

} // namespace Xml
