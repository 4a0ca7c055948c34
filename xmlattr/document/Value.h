// A datum of a chart.
#pragma once

#include "xmlattr/attributes/AttributeTraits.h"
#include "xmlattr/core/DateTimeEx.h"

#include <cstdint>
#include <utility>

#include "xmlattr/core/SetMacrosAside.h"

namespace Xml {

// Which field of a Value counts.
enum class XMLATTR_API ValueType : std::int32_t { None = 0, Number = 1, Date = 2, String = 3 };

// A number, a date or a string, and its place among the others. A text reads as the first of these
// that accepts it: a date (Core::DateTimeEx::parseXmlDateEx), a number (Core::Format::parseFloat), a
// string. The string field keeps the text as it was written, whichever it is.
class XMLATTR_API Value {
public:
    Value() = default;
    Value(float newNumber) : type(ValueType::Number), number(newNumber) {}
    Value(Core::DateTimeEx newDate) : type(ValueType::Date), date(newDate) {}
    Value(Core::String newString) : type(ValueType::String), string(std::move(newString)) {}

    ValueType getType() const { return type; }
    float getFloatValue() const { return number; }
    Core::DateTimeEx const& getDateValue() const { return date; }
    Core::String const& getStringValue() const { return string; }
    // -1 until it is set.
    int getOrdinal() const { return ordinal; }
    void setOrdinal(int newOrdinal) { ordinal = newOrdinal; }

    // The value as text: the shortest number that reads back, the date as 2020-01-31, the string,
    // or nothing.
    Core::String getValue() const;
    // Intended: replaces the string field alone; the type and the other fields stay.
    void setValue(Core::String const& text) { string = text; }

    // Intended: the field of the left operand's type is compared whatever the right one's
    // type, so that the number 0 equals every string and date, whose number is 0, though they need not
    // equal it. A value without a type is equal to nothing, itself included.
    bool operator==(Value const& other) const;
    // Both are false when the types differ. Intended: of strings only the lengths count, so that
    // "zz" is less than "aaa".
    bool operator<(Value const& other) const;
    bool operator>(Value const& other) const { return other < *this; }

private:
    ValueType type = ValueType::None;
    Core::String string;
    Core::DateTimeEx date;
    float number = 0;
    int ordinal = -1;
};

template <> struct XMLATTR_API AttributeTraits<Value> {
    // Replaces the whole value, ordinal included. Only the empty text is refused; it changes nothing.
    // There is no printer: see Value::getValue.
    static bool parse(Value& value, std::u16string_view text);
    static constexpr bool printsEmpty = true;
    static constexpr Description describe{.forms = {u"a date", u"a number", u"a text"},
                                          .examples = {u"2020-01-31", u"2020-01-31T10:20:30.5Z", u"1.5", u"north"},
                                          .readsAnyText = true};
    static void parts(Value const& value, Parts& out);
};

} // namespace Xml

#include "xmlattr/core/PutMacrosBack.h"
