#include "xmlattr/catalogue/AttributeType.h"

#include "xmlattr/attributes/TXmlAttributeImpl.h"
#include "xmlattr/catalogue/TypeNumber.h"
#include "xmlattr/catalogue/text/NameTable.h"

#include <array>
#include <utility>

namespace Xml {

// An attribute with the operations that XmlAttribute does not have.
class AttributeType::Holder {
public:
    virtual ~Holder() = default;
    virtual XmlAttribute& attribute() = 0;
    virtual bool isSame(Holder const& other) const = 0;
    virtual void addParts(Parts& out) const = 0;
};

struct AttributeType::Operations {
    Description const& describe;
    bool isEnumeration;
    bool (*accepts)(std::u16string_view text);
    void (*addWords)(Words& out);
    // A copy of the attribute, or a fresh one for null.
    std::unique_ptr<Holder> (*make)(XmlAttribute const* value);
};

struct AttributeTypes {
    template <class T> class HolderOf final : public AttributeType::Holder {
    public:
        HolderOf() = default;
        explicit HolderOf(TXmlAttribute<T> const& value) : held(value) {}

        XmlAttribute& attribute() override { return held; }
        bool isSame(Holder const& other) const override { return held == static_cast<HolderOf const&>(other).held; }
        void addParts(Parts& out) const override {
            if constexpr (HasParts<T>) AttributeTraits<T>::parts(*held, out);
        }

    private:
        TXmlAttribute<T> held;
    };

    template <class T> static bool accepts(std::u16string_view text) {
        T value{};
        return AttributeTraits<T>::parse(value, text);
    }

    template <class T> static void addWords(Words& out) {
        if constexpr (HasWords<T>) AttributeTraits<T>::words(out);
    }

    template <class T> static std::unique_ptr<AttributeType::Holder> make(XmlAttribute const* value) {
        if (!value) return std::make_unique<HolderOf<T>>();
        return std::make_unique<HolderOf<T>>(static_cast<TXmlAttribute<T> const&>(*value));
    }

    template <class T>
    static constexpr AttributeType::Operations operationsOf{AttributeTraits<T>::describe, KeywordEnumeration<T>,
                                                            accepts<T>, addWords<T>, make<T>};

    static AttributeType const rows[];
};

#define XMLATTR_PUBLIC_VALUE(...) {#__VA_ARGS__, true, AttributeTypes::operationsOf<__VA_ARGS__>},
#define XMLATTR_INTERNAL_VALUE(...) {#__VA_ARGS__, false, AttributeTypes::operationsOf<__VA_ARGS__>},
constinit AttributeType const AttributeTypes::rows[] = {
#include "xmlattr/ValueTypes.inc"
};

namespace {

// "a, b or c".
Core::String joined(Words const& words) {
    std::u16string line;
    for (std::size_t i = 0; i < words.list.size(); ++i) {
        if (i > 0) line += i + 1 < words.list.size() ? u", " : u" or ";
        line += words.list[i].empty() ? std::u16string_view(u"\"\"") : words.list[i];
    }
    return Core::String(std::move(line));
}

template <std::size_t n> void addAll(Words& out, std::array<std::u16string_view, n> const& texts) {
    for (std::u16string_view const text : texts)
        if (!text.empty()) out.add(text);
}

} // namespace

std::span<AttributeType const> AttributeType::all() noexcept {
    return AttributeTypes::rows;
}

AttributeType const* AttributeType::find(std::string_view name) noexcept {
    std::size_t const row = NameTable<typeNames>::indexOf(name);
    return row == Core::noWord ? nullptr : &all()[row];
}

bool AttributeType::isEnumeration() const noexcept {
    return operations->isEnumeration;
}

bool AttributeType::readsList() const noexcept {
    return operations->describe.readsList;
}

bool AttributeType::readsAnyText() const noexcept {
    return operations->describe.readsAnyText;
}

Core::String AttributeType::syntax() const {
    Words alternatives;
    if (operations->describe.listsWords) operations->addWords(alternatives);
    addAll(alternatives, operations->describe.forms);
    return joined(alternatives);
}

Core::Vector<std::u16string_view> AttributeType::words() const {
    Words words;
    operations->addWords(words);
    return std::move(words.list);
}

Core::Vector<std::u16string_view> AttributeType::examples() const {
    Words examples;
    addAll(examples, operations->describe.examples);
    return std::move(examples.list);
}

bool AttributeType::accepts(std::u16string_view text) const {
    return operations->accepts(text);
}

AnyAttribute::AnyAttribute(AttributeType const& type) : attributeType(&type), holder(type.operations->make(nullptr)) {}

AnyAttribute::AnyAttribute(AttributeType const& type, XmlAttribute const& value)
    : attributeType(&type), holder(type.operations->make(&value)) {}

AnyAttribute::AnyAttribute(AnyAttribute const& other) : AnyAttribute(*other.attributeType, *other) {}
AnyAttribute::AnyAttribute(AnyAttribute&& other) noexcept = default;

AnyAttribute& AnyAttribute::operator=(AnyAttribute const& other) {
    return *this = AnyAttribute(other);
}

AnyAttribute& AnyAttribute::operator=(AnyAttribute&& other) noexcept = default;
AnyAttribute::~AnyAttribute() = default;

XmlAttribute& AnyAttribute::operator*() noexcept {
    return holder->attribute();
}

XmlAttribute const& AnyAttribute::operator*() const noexcept {
    return holder->attribute();
}

bool AnyAttribute::operator==(AnyAttribute const& other) const {
    return attributeType == other.attributeType && holder->isSame(*other.holder);
}

Parts AnyAttribute::parts() const {
    Parts parts;
    holder->addParts(parts);
    return parts;
}

} // namespace Xml
