#include "xmlattr/attributes/ParseUtil.h"

#include "xmlattr/attributes/TextCursor.h"

namespace Xml {

namespace {

// Runs one cursor operation at `index` and moves it along.
template <class Operation> auto at(Core::String const& text, int& index, Operation operation) {
    TextCursor cursor{text, index};
    auto const result = operation(cursor);
    index = cursor.index;
    return result;
}

} // namespace

bool ParseUtil::skipWhiteSpace(Core::String const& text, int& index) {
    return at(text, index, [](TextCursor& cursor) { return cursor.skipSpace(); });
}

bool ParseUtil::skipNonWhiteSpace(Core::String const& text, int& index) {
    return at(text, index, [](TextCursor& cursor) {
        return !cursor.takeWhile([](char16_t unit) { return !Core::isSpace(unit); }).empty();
    });
}

Core::String ParseUtil::extractWord(Core::String const& text, int& index) {
    return at(text, index, [](TextCursor& cursor) { return cursor.takeWord(); });
}

Core::String ParseUtil::extractWordOrFunction(Core::String const& text, int& index) {
    return at(text, index, [](TextCursor& cursor) { return cursor.takeWordOrFunction(); });
}

bool equalsText(Core::String const& text, char16_t const* literal) {
    return text == literal;
}

} // namespace Xml
