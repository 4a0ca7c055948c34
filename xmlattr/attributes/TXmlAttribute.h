// The typed attribute: one value after a virtual-table pointer.
#pragma once

#include "xmlattr/attributes/AttributeTraits.h"
#include "xmlattr/attributes/XmlAttribute.h"

namespace Xml {

// Selects one of the two comparisons of an attribute with a text.
template <int N> struct int_to_type {};

// Nobody deletes an attribute through a base, and a virtual destructor would be a fifth slot.
#pragma GCC diagnostic push
#pragma GCC diagnostic ignored "-Wnon-virtual-dtor"

// Holds one value of the value type T and nothing else. Copies by value. The four virtual
// operations of each T are compiled into the library only; what they accept and print stands
// beside T. Reading an attribute from several threads is safe; changing one needs exclusive access
// to it.
template <class T> class TXmlAttribute : public XmlAttribute {
public:
    constexpr TXmlAttribute() = default;
    constexpr TXmlAttribute(T const& value) : stored{value} {}
    constexpr TXmlAttribute(TXmlAttribute const&) = default;

    constexpr TXmlAttribute& operator=(TXmlAttribute const&) = default;
    constexpr TXmlAttribute& operator=(T const& value) {
        stored.value = value;
        return *this;
    }

    constexpr bool operator==(T const& other) const { return stored.value == other; }
    constexpr bool operator!=(T const& other) const { return !(stored.value == other); }
    // The attribute on the right; by itself the language would exchange the operands, and not every
    // value type's comparison is symmetric.
    friend constexpr bool operator==(T const& left, TXmlAttribute const& right) { return left == right.stored.value; }
    // Without these two, comparing two attributes would be ambiguous between their conversions.
    constexpr bool operator==(TXmlAttribute const& other) const { return *this == other.stored.value; }
    constexpr bool operator!=(TXmlAttribute const& other) const { return !(*this == other); }

    constexpr operator T const&() const { return stored.value; }
    constexpr T* operator->() { return &stored.value; }
    constexpr T const* operator->() const { return &stored.value; }
    constexpr T const& operator*() const { return stored.value; }

    constexpr T const& getValue() const { return stored.value; }
    constexpr void setValue(T const& value) { stored.value = value; }

    bool parseValue(Core::String const& text) override;
    void copyFrom(XmlAttribute const& other) override;
    Core::String getValueAsString() const override;
    bool isEqual(Core::String const& text) const override;

    // False, whatever the text.
    bool isEqual(Core::String const& text, int_to_type<0>) const;
    // Parses the text into a fresh value and compares; false when it does not parse. This one
    // works for every type, also for those whose virtual isEqual refuses.
    bool isEqual(Core::String const& text, int_to_type<1>) const;

private:
    AttributeStorage<T> stored;
};

#pragma GCC diagnostic pop

} // namespace Xml
