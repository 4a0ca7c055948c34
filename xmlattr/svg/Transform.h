// The transform lists of SVG.
#pragma once

#include "xmlattr/attributes/TXmlAttribute.h"
#include "xmlattr/core/WordTable.h"
#include "xmlattr/measures/SLength.h"

#include <cstdint>

namespace Xml {

// The functions of SVG 1.1.
enum class XMLATTR_API TransformType : std::int32_t {
    Matrix = 1,
    Translate = 2,
    Scale = 3,
    Rotate = 4,
    SkewX = 5,
    SkewY = 6,
};

// A kind of transform and how many arguments it takes.
struct TransformArguments {
    TransformType type;
    int least, most;
};

// Their names, exact in case.
inline constexpr Core::WordRow<TransformArguments> transformWords[] = {
    {u"matrix", {TransformType::Matrix, 6, 6}}, {u"translate", {TransformType::Translate, 1, 2}},
    {u"scale", {TransformType::Scale, 1, 2}},   {u"rotate", {TransformType::Rotate, 1, 3}},
    {u"skewX", {TransformType::SkewX, 1, 1}},   {u"skewY", {TransformType::SkewY, 1, 1}},
};

// A Transform holds such attributes: the first mention of a class decides whether it is exported. The destructor is as
// in TXmlAttribute.h, and Clang reports it here again.
#pragma GCC diagnostic push
#pragma GCC diagnostic ignored "-Wnon-virtual-dtor"
extern template class XMLATTR_API TXmlAttribute<SLength>;
#pragma GCC diagnostic pop

// One transform as it was written, with the parameters of every kind side by side; only those of its
// own kind mean anything, and the others are zero. Numbers have single precision when they were read.
struct XMLATTR_API Transform {
    TransformType type = TransformType::Translate;
    double matrix[6] = {}; // a b c d e f
    TXmlAttribute<SLength> tx, ty;
    double sx = 0, sy = 0;
    double angle = 0; // of a rotation, in degrees
    TXmlAttribute<SLength> cx, cy;
    double skewAngleX = 0, skewAngleY = 0; // a skew has its angle in both

    // The identity: a translation by nothing.
    constexpr Transform() = default;
    constexpr Transform(double a, double b, double c, double d, double e, double f)
        : type(TransformType::Matrix), matrix{a, b, c, d, e, f} {}
    constexpr Transform(SLength const& newTx, SLength const& newTy) : tx(newTx), ty(newTy) {}
    constexpr Transform(double newSx, double newSy) : type(TransformType::Scale), sx(newSx), sy(newSy) {}
    constexpr Transform(double newAngle, SLength const& newCx, SLength const& newCy)
        : type(TransformType::Rotate), angle(newAngle), cx(newCx), cy(newCy) {}
    // A skew.
    constexpr Transform(TransformType newType, double newAngle)
        : type(newType), skewAngleX(newAngle), skewAngleY(newAngle) {}

    // The types and the parameters of the type are equal; an out-of-range type equals nothing.
    // Intended: skews compare the angle of a rotation, so that two of the same type from a text or
    // the constructor are equal whatever their own angles.
    bool operator==(Transform const& other) const;

    // Reads one transform of SVG 1.1, with or without its ")": a keyword, exact in case, then the
    // arguments, each ended by one white space, "," or ")". Translations and centres are SVG
    // lengths; of the other numbers, those of a matrix are read whole, and of the rest what stands
    // at the start counts ("45deg" is 45). Never fails: anything else gives the identity.
    // Intended: two delimiters in a row hold an empty argument between them, unless the second
    // is white space; after the last argument, one white space does no harm and two do, as does one
    // before a ")".
    static Transform readTransform(Core::String const& text);
};

// Transforms, each up to its ")", with any mixture of white space and commas between them or nothing.
// What cannot be read is an identity in its place; what has no ")" at the end of the text is dropped.
// Never refuses a text. Intended: appends to the list, since callers who want a fresh one parse into
// a fresh attribute. There is no printer.
template <> struct XMLATTR_API AttributeTraits<Core::Vector<Transform>> {
    static bool parse(Core::Vector<Transform>& value, std::u16string_view text);
    static constexpr bool refusesComparison = true;
    static constexpr bool printsEmpty = true;
    static constexpr Description describe{
        .forms = {u"matrix(), translate(), scale(), rotate(), skewX() and skewY() in any number"},
        .examples = {u"translate(1,2) rotate(45deg,1,2),matrix(1 0 0 1 0 0) skewX(3)", u"scale(2)"},
        .readsList = true,
        .readsAnyText = true};
    static void parts(Core::Vector<Transform> const& value, Parts& out);
};

} // namespace Xml
