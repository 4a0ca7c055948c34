#include "xmlattr/svg/Transform.h"

#include "xmlattr/core/Exceptions.h"
#include "xmlattr/core/Format.h"
#include "xmlattr/core/NumberReader.h"
#include "xmlattr/core/Text.h"
#include "xmlattr/measures/Units.h"
#include "xmlattr/svg/ListGrowth.h"

#include <algorithm>
#include <iterator>

namespace Xml {

namespace {

// Whether the unit ends an argument.
bool ends(char16_t unit) {
    return unit == u',' || unit == u')' || Core::isSpace(unit);
}

// One argument, up to the unit that ends it. A plain number is the same whatever reads it, since it
// ends with a digit; every other token goes to the reader of what it stands for.
struct Argument {
    char16_t const* begin;
    char16_t const* end;
    float number = 0;
    bool isPlain;

    // Takes the argument at `begin`.
    Argument(char16_t const* begin, char16_t const* textEnd) : begin(begin) {
        end = Core::scanPlain(begin, textEnd, number);
        isPlain = end && (end == textEnd || ends(*end));
        if (!isPlain) end = std::find_if(begin, textEnd, ends);
    }

    std::u16string_view token() const { return {begin, static_cast<std::size_t>(end - begin)}; }

    // False for what is no number as a whole.
    bool readWhole(double& out) const {
        float whole = number;
        if (!isPlain && !Core::Format::parseFloat(token(), whole)) return false;
        out = whole;
        return true;
    }

    // The number at the start, 0 when there is none.
    double readStart() const { return isPlain ? number : Core::Format::parseFloat(token()); }

