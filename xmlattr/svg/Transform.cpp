#include "xmlattr/svg/Transform.h"

#include "xmlattr/attributes/TextCursor.h"
#include "xmlattr/core/Exceptions.h"
#include "xmlattr/core/Format.h"
#include "xmlattr/core/NumberReader.h"

#include <algorithm>

namespace Xml {

namespace {

// A keyword and how many arguments it takes.
struct Form {
    std::u16string_view keyword;
    TransformType type;
    int least, most;
};

constexpr Form forms[] = {
    {u"matrix", TransformType::Matrix, 6, 6}, {u"translate", TransformType::Translate, 1, 2},
    {u"scale", TransformType::Scale, 1, 2},   {u"rotate", TransformType::Rotate, 1, 3},
    {u"skewX", TransformType::SkewX, 1, 1},   {u"skewY", TransformType::SkewY, 1, 1},
};

// One argument. A plain number is the same whatever reads it; everything else goes to the reader
// of what the argument stands for.
class Argument {
public:
    static Argument take(TextCursor& cursor) {
        auto const ends = [](char16_t unit) { return unit == u',' || unit == u')' || Core::isSpace(unit); };
        Argument argument;
        char16_t const *const begin = cursor.text.data(), *const end = begin + cursor.text.size();
        char16_t const* const behind = Core::scanPlain(begin + cursor.index, end, argument.number);
        argument.isPlain = behind && (behind == end || ends(*behind));
        if (argument.isPlain)
            cursor.index = static_cast<int>(behind - begin);
        else
            argument.token = cursor.takeWhile([&](char16_t unit) { return !ends(unit); });
        return argument;
    }

    bool readWhole(double& out) const {
        float whole = number;
        if (!isPlain && !Core::Format::parseFloat(token, whole)) return false;
        out = whole;
        return true;
    }

    double readStart() const { return isPlain ? number : Core::Format::parseFloat(token); }

    SLength readLength() const {
        if (isPlain) return {number, SLength::UserUnit};
        SLength length;
        AttributeTraits<SLength>::parse(length, token); // zero when it is none
        return length;
    }

private:
    std::u16string_view token;
    float number = 0;
    bool isPlain = false;
};

// False for a bad number of a matrix.
bool store(Transform& transform, int index, Argument const& argument) {
    switch (transform.type) {
    case TransformType::Matrix: return argument.readWhole(transform.matrix[index]);
    case TransformType::Translate: (index == 0 ? transform.tx : transform.ty) = argument.readLength(); return true;
    case TransformType::Scale: (index == 0 ? transform.sx : transform.sy) = argument.readStart(); return true;
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

// Reads into an identity. False when the text is no transform; then `transform` may hold parts of it.
bool read(Transform& transform, std::u16string_view text) {
    TextCursor cursor{text};
    cursor.skipSpace();
    auto const keyword = cursor.takeWhile([](char16_t unit) { return !Core::isSpace(unit) && unit != u'('; });
    auto const* const form = std::ranges::find(forms, keyword, &Form::keyword);
    cursor.skipSpace();
    if (form == std::end(forms) || !cursor.take(u'(')) return false;

    transform.type = form->type;
    int count = 0;
    for (; !cursor.atEnd(); ++cursor.index) {
        cursor.skipSpace();
        if (cursor.atEnd() || count == form->most) return false;
        if (!store(transform, count++, Argument::take(cursor))) return false;
    }
    if (form->type == TransformType::Scale && count == 1) transform.sy = transform.sx;
    return count >= form->least;
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
    Transform transform;
    return read(transform, text) ? transform : Transform();
}

bool AttributeTraits<Core::Vector<Transform>>::parse(Core::Vector<Transform>& value, std::u16string_view text) {
    auto const separates = [](char16_t unit) { return unit == u',' || Core::isSpace(unit); };
    for (TextCursor cursor{text};;) {
        cursor.takeWhile(separates);
        auto const element = cursor.takeWhile([](char16_t unit) { return unit != u')'; });
        if (!cursor.take(u')')) return true;
        Transform& transform = value.emplace_back();
        if (!read(transform, element)) transform = Transform();
    }
}

} // namespace Xml
