// Reading, printing and comparing through the public interface, and the floors beside them. Each
// benchmark goes over a whole workload; "item" is the time for one of its values or commands, "allocs"
// is how often each pass asks for memory per text. With the argument --count, each goes over its workload
// once and nothing is timed: scripts/count-instructions runs that in a simulated processor.
#include "Allocations.h"
#include "Floors.h"
#include "Printers.h"
#include "Workloads.h"

#include "xmlattr/attributes/TXmlAttributeImpl.h" // int and float are no attributes of the shared library
#include "xmlattr/xmlattr.h"

#include <benchmark/benchmark.h>
#if __has_include(<valgrind/callgrind.h>)
#include <valgrind/callgrind.h>
#else
#define CALLGRIND_TOGGLE_COLLECT
#define CALLGRIND_DUMP_STATS_AT(name)
#endif

#include <functional>
#include <string>

using benchmark::Counter;
using benchmark::State;

namespace Bench {

namespace {

template <class T> std::size_t itemsIn(T const&) {
    return 1;
}

template <class T> std::size_t itemsIn(Core::Vector<T> const& list) {
    return list.size();
}

// One benchmark as --count runs it.
struct Counted {
    std::string name;
    std::size_t items;
    std::function<void()> run;
};

std::vector<Counted>& counted() {
    static std::vector<Counted> all;
    return all;
}

// The first run warms the caches and the allocator; only the second is counted.
void count(Counted const& row) {
    row.run();
    CALLGRIND_TOGGLE_COLLECT;
    row.run();
    CALLGRIND_TOGGLE_COLLECT;
    std::string const title = row.name + " " + std::to_string(row.items);
    CALLGRIND_DUMP_STATS_AT(title.c_str());
}

// Runs pass(text index) for every text and reports per item.
template <class Pass> void measure(State& state, Texts const& texts, std::size_t items, Pass pass) {
    std::size_t const before = allocationCount();
    for ([[maybe_unused]] auto const& iteration : state)
        for (std::size_t i = 0; i < texts.size(); ++i) pass(i);
    auto const allocations = static_cast<double>(allocationCount() - before);
    state.counters["item"] = Counter(static_cast<double>(items), Counter::kIsIterationInvariantRate | Counter::kInvert);
    state.counters["allocs"] =
        allocations / static_cast<double>(state.iterations()) / static_cast<double>(texts.size());
}

// One workload for one value type, and what is done with it.
template <class T> class Suite {
public:
    Suite(std::string name, Texts texts) : name(std::move(name)), texts(std::move(texts)) {
        for (Core::String const& text : this->texts) {
            Xml::TXmlAttribute<T> attribute;
            if (attribute.parseValue(text)) items += itemsIn(attribute.getValue());
            values.push_back(attribute);
        }
    }

    Suite& parses() {
        return add("parse", [this](std::size_t i) {
            Xml::TXmlAttribute<T> attribute;
            benchmark::DoNotOptimize(attribute.parseValue(texts[i]));
            benchmark::DoNotOptimize(attribute);
        });
    }

    Suite& prints() {
        return add("print", [this](std::size_t i) { benchmark::DoNotOptimize(values[i].getValueAsString()); });
    }

    // The floor of printing, a string of what is printed, and {fmt}. What a pointer points to is of the class.
    template <class Class = T> Suite& printedElsewhere() {
        auto const value = [this](std::size_t i) -> Class const& {
            if constexpr (std::is_same_v<Class, T>)
                return *values[i];
            else
                return static_cast<Class const&>(**values[i]);
        };
        add("print-floor", [value](std::size_t i) {
            static char buffer[1 << 14];
            benchmark::DoNotOptimize(Floors::print(buffer, value(i)));
            benchmark::ClobberMemory();
        });
        Texts printed;
        for (Xml::TXmlAttribute<T> const& attribute : values) printed.push_back(attribute.getValueAsString());
        add("print-string",
            [printed](std::size_t i) { benchmark::DoNotOptimize(Core::String(std::u16string_view(printed[i]))); });
#ifdef XMLATTR_BENCH_FMT
        add("print-fmt", [value](std::size_t i) { benchmark::DoNotOptimize(Fmt::print(value(i))); });
#endif
        return *this;
    }

    // With the text that was read, and with the next one, which is nearly always another.
    Suite& compares() {
        add("isEqual", [this](std::size_t i) { benchmark::DoNotOptimize(values[i].isEqual(texts[i])); });
        return add("isEqual-other", [this](std::size_t i) {
            benchmark::DoNotOptimize(values[i].isEqual(texts[i + 1 == texts.size() ? 0 : i + 1]));
        });
    }

    template <class Floor> Suite& floor(char const* what, Floor read) {
        return add(what, [this, read](std::size_t i) mutable { read(texts[i]); });
    }

private:
    template <class Pass> Suite& add(char const* what, Pass pass) {
        std::string const title = name + "/" + what;
        benchmark::RegisterBenchmark(title.c_str(),
                                     [this, pass](State& state) mutable { measure(state, texts, items, pass); });
        counted().push_back({title, items, [this, pass]() mutable {
                                 for (std::size_t i = 0; i < texts.size(); ++i) pass(i);
                             }});
        return *this;
    }

    std::string name;
    Texts texts;
    std::size_t items = 0;
    std::vector<Xml::TXmlAttribute<T>> values;
};

// The benchmarks refer to their suite until the program ends.
template <class T> Suite<T>& suite(char const* name, Texts texts) {
    return *new Suite<T>(name, std::move(texts));
}

void readNumbers(Core::String const& text) {
    static Core::Vector<float> numbers;
    numbers.clear();
    Floors::readNumbers(text, numbers);
    benchmark::DoNotOptimize(numbers.data());
    benchmark::ClobberMemory();
}

// The colour object is part of the work.
void makeColor(Core::String const& text) {
    unsigned int const rgb = Floors::readHex(text);
    benchmark::DoNotOptimize(Core::SmartPtr<Drawing::Color>(new Drawing::RGBColor(
        static_cast<unsigned char>(rgb >> 16), static_cast<unsigned char>(rgb >> 8), static_cast<unsigned char>(rgb))));
}

// Every text is compared with itself, at another place.
auto rightWord(Texts const& texts) {
    return [&texts, i = std::size_t{0}](Core::String const& text) mutable {
        benchmark::DoNotOptimize(Floors::isRightWord(text, texts[i]));
        i = i + 1 == texts.size() ? 0 : i + 1;
    };
}

template <class T> void keywordSuite(char const* name, Words const& words) {
    static Texts const texts = drawWords(words);
    suite<T>(name, texts).parses().floor("floor", rightWord(texts)).prints().compares();
}

void registerAll() {
    using Path = Core::Vector<Xml::PathDataCommand>;
    using Transforms = Core::Vector<Xml::Transform>;
    using Points = Core::Vector<Xml::Point>;
    using Color = Core::SmartPtr<Drawing::Color>;
    using namespace Drawing;
    suite<Path>("path-15k", mixedPath(15'000)).parses().floor("floor", readNumbers);
    suite<Path>("path-1m", mixedPath(1'000'000)).parses().floor("floor", readNumbers);
    suite<Path>("path-icons", iconPaths()).parses().floor("floor", readNumbers);
    suite<Transforms>("transform", transforms()).parses().floor("floor", readNumbers);
    suite<Points>("points", pointLists()).parses().floor("floor", readNumbers).prints().printedElsewhere();
    suite<Xml::Length>("length", numbersWith(lengthUnits))
        .parses()
        .floor("floor", readNumbers)
        .prints()
        .printedElsewhere()
        .compares();
    suite<Xml::SLength>("slength", numbersWith(sLengthUnits)).parses().floor("floor", readNumbers).compares();
    suite<Xml::LengthOrPercent>("length-or-percent", numbersWith(bareAndPercent))
        .parses()
        .prints()
        .printedElsewhere()
        .compares();
    suite<float>("number", numbersWith({""})).parses().prints().printedElsewhere();
    suite<int>("integer", integers()).parses().prints().printedElsewhere();
    suite<Color>("color-name", drawWords(colorNames)).parses().prints().printedElsewhere<RGBColor>().compares();
    suite<Color>("color-hex", hexColors()).parses().floor("floor", makeColor);
    suite<Color>("color-rgb", rgbColors()).parses().floor("floor", readNumbers).prints().printedElsewhere<RGBColor>();
    suite<Color>("color-cmyk", cmykColors()).parses().prints().printedElsewhere<CMYKColor>();
    suite<Color>("color-icc", iccColors()).parses().prints().printedElsewhere<ICCColor>();
    suite<Color>("color-spot", spotColors()).parses().prints().printedElsewhere<SpotColor>();
    suite<Xml::BoxShadow>("box-shadow", shadows()).parses().prints().printedElsewhere();
    keywordSuite<Xml::BorderStyle>("keyword-border", borderStyles);
    keywordSuite<Xml::SDisplay>("keyword-display", displays);
}

} // namespace

} // namespace Bench

int main(int argc, char** argv) {
    Bench::registerAll();
    if (argc == 2 && std::string_view(argv[1]) == "--count") {
        for (Bench::Counted const& row : Bench::counted()) Bench::count(row);
        return 0;
    }
    benchmark::Initialize(&argc, argv);
    if (benchmark::ReportUnrecognizedArguments(argc, argv)) return 1;
    benchmark::RunSpecifiedBenchmarks();
}
