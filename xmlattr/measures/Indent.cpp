#include "xmlattr/measures/Indent.h"

#include "xmlattr/core/Exceptions.h"
#include "xmlattr/measures/Reading.h"

namespace Xml {

bool AttributeTraits<Indent>::parse(Indent& value, std::u16string_view text) {
    return readAs<IndentFunction>(value, text) || readAs<LengthOrPercent>(value, text);
}

Core::String AttributeTraits<Indent>::print(Indent const& value) {
    switch (value.getFunction()) {
    case IndentFunction::LengthOrPercent: return LengthOrPercent::getValueAsString(value.getLengthOrPercent());
    case IndentFunction::None:
    case IndentFunction::LabelEnd:
    case IndentFunction::BodyStart: return AttributeTraits<IndentFunction>::print(value.getFunction());
    }
    throw Core::UnreacheableCodeException("IndentAttribute", __LINE__);
}

void AttributeTraits<Indent>::words(Words& out) {
    out.addAll(Keywords<IndentFunction>::rows);
    AttributeTraits<LengthOrPercent>::words(out);
}

} // namespace Xml