    // Zero for what is no length.
    SLength readLength() const {
        if (isPlain) return {number, SLength::UserUnit};
        SLength length;
        AttributeTraits<SLength>::parse(length, token());
        return length;
    }
};

// Stores the argument with an index. False when it is bad.
bool store(Transform& transform, int index, Argument const& argument) {
    switch (transform.type) {
    case TransformType::Matrix: return argument.readWhole(transform.matrix[index]);
    case TransformType::Translate: (index == 0 ? transform.tx : transform.ty) = argument.readLength(); return true;
    case TransformType::Scale:
        transform.sy = argument.readStart(); // stands for both when it is alone
        if (index == 0) transform.sx = transform.sy;
        return true;
    case TransformType::Rotate:
        if (index == 0)
            transform.angle = argument.readStart();
        else
            (index == 1 ? transform.cx : transform.cy) = argument.readLength();
        return true;
    case TransformType::SkewX:
    case TransformType::SkewY: transform.skewAngleX = transform.skewAngleY = argument.readStart(); return true;
    }
    throw Core::UnreacheableCodeException("TransformListAttribute", __LINE__);
}

using FunctionNames = Core::WordTable<transformWords>;

// The function whose name stands at `at`, which moves after it, or noWord.
template <class End> std::size_t takeName(char16_t const*& at, End end) {
    char16_t const* const name = at;
    while (at != end && Core::isLetter(*at)) ++at;
    return FunctionNames::indexOf({name, static_cast<std::size_t>(at - name)});
}

// A number that is the whole argument at `at`, of which no look at the end of the text is needed. One that ends with a
// digit is the same whatever reads it. Gives the place after it; null for every other argument.
char16_t const* readNumber(char16_t const* at, float& number) {
    char16_t const* after = Core::scanPlain(at, std::unreachable_sentinel, number);
    if (after && ends(*after)) return after;
    for (after = at; !ends(*after);) ++after;
    std::u16string_view const token(at, static_cast<std::size_t>(after - at));
    return Core::isDigit(after[-1]) && Core::Format::parseFloat(token, number) ? after : nullptr;
}

// Reads a transform of a list whose arguments are all such numbers, as they nearly always are, into an identity, and
// gives the place of its ")". Null where the reference has to tell; then nothing has changed. The last unit of the text
// is the ")" of this transform or of a later one.
char16_t const* readNumbers(Transform& transform, char16_t const* at) {
    std::size_t const row = takeName(at, std::unreachable_sentinel);
    if (row == Core::noWord || *at != u'(') return nullptr;
    TransformArguments const form = FunctionNames::value(row);
    float numbers[6];
    int count = 0;
    for (bool isLast = false; !isLast; ++count) {
        ++at;
        while (Core::isSpace(*at)) ++at;
        if (count == form.most || !(at = readNumber(at, numbers[count]))) return nullptr;
        isLast = *at == u')';
    }
    if (count < form.least) return nullptr;

    transform.type = form.type;
    auto const length = [&](int index) { return SLength(index < count ? numbers[index] : 0, SLength::UserUnit); };
    switch (form.type) {
    case TransformType::Matrix: std::copy(numbers, numbers + 6, transform.matrix); return at;
    case TransformType::Translate:
        transform.tx = length(0);
        transform.ty = length(1);
        return at;
    case TransformType::Scale:
        transform.sx = numbers[0];
        transform.sy = numbers[count - 1];
        return at;
    case TransformType::Rotate:
        transform.angle = numbers[0];
        transform.cx = length(1);
        transform.cy = length(2);
        return at;
    case TransformType::SkewX:
    case TransformType::SkewY: transform.skewAngleX = transform.skewAngleY = numbers[0]; return at;
    }
    throw Core::UnreacheableCodeException("TransformListAttribute", __LINE__);
}

// The reference: reads one transform into an identity and moves `at` no further than to its ")" when it stands in a
// list, to the end when it stands alone. False when there is none; then `transform` may hold parts
// of one.
bool read(Transform& transform, char16_t const*& at, char16_t const* end, bool inList) {
    auto const skipSpace = [&] {
        while (at != end && Core::isSpace(*at)) ++at;
    };
    auto const atEnd = [&] { return at == end || (inList && *at == u')'); };

    skipSpace();
    std::size_t const row = takeName(at, end);
    if (row == Core::noWord) return false;
    TransformArguments const form = FunctionNames::value(row);
    skipSpace();
    if (at == end || *at != u'(') return false;
    ++at;

    transform.type = form.type;
    int count = 0;
    while (!atEnd()) {
        skipSpace();
        if (atEnd() || count == form.most) return false;
        Argument const argument(at, end);
        if (!store(transform, count++, argument)) return false;
        at = argument.end;
        if (!atEnd()) ++at;
    }
    return count >= form.least;
}

void addTransform(Parts& out, Transform const& transform) {
    switch (transform.type) {
    case TransformType::Matrix:
        out.add(u"matrix") << transform.matrix[0];
        for (int i = 1; i < 6; ++i) out << u" " << transform.matrix[i];
        break;
    case TransformType::Translate: out.add(u"translate") << *transform.tx << u" " << *transform.ty; break;
    case TransformType::Scale: out.add(u"scale") << transform.sx << u" " << transform.sy; break;
    case TransformType::Rotate:
        out.add(u"rotate") << transform.angle << u" around " << *transform.cx << u" " << *transform.cy;
        break;
    case TransformType::SkewX: out.add(u"skewX") << transform.skewAngleX; break;
    case TransformType::SkewY: out.add(u"skewY") << transform.skewAngleY; break;
    }
}

} // namespace

bool Transform::operator==(Transform const& other) const {
    if (type != other.type) return false;
    switch (type) {
    case TransformType::Matrix: return std::ranges::equal(matrix, other.matrix);
    case TransformType::Translate: return tx == other.tx && ty == other.ty;
    case TransformType::Scale: return sx == other.sx && sy == other.sy;
    case TransformType::Rotate: return angle == other.angle && cx == other.cx && cy == other.cy;
    case TransformType::SkewX:
    case TransformType::SkewY: return angle == other.angle;
    }
    return false;
}

Transform Transform::readTransform(Core::String const& text) {
    std::u16string_view const units = text;
    char16_t const* at = units.data();
    Transform transform;
    return read(transform, at, at + units.size(), false) ? transform : Transform();
}

bool AttributeTraits<Core::Vector<Transform>>::parse(Core::Vector<Transform>& value, std::u16string_view text) {
    std::size_t const size = text.rfind(u')') + 1; // what follows the last ")" is dropped
    char16_t const* at = text.data();
    char16_t const *const begin = at, *const end = at + size;
    for (;; ++at) {
        while (at != end && (*at == u',' || Core::isSpace(*at))) ++at;
        if (at == end) return true;
        if (value.size() == value.capacity()) growList<24>(value, at - begin, end - begin);
        Transform& transform = value.emplace_back(SLength(), SLength());
        if (char16_t const* const after = readNumbers(transform, at)) {
            at = after;
        } else if (!read(transform, at, end, true)) {
            transform = Transform();
            at = std::find(at, end, u')');
        }
    }
}

void AttributeTraits<Core::Vector<Transform>>::parts(Core::Vector<Transform> const& value, Parts& out) {
    out.add(u"items") << static_cast<int>(value.size());
    for (Transform const& transform : value) addTransform(out, transform);
}

} // namespace Xml
