// The value types at run time: from names as text to reading, printing, comparing and copying values,
// without naming a class.
//
//   AttributeType const* type = Catalogue::find(Vocabulary::Fo, "block", "font-size")->type();
//   AnyAttribute size(*type);
//   if (!size.parseValue(u"12pt")) report(type->syntax());
#pragma once

#include "xmlattr/attributes/Description.h"
#include "xmlattr/attributes/XmlAttribute.h"

#include <memory>
#include <span>
#include <string_view>

namespace Xml {

// A value type of the library. There is one object of each, which lives as long as the program.
class XMLATTR_API AttributeType {
public:
    AttributeType(AttributeType const&) = delete;
    AttributeType& operator=(AttributeType const&) = delete;

    // Every type, in the order of ValueTypes.inc.
    static std::span<AttributeType const> all() noexcept;
    // The type that ValueTypes.inc lists under this name, which is also what the rows of the catalogue
    // say; or null. Takes constant time.
    static AttributeType const* find(std::string_view name) noexcept;

    // As ValueTypes.inc writes it: "Length", "Core::Vector<Point>".
    std::string_view name() const noexcept { return typeName; }
    // Whether the shared library exports TXmlAttribute of this type. Through AnyAttribute, programs may
    // use every type.
    bool isPublic() const noexcept { return isExported; }
    // Whether the value is one of a list of keywords. A few such types read numbers too.
    bool isEnumeration() const noexcept;
    // Whether a value holds as many items as the text gives, and takes many times the text's memory.
    bool readsList() const noexcept;
    // Whether the type takes nearly every text, so that being accepted says little about a text.
    bool readsAnyText() const noexcept;

    // What the type reads, in a line for the authors of documents: "thin, medium, thick or a length".
    Core::String syntax() const;
    // The fixed texts, or parts of one, that the type reads: the keywords of an enumeration, the names
    // of colours. They live as long as the program.
    Core::Vector<std::u16string_view> words() const;
    // Texts that the type reads.
    Core::Vector<std::u16string_view> examples() const;

    // Whether a fresh value reads the text.
    bool accepts(std::u16string_view text) const;

private:
    friend class AnyAttribute;
    friend struct AttributeTypes;
    struct Operations;
    class Holder;

    constexpr AttributeType(std::string_view name, bool isPublic, Operations const& functions)
        : typeName(name), isExported(isPublic), operations(&functions) {}

    std::string_view typeName;
    bool isExported;
    Operations const* operations;
};

// Owns an attribute whose type is known at run time only. Copies by value; one that was moved from may
// only be assigned to or destroyed. Several threads may read one; changing it needs exclusive access.
class XMLATTR_API AnyAttribute {
public:
    // With the value that a fresh attribute of the type has.
    explicit AnyAttribute(AttributeType const& type);
    // With the value of an attribute, which must be of this type: a default constant, for instance.
    AnyAttribute(AttributeType const& type, XmlAttribute const& value);

    AnyAttribute(AnyAttribute const& other);
    AnyAttribute(AnyAttribute&& other) noexcept;
    // Takes the other's type as well.
    AnyAttribute& operator=(AnyAttribute const& other);
    AnyAttribute& operator=(AnyAttribute&& other) noexcept;
    ~AnyAttribute();

    // The type of the value; only an assignment changes it.
    AttributeType const& type() const noexcept { return *attributeType; }
    // The attribute itself.
    XmlAttribute& operator*() noexcept;
    XmlAttribute const& operator*() const noexcept;

    // These do what the functions of XmlAttribute do.
    bool parseValue(Core::String const& text) { return (**this).parseValue(text); }
    Core::String getValueAsString() const { return (**this).getValueAsString(); }
    bool isEqual(Core::String const& text) const { return (**this).isEqual(text); }

    // Whether the types are the same and the values equal, as the type compares them.
    bool operator==(AnyAttribute const& other) const;
    // What the value consists of; empty where the printed text says it all.
    Parts parts() const;

private:
    AttributeType const* attributeType;
    std::unique_ptr<AttributeType::Holder> holder;
};

} // namespace Xml
