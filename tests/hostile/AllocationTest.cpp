// How often and how much the library allocates. The counter replaces the allocation of the whole
// program, so this is a program of its own.
#include "Support.h"
#include "xmlattr/Instantiations.h"
#include "xmlattr/core/Log.h"

#include <algorithm>
#include <cstdlib>
#include <new>
#include <type_traits>

namespace {

struct {
    std::size_t count = 0, live = 0, peak = 0;
} allocations;

constexpr std::size_t header = __STDCPP_DEFAULT_NEW_ALIGNMENT__; // holds the size of the block that follows it

} // namespace

void* operator new(std::size_t size) {
    auto* const block = static_cast<char*>(std::malloc(size + header));
    if (!block) throw std::bad_alloc();
    *reinterpret_cast<std::size_t*>(block) = size;
    ++allocations.count;
    allocations.live += size;
    allocations.peak = std::max(allocations.peak, allocations.live);
    return block + header;
}

void operator delete(void* pointer) noexcept {
    if (!pointer) return;
    char* const block = static_cast<char*>(pointer) - header;
    allocations.live -= *reinterpret_cast<std::size_t*>(block);
    std::free(block);
}

void operator delete(void* pointer, std::size_t) noexcept {
    operator delete(pointer);
}

namespace Xml {
namespace {

template <class Work> std::size_t countOf(Work work) {
    std::size_t const before = allocations.count;
    work();
    return allocations.count - before;
}

constexpr char16_t const* texts[] = {u"",
                                     u"x",
                                     u"auto",
                                     u"normal",
                                     u"12.5pt",
                                     u"-.5e3cm",
                                     u"1234567.125px",
                                     u"50%",
                                     u"0.123456789",
                                     u"2147483647",
                                     u"1pt 2pt",
                                     u"12345.678pt 12345.678cm",
                                     u"none",
                                     u"underline, overline",
                                     u"rect(1pt, 2pt, 3pt, 4pt)",
                                     u"xMinYMax slice",
                                     u"0 0 1e3 1e3",
                                     u"en-gb",
                                     u"de",
                                     u"multiple-of(4)",
                                     u"proportional-column-width(2)",
                                     u"larger",
                                     u"thin",
                                     u"ultra-condensed",
                                     u"1e9999999999pt",
                                     u"3.4028235e38in",
                                     u"a text that is longer than any buffer in a string",
                                     u"url(#a-reference-that-is-longer-than-any-buffer)",
                                     u"year( a field with a long name )",
                                     u"match( a long argument )",
                                     u"#123456",
                                     u"rgb(1,2,3)",
                                     u"cmyk(0.123456,20%,0.3333333,0)",
                                     u"cornflowerblue",
                                     u"transparent",
                                     u"12345.678pt 12345.678cm 1px rgb(100,200,250)",
                                     u"1.2345678 12345.678,3.1415927 2.7182818"};

// What a type may allocate when it reads a text, besides a copy of the text or the list that it stores.
template <class T> constexpr bool isScalar = std::is_trivially_copyable_v<T> || std::is_same_v<T, Language>;
// These print one part after the other, into a string that may have to grow.
template <class T, class... Ts> constexpr bool isOneOf = (std::is_same_v<T, Ts> || ...);
template <class T>
constexpr bool printsParts =
    isOneOf<T, BoxShadow, SmartPtr<Drawing::Color>, AxisSource, DisplayCondition, Core::Vector<Point>>;

void expectFewAllocations(XmlAttribute& attribute, char const* type, Core::String const& text, bool readsWithoutAny,
                          std::size_t mostOfPrint) {
    if (readsWithoutAny) {
        EXPECT_EQ(countOf([&] { attribute.parseValue(text); }), 0u) << type << " reads " << text.toUtf8();
        EXPECT_EQ(countOf([&] { static_cast<void>(attribute.isEqual(text)); }), 0u)
            << type << " compares " << text.toUtf8();
    } else {
        attribute.parseValue(text);
    }
    Core::String printed;
    std::size_t const prints = countOf([&] { printed = attribute.getValueAsString(); });
    EXPECT_LE(prints, mostOfPrint) << type << " prints " << text.toUtf8();
}

template <class T> void expectFewAllocations(char const* type) {
    for (char16_t const* const text : texts) {
        TXmlAttribute<T> attribute;
        expectFewAllocations(attribute, type, text, isScalar<T>, printsParts<T> ? 4 : 1);
    }
}

TEST(Allocations, ScalarsReadWithoutAnyAndPrintWithOne) {
#define XMLATTR_PUBLIC_VALUE(...) expectFewAllocations<__VA_ARGS__>(#__VA_ARGS__);
#define XMLATTR_INTERNAL_VALUE(...) expectFewAllocations<__VA_ARGS__>(#__VA_ARGS__);
#include "xmlattr/ValueTypes.inc"
}

TEST(Allocations, AColorIsOneObject) {
    for (char16_t const* const units : {u"#123", u"#123456", u"rgb(1,2,3)", u"rgb(10%,20%,300%)", u"cmyk(1,2,3,4)",
                                        u"RebeccaPurple", u"LightGoldenrodYellow", u"red"}) {
        Core::String const text = units;
        TXmlAttribute<SmartPtr<Drawing::Color>> color;
        bool accepted = false;
        std::size_t const count = countOf([&] { accepted = color.parseValue(text); });
        EXPECT_EQ(count, accepted ? 1u : 0u) << text.toUtf8();
    }
}

// What a type needs while it reads a long text, compared with what it keeps.
void expectModestMemory(XmlAttribute& attribute, char const* type, Core::String const& text) {
    std::size_t const before = allocations.live;
    allocations.peak = before;
    bool const accepted = attribute.parseValue(text);
    std::size_t const kept = allocations.live - before, peak = allocations.peak - before;
    if (accepted) {
        EXPECT_LE(peak, 4 * kept + 1024) << type << " reads " << text.subString(0, 12).toUtf8();
    }
}

template <class T> void expectModestMemory(char const* type, Core::String const& text) {
    TXmlAttribute<T> attribute;
    expectModestMemory(attribute, type, text);
}

TEST(Allocations, MemoryGrowsWithWhatIsStored) {
    auto const handler = Core::Log::setHandler([](Core::String const&) {});
    for (std::u16string_view const piece : {u"(", u",", u"-", u"9", u" ", u"z", u"M1,2", u"1 2,", u"1pt,", u"f(1)",
                                            u"rotate(1) ", u"match(a)and", u"a and "}) {
        std::u16string units;
        while (units.size() < 1 << 16) units += piece;
        Core::String const text{std::move(units)};
#define XMLATTR_PUBLIC_VALUE(...) expectModestMemory<__VA_ARGS__>(#__VA_ARGS__, text);
#define XMLATTR_INTERNAL_VALUE(...) expectModestMemory<__VA_ARGS__>(#__VA_ARGS__, text);
#include "xmlattr/ValueTypes.inc"
    }
    Core::Log::setHandler(handler);
}

} // namespace
} // namespace Xml
