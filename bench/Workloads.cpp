#include "Workloads.h"

#include <cstdio>
#include <iterator>
#include <random>
#include <string>

namespace Bench {

namespace {

// The distributions of the standard library differ between its implementations; these do not.
class Random {
public:
    std::size_t below(std::size_t limit) { return engine() % limit; }
    double between(double low, double high) {
        return low + (high - low) * static_cast<double>(engine()) / 4294967296.0;
    }
    bool chance(double probability) { return between(0, 1) < probability; }
    template <class List> auto const& oneOf(List const& list) { return list[below(std::size(list))]; }

    // With nothing to tell how many digits come next.
    std::string number(double low, double high) {
        static constexpr char const* formats[] = {"%.0f", "%.0f", "%.0f", "%.1f", "%.2f",
                                                  "%.2f", "%.3f", "%.3f", "%.3f", "%.6f"};
        return print(oneOf(formats), between(low, high));
    }

    // As programs write them that round to a fixed number of decimals and drop trailing zeros.
    std::string rounded(double low, double high, int decimals) {
        static constexpr char const* formats[] = {"%.0f", "%.1f", "%.2f", "%.3f", "%.4f"};
        std::string text = print(formats[decimals], between(low, high));
        if (decimals == 0) return text;
        text.erase(text.find_last_not_of('0') + 1);
        if (text.back() == '.') text.pop_back();
        return text;
    }

private:
    static std::string print(char const* format, double value) {
        char buffer[64];
        std::snprintf(buffer, sizeof buffer, format, value);
        return buffer;
    }

