#include "xmlattr/document/Url.h"

#include "xmlattr/core/Text.h"
#include "xmlattr/document/Call.h"

namespace Xml {

namespace {

bool isSpaceOrQuote(char16_t unit) {
    return Core::isSpace(unit) || unit == u'\'' || unit == u'"';
}

// The reference in what follows the "(". Every ")" ends it anew, so that only the last one counts;
// one at the very start leaves nothing before it.
std::u16string_view referenceIn(std::u16string_view text) {
    while (!text.empty() && isSpaceOrQuote(text.front())) text.remove_prefix(1);
    std::size_t const close = text.rfind(u')');
    if (close == std::u16string_view::npos) return {};
    text = text.substr(0, close);
    while (!text.empty() && isSpaceOrQuote(text.back())) text.remove_suffix(1);
    return text;
}

} // namespace

bool AttributeTraits<Url>::parse(Url& value, std::u16string_view text) {
    if (text.size() < 4 || !text.starts_with(u"url")) {
        value = Url(text);
        return true;
    }
    std::size_t const open = text.find(u'(');
    if (open == std::u16string_view::npos) return false;
    value = Url(referenceIn(text.substr(open + 1)));
    return true;
}

Core::String AttributeTraits<Url>::print(Url const& value) {
    return printCall(u"url", value.getUrl());
}

} // namespace Xml
