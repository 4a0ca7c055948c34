#include "xmlattr/document/Value.h"

#include "xmlattr/core/Format.h"

#include <utility>

namespace Xml {

Core::String Value::getValue() const {
    switch (type) {
    case ValueType::None: break;
    case ValueType::Number: return Core::Format::toShortest(number);
    case ValueType::Date: return date.toDateString(1);
    case ValueType::String: return string;
    }
    return {};
}

bool Value::operator==(Value const& other) const {
    switch (type) {
    case ValueType::None: break;
    case ValueType::Number: return number == other.number;
    case ValueType::Date: return date == other.date;
    case ValueType::String: return string == other.string;
    }
    return false;
}

bool Value::operator<(Value const& other) const {
    if (type != other.type) return false;
    switch (type) {
    case ValueType::None: break;
    case ValueType::Number: return number < other.number;
    case ValueType::Date: return date < other.date;
    case ValueType::String: return string.length() < other.string.length();
    }
    return false;
}

bool AttributeTraits<Value>::parse(Value& value, std::u16string_view text) {
    if (text.empty()) return false;
    Value read;
    Core::DateTimeEx date;
    float number = 0;
    if (Core::DateTimeEx::parseXmlDateEx(text, date))
        read = Value(date);
    else if (Core::Format::parseFloat(text, number))
        read = Value(number);
    else
        read = Value(Core::String());
    read.setValue(text);
    value = std::move(read);
    return true;
}

void AttributeTraits<Value>::parts(Value const& value, Parts& out) {
    switch (value.getType()) {
    case ValueType::None: out.add(u"kind") << u"none"; break;
    case ValueType::Number: out.add(u"kind") << u"number"; break;
    case ValueType::Date: out.add(u"kind") << u"date"; break;
    case ValueType::String: out.add(u"kind") << u"string"; break;
    }
    out.add(u"value") << value.getValue();
}

} // namespace Xml
