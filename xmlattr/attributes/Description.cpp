#include "xmlattr/attributes/Description.h"

#include "xmlattr/core/Append.h"
#include "xmlattr/core/Format.h"

namespace Xml {

void Words::add(std::u16string_view word) {
    list.push_back(word);
}

Parts& Parts::add(std::u16string_view name) {
    list.push_back({name, {}});
    return *this;
}

Parts& Parts::operator<<(std::u16string_view text) {
    list.back().value += text;
    return *this;
}

Parts& Parts::operator<<(float number) {
    Core::append(list.back().value, number);
    return *this;
}

Parts& Parts::operator<<(double number) {
    Core::append(list.back().value, number);
    return *this;
}

Parts& Parts::operator<<(int number) {
    Core::append(list.back().value, number);
    return *this;
}

} // namespace Xml