    std::mt19937 engine{20240611};
};

struct Command {
    char letter;
    int numbers;
};

constexpr Command allCommands[] = {{'M', 2}, {'c', 6}, {'C', 6}, {'c', 6}, {'l', 2}, {'L', 2}, {'l', 2},
                                   {'h', 1}, {'H', 1}, {'v', 1}, {'V', 1}, {'s', 4}, {'S', 4}, {'q', 4},
                                   {'Q', 4}, {'t', 2}, {'T', 2}, {'a', 7}, {'A', 7}, {'z', 0}};
constexpr Command iconCommands[] = {{'c', 6}, {'c', 6}, {'c', 6}, {'l', 2}, {'l', 2}, {'h', 1}, {'v', 1}, {'s', 4}};

struct Manner {
    bool packed; // no separator that can be left out
    std::string separator;
    int decimals;
};

void append(std::string& text, Random& random, Command command, Manner const& manner) {
    text += command.letter;
    for (int i = 0; i < command.numbers; ++i) {
        bool const isFlag = command.numbers == 7 && (i == 3 || i == 4);
        std::string const number = isFlag               ? random.chance(0.5) ? "1" : "0"
                                   : random.chance(0.9) ? random.rounded(-60, 900, manner.decimals)
                                                        : random.number(0, 900);
        if (i > 0 && !(manner.packed && number[0] == '-')) text += manner.separator;
        text += number;
    }
    if (!manner.packed) text += ' ';
}

template <class Make> Texts repeat(int count, Make make) {
    Texts texts;
    for (int i = 0; i < count; ++i) texts.push_back(Core::String::fromUtf8(make()));
    return texts;
}

std::string call(Random& random, char const* name, std::initializer_list<std::string> arguments) {
    std::string const separator = random.chance(0.7) ? "," : " ";
    std::string text = std::string(name) + "(";
    for (std::string const& argument : arguments) text += (text.back() == '(' ? "" : separator) + argument;
    return text + ")";
}

std::string threeBytes(Random& random) {
    std::string text = std::to_string(random.below(256));
    for (int i = 0; i < 2; ++i) text += "," + std::to_string(random.below(256));
    return text;
}

std::string transform(Random& random) {
    auto const small = [&] { return random.number(-3, 3); };
    auto const large = [&] { return random.number(-900, 900); };
    switch (random.below(6)) {
    case 0: return call(random, "matrix", {small(), small(), small(), small(), large(), large()});
    case 1: return call(random, "scale", {small(), small()});
    case 2: return call(random, "rotate", {large()});
    case 3: return call(random, "skewX", {large()});
    default: return call(random, "translate", {large(), large()});
    }
}

} // namespace

Texts mixedPath(std::size_t size) {
    Random random;
    Manner manner{false, " ", 2};
    std::string text = "M10 20";
    while (text.size() < size) {
        if (random.chance(0.02)) {
            bool const packed = random.chance(0.5);
            manner = {packed, packed || random.chance(0.4) ? " " : ",", static_cast<int>(random.below(5))};
        }
        bool const closed = text[text.size() - 1 - !manner.packed] == 'z';
        append(text, random, closed ? allCommands[0] : random.oneOf(allCommands), manner);
    }
    return {Core::String::fromUtf8(text)};
}

Texts iconPaths() {
    Random random;
    return repeat(400, [&] {
        Manner const manner{random.chance(0.3), random.chance(0.5) ? "," : " ", random.chance(0.5) ? 3 : 4};
        std::string text;
        append(text, random, allCommands[0], manner);
        for (std::size_t i = 0, count = 3 + random.below(30); i < count; ++i)
            append(text, random, random.oneOf(iconCommands), manner);
        return text + "z";
    });
}

Texts transforms() {
    Random random;
    return repeat(8000, [&] {
        std::string text = transform(random);
        while (random.chance(0.35)) text += " " + transform(random);
        return text;
    });
}

Texts pointLists() {
    Random random;
    return repeat(400, [&] {
        std::string text;
        int const decimals = static_cast<int>(random.below(5));
        char const within = random.chance(0.6) ? ',' : ' ';
        for (std::size_t i = 0, count = 4 + random.below(76); i < count; ++i) {
            if (i > 0) text += ' ';
            text += random.rounded(-200, 900, decimals) + within + random.rounded(-200, 900, decimals);
        }
        return text;
    });
}

Texts numbersWith(Words const& suffixes) {
    Random random;
    return repeat(20000, [&] {
        std::string const number = random.number(random.chance(0.15) ? -20 : 0, random.chance(0.3) ? 1000 : 100);
        return number + random.oneOf(suffixes);
    });
}

Texts hexColors() {
    Random random;
    return repeat(20000, [&] {
        std::string text = "#";
        for (std::size_t digits = random.chance(0.3) ? 3 : 6; digits > 0; --digits)
            text += "0123456789abcdef"[random.below(16)];
        return text;
    });
}

Texts rgbColors() {
    Random random;
    return repeat(20000, [&] {
        bool const percent = random.chance(0.4);
        auto const component = [&] { return std::to_string(random.below(percent ? 101 : 256)) + (percent ? "%" : ""); };
        return "rgb(" + component() + "," + component() + "," + component() + ")";
    });
}

Texts cmykColors() {
    Random random;
    return repeat(20000, [&] {
        std::string text = "cmyk(";
        for (char const* end : {",", ",", ",", ")"}) text += random.rounded(0, 1, 2) + end;
        return text;
    });
}

Texts iccColors() {
    Random random;
    return repeat(20000, [&] {
        std::string text = "rgb-icc(" + threeBytes(random) + ",#Fogra39";
        for (int i = 0; i < 4; ++i) text += "," + random.rounded(0, 1, 2);
        return text + ")";
    });
}

Texts spotColors() {
    Random random;
    return repeat(
        20000, [&] { return "spot-color(Fogra39," + random.rounded(0, 1, 2) + ",rgb(" + threeBytes(random) + "))"; });
}

Texts integers() {
    Random random;
    return repeat(20000, [&] { return random.rounded(random.chance(0.15) ? -20 : 0, 10000, 0); });
}

Texts shadows() {
    Random random;
    return repeat(20000, [&] {
        std::string text;
        for (int i = 0; i < 3; ++i) text += random.rounded(-3, 20, 1) + random.oneOf(lengthUnits) + " ";
        return text + "rgb(" + threeBytes(random) + ")";
    });
}

Texts drawWords(Words const& words) {
    Random random;
    return repeat(20000, [&] { return std::string(random.oneOf(words)); });
}

Words const lengthUnits = {"px", "pt", "pc", "cm", "mm", "in", "em", "ex"};
Words const sLengthUnits = {"", "", "%", "pt", "cm", "mm", "in", "em", "ex", "pc"};
Words const bareAndPercent = {"", "%"};
Words const borderStyles = {"none",   "inset",  "groove", "outset", "ridge",
                            "dotted", "dashed", "solid",  "double", "hidden"};
Words const displays = {"inline",
                        "block",
                        "list-item",
                        "run-in",
                        "compact",
                        "marker",
                        "table",
                        "inline-table",
                        "table-row-group",
                        "table-header-group",
                        "table-footer-group",
                        "table-row",
                        "table-column-group",
                        "table-column",
                        "table-cell",
                        "table-caption",
                        "none"};
Words const colorNames = {"aliceblue",  "antiquewhite", "aqua",      "azure",          "beige",
                          "black",      "black",        "blue",      "blueviolet",     "brown",
                          "burlywood",  "chocolate",    "coral",     "cornflowerblue", "crimson",
                          "cyan",       "darkblue",     "darkgray",  "darkorange",     "darkred",
                          "deeppink",   "dimgray",      "firebrick", "fuchsia",        "gold",
                          "gray",       "gray",         "green",     "green",          "hotpink",
                          "indigo",     "ivory",        "khaki",     "lavender",       "lightblue",
                          "lightgray",  "lime",         "linen",     "magenta",        "maroon",
                          "mediumblue", "mintcream",    "moccasin",  "navy",           "navy",
                          "olive",      "orange",       "orange",    "orchid",         "palegreen",
                          "peru",       "pink",         "plum",      "purple",         "red",
                          "red",        "rosybrown",    "royalblue", "salmon",         "seagreen",
                          "sienna",     "silver",       "silver",    "skyblue",        "slategray",
                          "snow",       "steelblue",    "tan",       "teal",           "thistle",
                          "tomato",     "turquoise",    "violet",    "wheat",          "white",
                          "white",      "yellow",       "yellow",    "yellowgreen",    "lightgoldenrodyellow"};

} // namespace Bench
