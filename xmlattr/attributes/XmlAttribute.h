// What every typed attribute can do, whatever its value type.
#pragma once

#include "xmlattr/core/String.h"

namespace Xml {

// The four operations stand in the order of their slots, which callers in other modules rely on.
// There is no virtual destructor: attributes live by value in whatever holds them and are never
// deleted through this base.
class XMLATTR_API XmlAttribute {
public:
    // Reads the whole text into the value. False when the type refuses the text; then the value is
    // as it was, unless the value type says otherwise.
    virtual bool parseValue(Core::String const& text) = 0;
    // Takes the other attribute's value. Both must hold the same type, which is not checked.
    virtual void copyFrom(XmlAttribute const& other) = 0;
    // The canonical text of the value; empty for the value types that have no printer.
    virtual Core::String getValueAsString() const = 0;
    // Whether the text denotes the value. Always false for the types that refuse the comparison.
    virtual bool isEqual(Core::String const& text) const = 0;

protected:
    constexpr XmlAttribute() = default;
    constexpr XmlAttribute(XmlAttribute const&) = default;
    constexpr XmlAttribute& operator=(XmlAttribute const&) = default;
    ~XmlAttribute() = default;
};

} // namespace Xml
